#pragma once

#include "shell/clsShownClaims.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class clsFolderActions;
class clsFolderReader;
class oCheckBox;
class oCustomButton;
class oFolderTable;
class oFolderTotals;
class oHeaderBar;
class oLineBox;
struct clsFolderNews;
struct clsFolderOutcome;

/// The claims of a folder and its subfolders, one row each, with their figures and errors. The list is updated when
/// the files change. The dialog is accepted when the user opens a claim.
class frmFolderOfClaims : public QDialog {
    Q_OBJECT

public:
    /// `tool` is the path of the command-line program. `folder` is the folder to start with if none was shown before.
    explicit frmFolderOfClaims(const QString &folder, QWidget *parent = nullptr, const QString &tool = {});
    ~frmFolderOfClaims() override;

    /// The claim that the user opens.
    const QString &ChosenClaim() const { return m_chosenClaim; }
    void ShowFolder(const QString &folder);

    void done(int result) override;
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void build();
    QWidget *makeHeader();
    QWidget *makeList();
    QWidget *makeProgress();
    QWidget *makeBar();
    void makeTabOrder();
    void connectAll();
    void restore(const QString &folder);
    void keep() const;

    void take(const clsFolderNews &news);
    void showState();
    void showChosen();
    void showButtons();
    void showProgress(const QString &what, int done, int all);
    void tell(const clsFolderOutcome &outcome);
    void showMenu(const QPoint &place);

    void chooseFolder();
    void openRow();
    void exportChosen(bool pdf);
    void compareChosen();
    QStringList chosenPaths() const;

    clsFolderModel *m_model;
    clsShownClaims *m_claims;
    clsFolderReader *m_reader;
    clsFolderActions *m_actions;
    oHeaderBar *m_header;
    oFolderTable *m_table;
    oFolderTotals *m_totals;
    oLineBox *txtFilter;
    oCheckBox *chkOnlyWithErrors;
    QLabel *lblState;
    QWidget *m_progress;
    QLabel *lblProgress;
    QProgressBar *pbProgress;
    oCustomButton *cmdCancel;
    oCustomButton *cmdReplace;
    oCustomButton *cmdDetails;
    oCustomButton *cmdChooseFolder;
    oCustomButton *cmdOpen;
    oCustomButton *cmdCheck;
    oCustomButton *cmdCompare;
    oCustomButton *cmdExport;
    oCustomButton *cmdExportAsPdf;
    oCustomButton *cmdClose;

    QString m_folder;
    QString m_trouble; ///< why the folder can't be read
    QString m_readAt; ///< the time; empty until all is read
    QString m_chosenClaim;
    QStringList m_failures; ///< of runs that others waited behind, not told yet
    std::function<void()> m_replace;
    std::function<void()> m_details;
};
