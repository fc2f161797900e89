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
class frmSection;
class oSGrid;
struct clsPasteList;
struct clsScreen;

/// What a row of a screen's table is: a field of some kind, or one of the rows that only arrange the others.
enum class clsRowKind {
    Text, ///< free text, with an allowance
    Date,
    Decimal,
    Integer,
    Time,
    Tick,
    List, ///< one entry of several; stored as its place, or as its text where the record keeps a text
    Button,
    Items, ///< a grid with a list of the claim, and "Add" below it
    Other, ///< a control that the row makes itself, as one that is made of several
    Question, ///< a caption of full width; the ticks behind it are its answers and stand in one row
    Separator, ///< a hairline where the subject changes
    ColumnBreak, ///< where a single long frame parts into two columns, if there is room for two
    ColumnsEnd, ///< the rows behind it stand below both columns, as wide as the frame
};

/// What is particular to a field. A row joins its flags with "|".
enum clsFieldFlag : unsigned {
    None = 0,
    MultiLine = 1,
    SpellCheck = 2,
    OverRun = 4, ///< the text may run on to a continuation sheet
    NoReplacements = 8, ///< abbreviations are not expanded
    StartsDisabled = 16,
    SameRow = 32, ///< stands behind the field before it; behind a list, beside its "Add"
    Required = 64, ///< Save refuses while it is empty
    DateTick = 128, ///< a date that can be switched off
    Unbound = 256, ///< has no member in the record
    NoCaption = 512, ///< the frame's caption serves; the row's is read out only
    Independent = 1024, ///< no pair, although its name ends in Yes or No
    AtCloseOnly = 2048, ///< stored by the button that closes, and not on the way to another section
    CaptionAbove = 4096, ///< the caption stands over the field, where there is more height than width
    NoteBeneath = 8192, ///< notes stand in a line under the box, since there is no room for them beside it
    Kept = 16384, ///< "Save and Add" leaves it as it is for the next item
};

struct clsScreenRow;

/// A column of a list of items.
struct clsItemColumn {
    const char *caption;
    const char *property; ///< of the items
    int width = 0; ///< per cent of the grid; without one the column is hidden
    clsGridAlignment alignment = clsGridAlignment::Left; ///< of the heading and the cells
    bool sortKey = false; ///< the grid sorts its rows by the text of this column
    const char *faultOf = ""; ///< the property whose fault the column shows, where it isn't its own
    clsGridRoom room = clsGridRoom::Share;
    clsGridTexts (*texts)() = nullptr; ///< instead of a property: made at each drawing of the list
};

/// An entry of a list's pop-up menu beside "Delete".
struct clsItemAction {
    const char *name; ///< object name
    const char *caption;
    void (*run)(frmSection &screen); ///< all lists of the screen are drawn anew after it
    Glyph glyph = Glyph::None;
};

/// A list of items on a screen: what its grid shows, and how an item is added, edited and deleted. What a list leaves
/// out it doesn't offer.
struct clsItemList {
    bool orderable = true;
    std::vector<clsItemColumn> columns {};
    std::vector<const char *> called {}; ///< the properties that an item is called by where a step is named
    std::vector<const char *> told {}; ///< the same where "Save and Add" says what it stored; as `called` where empty
    void (*show)(oSGrid &grid) = nullptr; ///< hands the grid its collection
    clsFigureFaults (*faults)(const clsZR3Item &item) = nullptr; ///< what is wrong with an item
    const char *empty = ""; ///< what an empty grid says
    const clsScreen &(*editor)() = nullptr; ///< opened by "Add", and on an item by a double click or Return
    std::shared_ptr<clsXMLRecord> (*item)(int index) = nullptr; ///< the item of that `Index`
    void (*remove)(int index) = nullptr; ///< takes the item of that `Index` out of the claim
    bool keepsUsed = false; ///< an item that another element of the claim points at can't be deleted
    const char *add = nullptr; ///< object name of the button "Add"
    QString (*whyNoAdd)() = nullptr; ///< why nothing can be added now, for the button and the empty grid; or nothing
    const char *menu = nullptr; ///< object name of the pop-up menu
    const char *deleteEntry = nullptr; ///< object name of the menu's entry "Delete"
    std::vector<clsItemAction> actions {}; ///< further entries, above "Delete"
    void (*changed)() = nullptr; ///< brings up to date what the claim derives from the list, after each change of it
    clsListTotal (*total)() = nullptr; ///< what stands at the right under the grid
    clsListTotal (*sum)(const clsMarkedItems &) = nullptr; ///< the same of the marked rows
    std::vector<const char *> changes {}; ///< the editor's fields that can be set for all marked rows at once
    /// Sets one of them, after the user has said which and to what; the name of the step, or nothing.
    QString (*change)(frmSection &owner, const clsItemList &list, clsZR3Item &selected, const clsMarkedItems &marked)
        = nullptr;
    const clsPasteList &(*paste)() = nullptr; ///< as what it takes rows of tables, and gives its own
};

