#pragma once

#include <QByteArray>

class clsZR3Form;

/// Every figure of the bill as one JSON object.
struct clsTotalsReport {
    QByteArray json;
    /// True when a figure could not be computed: it then stands as "!" and the error's number, and all others are
    /// there, each computed on its own.
    bool hasFailures = false;
};

clsTotalsReport mdTotalsReport(const clsZR3Form &form);
