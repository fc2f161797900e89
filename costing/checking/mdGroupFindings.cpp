#include "costing/checking/mdGroupFindings.h"

#include <QHash>

#include <algorithm>

namespace {

/// If a rule has more notes than this, they share a line.
constexpr size_t MostNotesOfARule = 3;

struct clsFoldRow {
    const char *rule;
    const char *words;
};

/// The rules that find notes. The texts are only used for more than one.
constexpr clsFoldRow Folds[] = {
    {"long-item", "%1 long items have no description."},
    {"voucher", "%1 disbursements need a voucher."},
    {"paper", "%1 texts are printed smaller."},
    {"costs-limit", "%1 notes on the limit of costs."},
};

QString foldedText(const QString &rule, size_t count)
{
    const auto *row = std::find_if(std::begin(Folds), std::end(Folds),
        [&](const clsFoldRow &candidate) { return rule == QLatin1String(candidate.rule); });
    return (row == std::end(Folds) ? QStringLiteral("%1 notes of one kind.") : QString::fromLatin1(row->words))
        .arg(count);
}

/// The item and property of a finding; empty if it has no single subject.
QString subjectOf(const clsFinding &finding)
{
    if (finding.Item == 0 && finding.Property.isEmpty())
        return {};
    return QStringLiteral("%1\n%2\n%3\n%4")
        .arg(finding.Screen, finding.List, QString::number(finding.Item), finding.Property);
}

/// The findings to show: none with a more severe one for the same subject.
std::vector<int> gravest(const std::vector<clsShownFinding> &findings)
{
    QHash<QString, int> bySubject;
    for (int i = 0; i < int(findings.size()); ++i) {
        const QString subject = subjectOf(findings[size_t(i)].Finding);
        if (subject.isEmpty() || findings[size_t(i)].IsAside)
            continue;
        const auto before = bySubject.find(subject);
        if (before == bySubject.end())
            bySubject.insert(subject, i);
        else if (findings[size_t(i)].Finding.Level < findings[size_t(*before)].Finding.Level)
            *before = i;
    }
    std::vector<int> shown;
    for (int i = 0; i < int(findings.size()); ++i)
        if (findings[size_t(i)].IsAside || bySubject.value(subjectOf(findings[size_t(i)].Finding), i) == i)
            shown.push_back(i);
    return shown;
}

clsFindingGroup::clsKind groupOf(const clsShownFinding &shown)
{
    if (shown.IsAside)
        return clsFindingGroup::PutAside;
    switch (shown.Finding.Level) {
    case clsFindingLevel::Error: return clsFindingGroup::Errors;
    case clsFindingLevel::Warning: return clsFindingGroup::Warnings;
    case clsFindingLevel::Note: break;
    }
    return clsFindingGroup::Notes;
}

/// The screen of all these notes, if it is the same.
QString screenOfAll(const std::vector<clsShownFinding> &findings, const std::vector<int> &which)
{
    const QString &screen = findings[size_t(which.front())].Finding.Screen;
    const bool isSame
        = std::all_of(which.begin(), which.end(), [&](int i) { return findings[size_t(i)].Finding.Screen == screen; });
    return isSame ? screen : QStringLiteral("Several screens");
}

clsFindingLine lineOf(const std::vector<clsShownFinding> &findings, const std::vector<int> &which)
{
    const clsShownFinding &first = findings[size_t(which.front())];
    if (which.size() == 1)
        return {first.Finding.Text, first.Place, which};
    return {foldedText(first.Finding.Rule, which.size()), screenOfAll(findings, which), which};
}

/// Adds the notes rule by rule; too many of one rule get a common line.
void addNotes(clsFindingGroup &group, const std::vector<clsShownFinding> &findings, const std::vector<int> &notes)
{
    QHash<QString, std::vector<int>> byRule;
    for (const int i : notes)
        byRule[findings[size_t(i)].Finding.Rule].push_back(i);
    for (const int i : notes) {
        const std::vector<int> &same = byRule[findings[size_t(i)].Finding.Rule];
        if (same.size() <= MostNotesOfARule)
            group.Lines.push_back(lineOf(findings, {i}));
        else if (same.front() == i)
            group.Lines.push_back(lineOf(findings, same));
    }
}

/// Omits counts of 0.
QString inWords(int errors, int warnings, int notes)
{
    QStringList words;
    const auto add = [&](int count, const char *one) {
        if (count > 0)
            words << QString::number(count) + u' ' + QLatin1String(one)
                    + (count == 1 ? QString() : QStringLiteral("s"));
    };
    add(errors, "error");
    add(warnings, "warning");
    add(notes, "note");
    return words.join(QStringLiteral(", "));
}

} // namespace

std::vector<clsFindingGroup> mdGroupFindings(const std::vector<clsShownFinding> &findings)
{
    const std::vector<int> shown = gravest(findings);
    std::vector<clsFindingGroup> groups;
    for (const auto kind :
        {clsFindingGroup::Errors, clsFindingGroup::Warnings, clsFindingGroup::Notes, clsFindingGroup::PutAside}) {
        std::vector<int> own;
        std::copy_if(shown.begin(), shown.end(), std::back_inserter(own),
            [&](int i) { return groupOf(findings[size_t(i)]) == kind; });
        if (own.empty())
            continue;
        groups.push_back({kind, int(own.size())});
        if (kind == clsFindingGroup::Notes)
            addNotes(groups.back(), findings, own);
        else
            for (const int i : own)
                groups.back().Lines.push_back(lineOf(findings, {i}));
    }
    return groups;
}

int mdCountOf(const std::vector<clsFindingGroup> &groups, clsFindingGroup::clsKind kind)
{
    for (const clsFindingGroup &group : groups)
        if (group.Kind == kind)
            return group.Count;
    return 0;
}

QString mdCountsInWords(const std::vector<clsFindingGroup> &groups, bool withNotes)
{
    return inWords(mdCountOf(groups, clsFindingGroup::Errors), mdCountOf(groups, clsFindingGroup::Warnings),
        withNotes ? mdCountOf(groups, clsFindingGroup::Notes) : 0);
}

QHash<QString, clsScreenFindings> mdFindingsByScreen(
    const std::vector<clsShownFinding> &findings, const std::vector<clsFindingGroup> &groups)
{
    QHash<QString, clsScreenFindings> result;
    for (const clsFindingGroup &group : groups) {
        if (group.Kind != clsFindingGroup::Errors && group.Kind != clsFindingGroup::Warnings)
            continue;
        const auto count
            = group.Kind == clsFindingGroup::Errors ? &clsScreenFindings::Errors : &clsScreenFindings::Warnings;
        for (const clsFindingLine &line : group.Lines)
            for (const int finding : line.Findings)
                ++(result[findings[size_t(finding)].Finding.Screen].*count);
    }
    return result;
}

QString mdCountsInWords(const clsScreenFindings &findings)
{
    return inWords(findings.Errors, findings.Warnings, 0);
}
