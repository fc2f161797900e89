#pragma once

#include <QDialog>

class QFormLayout;
class oCustomButton;
class oFrame;

/// Shows the program's version, the format of its exports and where to find help.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    /// `wordInstalled` is the result of mdWordInstalled.
    frmAbout(bool wordInstalled, QWidget *parent = nullptr);

private:
    void addRow(QFormLayout &rows, const QString &caption, const char *name, const QString &text);
    void addLink(
        QFormLayout &rows, const QString &caption, const char *name, const QString &text, const QString &target);

    oFrame *bxGeneral;
    oCustomButton *cmdClose;
};
