#pragma once

#include "shell/clsRunTimeError.h"

#include <system_error>

/// Turns the failure of a file operation of the standard library into a run-time error; nothing where it succeeded.
inline void mdCheckSystemError(const std::error_code &error)
{
    if (error)
        throw clsRunTimeError::fromSystem(error.value());
}
