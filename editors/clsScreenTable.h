#pragma once

#include "controls/clsGridColumn.h"
#include "controls/mdIcons.h"
#include "costing/mdFigureFaults.h"
#include "editors/mdListTotals.h"

#include <QStringList>

#include <memory>
#include <vector>

class QWidget;
class clsXMLRecord;
class clsZR3Item;
class frmScreen;
class oSGrid;
struct clsPasteList;
struct clsScreen;

/// The kind of a table row: a field, or a row that only arranges others.
enum class clsRowKind {
    Text, ///< free text, with an allowance
    Date,
    Decimal,
    Integer,
    Time,
    Tick,
    List, ///< one entry of several; stored by its position, or as text if the property is a text
    Button,
    Items, ///< a grid with a list of the claim, and "Add" below it
    Other, ///< a control created by the row, such as one composed of several
    Question, ///< a caption of full width; the ticks after it are its answers, in one line
    Separator, ///< a hairline between subjects
    ColumnBreak, ///< splits a single long frame into two columns if there is room
    ColumnsEnd, ///< later rows are below both columns, as wide as the frame
};

/// Properties of a field, joined with "|".
enum clsFieldFlag : unsigned {
    None = 0,
    MultiLine = 1,
    SpellCheck = 2,
    OverRun = 4, ///< the text may run on to a continuation sheet
    NoReplacements = 8, ///< abbreviations are not expanded
    StartsDisabled = 16,
    SameRow = 32, ///< to the right of the field before it; after a list, beside its "Add"
    Required = 64, ///< Save refuses it if empty
    DateTick = 128, ///< a date that can be switched off
    Unbound = 256, ///< not in the record
    NoCaption = 512, ///< uses the frame's caption; the row's own is only read out
    Independent = 1024, ///< not a pair, although its name ends in Yes or No
    AtCloseOnly = 2048, ///< stored only on closing by the button, not on the way to another section
    CaptionAbove = 4096, ///< the caption is above the field, because there is more height than width
    NoteBeneath = 8192, ///< notes are on a line below the box, because there is no room beside it
    Kept = 16384, ///< "Save and Add" keeps it for the next item
};

struct clsScreenRow;

/// A column of a list of items.
struct clsItemColumn {
    const char *caption;
    const char *property; ///< of the items
    int width = 0; ///< per cent of the grid; a column without a width is hidden
    clsGridAlignment alignment = clsGridAlignment::Left; ///< of heading and cells
    bool sortKey = false; ///< the grid sorts its rows by the text of this column
    const char *faultOf = ""; ///< the property whose fault the column shows, if not its own
    clsGridRoom room = clsGridRoom::Share;
    clsGridTexts (*texts)() = nullptr; ///< instead of a property: computed whenever the list is drawn
};

/// An additional entry of a list's context menu.
struct clsItemAction {
    const char *name; ///< object name
    const char *caption;
    void (*run)(frmScreen &screen); ///< all lists of the screen are redrawn after it
    Glyph glyph = Glyph::None;
};

/// A list of items on a screen: the columns of its grid, and how to add, edit and delete items. Whatever is left out is
/// not offered.
struct clsItemList {
    bool orderable = true;
    std::vector<clsItemColumn> columns {};
    std::vector<const char *> called {}; ///< the properties that name an item in a step
    std::vector<const char *> told {}; ///< the same for the message of "Save and Add"; `called` if empty
    void (*show)(oSGrid &grid) = nullptr; ///< sets the grid's collection
    clsFigureFaults (*faults)(const clsZR3Item &item) = nullptr; ///< the faults of an item
    const char *empty = ""; ///< the text of an empty grid
    const clsScreen &(*editor)() = nullptr; ///< opened by "Add", and for an item by a double click or Return
    std::shared_ptr<clsXMLRecord> (*item)(int index) = nullptr; ///< the item with that `Index`
    void (*remove)(int index) = nullptr; ///< removes the item with that `Index` from the claim
    bool keepsUsed = false; ///< an item that another element of the claim refers to can't be deleted
    const char *add = nullptr; ///< object name of the button "Add"
    QString (*whyNoAdd)() = nullptr; ///< why nothing can be added now; empty if it can
    const char *menu = nullptr; ///< object name of the context menu
    const char *deleteEntry = nullptr; ///< object name of the menu's entry "Delete"
    std::vector<clsItemAction> actions {}; ///< further entries, above "Delete"
    void (*changed)() = nullptr; ///< updates what the claim derives from the list, after each change
    clsListTotal (*total)() = nullptr; ///< the total at the right below the grid
    clsListTotal (*sum)(const clsMarkedItems &) = nullptr; ///< the total of the marked rows
    std::vector<const char *> changes {}; ///< the editor's fields that can be set for all marked rows at once
    /// Asks for one of those fields and its value, and sets it; returns the step's name, empty if cancelled.
    QString (*change)(frmScreen &owner, const clsItemList &list, clsZR3Item &selected, const clsMarkedItems &marked)
        = nullptr;
    const clsPasteList &(*paste)() = nullptr; ///< how rows of tables are imported and copied
};

