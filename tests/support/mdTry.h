#pragma once

#include <QTest>

#include <gtest/gtest.h>

// Outside QtTest's own tests its macros only return from the function: a failed wait would go unnoticed.
#undef QTRY_VERIFY_WITH_TIMEOUT
#undef QTRY_COMPARE_WITH_TIMEOUT
#undef QTRY_VERIFY
#undef QTRY_COMPARE
#define QTRY_VERIFY_WITH_TIMEOUT(condition, timeout)                                                                   \
    ASSERT_TRUE(QTest::qWaitFor([&] { return bool(condition); }, timeout)) << #condition
#define QTRY_COMPARE_WITH_TIMEOUT(actual, expected, timeout)                                                           \
    do {                                                                                                               \
        (void)QTest::qWaitFor([&] { return (actual) == (expected); }, timeout);                                        \
        ASSERT_EQ(expected, actual);                                                                                   \
    } while (false)
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 5000)
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, 5000)
