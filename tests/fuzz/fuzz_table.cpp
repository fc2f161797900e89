// The tables from which items are imported: separators, quotes, code pages, headers, and cells of all kinds. The input
// is a file, which is also read as the firm's words for the codes.

#include "costing/tables/clsCodeWords.h"
#include "costing/tables/clsImportedRows.h"
#include "costing/tables/mdClaimTable.h"
#include "costing/tables/mdCsv.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdScheduleOfTimeCodesCollection.h"
#include "tests/fuzz/mdFuzz.h"

namespace {

void addPeople(clsZR3Form &form)
{
    const auto group = form.AddFeeEarnerGroup();
    for (const char *reference : {"AB", "Day, J", "=X"}) {
        const auto feeEarner = form.AddFeeEarner();
        feeEarner->Reference = QString::fromLatin1(reference);
        feeEarner->GroupUniqueID = group->UniqueID();
    }
    form.AddEnhancement()->Name = QStringLiteral("Speed");
}

void attackRows(const clsImportedRows &rows)
{
    for (const clsImportedRow &row : rows.rows()) {
        mdFuzzRequire(row.isWrong() == !row.reasons().isEmpty(), "a wrong row has its reason");
        mdFuzzRequire(!row.isWrong() || row.DoubleOf == 0, "a wrong row is no double");
        mdFuzzRequire(row.Line > row.Number, "a row stands below the header");
    }
    mdFuzzRequire(rows.error().isEmpty() || rows.rows().empty(), "a table that is none has no rows");
}

void attackWords(const QString &text)
{
    const clsCodeWords words(text);
    if (!words.error().isEmpty())
        return;
    const clsCodeWords again(mdTextOfTable(words.asCsv()));
    mdFuzzSame(QString(), again.error(), "words that were written are a table");
    for (const QString &code : mdScheduleOfTimeCodesCollection())
        mdFuzzSame(words.of(code), again.of(code), "words come back as they were");
}

} // namespace

void mdFuzzAttack(const uint8_t *data, size_t size)
{
    clsFuzzUser user;
    const clsUserInterfaceScope scope(user);
    clsZR3Form form;
    addPeople(form);
    const QString before = form.XMLOutput();
    const QString table = mdTextOfTable(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    attackWords(table);
    clsImportedRows rows(form, mdScheduleImport(), table, {{QStringLiteral("When"), QStringLiteral("date")}});
    attackRows(rows);
    if (rows.hasWrongChosen()) {
        mdFuzzRequire(rows.appendTo(form) == 0, "a wrong row stops all");
        mdFuzzSame(before, form.XMLOutput(), "then nothing is changed");
        for (size_t row = 0; row < rows.rows().size(); ++row)
            rows.choose(int(row), !rows.rows()[row].isWrong());
    }
    const int added = rows.appendTo(form);
    mdFuzzRequire(added == int(form.ScheduleOfTimeItemsCollection().size()), "what is chosen is stored");
    // Imported items are written as a table and read as the same items.
    const QString text = mdTextOfTable(mdTableAsCsv(*mdClaimTable(form, u"schedule")));
    const clsImportedRows again(form, mdScheduleImport(), text);
    mdFuzzSame(QString(), again.error(), "a table of this program is one");
    mdFuzzRequire(int(again.rows().size()) == added && again.chosen() == 0, "items come back as they were");
    mdFuzzRequire(user.messages == 0, "nothing is told");
}
