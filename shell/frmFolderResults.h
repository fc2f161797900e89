#pragma once

#include <QDialog>
#include <QStringList>

#include <functional>
#include <vector>

class QTableView;

/// The results of work on several claims, as rows.
struct clsFolderResults {
    QString caption;
    QString subCaption;
    QStringList headings;
    std::vector<QStringList> rows;
    /// Shows the details of a row; null if there are none.
    std::function<void(int row, QWidget *parent)> open {};
    QString openCaption {}; ///< of the button that calls `open`
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
