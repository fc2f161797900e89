#include "wordexport/mdExportWordAdditionalInformation.h"

#include "base/mdCustomMessages.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportCopyTemplate.h"
#include "wordexport/mdExportSheet.h"
#include "wordexport/mdSplitLineIntoCollection.h"

#include <numeric>

namespace {

constexpr int LineWidth = 60;
constexpr int FurtherBudget = 50;
/// A note needs a line for the rule below it, and one line of a sheet always stays empty.
constexpr int LongestNote = FurtherBudget - 2;
constexpr int RuleLength = 42;
const QString Rule = QString(RuleLength, QChar(0x2014));

QStringList linesOf(const clsZR3ScheduleOfTimeItem &item)
{
    return mdSplitLineIntoCollection(item.Description(), LineWidth);
}

void typeNote(clsMSWord &word, const clsZR3ScheduleOfTimeItem &item, const QStringList &lines)
{
    word.NextLine();
    word.NextColumn();
    mdTypeCell(word, QString::number(item.OrderID()), clsFillClass::Text);
    word.NextColumn();
    for (qsizetype n = 0; n < lines.size(); ++n) {
        mdTypeCell(word, lines[n], clsFillClass::Text);
        word.NextLine();
        if (n < lines.size() - 1)
            word.MoveColumns(2);
        else
            mdTypeCell(word, Rule, clsFillClass::Text);
    }
}

/// The mark of a sheet that ended at the item at `position`. A first sheet from which only the last item overflowed has
/// none. Required behaviour; do not fix.
QString markOf(const clsExport &run, int position, int count)
{
    if (run.ExportSheetCounter == 1 && position >= count)
        return {};
    return mdSheetMark(run.ExportSheetCounter);
}

/// The lines left on a sheet, and the breaks within those typed. The breaks are not subtracted from the lines.
struct clsSheetLines {
    int left;
    int breaks = 0;
};

int breaksIn(const QStringList &lines)
{
    return std::accumulate(
        lines.begin(), lines.end(), 0, [](int sum, const QString &line) { return sum + mdLineBreaksIn(line); });
}

/// Fills one sheet from the item at `start` and returns the first item that didn't fit.
int fillSheet(
    clsExport &run, const QString &path, const clsAdditionalInformation &place, int start, clsSheetLines &sheetLines)
{
    const int count = int(run.form.AdditionalInformationItemsCollection().size());
    clsMSWord word;
    mdOpenSheet(run, word, path);
    run.sheets[path].grids.push_back({QStringLiteral("schedule"), place.offset, {0}});
    word.MoveCursorDown(place.offset);
    word.MoveCursorToStartOfRow();
    int position = start;
    for (; position <= count; ++position) {
        const auto item = run.form.AdditionalInformationItem(position);
        const QStringList lines = linesOf(*item);
        const int need = int(lines.size()) + 1;
        if (sheetLines.left - need < 1)
            break;
        typeNote(word, *item, lines);
        sheetLines.left -= need;
        sheetLines.breaks += breaksIn(lines);
    }
    mdReplaceMark(word, markOf(run, position, count));
    mdFinishSheet(run, word);
    return position;
}

} // namespace

clsAdditionalInformationResult mdExportWordAdditionalInformation(clsExport &run, const clsAdditionalInformation &place)
{
    const int count = int(run.form.AdditionalInformationItemsCollection().size());
    ++run.ExportSheetCounter;
    const QString firstSheet
        = mdMakeSheet(run, QString::fromLatin1(place.pageTemplate), place.pageNumber, run.ExportSheetCounter);
    clsSheetLines first {place.firstBudget};
    int position = fillSheet(run, firstSheet, place, 1, first);

    while (position <= count) {
        ++run.ExportSheetCounter;
        const QString sheet = mdMakeSheet(
            run, QString::fromLatin1(place.continuationTemplate), place.pageNumber, run.ExportSheetCounter);
        clsSheetLines further {FurtherBudget};
        position = fillSheet(run, sheet, place, position, further);
    }
    return {firstSheet, place.firstBudget - first.left, first.breaks};
}

bool mdNoteCanNeverFit(const clsExport &run)
{
    for (const auto &item : run.form.AdditionalInformationItemsCollection()) {
        const auto lines = linesOf(*item).size();
        if (lines <= LongestNote)
            continue;
        mdCustomMessages(
            QStringLiteral("Item %1 has a description of %2 lines. The additional information sheets hold at most %3 "
                           "lines for one item. Please shorten the description and try again.")
                .arg(item->OrderID())
                .arg(lines)
                .arg(LongestNote),
            QStringLiteral("Additional Information"));
        return true;
    }
    return false;
}
