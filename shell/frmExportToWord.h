#pragma once

#include <QDialog>

class clsCheckState;
class QLabel;
class QLineEdit;
class oCustomButton;
class oFrame;

/// The dialog of the export: where the document goes, and the button that makes it. Its box holds an existing folder
/// at all times. Below stand how much the check of the claim has found, which hinders no export, and what an export
/// gave. While an export runs the dialog is disabled; there is no way of cancelling.
class frmExportToWord : public QDialog {
    Q_OBJECT

public:
    /// Without the state of the check nothing is said of it.
    explicit frmExportToWord(QWidget *parent = nullptr, clsCheckState *check = nullptr);

    /// Whether the user has left the dialog to look at what the check has found.
    bool leadsToCheck() const { return m_leadsToCheck; }

    /// An export that runs holds the dialog open.
    void done(int result) override;

private:
    void build();
    QWidget *makeCheckLine();
    void watchCheck();
    void showCounts();
    oCustomButton *button(const char *name, const QString &caption);
    void txtExportPath_Change();
    void cmdExportPathBrowse_Click();
    void cmdBesideTheClaim_Click();
    void cmdOpenExportFolder_Click();
    void cmdOpenDocument_Click();
    void cmdExport_Click();
    bool mayExport();
    bool exportForm();
    void showOutcome(const QString &document, const QString &text);

    oFrame *bxGeneral;
    QLineEdit *txtExportPath;
    oCustomButton *cmdExportPathBrowse;
    oCustomButton *cmdBesideTheClaim;
    oCustomButton *cmdOpenExportFolder;
    oCustomButton *cmdOpenDocument;
    clsCheckState *m_check;
    QWidget *m_checkLine;
    QLabel *lblCheckSign;
    QLabel *lblCheckCounts;
    oCustomButton *cmdShowCheck;
    QLabel *lblOutcome;
    oCustomButton *cmdExport;
    oCustomButton *cmdClose;
    QString m_document; ///< the one that the last export made
    bool m_exporting = false;
    bool m_leadsToCheck = false;
    bool m_mayReplace = false; ///< the user has been asked about the document that is there
};
