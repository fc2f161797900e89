#pragma once

#include <QString>
#include <QStringList>

class QDialog;
class QWidget;
struct clsScreen;

/// How a screen keeps its state. A list screen has one instance that fills itself as it loads, a record screen is made
/// and initialised for each opening. A shared instance is forgotten when its window is closed, so that making it anew
/// for each opening comes to the same, and both are made here alike.
enum class clsSectionKind { Shared, New };

/// The screen behind a text of the section tabs, filled and ready to be shown; it belongs to the caller. Nothing for a
/// text that opens no screen.
QDialog *mdCreateScreen(const QString &section, QWidget *parent);

/// The window's name of the screen behind a text, such as "frmClientDetails"; empty for an unknown text.
QString mdScreenName(const QString &section);
/// All texts, in the order of the table.
QStringList mdSectionTexts();
