#include "formdata/mdRecordInWords.h"

#include "base/mdPrint.h"
#include "formdata/clsXMLRecord.h"

#include <cstring>

namespace {

struct clsRecordRow {
    const char *element; ///< of the item's list, or of the section itself
    const char *words;
    const char *calledBy = nullptr; ///< of an item: the element that identifies it
};

constexpr char ByOrder[] = "orderid";

// clang-format off
constexpr clsRecordRow Items[] = {
    {"scheduleoftimeitems", "Schedule item",      ByOrder},
    {"disbursements",       "Disbursement",       ByOrder},
    {"expertinvoices",      "Expert invoice",     ByOrder},
    {"jointinstructions",   "Joint instruction",  ByOrder},
    {"fasitems",            "FAS item",           ByOrder},
    {"feeearners",          "Fee earner",         "reference"},
    {"feeearnergroups",     "Fee earner group",   "reference"},
    {"counsel",             "Counsel",            "name"},
    {"enhancements",        "Enhancement",        "name"},
};

constexpr clsRecordRow Sections[] = {
    {"vzrform",                  "The claim"},
    {"clientdetails",            "Client Details"},
    {"solicitordetails",         "Solicitor Details"},
    {"previousadvice",           "Previous Advice"},
    {"caseinformation",          "Case Information"},
    {"outcomeofcase",            "Outcome of Case"},
    {"latesubmission",           "Late Submission"},
    {"natureofproceedings",      "Nature of Proceedings"},
    {"actualcostsincurred",      "Actual Costs"},
    {"detailsofwork",            "Details of Work"},
    {"counseloutstandingclaims", "Counsel Outstanding Claims"},
    {"communications",           "Communications"},
    {"detailsofmonies",          "Details of Monies Awarded"},
    {"detailsofcostsawarded",    "Details of Costs Awarded"},
    {"debtorsdetails",           "Debtor's Details"},
};
// clang-format on

template <size_t Count> const clsRecordRow *rowOf(const clsRecordRow (&rows)[Count], const char *element)
{
    for (const clsRecordRow &row : rows)
        if (std::strcmp(row.element, element) == 0)
            return &row;
    return nullptr;
}

/// An item is recognised by its list: its own element may have any name.
QString itemInWords(const clsRecordRow &row, pugi::xml_node item)
{
    const QString name = XMLDecodeText(item.child(row.calledBy).child_value());
    // Without a reference or a name it is identified by its order.
    return QString::fromLatin1(row.words) + u' '
        + mdWithoutControls(name.isEmpty() ? XMLDecodeText(item.child(ByOrder).child_value()) : name);
}

/// A capital starts a word unless it is inside a run of capitals, and a digit unless it is inside a number.
bool beginsWord(const QString &property, qsizetype at)
{
    const QChar before = property[at - 1];
    if (property[at].isDigit())
        return !before.isDigit();
    return property[at].isUpper() && (!before.isUpper() || (at + 1 < property.size() && property[at + 1].isLower()));
}

} // namespace

QString mdRecordInWords(const clsXMLRecord &record)
{
    const pugi::xml_node node = record.XMLNodeToRead();
    if (const clsRecordRow *row = rowOf(Items, node.parent().name()))
        return itemInWords(*row, node);
    const clsRecordRow *row = rowOf(Sections, node.name());
    return row ? QString::fromLatin1(row->words) : QString();
}

QString mdPropertyInWords(const QString &property)
{
    // The two names that start with the letter of their type.
    if (property == QLatin1String("dDate") || property == QLatin1String("TTime"))
        return property.mid(1);
    QString words;
    for (qsizetype at = 0; at < property.size(); ++at) {
        if (at > 0 && beginsWord(property, at))
            words += u' ';
        words += property[at];
    }
    return words;
}

QString mdQuoted(const QString &text)
{
    constexpr qsizetype Longest = 40;
    // A line break would make the rest look like a separate line of the program's text.
    return u'"' + mdWithoutControls(text.size() > Longest ? text.left(Longest) + u'\u2026' : text) + u'"';
}

QString mdSentenceOf(const clsXMLRecord &record, const QString &clause)
{
    const QString name = mdRecordInWords(record);
    return name.isEmpty() ? clause : name + QStringLiteral(": ") + clause;
}
