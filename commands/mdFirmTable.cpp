#include "commands/mdFirmTable.h"

#include "commands/clsFirm.h"
#include "costing/tables/clsCellReader.h"
#include "costing/tables/clsImportedRow.h"
#include "costing/tables/clsTextTable.h"
#include "costing/tables/mdCsv.h"
#include "formdata/mdInOrder.h"
#include "formdata/mdRecordInWords.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

/// The kinds of rows.
enum clsKind { Firm, Group, FeeEarner, Counsel, Kinds };

constexpr const char *KindNames[Kinds] = {"Firm", "Group", "Fee Earner", "Counsel"};

/// A column and its property in each kind of row; null if that kind has none.
struct clsColumn {
    const char *name;
    const char *properties[Kinds];
    clsCellKind kind = clsCellKind::Text;
    bool isRequired = false; ///< in rows of groups, fee earners and counsel
};

// clang-format off
constexpr clsColumn Columns[] = {
    {"Reference",       {nullptr, "Reference", "Reference", nullptr}, clsCellKind::Text, true},
    {"Name",            {"NameOfFirm", "Name", nullptr, "Name"}, clsCellKind::Text, true},
    {"Account Number",  {"AccountNumber", nullptr, nullptr, "AccountNumber"}},
    {"Roll Number",     {"RollNumber"}},
    {"Contact",         {"ContactNameForEnquiries"}},
    {"Telephone",       {"TelephoneForEnquiries"}},
    {"Email",           {"EmailForEnquiries"}},
    {"VAT",             {"VAT", nullptr, nullptr, "VAT"}, clsCellKind::Tick},
    {"VAT Rate",        {"VATRate"}, clsCellKind::AmountIfAny},
    {"Enhance",         {nullptr, "Enhance"}, clsCellKind::Tick},
    {"Enhancement",     {nullptr, "EnhancementRate"}, clsCellKind::AmountIfAny},
    {"Enhance Communications", {nullptr, "EnhanceComms"}, clsCellKind::Tick},
    {"Hourly Rate",     {nullptr, "HourlyRate"}, clsCellKind::AmountIfAny},
    {"Calls Rate",      {nullptr, "CallsRate"}, clsCellKind::AmountIfAny},
    {"Letters In Rate", {nullptr, "LettersInRate"}, clsCellKind::AmountIfAny},
    {"Letters Out Rate", {nullptr, "LettersOutRate"}, clsCellKind::AmountIfAny},
    {"Advocacy Rate",   {nullptr, "AdvocacyRate"}, clsCellKind::AmountIfAny},
    {"Counsel Rate",    {nullptr, "CounselRate"}, clsCellKind::AmountIfAny},
    {"Travel and Waiting Rate", {nullptr, "TravelAndWaitingRate"}, clsCellKind::AmountIfAny},
};
// clang-format on

// Columns that aren't plain properties.
constexpr char KindColumn[] = "Kind";
constexpr char FillColumn[] = "Fill New Claims"; ///< of the firm
constexpr char GroupColumn[] = "Group"; ///< of a fee earner: the group's reference
constexpr char NumberColumn[] = "Group Number"; ///< the group's place in its list, if its reference is not unique

QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

QStringList knownColumns()
{
    QStringList names {latin(KindColumn), latin(FillColumn), latin(GroupColumn), latin(NumberColumn)};
    for (const clsColumn &column : Columns)
        names << latin(column.name);
    return names;
}

const clsXMLField *fieldOf(const clsXMLRecord &record, const char *property)
{
    return property ? record.field(latin(property)) : nullptr;
}

/// A field of the firm's row, from the solicitor's details or from the claim itself.
const clsXMLField *firmField(const clsZR3Form &form, const char *property)
{
    const clsXMLField *field = fieldOf(form.SolicitorDetails, property);
    return field ? field : fieldOf(form, property);
}

QString cellOf(const clsColumn &column, const clsXMLField *field)
{
    if (!field)
        return {};
    if (column.kind != clsCellKind::Tick)
        return field->readText();
    return field->readBoolean() ? QStringLiteral("Yes") : QStringLiteral("No");
}

/// Builds the table row by row.
class clsWriter {
public:
    explicit clsWriter(const clsFirm &firm)
        : m_firm(firm)
        , m_columns(knownColumns())
        , m_groups(mdInOrder(firm.form.FeeEarnerGroupsCollection()))
    {
        m_table.header = m_columns + firm.otherColumns;
    }

