#pragma once

#include <QDialog>

class clsCheckState;
class QLabel;
class QLineEdit;
class oCustomButton;
class oFrame;

/// The export dialog: the folder for the document and the button that makes it. Its box always holds an existing
/// folder. Below are the number of findings of the check, which doesn't prevent an export, and the result of an export.
/// The dialog is disabled while an export is running, which can't be cancelled.
class frmExportToWord : public QDialog {
    Q_OBJECT

public:
    /// Without `check` the dialog shows no findings.
    explicit frmExportToWord(QWidget *parent = nullptr, clsCheckState *check = nullptr);

    /// Whether the user has left the dialog to see the findings.
    bool leadsToCheck() const { return m_leadsToCheck; }

    /// Can't be closed while an export is running.
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
    QString m_document; ///< made by the last export
    bool m_exporting = false;
    bool m_leadsToCheck = false;
    bool m_mayReplace = false; ///< the user has agreed to overwrite the existing document
};
