#include "costing/checking/mdCheckRules.h"

#include "costing/checking/mdCheckWords.h"
#include "costing/mdPageRoom.h"
#include "formdata/mdRecordInWords.h"

// Faults on the printed sheets.

namespace {

struct clsBoxStateRow {
    clsPrintedBox::State state;
    clsFindingLevel level;
    const char *words;
};

constexpr clsBoxStateRow BoxStates[] = {
    {clsPrintedBox::Smaller, clsFindingLevel::Note, "is printed smaller to fit its box: see that it can be read."},
    {clsPrintedBox::RunsOn, clsFindingLevel::Warning, "makes its sheet run on to another page: shorten it."},
    {clsPrintedBox::Cut, clsFindingLevel::Error, "is cut off at the end of its box: shorten it."},
};

/// The content of a box and its sheet, in words.
QString boxInWords(const clsPrintedBox &box)
{
    QString what = QStringLiteral("A figure");
    if (!box.Property.isEmpty())
        what = mdPropertyInWords(box.Property);
    else if (box.Item > 0)
        what = QStringLiteral("A cell");
    if (box.Item > 0)
        what += QStringLiteral(" of item %1").arg(box.Item);
    return box.Sheet.isEmpty() ? what : QStringLiteral("%1 on page %2").arg(what, box.Sheet);
}

} // namespace

void mdCheckEnhancementReasons(clsClaimCheck &check)
{
    if (!check.isClaim1() || !check.isPrinted(3, 0)
        || !mdIsEmptyText(check.form().DetailsOfWork.DetailsOfEnhancement()))
        return;
    for (const clsBilledItem &billed : check.billed()) {
        const clsSchedulePrice &price = *billed.price;
        if (price.errorOf(clsSchedulePrice::PercentageFigure) || price.TotalEnhancementPercentage <= Money())
            continue;
        check.add({WorkScreen, "", 0, QStringLiteral("DetailsOfEnhancement")},
            QStringLiteral("Items are enhanced, the first of them item %1, but no reasons are given: say why.")
                .arg(billed.order));
        return;
    }
}

void mdCheckPaper(clsClaimCheck &check)
{
    for (const clsPrintedBox &box : check.facts().Boxes)
        for (const clsBoxStateRow &row : BoxStates)
            if (row.state == box.state)
                check.add({box.Screen, box.List, box.Item, box.Property},
                    boxInWords(box) + u' ' + QString::fromLatin1(row.words), row.level);
}

void mdCheckLostSheets(clsClaimCheck &check)
{
    constexpr clsPageRoom Joint = JointInstructionsRoom;
    constexpr clsPageRoom Other = OtherDisbursementsRoom;
    if (!check.isClaim1() || !check.isPrinted(7, 0))
        return;
    const int joint = int(check.form().JointInstructionsCollection().size());
    const int other = int(check.form().NonCounselDisbursementsCollection().size());
    if (joint <= Joint.first || other <= Other.first)
        return;
    // Each further sheet of the disbursements replaces the joint instructions' sheet of the same number.
    const int lostSheets = (other - Other.first + Other.further - 1) / Other.further;
    const int last = std::min(joint, Joint.first + lostSheets * Joint.further);
    const QString rows = last == Joint.first + 1
        ? QStringLiteral("Joint instruction %1 is").arg(last)
        : QStringLiteral("Joint instructions %1 to %2 are").arg(Joint.first + 1).arg(last);
    check.add({DisbursementsScreen},
        rows
            + QStringLiteral(" not printed, because both lists of page 7 run on to the same further sheets: keep to %1 "
                             "joint instructions, or list the rest in a letter.")
                  .arg(Joint.first));
}
