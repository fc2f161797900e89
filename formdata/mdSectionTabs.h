#pragma once

#include <QStringList>

/// The texts of the first row of tabs, in order. A text is both caption and tag.
QStringList mdSectionTabs();

/// The texts of the second row under a tab of the first, counted from 1, for a form type; empty for any other type.
/// Each text is the identifier of a screen.
QStringList mdSubSectionTabs(int sectionTab, const QString &formType);
