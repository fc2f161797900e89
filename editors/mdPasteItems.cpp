#include "editors/mdPasteItems.h"

#include "base/clsFileSystem.h"
#include "base/clsRunTimeError.h"
#include "base/clsUserInterface.h"
#include "commands/clsJournal.h"
#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdShowModal.h"
#include "controls/oContentSwitcher.h"
#include "controls/oSGrid.h"
#include "costing/tables/mdClaimItems.h"
#include "costing/tables/mdClaimTable.h"
#include "costing/tables/mdCsv.h"
#include "editors/clsEditMenu.h"
#include "editors/clsPasteList.h"
#include "editors/frmPasteItems.h"
#include "editors/frmScreen.h"
#include "editors/mdColumnProfiles.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3Item.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdRunStep.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>

#include <set>

namespace {

constexpr char CsvType[] = "text/csv";

QString clipboardText()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    if (!data)
        return {};
    return data->hasText() ? data->text() : mdTextOfTable(data->data(QString::fromLatin1(CsvType)));
}

void add(const clsPasteList &list, const clsImportedRows &rows, const char *action, const clsPasted &pasted)
{
    const int count = rows.chosen();
    const QString items = count == 1 ? QStringLiteral("item") : QStringLiteral("items");
    RunStep(QStringLiteral("%1 %2 %3").arg(QLatin1String(action)).arg(count).arg(items), [&] {
        if (rows.appendTo(*Form) > 0)
            pasted();
    });
    mdKeepColumnProfile(rows, list);
    Journal().stepTaken();
}

void look(const clsPasteList &list, const QString &text, const frmPasteItems::clsSource &source, const char *action,
    const clsPasted &pasted)
{
    frmPasteItems window(list, text, source);
    if (mdShowModal(window) == QDialog::Accepted)
        add(list, window.Rows(), action, pasted);
}

/// The part of a table that is copied.
clsTable copied(const clsTable &table, const clsPasteList &list)
{
    if (!list.copied)
        return table;
    clsTable result;
    std::vector<qsizetype> places;
    for (const QString &name : list.copied())
        for (qsizetype place = 0; place < table.header.size(); ++place)
            if (mdIsSameName(table.header[place], name)) {
                places.push_back(place);
                result.header << table.header[place];
            }
    for (const QStringList &row : table.rows) {
        QStringList cells;
        for (const qsizetype place : places)
            cells << row.value(place);
        result.rows.push_back(cells);
    }
    return result;
}

/// Keeps only the rows of a list's table that belong to the marked items.
void keepMarked(clsTable &table, const clsPasteList &list, const clsMarkedItems &marked)
{
    std::set<const clsXMLRecord *> chosen;
    for (const auto &item : marked)
        chosen.insert(item.get());
    for (const clsClaimItems &items : mdClaimItems()) {
        if (!items.is(QString::fromLatin1(list.table)))
            continue;
        const std::vector<const clsXMLRecord *> all = items.items(*Form);
        std::vector<QStringList> rows;
        for (size_t row = 0; row < qMin(all.size(), table.rows.size()); ++row)
            if (chosen.contains(all[row]))
                rows.push_back(table.rows[row]);
        table.rows = std::move(rows);
    }
}

/// A screen's list that can import rows, with its grid.
struct clsTakingList {
    const clsItemList *items = nullptr;
    oSGrid *grid = nullptr;
};

/// The list of the open page or, if that can't import rows, the last list of the screen that can.
clsTakingList takingListOf(const frmScreen &screen)
{
    clsTakingList last;
    for (const clsScreenField &field : screen.Fields())
        if (field.row->kind == clsRowKind::Items && field.row->items->paste)
            if (auto *grid = qobject_cast<oSGrid *>(field.control)) {
                last = {field.row->items, grid};
                if (field.page == 0 || screen.Switcher().OpenPage() == field.page)
                    return last;
            }
    return last;
}

