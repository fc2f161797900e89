#include "editors/mdPrintNotes.h"

#include "base/mdProgramFolder.h"
#include "controls/oAllPurposeBox.h"
#include "editors/clsScreenTable.h"
#include "editors/mdScreenControls.h"
#include "editors/oScreenFrame.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "wordexport/clsPrintedBoxes.h"

#include <QDateTime>
#include <QDir>

#include <memory>

namespace {

/// The boxes of the claim's form, cached because finding them takes too long for a key press. Found again after a
/// change of the form type or a template.
clsPrintedBoxes &boxesOf(const QString &formType)
{
    struct clsKnown {
        QString name;
        clsPrintedBoxes boxes;
    };
    static std::unique_ptr<clsKnown> known;
    const QString folder = TemplatesFolder();
    const QFileInfoList latest = QDir(folder).entryInfoList(QDir::Files, QDir::Time);
    const QString name
        = QStringLiteral("%1|%2|%3|%4")
              .arg(formType, folder,
                  latest.isEmpty() ? QString() : latest.first().lastModified().toString(Qt::ISODateWithMs))
              .arg(latest.size());
    if (!known || known->name != name)
        known.reset(new clsKnown {name, clsPrintedBoxes(formType, folder)});
    return known->boxes;
}

QString whatHappens(clsPrintedFit::clsState state)
{
    switch (state) {
    case clsPrintedFit::Smaller: return QStringLiteral("It will be printed smaller");
    case clsPrintedFit::RunsOn: return QStringLiteral("It will run on to another page");
    case clsPrintedFit::Cut: break;
    }
    return QStringLiteral("The rest will be cut off");
}

clsPrintNote noteOf(const clsPrintedFit &fit)
{
    const QString why = fit.lines > fit.room
        ? QStringLiteral("%1 lines; the box prints %2.").arg(fit.lines).arg(fit.room)
        : QStringLiteral("A word is wider than the box.");
    const auto sign = fit.state == clsPrintedFit::Smaller ? clsPrintNote::Smaller
        : fit.state == clsPrintedFit::RunsOn              ? clsPrintNote::RunsOn
                                                          : clsPrintNote::Cut;
    return {sign, why + u' ' + whatHappens(fit.state)};
}

clsPrintNote noteFor(const clsScreenRow &row, const QString &property, const QString &text)
{
    // A text too long for its box is printed on continuation sheets instead.
    if (!Form || text.isEmpty() || ((row.flags & OverRun) && text.size() > row.allowance))
        return {};
    const auto fit = boxesOf(Form->FormType()).fit(property, text);
    return fit ? noteOf(*fit) : clsPrintNote();
}

} // namespace

void mdShowPrintNotes(const clsScreen &screen, const std::vector<clsScreenField> &fields)
{
    if (!Form || !screen.record || !(screen.section || screen.record() == Form.get()))
        return;
    // Properties of a section have the screen's name as a prefix; the claim's own have none.
    const QString prefix = screen.record() == Form.get() ? QString() : QString::fromUtf8(screen.name).mid(3) + u'.';
    for (const clsScreenField &field : fields)
        if (auto *box = qobject_cast<oAllPurposeBox *>(field.control); box && field.row->allowance > 0)
            box->setPrintNote([row = field.row, property = prefix + mdMemberOf(*field.row)](
                                  const QString &text) { return noteFor(*row, property, text); });
}
