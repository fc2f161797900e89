#pragma once

#include <QStringList>

/// The texts of the first row of tabs, in order. A text is both caption and tag.
QStringList mdSectionTabs();

/// The texts of the second row under a tab of the first, counted from 1, for a form type; empty for any other type.
/// Each text is the identifier of a screen.
QStringList mdSubSectionTabs(int sectionTab, const QString &formType);

/// The text after or before a text of the second rows, in the order of all these rows; empty at either end, and for a
/// text that the form type doesn't have.
QString mdSectionBeside(const QString &section, const QString &formType, bool behind);
