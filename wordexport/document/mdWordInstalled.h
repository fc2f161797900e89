#pragma once

/// True if the word processor can be started and ended again; false, without a message, on any failure.
bool mdWordInstalled();
