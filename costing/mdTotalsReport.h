#pragma once

#include <QByteArray>
#include <QStringList>

class clsZR3Form;

/// Every figure of the bill as one JSON object.
struct clsTotalsReport {
    QByteArray json;
    /// True when a figure could not be computed: it then stands as "!" and the error's number, and all others are
    /// there, each computed on its own.
    bool hasFailures = false;
    /// What they come from, in words; of many only the first.
    QStringList causes;
};

clsTotalsReport mdTotalsReport(const clsZR3Form &form);
