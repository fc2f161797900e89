#pragma once

#include "costing/checking/mdGroupFindings.h"

#include <QSet>
#include <QTreeView>

class clsCheckDelegate;
class clsCheckModel;

/// The list of what the check has found. It keeps its place and what is folded when the findings are renewed.
class oCheckList : public QTreeView {
    Q_OBJECT

public:
    explicit oCheckList(QWidget *parent = nullptr);

    void ShowFindings(const std::vector<clsShownFinding> &findings, const std::vector<clsFindingGroup> &groups);
    /// The chosen finding, by its number; -1 where none or more than one is.
    int Chosen() const;
    /// Chooses the finding behind or before the chosen one, and unfolds where it stands. At the ends nothing happens.
    void Step(bool forward);
    /// The menu of the chosen line, beside it.
    void PopUpMenu(const QPoint &place);

signals:
    /// Another finding is chosen, or none: its number, or -1.
    void ChosenChanged(int finding);
    /// The user wants to go to where the finding is put right.
    void Opened(int finding);
    /// The user calls findings no mistakes, or takes that back.
    void AsideChanged(const std::vector<int> &findings, bool aside);

protected:
    bool viewportEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void remember();
    void restore();
    void takeFolding(const QModelIndex &index, bool open);
    void fold();
    void choose(const QModelIndex &index);
    void activate(const QModelIndex &index);
    void toggle(const QModelIndex &index);
    void popUpMenuOf(const QModelIndex &index);
    QString ruleOf(const QModelIndex &index) const;
    int placeInWalk(const std::vector<int> &walk) const;

    clsCheckModel *m_model;
    clsCheckDelegate *m_delegate;
    QSet<int> m_folded; ///< the groups that the user has closed
    QSet<QString> m_unfolded; ///< the rules whose notes the user has opened
    std::vector<clsShownFinding> m_findings;
    clsFinding m_chosen {}; ///< before a renewal
    int m_chosenRow = -1;
    int m_scrolled = 0;
    bool m_renewing = false;
};