    QByteArray write()
    {
        addRow(Firm, {}, [this](const char *property) { return firmField(m_firm.form, property); });
        cell(FillColumn) = m_firm.fillsNewClaims ? QStringLiteral("Yes") : QStringLiteral("No");
        for (const auto &group : m_groups)
            addItem(Group, *group);
        for (const auto &feeEarner : mdInOrder(m_firm.form.FeeEarnersCollection())) {
            addItem(FeeEarner, *feeEarner);
            tellGroup(feeEarner->GroupUniqueID());
        }
        for (const auto &counsel : mdInOrder(m_firm.form.CounselCollection()))
            addItem(Counsel, *counsel);
        return mdTableAsCsv(m_table);
    }

private:
    QString &cell(const char *column) { return m_table.rows.back()[m_columns.indexOf(latin(column))]; }

    template <class Item> void addItem(clsKind kind, const Item &item)
    {
        addRow(kind, item.UniqueID(), [&item](const char *property) { return fieldOf(item, property); });
    }

    template <class FieldOf> void addRow(clsKind kind, const QString &identity, FieldOf field)
    {
        QStringList row(m_columns.size());
        m_table.rows.push_back(row);
        cell(KindColumn) = latin(KindNames[kind]);
        for (const clsColumn &column : Columns)
            cell(column.name) = cellOf(column, field(column.properties[kind]));
        m_table.rows.back() << m_firm.otherCells.value(identity, QStringList(m_firm.otherColumns.size()));
    }

    void tellGroup(const QString &identity)
    {
        const auto isIt = [&](const auto &group) { return group->UniqueID() == identity; };
        const auto found = std::find_if(m_groups.begin(), m_groups.end(), isIt);
        if (found == m_groups.end())
            return;
        const QString reference = (*found)->Reference();
        cell(GroupColumn) = reference;
        const auto isCalledSo = [&](const auto &group) { return group->Reference() == reference; };
        if (std::find_if(m_groups.begin(), m_groups.end(), isCalledSo) != found)
            cell(NumberColumn) = QString::number(std::distance(m_groups.begin(), found) + 1);
    }

    const clsFirm &m_firm;
    const QStringList m_columns;
    const clsZR3Form::FeeEarnerGroupsList::Collection m_groups;
    clsTable m_table;
};

/// Reads the rows of a table, up to the first that is invalid.
class clsReader {
public:
    explicit clsReader(clsFirm &firm)
        : m_firm(firm)
        , m_cells(firm.form)
    { }

    QString read(const QString &text)
    {
        const clsTextTable table = tableOf(text);
        if (!table.Error.isEmpty())
            return QStringLiteral(": ") + table.Error;
        if (!takeHeader(table))
            return m_trouble;
        // Groups first, wherever they are in the table: fee earners refer to them.
        for (const bool isGroup : {true, false})
            for (size_t i = 1; i < table.Rows.size(); ++i)
                if ((kindOf(table.Rows[i]) == Group) == isGroup && !takeRow(table.Rows[i]))
                    return QStringLiteral(" in line %1: %2").arg(table.Rows[i].Line).arg(m_trouble);
        return {};
    }

private:
    /// Which separator a spreadsheet writes depends on its locale.
    static clsTextTable tableOf(const QString &text)
    {
        for (const char separator : {',', ';', '\t'}) {
            clsTextTable table = clsTextTable::read(text, QLatin1Char(separator), 1);
            if (!table.Rows.empty() && table.Rows[0].Cells.contains(latin(KindColumn), Qt::CaseInsensitive))
                return clsTextTable::read(text, QLatin1Char(separator));
        }
        return clsTextTable::read(text, u',');
    }

    bool stop(const QString &trouble)
    {
        m_trouble = trouble;
        return false;
    }

    bool takeHeader(const clsTextTable &table)
    {
        const QStringList known = knownColumns();
        for (const QString &name : table.Rows.empty() ? QStringList() : table.Rows[0].Cells) {
            const QString plain = mdWithoutFormulaGuard(name);
            const auto isIt = [&](const QString &own) { return mdIsSameName(own, plain); };
            const auto found = std::find_if(known.begin(), known.end(), isIt);
            m_header << (found == known.end() ? QString() : *found);
            if (found == known.end())
                m_firm.otherColumns << plain;
            else if (m_header.count(*found) > 1)
                return stop(QStringLiteral(": two of its columns are called %1").arg(*found));
        }
        return m_header.contains(latin(KindColumn)) || stop(QStringLiteral(": it has no column Kind"));
    }

    QString cell(const clsTextRow &row, const char *column) const
    {
        const qsizetype place = m_header.indexOf(latin(column));
        return place < 0 ? QString() : mdWithoutFormulaGuard(row.Cells.value(place)).trimmed();
    }

