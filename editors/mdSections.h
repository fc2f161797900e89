#pragma once

#include <QString>
#include <QStringList>

class QDialog;
class QWidget;
struct clsScreen;

/// The screen behind a text of the section tabs, filled and ready to be shown; it belongs to the caller. Nothing for a
/// text that opens no screen. Each opening makes it anew, a list screen too: the one instance that other screens may
/// reach is forgotten when its window is closed, so that nothing is kept from one opening to the next.
QDialog *mdCreateScreen(const QString &section, QWidget *parent);

/// The window's name of the screen behind a text, such as "frmClientDetails"; empty for an unknown text.
QString mdScreenName(const QString &section);
/// The table of the screen behind a text; nothing for an unknown text.
const clsScreen *mdScreenOf(const QString &section);
/// All texts, in the order of the table.
QStringList mdSectionTexts();
