#pragma once

#include "costing/checking/mdGroupFindings.h"

#include <QSet>
#include <QTreeView>

#include <functional>

class clsCheckDelegate;
class clsCheckModel;

/// The list of the check's findings. Keeps its scroll position and folded groups when the findings are renewed.
class oCheckList : public QTreeView {
    Q_OBJECT

public:
    explicit oCheckList(QWidget *parent = nullptr);

    /// Sets the function that identifies what a finding is about, even after its item has been renumbered.
    void setKeys(std::function<QString(int finding)> keyOf) { m_keyOf = std::move(keyOf); }
    void ShowFindings(const std::vector<clsShownFinding> &findings, const std::vector<clsFindingGroup> &groups);
    /// The number of the selected finding; -1 if none or several are selected.
    int Chosen() const;
    /// All findings of the selected line.
    std::vector<int> ChosenFindings() const;
    /// Selects the next or previous finding and unfolds its group. Does nothing at the ends.
    void Step(bool forward);
    /// Opens the menu of the selected line.
    void PopUpMenu(const QPoint &place);

signals:
    /// The selection has changed: the finding's number, or -1 for none.
    void ChosenChanged(int finding);
    /// The user wants to go to the place where the finding can be corrected.
    void Opened(int finding);
    /// The user dismisses the findings of the selected line, or restores them.
    void AsideChanged(bool aside);

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
    void tellChosen();
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
    int firstOfGroup(const std::vector<int> &walk) const;
    int chosenBefore(const std::vector<int> &walk) const;

    clsCheckModel *m_model;
    clsCheckDelegate *m_delegate;
    QSet<int> m_folded; ///< groups that the user has closed
    QSet<QString> m_unfolded; ///< rules whose notes the user has opened
    std::vector<clsShownFinding> m_findings;
    std::function<QString(int)> m_keyOf;
    clsFinding m_chosen {}; ///< before a renewal
    QString m_chosenKey; ///< its key
    int m_chosenRow = -1;
    int m_scrolled = 0;
    bool m_renewing = false;
};
