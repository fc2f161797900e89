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

/// An item of the claim as an entry of a list.
struct clsChoiceItem {
    QString name;
    int index; ///< the item's `Index`, stored as the entry's data
};

/// How a choice reads the items of one of the claim's lists.
struct clsChoiceList {
    std::vector<clsChoiceItem> (*items)(); ///< in the user's order
    QString (*uniqueIDOf)(int index);
    int (*indexOf)(const QString &uniqueID); ///< 0 for an unknown identity
};

/// The list of the claim to choose from, and the names of the box's parts.
struct clsChoiceSource {
    const char *tick; ///< object name
    const char *tickCaption; ///< read out for the tick
    const char *list; ///< object name
    const char *listCaption; ///< read out for the list
    const char *members; ///< the properties of tick and identity, if the row names none
    const char *whyNoTick; ///< shown at the tick while the claim has no such item
    clsChoiceList from;
};

/// A tick and a list, enabled while it is ticked, to choose one of the claim's items. Creates both at the left of a box
/// that has its caption outside and keeps them consistent: changing the tick chooses the first item if none is chosen.
/// Filling the list chooses nothing: a tick set while there are no items stays without one.
class clsItemChoice : public QObject {
    Q_OBJECT

public:
    clsItemChoice(QFrame &box, const clsChoiceSource &source);

    bool Ticked() const;
    void setTicked(bool ticked);
    /// The identity of the chosen item; empty while unticked.
    QString UniqueID() const;
    /// Chooses the item with that identity, ticked or not. Without such an item the choice stays unchanged: in
    /// particular, an empty identity doesn't clear it.
    void setUniqueID(const QString &uniqueID);
    /// The `Index` of the chosen item, 0 for none.
    int SelectedIndex() const;

    /// Reads the claim's items again and keeps the choice.
    void fill();
    /// The identity of the chosen item, ticked or not.
    QString ChosenID() const;
    /// Reads the claim's items again and chooses the one with that identity, or none if there is no such item.
    void fillFor(const QString &uniqueID);

    /// Copies the two properties of a record in and out: first the flag, then the identity. The row's member names
    /// both, separated by a space; without a member the source's names are used.
    void load(const clsScreenRow &row, clsXMLRecord &record);
    void store(const clsScreenRow &row, clsXMLRecord &record) const;

    /// The layout for further widgets after the list.
    QHBoxLayout &row() const { return *m_row; }
    oCheckBox &tick() const { return *m_tick; }

signals:
    /// The tick has changed.
    void Click(bool ticked);
    /// Another item has been chosen.
    void Change();

private:
    void ticked(bool isTicked);
    void showWhole();

    const clsChoiceSource &m_source;
    oCheckBox *m_tick;
    oScreenList *m_list;
    QHBoxLayout *m_row;
};

/// A list of the claim, given by three members of the form: its collection, an item by its `Index`, one by its
/// identity.
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

/// A box with a choice, returned by its `choice()`, for use as a control of a table.
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
