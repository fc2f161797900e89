#pragma once

#include "base/clsRunTimeError.h"

#include <gtest/gtest.h>

/// The number of the run-time error that the call raises, 0 if none.
template <class Call> int errorOf(Call call)
{
    try {
        call();
    } catch (const clsRunTimeError &error) {
        return error.number();
    }
    return 0;
}
