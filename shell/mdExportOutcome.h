#pragma once

#include <QString>

struct clsForecast;

/// The result of an export in one line: the document's path, the number of sheets and pages, and the texts not printed
/// at their full size.
QString mdExportOutcome(const QString &document, const clsForecast &given);
