#pragma once

#include "editors/clsScreenTable.h"

#include <QObject>

class oCustomButton;
class oFindLine;
class QMenu;

/// Shows the items of a screen's list, and lets the user add, edit and delete them by mouse and keyboard as the list's
/// table specifies. Owned by the grid.
class clsListActions : public QObject {
    Q_OBJECT

public:
    /// `add` is the list's button, or null.
    clsListActions(frmScreen &screen, const clsItemList &list, oSGrid &grid, oCustomButton *add);

    /// Sets up the columns, shows the items and selects the first.
    void draw();
    /// Shows the current items and keeps the selected row.
    void redraw();
    int Rows() const;
    /// Whether the list or its find line has the focus.
    bool HasFocus() const;
    bool IsVisible() const;
    bool AddsItems() const { return m_add; }
    /// Opens the editor for a new item that starts as a copy of the selected one.
    void SameAgain();
    /// Opens the line for finding words.
    void Find();
    /// Asks the user for a field and its value, and sets it in all marked items.
    void ChangeSelected();
    bool CanChangeSelected() const;
    bool ChangesItems() const { return !m_list.changes.empty(); }
    /// Selects an item's row; false if the item belongs to another list.
    bool Show(const clsZR3Item *item);

signals:
    /// The user has added, edited, deleted or moved an item: all lists of the screen must be redrawn.
    void Changed();
    /// The user has deleted the item with this name.
    void Deleted(const QString &item);

private:
    void buildMenu();
    void takeInsert(int key, Qt::KeyboardModifiers shift, bool *doDefault);
    void addItem();
    void editItem(int index);
    void openEditor(std::shared_ptr<clsXMLRecord> item, clsXMLRecord *like = nullptr);
    void select(const std::shared_ptr<clsXMLRecord> &item);
    void deleteItem();
    bool mayDelete(int index) const;
    void tellChanged();
    void tellMoved();
    /// The name of a step on an item.
    QString stepOf(const char *action, const std::shared_ptr<clsXMLRecord> &item) const;
    void tellWhatCanBeAdded();
    oFindLine &findLine() const;

    frmScreen &m_screen;
    const clsItemList &m_list;
    oSGrid &m_grid;
    oCustomButton *m_add;
};
