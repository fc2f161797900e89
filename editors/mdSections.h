#pragma once

#include <QString>
#include <QStringList>

class QDialog;
class QWidget;
struct clsScreen;

/// Creates the screen of a section tab, filled and ready to be shown; the caller owns it. Null for a text without a
/// screen. Every opening creates a new one, even of a list screen: the instance that other screens may use is forgotten
/// when its window is closed, so that no data is kept between openings.
QDialog *mdCreateScreen(const QString &section, QWidget *parent);

/// The window name of the screen behind a tab, such as "frmClientDetails"; empty for an unknown text.
QString mdScreenName(const QString &section);
/// The table of the screen behind a tab; null for an unknown text.
const clsScreen *mdScreenOf(const QString &section);
/// All texts, in the order of the table.
QStringList mdSectionTexts();
