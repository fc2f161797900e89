#pragma once

#include "base/clsRunTimeError.h"

#include <memory>

/// Dereferences a pointer; a null pointer raises the object error. Look-ups return null when they fail; callers that
/// need the object use this.
template <class T> T &mdRequired(const std::shared_ptr<T> &pointer)
{
    if (!pointer)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return *pointer;
}
