#pragma once

#include <QByteArray>
#include <QStringList>

class clsZR3Form;

/// Every figure of the bill as one JSON object.
struct clsTotalsReport {
    QByteArray json;
    /// True if a figure could not be computed: it is then "!" and the error's number. The others are computed
    /// independently.
    bool hasFailures = false;
    /// The causes in words; only the first if there are many.
    QStringList causes;
};

clsTotalsReport mdTotalsReport(const clsZR3Form &form);
