#include "wordexport/mdExportWordAdditionalInformation.h"

#include "base/mdCustomMessages.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportCopyTemplate.h"
#include "wordexport/mdExportSheet.h"
#include "wordexport/mdSplitLineIntoCollection.h"

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

/// The mark of a sheet that ended at the item at `position`. A first sheet from which only the very last item spilled
/// has none: that is the rule.
QString markOf(const clsExport &run, int position, int count)
{
    if (run.ExportSheetCounter == 1 && position >= count)
        return {};
    return mdSheetMark(run.ExportSheetCounter);
}

/// Fills one sheet from the item at `start` and returns the first that it could not take. `linesLeft` is its budget,
/// and then what is left of it.
int fillSheet(clsExport &run, const QString &path, const clsAdditionalInformation &place, int start, int &linesLeft)
{
    const int count = int(run.form.AdditionalInformationItemsCollection().size());
    clsMSWord word;
    mdOpenSheet(run, word, path);
    word.MoveCursorDown(place.offset);
    word.MoveCursorToStartOfRow();
    int position = start;
    for (; position <= count; ++position) {
        const auto item = run.form.AdditionalInformationItem(position);
        const QStringList lines = linesOf(*item);
        const int need = int(lines.size()) + 1;
        if (linesLeft - need < 1)
            break;
        typeNote(word, *item, lines);
        linesLeft -= need;
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
    int linesLeft = place.firstBudget;
    int position = fillSheet(run, firstSheet, place, 1, linesLeft);
    const int linesUsed = place.firstBudget - linesLeft;

    while (position <= count) {
        ++run.ExportSheetCounter;
        const QString sheet = mdMakeSheet(
            run, QString::fromLatin1(place.continuationTemplate), place.pageNumber, run.ExportSheetCounter);
        linesLeft = FurtherBudget;
        position = fillSheet(run, sheet, place, position, linesLeft);
    }
    return {firstSheet, linesUsed};
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
