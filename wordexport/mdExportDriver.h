#pragma once

#include <QString>
#include <QStringView>

struct clsExport;

/// Exports a claim as the document of its government form. False when the user was told why no document came out.
using clsExportDriver = bool (*)(clsExport &run);

/// What the user is told of a form type that has no pages.
QString mdNoPagesMessage(const QString &formType);

/// The driver of a form type, which is compared exactly; null for a type that has no pages.
clsExportDriver mdExportDriver(QStringView formType);
