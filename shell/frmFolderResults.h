#pragma once

#include <QDialog>
#include <QStringList>

#include <functional>
#include <vector>

class QTableView;

/// What work on several claims came to, as rows.
struct clsFolderResults {
    QString caption;
    QString subCaption;
    QStringList headings;
    std::vector<QStringList> rows;
    /// Shows more of a row; nothing where there is no more.
    std::function<void(int row, QWidget *parent)> open {};
    QString openCaption {}; ///< of the button that does it
};

class frmFolderResults : public QDialog {
    Q_OBJECT

public:
    explicit frmFolderResults(const clsFolderResults &results, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fill();
    void openRow();

    clsFolderResults m_results;
    QTableView *m_table;
};
