#include "formdata/mdSectionTabs.h"

namespace {

struct clsSectionTabRow {
    const char *section;
    QStringList Claim1;
    QStringList Claim1A;
};

QStringList texts(std::initializer_list<const char *> list)
{
    QStringList result;
    for (const char *text : list)
        result << QString::fromLatin1(text);
    return result;
}

const QList<clsSectionTabRow> &rows()
{
    // clang-format off
    static const QList<clsSectionTabRow> Rows = {
        {"Form Options",
            texts({"Form Setup", "Fee Earners / Rates", "Counsel", "Enhancements"}),
            texts({"Form Setup", "Fee Earners / Rates", "Counsel", "Enhancements"})},
        {"Pre-Bill Sections",
            texts({"Client Details", "Solicitor Details", "Previous Advice", "Case Information", "Outcome of Case",
                   "Late Submission"}),
            texts({"Client Details", "Solicitor Details", "Previous Advice", "Outcome of Case", "Nature of Proceedings",
                   "Actual Costs"})},
        {"Bill",
            texts({"Counsel Outstanding Claims", "Details of Work", "Schedule of Time", "Disbursements",
                   "Communications"}),
            texts({"Counsel Outstanding Claims", "Disbursements", "Family Advocacy Scheme", "Details of Work",
                   "Schedule of Time", "Communications"})},
        {"Post-Bill Sections",
            texts({"Details of Costs Awarded", "Details of Monies Awarded", "Debtor's Details"}),
            texts({"Details of Costs Awarded", "Debtor's Details"})},
    };
    // clang-format on
    return Rows;
}

} // namespace

QStringList mdSectionTabs()
{
    QStringList result;
    for (const clsSectionTabRow &row : rows())
        result << QString::fromLatin1(row.section);
    return result;
}

QStringList mdSubSectionTabs(int sectionTab, const QString &formType)
{
    if (sectionTab < 1 || sectionTab > rows().size())
        return {};
    const clsSectionTabRow &row = rows()[sectionTab - 1];
    if (formType == QLatin1String("Claim1"))
        return row.Claim1;
    if (formType == QLatin1String("Claim1A"))
        return row.Claim1A;
    return {};
}

QString mdSectionBeside(const QString &section, const QString &formType, bool behind)
{
    QStringList all;
    for (int tab = 1; tab <= rows().size(); ++tab)
        all += mdSubSectionTabs(tab, formType);
    const qsizetype at = all.indexOf(section);
    return at < 0 ? QString() : all.value(at + (behind ? 1 : -1));
}