    clsKind kindOf(const clsTextRow &row) const
    {
        const auto isIt = [name = cell(row, KindColumn)](const char *own) { return mdIsSameName(latin(own), name); };
        return clsKind(std::distance(KindNames, std::find_if(KindNames, KindNames + Kinds, isIt)));
    }

    bool takeRow(const clsTextRow &row)
    {
        if (row.Cells.size() > m_header.size())
            return stop(QStringLiteral("it has more cells than the header"));
        switch (kindOf(row)) {
        case Firm: return takeFirm(row);
        case Group: return takeItem(row, Group, *m_firm.form.AddFeeEarnerGroup());
        case FeeEarner: {
            const auto feeEarner = m_firm.form.AddFeeEarner();
            return takeItem(row, FeeEarner, *feeEarner) && takeGroup(row, *feeEarner);
        }
        case Counsel: return takeItem(row, Counsel, *m_firm.form.AddCounsel());
        case Kinds: break;
        }
        return stop(QStringLiteral("there is no kind %1").arg(mdQuoted(cell(row, KindColumn))));
    }

    bool takeFirm(const clsTextRow &row)
    {
        if (m_hasFirm)
            return stop(QStringLiteral("there is a second firm"));
        m_hasFirm = true;
        const clsImportedCell fills = m_cells.read(clsCellKind::Tick, cell(row, FillColumn));
        if (!fills.Reason.isEmpty())
            return stop(fills.Reason);
        m_firm.fillsNewClaims = fills.Value == QLatin1String("True");
        const bool taken = takeCells(row, Firm, {},
            [this](const char *property) { return const_cast<clsXMLField *>(firmField(m_firm.form, property)); });
        return taken;
    }

    template <class Item> bool takeItem(const clsTextRow &row, clsKind kind, Item &item)
    {
        return takeCells(row, kind, item.UniqueID(),
            [&item](const char *property) { return property ? item.field(latin(property)) : nullptr; });
    }

    template <class FieldOf>
    bool takeCells(const clsTextRow &row, clsKind kind, const QString &identity, FieldOf fieldOf)
    {
        for (const clsColumn &column : Columns) {
            const qsizetype place = m_header.indexOf(latin(column.name));
            clsXMLField *field = fieldOf(column.properties[kind]);
            if (field && !takeCell(column, kind, place < 0 ? QString() : row.Cells.value(place), *field))
                return false;
        }
        QStringList others;
        for (qsizetype i = 0; i < m_header.size(); ++i)
            if (m_header[i].isEmpty())
                others << mdWithoutFormulaGuard(row.Cells.value(i));
        if (!others.isEmpty())
            m_firm.otherCells.insert(identity, others);
        return true;
    }

    bool takeCell(const clsColumn &column, clsKind kind, const QString &text, clsXMLField &field)
    {
        const bool isEmpty = text.trimmed().isEmpty();
        if (isEmpty && column.isRequired && kind != Firm)
            return stop(QStringLiteral("there is no %1").arg(latin(column.name).toLower()));
        // An empty cell keeps the default of a new item, and in the firm's row that of a new claim.
        if (isEmpty)
            return true;
        const clsImportedCell cell = m_cells.read(column.kind, text);
        if (!cell.Reason.isEmpty())
            return stop(cell.Reason);
        if (column.kind == clsCellKind::Tick)
            field.writeBoolean(cell.Value == QLatin1String("True"));
        else
            field.writeText(cell.Value);
        return true;
    }

    bool takeGroup(const clsTextRow &row, clsZR3FeeEarner &feeEarner)
    {
        const QString reference = cell(row, GroupColumn);
        const int number = cell(row, NumberColumn).toInt();
        const auto &groups = m_firm.form.FeeEarnerGroupsCollection();
        const auto isIt = [&](const auto &group) {
            const bool isThere = number < 1 || number > int(groups.size()) || group->Index == number;
            return isThere && group->Reference().trimmed() == reference;
        };
        const auto found = std::find_if(groups.begin(), groups.end(), isIt);
        if (found == groups.end())
            return stop(QStringLiteral("there is no group %1").arg(mdQuoted(reference)));
        feeEarner.GroupUniqueID = (*found)->UniqueID();
        return true;
    }

    clsFirm &m_firm;
    const clsCellReader m_cells;
    QStringList m_header; ///< the known names; empty for another column
    QString m_trouble;
    bool m_hasFirm = false;
};

} // namespace

QByteArray mdFirmAsCsv(const clsFirm &firm)
{
    return clsWriter(firm).write();
}

QString mdReadFirmCsv(const QByteArray &bytes, clsFirm &firm)
{
    return clsReader(firm).read(mdTextOfTable(bytes));
}
