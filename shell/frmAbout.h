#pragma once

#include <QDialog>

class QFormLayout;
class oCustomButton;
class oFrame;

/// The box that tells which program this is, what its export writes with, and where help is.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    /// `wordInstalled` is what mdWordInstalled found.
    frmAbout(bool wordInstalled, QWidget *parent = nullptr);

private:
    void addRow(QFormLayout &rows, const QString &caption, const char *name, const QString &text);
    void addLink(
        QFormLayout &rows, const QString &caption, const char *name, const QString &text, const QString &target);

    oFrame *bxGeneral;
    oCustomButton *cmdClose;
};
