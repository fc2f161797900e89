#pragma once

/// While an object lives, nothing may be written, renamed or deleted outside the test's folder. The fuzzer itself may
/// write anywhere between two inputs.
class clsFuzzGuard {
public:
    clsFuzzGuard();
    ~clsFuzzGuard();
    clsFuzzGuard(const clsFuzzGuard &) = delete;
    clsFuzzGuard &operator=(const clsFuzzGuard &) = delete;
};
