#include "shell/clsSectionModel.h"

#include "formdata/mdSectionTabs.h"

#include <algorithm>

std::vector<clsSectionModel::clsRow> clsSectionModel::rowsOf(const QString &formType)
{
    std::vector<clsRow> rows;
    const QStringList groups = mdSectionTabs();
    for (int group = 0; group < groups.size(); ++group) {
        const QStringList sections = mdSubSectionTabs(group + 1, formType);
        if (!sections.isEmpty())
            rows.push_back({.text = groups[group], .isCaption = true});
        for (const QString &section : sections)
            rows.push_back({.text = section});
    }
    return rows;
}

void clsSectionModel::take(
    const QString &formType, const QSet<QString> &begun, const QHash<QString, clsScreenFindings> &findings)
{
    std::vector<clsRow> rows = rowsOf(formType);
    for (clsRow &row : rows) {
        row.begun = begun.contains(row.text);
        row.findings = findings.value(row.text);
    }
    const bool isSameForm = std::equal(rows.begin(), rows.end(), m_rows.begin(), m_rows.end(),
        [](const clsRow &left, const clsRow &right) { return left.text == right.text; });
    if (!isSameForm) {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
        return;
    }
    for (size_t i = 0; i < rows.size(); ++i) {
        if (rows[i] == m_rows[i])
            continue;
        m_rows[i] = rows[i];
        emit dataChanged(index(int(i)), index(int(i)));
    }
}

int clsSectionModel::rowOf(const QString &section) const
{
    for (size_t i = 0; i < m_rows.size(); ++i)
        if (!m_rows[i].isCaption && m_rows[i].text == section)
            return int(i);
    return -1;
}

int clsSectionModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

Dot clsSectionModel::dotOf(const clsRow &row)
{
    if (row.findings.Errors > 0)
        return Dot::Errors;
    if (row.findings.Warnings > 0)
        return Dot::Warnings;
    return row.begun ? Dot::Begun : Dot::Empty;
}

QString clsSectionModel::spoken(const clsRow &row)
{
    if (row.isCaption)
        return row.text;
    const QString counts = mdCountsInWords(row.findings);
    if (!counts.isEmpty())
        return row.text + QStringLiteral(", ") + counts;
    return row.text + (row.begun ? QStringLiteral(", begun") : QStringLiteral(", empty"));
}

QVariant clsSectionModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const clsRow &row = m_rows[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole: return row.text;
    case Qt::AccessibleTextRole: return spoken(row);
    case Qt::ToolTipRole: return row.isCaption ? QVariant() : spoken(row);
    case DotRole: return int(dotOf(row));
    case CountRole: return row.findings.Errors + row.findings.Warnings;
    default: return {};
    }
}

Qt::ItemFlags clsSectionModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || m_rows[size_t(index.row())].isCaption)
        return Qt::ItemNeverHasChildren;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}
