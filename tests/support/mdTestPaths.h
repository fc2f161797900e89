#pragma once

#include <QString>

/// The folder of the sample claims.
QString mdSampleFolder();
/// A file of the sample claims, each with the figures and the sheets that must come of it.
QString mdSamplePath(const QString &file);
