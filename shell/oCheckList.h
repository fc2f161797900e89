#pragma once

#include "costing/checking/mdGroupFindings.h"

#include <QSet>
#include <QTreeView>

#include <functional>

class clsCheckDelegate;
class clsCheckModel;

/// The list of what the check has found. It keeps its place and what is folded when the findings are renewed.
class oCheckList : public QTreeView {
    Q_OBJECT

public:
    explicit oCheckList(QWidget *parent = nullptr);

    /// What tells what a finding is about, by its number, when its item has another number than before.
    void setKeys(std::function<QString(int finding)> keyOf) { m_keyOf = std::move(keyOf); }
    void ShowFindings(const std::vector<clsShownFinding> &findings, const std::vector<clsFindingGroup> &groups);
    /// The chosen finding, by its number; -1 where none or more than one is.
    int Chosen() const;
    /// All those of the chosen line.
    std::vector<int> ChosenFindings() const;
    /// Chooses the finding behind or before the chosen one, and unfolds where it stands. At the ends nothing happens.
    void Step(bool forward);
    /// The menu of the chosen line, beside it.
    void PopUpMenu(const QPoint &place);

signals:
    /// Another finding is chosen, or none: its number, or -1.
    void ChosenChanged(int finding);
    /// The user wants to go to where the finding is put right.
    void Opened(int finding);
    /// The user calls the findings of the chosen line no mistakes, or takes that back.
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
    QSet<int> m_folded; ///< the groups that the user has closed
    QSet<QString> m_unfolded; ///< the rules whose notes the user has opened
    std::vector<clsShownFinding> m_findings;
    std::function<QString(int)> m_keyOf;
    clsFinding m_chosen {}; ///< before a renewal
    QString m_chosenKey; ///< the same by what it is about
    int m_chosenRow = -1;
    int m_scrolled = 0;
    bool m_renewing = false;
};
