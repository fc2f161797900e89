#pragma once

#include <QByteArray>

/// Whether these are the bytes of a page template as the build made it. Their tests have read them to the letter, so
/// that an export need not; a template that a firm has changed, or a disk has spoilt, is another one.
bool mdIsShippedTemplate(const QByteArray &bytes);
