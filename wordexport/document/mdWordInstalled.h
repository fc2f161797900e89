#pragma once

/// True when the word processor can be started and ended again; any failure on that road makes it false and is
/// not shown.
bool mdWordInstalled();
