#include "editors/mdScreens.h"

#include "base/mdNumberText.h"
#include "base/mdPlayWav.h"
#include "base/mdProgramFolder.h"
#include "controls/oSGrid.h"
#include "editors/clsPasteList.h"
#include "editors/frmScreen.h"
#include "editors/mdCountComms.h"
#include "editors/mdEditItem.h"
#include "editors/oEnhancementsBox.h"
#include "formdata/clsZR3FeeEarner.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdInOrder.h"
#include "formdata/mdRecordInWords.h"
#include "formdata/mdRunStep.h"

namespace {

constexpr int CallsColumn = 3;

constexpr char HowToCount[] = "C, I and O count a call, a letter in and a letter out; with Shift, down.\n"
                              "A right click in a column does the same. Return or a double click types the figures.";

oSGrid &gridOf(const frmScreen &screen)
{
    return screen.Box<oSGrid>("sgCommunications");
}

/// Counts for the selected fee earner; does nothing if there is none. Plays the sound even if the count stays 0.
void count(oSGrid &grid, const clsCommsCount &what, Qt::KeyboardModifiers shift)
{
    const int index = grid.SelectedItemData();
    if (index == 0)
        return;
    const clsCommsStep &step = mdCommsStep(shift);
    const auto feeEarner = Form->FeeEarner(index);
    RunStep(mdPropertyInWords(QString::fromUtf8(what.count)) + u' ' + feeEarner->Reference(), [&] {
        mdCountComms(*feeEarner, what, step.by);
        grid.Redraw(false);
    });
    PlayWav(ProgramPath(QString::fromUtf8(step.sound)));
}

/// The counting letters are not passed on as typed text, so that a row number can be typed directly after one.
void keyDown(oSGrid &grid, int key, Qt::KeyboardModifiers shift, bool *doDefault)
{
    const clsCommsCount *what = mdCommsCountOfKey(key);
    if (!what)
        return;
    *doDefault = false;
    count(grid, *what, shift);
}

/// A right click counts in the column under the pointer. With Control held the press deselects the row, which is
/// therefore selected again.
void mouseUp(oSGrid &grid, Qt::MouseButton button, Qt::KeyboardModifiers shift, const QPoint &position)
{
    const clsCommsCount *what = mdCommsCountAtColumn(grid.ColumnAt(position));
    if (button != Qt::RightButton || !what)
        return;
    grid.SelectRow(grid.RowAt(position));
    count(grid, *what, shift);
}

/// Opens the editor of counts in the field of the column; does nothing for the column of names.
void typeCounts(frmScreen &screen, int feeEarner, int column)
{
    const clsCommsCount *what = mdCommsCountAtColumn(column);
    if (!what)
        return;
    const auto item = Form->FeeEarner(feeEarner);
    RunStep(QStringLiteral("Correspondences ") + item->Reference(), [&] {
        mdEditItem(&screen, ScreenCorrespondences(), item.get(),
            [what](frmScreen &editor) { editor.Box(what->field).setFocus(Qt::TabFocusReason); });
        gridOf(screen).Redraw(false);
    });
    gridOf(screen).setFocus(Qt::OtherFocusReason);
}

void selectTypedRow(oSGrid &grid, const QString &text)
{
    const double number = TextValue(text);
    if (!(number > 0 && number <= grid.Rows()))
        return;
    if (const int row = LongFromDouble(number))
        grid.SelectRow(row);
}

void rules(frmScreen &screen)
{
    oSGrid &grid = gridOf(screen);
    QObject::connect(&grid, &oSGrid::KeyDown, &screen,
        [&grid](int key, Qt::KeyboardModifiers shift, bool *doDefault) { keyDown(grid, key, shift, doDefault); });
    QObject::connect(&grid, &oSGrid::MouseUp, &screen,
        [&grid](Qt::MouseButton button, Qt::KeyboardModifiers shift, const QPoint &position) {
            mouseUp(grid, button, shift, position);
        });
    QObject::connect(&grid, &oSGrid::RowActivated, &screen,
        [&screen](int feeEarner, int, int column) { typeCounts(screen, feeEarner, column); });
    QObject::connect(
        &grid, &oSGrid::TimedKeyPress, &screen, [&grid](const QString &text) { selectTypedRow(grid, text); });
    // Return works from the start, and the marked cell shows what it opens.
    grid.setMarksCell(true);
    grid.setEmptyGlyph(Glyph::People);
    // For the headings; cells have their own tooltips.
    grid.setToolTip(QString::fromUtf8(HowToCount));
    grid.setAccessibleDescription(QString::fromUtf8(HowToCount));
    QObject::connect(&screen, &frmScreen::Loaded, &screen, [&grid] { grid.SelectColumn(CallsColumn); });
}

/// In the user's order. The grid's own sort compares texts and would put the tenth before the second.
clsGridItems feeEarnersInOrder()
{
    clsGridItems items;
    for (const auto &feeEarner : mdInOrder(Form->FeeEarnersCollection()))
        items.push_back(feeEarner);
    return items;
}

// clang-format off
const clsItemList FeeEarners {
    .orderable = false,
    .columns = {
        {"Fee Earner",  "Reference",  16},
        {"OrderID",     "OrderID"},
        {"Calls",       "Calls",      28, clsGridAlignment::Right},
        {"Letters In",  "LettersIn",  28, clsGridAlignment::Right},
        {"Letters Out", "LettersOut", 28, clsGridAlignment::Right},
    },
    .show = [](oSGrid &grid) { grid.setItemCollection(feeEarnersInOrder); },
    .empty = "Add a fee earner under Fee Earners / Rates first.",
    .total = mdCommunicationsListTotal,
    .paste = mdPasteCommunications,
};
// clang-format on

} // namespace

