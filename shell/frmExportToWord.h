#pragma once

#include <QDialog>

class QLineEdit;
class oCustomButton;
class oFrame;

/// The dialog of the export: where the document goes, and the button that makes it. Its box holds an existing folder
/// at all times. While an export runs the dialog is disabled; there is no way of cancelling.
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
    void cmdOpenExportFolder_Click();
    void cmdExport_Click();
    bool mayExport();
    bool exportForm();

    oFrame *bxGeneral;
    QLineEdit *txtExportPath;
    oCustomButton *cmdExportPathBrowse;
    oCustomButton *cmdOpenExportFolder;
    oCustomButton *cmdExport;
    oCustomButton *cmdClose;
    bool m_exporting = false;
    bool m_mayReplace = false; ///< the user has been asked about the document that is there
};
