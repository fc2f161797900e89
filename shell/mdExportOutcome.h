#pragma once

#include <QString>

struct clsForecast;

/// What an export gave, in a line: where the document is, how many sheets and pages of paper, and which texts are not
/// printed at their own size.
QString mdExportOutcome(const QString &document, const clsForecast &given);
