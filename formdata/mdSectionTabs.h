#pragma once

#include <QStringList>

/// The texts of the first row of tabs, in order. A text is caption and tag at once.
QStringList mdSectionTabs();

/// The texts of the second row under a tab of the first, counted from 1, for a form type; empty for any other type.
/// Each text selects a screen: they are identifiers.
QStringList mdSubSectionTabs(int sectionTab, const QString &formType);
