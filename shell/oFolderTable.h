#pragma once

#include "shell/clsShownClaims.h"

#include <QTableView>

#include <array>
#include <functional>

class clsFolderDelegate;
class oFolderHeader;

/// The list of the claims of a folder. A narrow list leaves out columns.
class oFolderTable : public QTableView {
    Q_OBJECT

public:
    explicit oFolderTable(clsShownClaims &claims, QWidget *parent = nullptr);

    oFolderHeader *Header() const { return m_header; }
    /// The chosen rows, from the top.
    QList<int> ChosenRows() const;
    /// Sorts by a column; reverses the order if the list is already sorted by it.
    void SortBy(int column);
    /// Runs `change`, which changes the claims, and keeps the visible rows in place.
    void KeepPlace(const std::function<void()> &change);
    /// Gives each column room for its sum, which is shown below it.
    void FitSums(const clsFolderSums &sums);
    /// The text shown in the middle while there are no rows.
    void setEmptyText(const QString &text);

    QSize minimumSizeHint() const override;

signals:
    /// The user wants to open the current row.
    void OpenAsked();
    void ColumnsPlaced();
    void MenuAsked(const QPoint &place);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    int widthOf(int column) const;
    void placeColumns();
    void hoverAt(const QPoint &place);

    clsShownClaims &m_claims;
    oFolderHeader *m_header;
    clsFolderDelegate *m_delegate;
    QString m_emptyText;
    std::array<int, clsFolderModel::Columns> m_sumWidths {}; ///< the widest so far, so that columns don't keep changing
    int m_hoveredRow = -1;
};
