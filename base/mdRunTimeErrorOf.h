#pragma once

#include "base/clsRunTimeError.h"

#include <exception>

/// The run-time error for a failure that was not caught below the top level.
clsRunTimeError mdRunTimeErrorOf(const std::exception_ptr &failure);
