#include "shell/mdComparison.h"

#include "base/clsFileSystem.h"
#include "base/clsRunTimeError.h"
#include "base/mdCodePage.h"
#include "commands/clsLeftJournals.h"
#include "costing/comparing/mdChangesInWords.h"
#include "costing/comparing/mdCompareClaims.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

const QString OnDisk = QStringLiteral("On disk");

bool loads(clsZR3Form &form, const QByteArray &bytes)
{
    return form.LoadText(mdUtf8FromCodePage(bytes));
}

/// Reads and compares; an error is shown in the window.
template <class Step> clsComparison guarded(clsComparison comparison, Step step)
{
    try {
        step(comparison);
    } catch (const clsRunTimeError &error) {
        comparison.trouble = QStringLiteral("They cannot be compared: %1").arg(error.description());
    }
    return comparison;
}

} // namespace

clsComparison mdCompareWithJournal(const clsLeftJournal &left)
{
    return guarded({OnDisk, QStringLiteral("Recovery copy"), {}, {}}, [&](clsComparison &comparison) {
        const auto copy = ReadJournal(FileSystem().ReadFile(left.file));
        clsZR3Form after;
        if (!copy || !loads(after, copy->claim)) {
            comparison.trouble = QStringLiteral("The recovery copy cannot be read.");
            return;
        }
        clsZR3Form before;
        if (left.head.claim.isEmpty() || !FileSystem().FileExists(left.head.claim)) {
            comparison.before = QStringLiteral("Empty claim");
            comparison.trouble = left.head.claim.isEmpty()
                ? QStringLiteral("The claim was never saved: this is all that it holds.")
                : QStringLiteral("The claim's file is gone: this is all that the copy holds.");
        } else if (!loads(before, FileSystem().ReadFile(left.head.claim))) {
            comparison.trouble = QStringLiteral("The claim's file cannot be read.");
            return;
        }
        comparison.changes = mdChangesInWords(mdCompareClaims(before, after), before, after);
    });
}

clsComparison mdCompareWithDisk()
{
    return guarded({QStringLiteral("This window"), OnDisk, {}, {}}, [](clsComparison &comparison) {
        clsZR3Form theirs;
        if (!loads(theirs, FileSystem().ReadFile(Document().filePath()))) {
            comparison.trouble = QStringLiteral("The claim's file cannot be read.");
            return;
        }
        // A copy, so that the claim doesn't change.
        clsZR3Form ours;
        if (loads(ours, mdToCodePage(Form->XMLOutput())))
            comparison.changes = mdChangesInWords(mdCompareClaims(ours, theirs), ours, theirs);
    });
}
