#pragma once

#include "base/clsRunTimeError.h"

#include <system_error>

/// Raises a run-time error for a failed file operation of the standard library; does nothing on success.
inline void mdCheckSystemError(const std::error_code &error)
{
    if (error)
        throw clsRunTimeError::fromSystem(error.value());
}

/// Runs a file operation of the standard library, again if a signal interrupted it. A failure is a run-time error.
template <class Operation> auto mdSystemOperation(Operation operation)
{
    std::error_code error;
    auto result = operation(error);
    while (error == std::errc::interrupted)
        result = operation(error);
    mdCheckSystemError(error);
    return result;
}
