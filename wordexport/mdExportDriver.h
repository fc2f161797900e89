#pragma once

#include <QStringView>

struct clsExport;

/// Exports a claim as the document of its government form. False when the user was told why no document came out.
using clsExportDriver = bool (*)(clsExport &run);

/// The driver of a form type, which is compared exactly; null for a type that has no pages.
clsExportDriver mdExportDriver(QStringView formType);
