#pragma once

#include "editors/clsScreenTable.h"

#include <QObject>

class oCustomButton;
class oFindLine;
class QMenu;

/// What a list on a screen does with its items, as its table says: it shows them, and adds, edits and deletes them by
/// mouse and keys. It belongs to its grid.
class clsListActions : public QObject {
    Q_OBJECT

public:
    /// `add` is the list's button, or nothing.
    clsListActions(frmSection &screen, const clsItemList &list, oSGrid &grid, oCustomButton *add);

    /// Lays out the columns and shows the items, the first selected.
    void draw();
    /// Shows the items as they now are, the same row selected.
    void redraw();
    int Rows() const;
    /// Whether the focus is in the list or in its find line.
    bool HasFocus() const;
    bool IsVisible() const;
    bool AddsItems() const { return m_add; }
    /// Opens the editor of a new item that begins as a copy of the selected one.
    void SameAgain();
    /// Opens the line in which words are looked for.
    void Find();
    /// Sets one field of all marked items, after the user has said which and to what.
    void ChangeSelected();
    bool CanChangeSelected() const;
    bool ChangesItems() const { return !m_list.changes.empty(); }
    /// Selects the row of an item; false where it is of another list.
    bool Show(const clsZR3Item *item);

signals:
    /// An item was added, edited, deleted or moved by the user: all lists of the screen are to be shown anew.
    void Changed();
    /// What is called so has just been deleted by the user.
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
    /// The name of what is done to an item.
    QString stepOf(const char *action, const std::shared_ptr<clsXMLRecord> &item) const;
    void tellWhatCanBeAdded();
    oFindLine &findLine() const;

    frmSection &m_screen;
    const clsItemList &m_list;
    oSGrid &m_grid;
    oCustomButton *m_add;
};
