#include "programs/zr3tool/mdTables.h"

#include "base/clsConsoleUserInterface.h"
#include "base/clsFileSystem.h"
#include "base/clsRunTimeError.h"
#include "base/mdPrint.h"
#include "costing/tables/clsImportedRows.h"
#include "costing/tables/mdClaimTable.h"
#include "costing/tables/mdCsv.h"
#include "formdata/clsZR3Form.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace {

using Status = clsExitStatus;

const QString Title = QStringLiteral("Import");

void print(clsTable table)
{
    if (!mdIsTerminal(stdout)) {
        mdPrintBytes(mdTableAsCsv(table));
        return;
    }
    // Line breaks within a text are replaced like other control characters.
    for (QStringList &row : table.rows)
        for (QString &cell : row)
            cell = mdWithoutControls(cell);
    mdPrint(stdout, QString::fromUtf8(mdTableAsCsv(table)));
}

QString causesOf(const QStringList &causes)
{
    return causes.isEmpty() ? QString() : QStringLiteral("\r\n") + causes.join(QStringLiteral("\r\n"));
}

/// The text of the imported table; nothing, after a message, if it can't be read.
std::optional<QString> textOf(clsConsoleUserInterface &console, const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    if (QFileInfo(path).size() > clsTextTable::MostBytes) {
        console.tell(Title,
            QStringLiteral("The table %1 is larger than %2 megabytes.")
                .arg(shown)
                .arg(clsTextTable::MostBytes / 1024 / 1024));
        return {};
    }
    try {
        return mdTextOfTable(FileSystem().ReadFile(path));
    } catch (const clsRunTimeError &error) {
        console.tell(Title, QStringLiteral("The table %1 can't be read: %2.").arg(shown, error.description()));
        return {};
    }
}

QString rowInWords(const clsImportedRow &row)
{
    return QStringLiteral("Row %1 (line %2): ").arg(row.Number).arg(row.Line);
}

/// Reports each wrong row; true if there is one.
bool tellWrongRows(clsConsoleUserInterface &console, const clsImportedRows &rows)
{
    bool areWrong = false;
    for (const clsImportedRow &row : rows.rows())
        if (row.isWrong()) {
            areWrong = true;
            console.tell(Title, rowInWords(row) + row.reasons().join(QStringLiteral("; ")) + u'.');
        }
    return areWrong;
}

void tellWhatIsPassedBy(
    clsConsoleUserInterface &console, const clsImportedRows &rows, const clsImportedRows::Names &names)
{
    for (const QString &name : rows.missingNames(names))
        console.tell(Title, QStringLiteral("The table has no column \"%1\".").arg(mdWithoutControls(name)));
    for (const QString &column : rows.unknownColumns())
        console.tell(
            Title, QStringLiteral("The column \"%1\" is unknown and was passed by.").arg(mdWithoutControls(column)));
    for (const clsImportedRow &row : rows.rows())
        if (!row.IsChosen)
            console.tell(
                Title, rowInWords(row) + QStringLiteral("As item %1 of the claim; passed by.").arg(row.DoubleOf));
}

} // namespace

Status mdPrintTable(clsConsoleUserInterface &console, const clsZR3Form &form, const clsToolCommand &command)
{
    const auto table = mdClaimTable(form, command.which);
    if (!table) {
        std::fputs(clsToolCommand::usage().toUtf8().constData(), stderr);
        return Status::WrongUsage;
    }
    print(*table);
    if (!table->hasFailures)
        return Status::Done;
    console.tell(QStringLiteral("Table"),
        QStringLiteral("Some figures of this list can't be computed. Each of them stands as \"!\" and the number of "
                       "its run-time error.")
            + causesOf(table->causes));
    return Status::Failed;
}

Status mdImport(
    clsConsoleUserInterface &console, clsZR3Form &form, const clsToolCommand &command, const clsClaimWriter &write)
{
    const auto text = textOf(console, command.items);
    if (!text)
        return Status::NoClaim;
    clsImportedRows rows(form, mdScheduleImport(), *text, command.columns);
    if (!rows.error().isEmpty()) {
        console.tell(Title, rows.error() + u'.');
        return Status::WrongRows;
    }
    if (command.doubles)
        rows.chooseDoubles(true);
    if (tellWrongRows(console, rows))
        return Status::WrongRows;
    tellWhatIsPassedBy(console, rows, command.columns);
    rows.appendTo(form);
    return write(form);
}
