#pragma once

#include "base/clsRunTimeError.h"

#include <memory>

/// What a pointer points to; a pointer to nothing is the object error. Look-ups return nothing when they fail, and
/// whoever needs an object all the same says so with this.
template <class T> T &mdExisting(const std::shared_ptr<T> &pointer)
{
    if (!pointer)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return *pointer;
}
