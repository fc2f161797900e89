#pragma once

#include "base/clsRunTimeError.h"

#include <exception>

/// The run-time error that a failure counts as which nothing below the top has caught.
clsRunTimeError mdRunTimeErrorOf(const std::exception_ptr &failure);
