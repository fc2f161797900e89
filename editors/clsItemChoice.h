#pragma once

#include "editors/clsScreenTable.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdInOrder.h"

#include <QFrame>
#include <QString>

#include <vector>

class oCheckBox;
class oScreenList;
class QHBoxLayout;

/// An item of the claim as a list offers it.
struct clsChoiceItem {
    QString name;
    int index; ///< the item's `Index`, by which the list remembers it
};

/// One of the claim's lists, as a choice asks for its items.
struct clsChoiceList {
    std::vector<clsChoiceItem> (*items)(); ///< in the user's order
    QString (*uniqueIDOf)(int index);
    int (*indexOf)(const QString &uniqueID); ///< 0 for an identity that no item has
};

/// Of which of the claim's lists one item is chosen, and how the parts of the box are called.
struct clsChoiceSource {
    const char *tick; ///< object name
    const char *tickCaption; ///< what is read out for the tick
    const char *list; ///< object name
    const char *listCaption; ///< what is read out for the list
    const char *members; ///< the properties of tick and identity, where the row names none
    const char *whyNoTick; ///< what the tick says while the claim has no such item
    clsChoiceList from;
};

/// A tick, and a list in which, while it is ticked, one of the claim's items is chosen. It makes both at the left of a
/// box whose caption stands outside of it, and keeps them in step: a tick, or taking it away, chooses the first item
/// where none is chosen. Filling chooses nothing: what is ticked while there is no item stays without one until then.
class clsItemChoice : public QObject {
    Q_OBJECT

public:
    clsItemChoice(QFrame &box, const clsChoiceSource &source);

    bool Ticked() const;
    void setTicked(bool ticked);
    /// The identity of the chosen item, and nothing while there is no tick, whatever is chosen.
    QString UniqueID() const;
    /// Chooses the item of that identity, ticked or not. Without such an item the choice stays as it was: in
    /// particular, an empty identity doesn't undo it.
    void setUniqueID(const QString &uniqueID);
    /// The `Index` of the chosen item, 0 for none.
    int SelectedIndex() const;

    /// Reads the claim's items anew and keeps the choice.
    void fill();
    /// The identity of the chosen item, ticked or not.
    QString ChosenID() const;
    /// Reads the claim's items anew and chooses the one of that identity, or none where there is no such item.
    void fillFor(const QString &uniqueID);

    /// Copies the two properties of a record in and out: first the flag, then the identity. A row names them as its
    /// member, with a blank between; without a member they are those of the source.
    void load(const clsScreenRow &row, clsXMLRecord &record);
    void store(const clsScreenRow &row, clsXMLRecord &record) const;

    /// What else belongs to the box stands behind the list.
    QHBoxLayout &row() const { return *m_row; }
    oCheckBox &tick() const { return *m_tick; }

signals:
    /// The tick has changed.
    void Click(bool ticked);
    /// Another item is chosen.
    void Change();

private:
    void ticked(bool isTicked);
    void showWhole();

    const clsChoiceSource &m_source;
    oCheckBox *m_tick;
    oScreenList *m_list;
    QHBoxLayout *m_row;
};

/// A list of the claim by three members of the form: its collection, an item by its `Index`, one by its identity.
template <auto Collection, auto ByIndex, auto ByUniqueID> constexpr clsChoiceList mdChoiceList()
{
    return {
        [] {
            std::vector<clsChoiceItem> result;
            for (const auto &item : mdInOrder((*Form.*Collection)()))
                result.push_back({item->Name(), item->Index});
            return result;
        },
        [](int index) { return (*Form.*ByIndex)(index)->UniqueID(); },
        [](const QString &uniqueID) {
            const auto item = (*Form.*ByUniqueID)(uniqueID);
            return item ? item->Index : 0;
        },
    };
}

/// A box with a choice, its `choice()`, as a control that a table brings with it.
template <class Box> constexpr clsOtherControl mdChoiceControl()
{
    return {
        .make = mdMakeOther<Box>,
        .load = [](const clsScreenRow &row, QWidget &control,
                    clsXMLRecord &record) { static_cast<Box &>(control).choice().load(row, record); },
        .store = [](const clsScreenRow &row, const QWidget &control,
                     clsXMLRecord &record) { static_cast<const Box &>(control).choice().store(row, record); },
    };
}
