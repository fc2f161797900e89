#pragma once

#include <QString>

/// Why a file could not be written, for the end of a sentence: "the disk is full".
QString FailureInWords(int number);