/// The letters and calls of each fee earner, counted in the grid by the keys C, I and O or a right click, with Shift
/// downwards. Counts are stored in the claim at once; the boxes below the grid are stored on leaving the screen, but
/// not by the menu "Save" or the close box.
const clsScreen &ScreenCommunications()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmCommunications",
        .header = "Communications",
        .subCaption = "Assign letters and calls to fee earners",
        .iconGroup = 12,
        .width = clsScreenWidth::TwoColumns,
        .ending = clsScreenEnding::Close,
        .section = "Communications",
        .record = []() -> clsXMLRecord * { return &Form->Communications; },
        .frames = {
            {"bxGeneral", "Communications", {
                {.kind = Items, .control = "sgCommunications", .caption = "Communications",
                 .items = &FeeEarners},
            }},
            {.name = "bxCalls", .caption = "Calls", .rows = {
                {.kind = Other, .control = "oCallsEnhancement", .caption = "Include in Enhancements:", .flags = CaptionAbove,
                 .member = "EnhanceCalls CallsEnhancementUniqueID", .other = &EnhancementsOfItem},
            }},
            {.name = "bxLettersIn", .caption = "Letters In", .rows = {
                {.kind = Other, .control = "oLettersInEnhancement", .caption = "Include in Enhancements:", .flags = CaptionAbove,
                 .member = "EnhanceLettersIn LettersInEnhancementUniqueID", .other = &EnhancementsOfItem},
            }, .sameLine = true},
            {.name = "bxLettersOut", .caption = "Letters Out", .rows = {
                {.kind = Other, .control = "oLettersOutEnhancement", .caption = "Include in Enhancements:", .flags = CaptionAbove,
                 .member = "EnhanceLettersOut LettersOutEnhancementUniqueID", .other = &EnhancementsOfItem},
            }, .sameLine = true},
        },
        .rules = rules,
        .jumps = {
            {"cmdScheduleOfTime", "mnuScheduleOfTime", "Schedule of Time"},
            {"cmdDisbursements",  "mnuDisbursements",  "Disbursements"},
        },
    };
    // clang-format on
    return screen;
}
