#pragma once

#include <QString>

/// The folder of the sample claims.
QString mdSampleFolder();
/// A sample claim or one of its files of expected figures and sheets.
QString mdSamplePath(const QString &file);