/// Updates the screen as after "Add".
void showPasted(frmScreen &screen, const clsTakingList &list)
{
    screen.RedrawLists();
    if (list.items->changed)
        list.items->changed();
    // The last item of the claim's list, whatever the grid's sort order. Lists without an item function, such as
    // communications, keep their selection.
    if (list.items->item)
        for (const auto &item : list.grid->ItemCollection())
            if (item->Index == list.grid->Rows()) {
                screen.ShowItem(item.get());
                break;
            }
    list.grid->setFocus(Qt::OtherFocusReason);
}

} // namespace

void mdPasteItems(const clsPasteList &list, const clsPasted &pasted)
{
    look(list, clipboardText(),
        {QStringLiteral("Paste Items"), QStringLiteral("the clipboard"),
            QStringLiteral("Nothing to paste. Copy rows from a spreadsheet first.")},
        "Paste", pasted);
}

void mdImportItems(const clsPasteList &list, const clsPasted &pasted)
{
    const QString path
        = UserInterface().chooseFileToOpen(QStringLiteral("Tables (*.csv;*.tsv;*.txt)|*.csv;*.tsv;*.txt"));
    if (path.isEmpty())
        return;
    const QString name = QFileInfo(path).fileName();
    frmPasteItems::clsSource source {
        QStringLiteral("Import Items"), name, QStringLiteral("%1 holds no rows.").arg(name)};
    QString text;
    try {
        if (QFileInfo(path).size() > clsTextTable::MostBytes)
            source.empty = QStringLiteral("%1 is larger than %2 megabytes.")
                               .arg(name)
                               .arg(clsTextTable::MostBytes / 1024 / 1024);
        else
            text = mdTextOfTable(FileSystem().ReadFile(path));
    } catch (const clsRunTimeError &error) {
        source.empty = QStringLiteral("%1 can't be read: %2.").arg(name, error.description());
    }
    look(list, text, source, "Import", pasted);
}

int mdCopyList(const clsPasteList &list, const clsMarkedItems &marked)
{
    const clsBill bill(*Form);
    auto whole = mdClaimTable(bill, QString::fromLatin1(list.table));
    if (!whole)
        return 0;
    if (marked.size() > 1)
        keepMarked(*whole, list, marked);
    const clsTable table = copied(*whole, list);
    auto *data = new QMimeData;
    data->setText(QString::fromUtf8(mdTableAsCsv(table, '\t')));
    data->setData(QString::fromLatin1(CsvType), mdTableAsCsv(table));
    QGuiApplication::clipboard()->setMimeData(data);
    return int(table.rows.size());
}

QString mdCopiedInWords(const clsPasteList &list, int count, int all)
{
    if (all > count)
        return QStringLiteral("Copied %1: %2 of %3").arg(QString::fromLatin1(list.section)).arg(count).arg(all);
    return QStringLiteral("Copied %1: %2 in all").arg(QString::fromLatin1(list.section)).arg(count);
}

void mdOfferPaste(frmScreen &screen, clsEditCommands &commands, const std::function<void(const QString &)> &tell)
{
    if (!takingListOf(screen).items)
        return;
    const auto taking = [&screen](void (*take)(const clsPasteList &, const clsPasted &)) {
        return [&screen, take] {
            const clsTakingList list = takingListOf(screen);
            if (mdLeaveFocusedBox(&screen))
                take(list.items->paste(), [&screen, list] { showPasted(screen, list); });
        };
    };
    commands.paste = taking(mdPasteItems);
    commands.import = taking(mdImportItems);
    commands.copyList = [&screen, tell] {
        const clsTakingList list = takingListOf(screen);
        const clsPasteList &table = list.items->paste();
        const int count = mdCopyList(table, list.items->sum ? list.grid->SelectedItemCollection() : clsMarkedItems());
        tell(mdCopiedInWords(table, count, list.items->sum ? list.grid->Rows() : 0));
    };
    commands.hasCopyKey = takingListOf(screen).items->paste().hasCopyKey;
}
