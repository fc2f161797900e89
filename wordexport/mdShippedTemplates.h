#pragma once

#include <QByteArray>

/// Whether these are the bytes of a page template from the build. The tests have checked those strictly, so the export
/// need not; a template changed by a firm or damaged on the disk is not one of them.
bool mdIsShippedTemplate(const QByteArray &bytes);
