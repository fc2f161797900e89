#pragma once

#include "costing/tables/clsImportedRows.h"

#include <QDialog>

class clsPasteModel;
class oCheckBox;
class oCustomButton;
class oHeaderBar;
class oPasteGrid;
class QLabel;
struct clsPasteList;

/// Shows the rows of a table as they will be stored in a list of the claim. The user can first change the meaning of a
/// column, a cell, and which rows are added; the claim doesn't change until "Add" closes the window.
class frmPasteItems : public QDialog {
    Q_OBJECT

public:
    /// The source of the rows.
    struct clsSource {
        QString title; ///< "Paste Items"
        QString from; ///< "the clipboard"
        QString empty; ///< shown instead of rows if the text has none
    };

    frmPasteItems(const clsPasteList &list, const QString &text, const clsSource &source, QWidget *parent = nullptr);

    const clsImportedRows &Rows() const;

    QSize sizeHint() const override;

private:
    QWidget *makeRows(bool isKnownByHeader);
    QWidget *makeStatus();
    QWidget *makeBar();
    void makeTabOrder();
    void focusFirst();
    void showState();
    void showWrong(int wrong);
    QString totalOfChosen() const;

    const clsPasteList &m_list;
    clsPasteModel *m_model;
    oPasteGrid *m_grid;
    oHeaderBar *m_header;
    oCheckBox *chkLeaveDoublesOut;
    QLabel *lblSign;
    QLabel *lblWrong;
    QLabel *lblWhatToDo;
    QLabel *lblCounts;
    QLabel *lblTotal;
    QLabel *lblInAll;
    oCustomButton *cmdNextWrong;
    oCustomButton *cmdAdd;
    oCustomButton *cmdCancel;
};