/// A control that a table brings with it, as wide as it asks for. Loading and storing may be missing where it has no
/// part in the record.
struct clsOtherControl {
    QWidget *(*make)(const clsScreenRow &row, QWidget *parent);
    void (*load)(const clsScreenRow &row, QWidget &control, clsXMLRecord &record) = nullptr;
    void (*store)(const clsScreenRow &row, const QWidget &control, clsXMLRecord &record) = nullptr;
};

/// Makes a control of its class, which asks nothing of its row.
template <class Control> QWidget *mdMakeOther(const clsScreenRow &, QWidget *parent)
{
    return new Control(parent);
}

/// One row of a screen: a line for each control, in the order in which the user walks through them and in which they
/// are loaded and stored.
struct clsScreenRow {
    clsRowKind kind;
    const char *control = ""; ///< object name, such as "txtSurname"
    const char *caption = "";
    int allowance = 0; ///< characters that the printed box holds
    unsigned flags = None;
    char group = 0; ///< ticks of one letter are exclusive; pairs ...Yes and ...No are so by their names
    const char *member = nullptr; ///< the record's property, where it isn't the control's name less its prefix
    QStringList (*entries)() = nullptr; ///< what a list offers; it starts on the first
    const clsOtherControl *other = nullptr;
    const clsItemList *items = nullptr;
    const char *beside = nullptr; ///< a tick that stands in the line of this one, in a second column
    const char *spoken = nullptr; ///< what a screen reader says where the caption alone says too little
    QWidget *(*beneath)(QWidget *parent) = nullptr; ///< makes what stands under the field and only tells something
    QWidget *(*behind)(QWidget *parent) = nullptr; ///< the same for what stands behind it, in the rest of its line
};

/// A page of a frame whose pages are opened one at a time.
struct clsScreenPage {
    const char *caption;
    std::vector<clsScreenRow> rows;
};

/// A titled group of fields.
struct clsScreenFrame {
    const char *name; ///< object name, such as "bxGeneral"
    const char *caption;
    std::vector<clsScreenRow> rows {};
    bool startsColumn = false; ///< where there is room for two columns, the second begins here
    bool sameLine = false; ///< stands in one line with the frame before, where there is room for all of the line
    int tickColumns = 0; ///< ticks stand in a grid of so many columns, row by row
    const char *switcher = nullptr; ///< object name of the switcher of its pages
    std::vector<clsScreenPage> pages {}; ///< instead of rows; a frame without a caption is only the stack of them
};

/// The width that a screen opens with.
enum class clsScreenWidth { Edit, OneColumn, List, TwoColumns };

/// How a screen is left. A screen with one button only stores with it.
enum class clsScreenEnding { SaveCancel, Close };

/// A way to another section, as a button of the bar and an entry of the menu "Jump To".
struct clsScreenJump {
    const char *control; ///< the button's object name
    const char *menu; ///< the entry's object name
    const char *section; ///< what both are captioned and where they lead
    bool menuStores = true; ///< the entry runs the store step, as the button always does
};

/// A screen, as a table. What it does beyond its table stands beside the table, in its `rules`.
struct clsScreen {
    const char *name; ///< of the window, such as "frmClientDetails"
    const char *header;
    const char *subCaption;
    int iconGroup;
    clsScreenWidth width;
    clsScreenEnding ending;
    const char *section = nullptr; ///< the section's text where the screen has Prev and Next
    clsXMLRecord *(*record)() = nullptr; ///< the record of a section; an item's editor is given its item
    std::vector<clsScreenFrame> frames {};
    void (*rules)(frmSection &screen) = nullptr; ///< run once, when the controls stand and before they are filled
    std::vector<clsScreenJump> jumps {};
    const char *itemWord = nullptr; ///< an item's editor: what it edits, in the words of its questions
    clsXMLRecord *(*add)() = nullptr; ///< an item's editor opened without one: makes it at the first Save
    bool fileMenu = true; ///< has the menu that saves the claim, as sections do and editors of items don't
};
