#pragma once

#include <QString>

#include <functional>

class QDialog;

/// Unloads a screen and then opens a section, exactly as if its tab had been clicked.
void mdUnloadAndDummyTabClick(QDialog &form, const QString &sectionCaption);

/// What opens a section by its text. The main window sets it to its own handler of the tabs, which waits until the
/// screen that is being left is gone: however long a walk, its screens don't pile up.
void SetOpenSection(std::function<void(const QString &)> openSection);