/// A control supplied by a table, as wide as its size hint. Without `load` and `store` it has no part in the record.
struct clsOtherControl {
    QWidget *(*make)(const clsScreenRow &row, QWidget *parent);
    void (*load)(const clsScreenRow &row, QWidget &control, clsXMLRecord &record) = nullptr;
    void (*store)(const clsScreenRow &row, const QWidget &control, clsXMLRecord &record) = nullptr;
};

/// Creates a control whose constructor needs nothing from the row.
template <class Control> QWidget *mdMakeOther(const clsScreenRow &, QWidget *parent)
{
    return new Control(parent);
}

/// One row of a screen: a line for each control, in tab order, which is also the order of loading and storing.
struct clsScreenRow {
    clsRowKind kind;
    const char *control = ""; ///< object name, such as "txtSurname"
    const char *caption = "";
    int allowance = 0; ///< characters that the printed box holds
    unsigned flags = None;
    char group = 0; ///< ticks with the same letter are exclusive; pairs ...Yes and ...No are so by their names
    const char *member = nullptr; ///< the record's property, if not the control's name without its prefix
    QStringList (*entries)() = nullptr; ///< entries of a list, which starts on the first
    const clsOtherControl *other = nullptr;
    const clsItemList *items = nullptr;
    const char *beside = nullptr; ///< a tick in the second column of this one's line
    const char *spoken = nullptr; ///< text for screen readers, if the caption alone is not clear enough
    QWidget *(*beneath)(QWidget *parent) = nullptr; ///< creates an information widget below the field
    QWidget *(*behind)(QWidget *parent) = nullptr; ///< the same to the right of the field, in the rest of its line
};

/// A page of a frame that shows one page at a time.
struct clsScreenPage {
    const char *caption;
    std::vector<clsScreenRow> rows;
};

/// A titled group of fields.
struct clsScreenFrame {
    const char *name; ///< object name, such as "bxGeneral"
    const char *caption;
    std::vector<clsScreenRow> rows {};
    bool startsColumn = false; ///< starts the second column, if there is room for two
    bool sameLine = false; ///< in one line with the frame before, if the whole line has room
    int tickColumns = 0; ///< ticks are arranged row by row in a grid of this many columns
    const char *switcher = nullptr; ///< object name of the page switcher
    std::vector<clsScreenPage> pages {}; ///< instead of rows; a frame without a caption contains only the pages
};

/// The initial width of a screen.
enum class clsScreenWidth { Edit, OneColumn, List, TwoColumns };

/// How a screen is left. A screen with only one button stores with it.
enum class clsScreenEnding { SaveCancel, Close };

/// A link to another section, as a button of the bar and an entry of the menu "Jump To".
struct clsScreenJump {
    const char *control; ///< the button's object name
    const char *menu; ///< the entry's object name
    const char *section; ///< the caption of both, and the section they lead to
    bool menuStores = true; ///< the entry stores the screen, as the button always does
};

/// A screen as a table. Behaviour beyond the table is in its `rules`.
struct clsScreen {
    const char *name; ///< of the window, such as "frmClientDetails"
    const char *header;
    const char *subCaption;
    int iconGroup;
    clsScreenWidth width;
    clsScreenEnding ending;
    const char *section = nullptr; ///< the section's text, if the screen has Prev and Next
    clsXMLRecord *(*record)() = nullptr; ///< the record of a section; an item's editor gets its item instead
    std::vector<clsScreenFrame> frames {};
    void (*rules)(frmScreen &screen) = nullptr; ///< run once, before the controls are filled
    std::vector<clsScreenJump> jumps {};
    const char *itemWord = nullptr; ///< in an item's editor: the item's name in questions
    clsXMLRecord *(*add)() = nullptr; ///< in an item's editor opened without an item: creates it on the first Save
    bool fileMenu = true; ///< has the menu that saves the claim; sections have it, item editors don't
};
