#include "shell/clsCheckModel.h"

#include "costing/checking/clsFinding.h"

namespace {

// An index holds the path to its parent: 0 for a group; the group's row + 1 for a line; for a note the same, with the
// line's row + 1 in the bits above.
constexpr int GroupBits = 3;
constexpr quintptr GroupMask = (quintptr(1) << GroupBits) - 1;

/// The group's caption, in the singular if it is a level, to be read out.
QString levelOf(clsFindingGroup::clsKind kind)
{
    const QString caption = mdGroupCaption(kind);
    return kind == clsFindingGroup::PutAside ? caption : caption.chopped(1);
}

} // namespace

QString mdGroupCaption(clsFindingGroup::clsKind kind)
{
    switch (kind) {
    case clsFindingGroup::Errors: return QStringLiteral("Errors");
    case clsFindingGroup::Warnings: return QStringLiteral("Warnings");
    case clsFindingGroup::Notes: return QStringLiteral("Notes");
    case clsFindingGroup::PutAside: break;
    }
    return QStringLiteral("Put aside");
}

void clsCheckModel::take(const std::vector<clsShownFinding> &findings, const std::vector<clsFindingGroup> &groups)
{
    beginResetModel();
    m_findings = findings;
    m_groups = groups;
    endResetModel();
}

clsCheckModel::clsPath clsCheckModel::pathOf(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    const quintptr way = index.internalId();
    if (way == 0)
        return {.group = index.row()};
    const int group = int(way & GroupMask) - 1;
    const int line = int(way >> GroupBits) - 1;
    if (line < 0)
        return {.group = group, .line = index.row()};
    return {.group = group, .line = line, .note = index.row()};
}

QModelIndex clsCheckModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    const clsPath above = pathOf(parent);
    if (above.group < 0)
        return createIndex(row, column, quintptr(0));
    return createIndex(row, column, (quintptr(above.group) + 1) | (quintptr(above.line) + 1) << GroupBits);
}

QModelIndex clsCheckModel::parent(const QModelIndex &index) const
{
    const clsPath path = pathOf(index);
    if (path.line < 0)
        return {};
    if (path.note < 0)
        return createIndex(path.group, 0, quintptr(0));
    return createIndex(path.line, 0, quintptr(path.group) + 1);
}

int clsCheckModel::rowCount(const QModelIndex &parent) const
{
    const clsPath path = pathOf(parent);
    if (path.group < 0)
        return int(m_groups.size());
    const clsFindingGroup &group = m_groups[size_t(path.group)];
    if (path.line < 0)
        return int(group.Lines.size());
    const clsFindingLine &line = group.Lines[size_t(path.line)];
    return path.note < 0 && line.isFold() ? int(line.Findings.size()) : 0;
}

std::vector<int> clsCheckModel::findingsOf(const QModelIndex &index) const
{
    const clsPath path = pathOf(index);
    if (path.line < 0)
        return {};
    const std::vector<int> &all = m_groups[size_t(path.group)].Lines[size_t(path.line)].Findings;
    return path.note < 0 ? all : std::vector<int> {all[size_t(path.note)]};
}

QModelIndex clsCheckModel::indexOf(int finding) const
{
    for (int group = 0; group < int(m_groups.size()); ++group) {
        const auto &lines = m_groups[size_t(group)].Lines;
        for (int line = 0; line < int(lines.size()); ++line) {
            const std::vector<int> &all = lines[size_t(line)].Findings;
            for (int note = 0; note < int(all.size()); ++note)
                if (all[size_t(note)] == finding) {
                    const QModelIndex at = index(line, 0, index(group, 0));
                    return lines[size_t(line)].isFold() ? index(note, 0, at) : at;
                }
        }
    }
    return {};
}

std::vector<int> clsCheckModel::walk() const
{
    std::vector<int> result;
    for (const clsFindingGroup &group : m_groups)
        if (group.Kind != clsFindingGroup::PutAside)
            for (const clsFindingLine &line : group.Lines)
                result.insert(result.end(), line.Findings.begin(), line.Findings.end());
    return result;
}

QString clsCheckModel::textOf(const clsPath &path) const
{
    const clsFindingGroup &group = m_groups[size_t(path.group)];
    if (path.line < 0)
        return mdGroupCaption(group.Kind);
    const clsFindingLine &line = group.Lines[size_t(path.line)];
    return path.note < 0 ? line.Text : m_findings[size_t(line.Findings[size_t(path.note)])].Finding.Text;
}

QString clsCheckModel::placeOf(const clsPath &path) const
{
    if (path.line < 0)
        return {};
    const clsFindingLine &line = m_groups[size_t(path.group)].Lines[size_t(path.line)];
    return path.note < 0 ? line.Place : m_findings[size_t(line.Findings[size_t(path.note)])].Place;
}

QVariant clsCheckModel::data(const QModelIndex &index, int role) const
{
    const clsPath path = pathOf(index);
    if (path.group < 0)
        return {};
    const clsFindingGroup &group = m_groups[size_t(path.group)];
    const int count = path.line < 0 ? group.Count : int(findingsOf(index).size());
    switch (role) {
    case Qt::DisplayRole: return textOf(path);
    case Qt::AccessibleTextRole:
        if (path.line < 0)
            return QStringLiteral("%1, %2").arg(textOf(path)).arg(count);
        return QStringLiteral("%1: %2 %3").arg(levelOf(group.Kind), textOf(path), placeOf(path));
    case KindRole:
        if (path.line < 0)
            return Group;
        return path.note < 0 ? Line : Note;
    case GroupRole: return group.Kind;
    case PlaceRole: return placeOf(path);
    case CountRole: return count;
    default: return {};
    }
}
