#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class oCustomButton;
class oFrame;

/// The dialog of the export: where the document goes, and the button that makes it. Its box holds an existing folder
/// at all times. What an export gave stands below it. While an export runs the dialog is disabled; there is no way of
/// cancelling.
class frmExportToWord : public QDialog {
    Q_OBJECT

public:
    explicit frmExportToWord(QWidget *parent = nullptr);

    /// An export that runs holds the dialog open.
    void done(int result) override;

private:
    void build();
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
    QLabel *lblOutcome;
    oCustomButton *cmdExport;
    oCustomButton *cmdClose;
    QString m_document; ///< the one that the last export made
    bool m_exporting = false;
    bool m_mayReplace = false; ///< the user has been asked about the document that is there
};
