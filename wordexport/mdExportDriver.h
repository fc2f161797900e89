#pragma once

#include <QString>
#include <QStringView>

struct clsExport;

/// Exports a claim as the document of its government form. False, after a message, if no document was produced.
using clsExportDriver = bool (*)(clsExport &run);

/// The message for a form type that has no pages.
QString mdNoPagesMessage(const QString &formType);

/// The driver of a form type, matched exactly; null for a type that has no pages.
clsExportDriver mdExportDriver(QStringView formType);
