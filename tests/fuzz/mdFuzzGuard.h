#pragma once

/// While one lives, nothing may be written, renamed or deleted outside the folder of the attack. The fuzzer itself
/// writes where it likes between two inputs.
class clsFuzzGuard {
public:
    clsFuzzGuard();
    ~clsFuzzGuard();
    clsFuzzGuard(const clsFuzzGuard &) = delete;
    clsFuzzGuard &operator=(const clsFuzzGuard &) = delete;
};
