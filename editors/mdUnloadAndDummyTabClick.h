#pragma once

#include <QString>

#include <functional>

class QDialog;

/// Closes a screen and then opens a section, exactly as a click on its tab does.
void mdUnloadAndDummyTabClick(QDialog &form, const QString &sectionCaption);

/// Sets the function that opens a section by its text. The main window passes its tab handler, which waits until the
/// old screen is closed, so that screens don't pile up.
void SetOpenSection(std::function<void(const QString &)> openSection);
