#include "costing/tables/mdTableColumns.h"

#include "formdata/clsZR3Form.h"

namespace {

// clang-format off
constexpr clsTableColumn ScheduleColumns[] = {
    {"orderid",               "OrderID",               clsCellKind::Passed},
    {"feeearner",             "FeeEarnerUniqueID",     clsCellKind::FeeEarner, true},
    {"date",                  "dDate",                 clsCellKind::Date},
    {"code",                  "Code",                  clsCellKind::Code, true},
    {"description",           "Description",           clsCellKind::Text},
    {"time",                  "TTime",                 clsCellKind::Time, true},
    {"advocacy",              "Advocacy",              clsCellKind::Tick},
    {"counsel",               "Counsel",               clsCellKind::Tick},
    {"travel",                "Travel",                clsCellKind::Tick},
    {"waiting",               "Waiting",               clsCellKind::Tick},
    {"usehourlyrate",         "UseHourlyRate",         clsCellKind::Tick},
    {"includeinenhancements", "IncludeInEnhancements", clsCellKind::Tick},
    {"enhancement",           "EnhancementUniqueID",   clsCellKind::Enhancement, false, "includeinenhancements"},
};

constexpr clsTableColumn DisbursementColumns[] = {
    {"orderid",               "OrderID",               clsCellKind::Passed},
    {"counsel",               "Counsel",               clsCellKind::Tick},
    {"counseluniqueid",       "CounselUniqueID",       clsCellKind::Counsel, false, "counsel"},
    {"dateofwork",            "DateOfWork",            clsCellKind::DateIfAny},
    {"description",           "Description",           clsCellKind::Text, true},
    {"amount",                "Amount",                clsCellKind::Amount, true},
    {"vat",                   "VAT",                   clsCellKind::AmountIfAny},
};

constexpr clsTableColumn ExpertColumns[] = {
    {"orderid",                   "OrderID",                   clsCellKind::Passed},
    {"expertgroup",               "ExpertGroup",               clsCellKind::Text, true},
    {"experttype",                "ExpertType",                clsCellKind::Text, true},
    {"priorauthorityobtained",    "PriorAuthorityObtained",    clsCellKind::Tick},
    {"preparationhourlyrate",     "PreparationHourlyRate",     clsCellKind::AmountIfAny},
    {"totalprepcost",             "TotalPrepCost",             clsCellKind::AmountIfAny},
    {"courtattendancehourlyrate", "CourtAttendanceHourlyRate", clsCellKind::AmountIfAny},
    {"totalcourtcost",            "TotalCourtCost",            clsCellKind::AmountIfAny},
    {"traveltimecosts",           "TravelTimeCosts",           clsCellKind::AmountIfAny},
    {"othercosts",                "OtherCosts",                clsCellKind::AmountIfAny},
    {"netamount",                 "NetAmount",                 clsCellKind::Amount, true},
    {"vatamount",                 "VATAmount",                 clsCellKind::AmountIfAny},
};

// The properties are those of a fee earner, so that the list of fee earners can be read too.
constexpr clsTableColumn CommunicationsColumns[] = {
    {"orderid",               "OrderID",               clsCellKind::Passed},
    {"uniqueid",              "UniqueID",              clsCellKind::Passed},
    {"feeearner",             "Reference",             clsCellKind::FeeEarner, true},
    {"group",                 "GroupUniqueID",         clsCellKind::Passed},
    {"date",                  "Date",                  clsCellKind::Passed},
    {"kind",                  "Type",                  clsCellKind::CommsKind},
    {"count",                 "Number",                clsCellKind::Count},
    {"calls",                 "Calls",                 clsCellKind::Count},
    {"lettersin",             "LettersIn",             clsCellKind::Count},
    {"lettersout",            "LettersOut",            clsCellKind::Count},
};
// clang-format on

constexpr const char *ScheduleFigures[] = {"rate", "claim"};

/// A name without case, blanks and underscores.
QString known(const QString &name)
{
    QString result;
    for (const QChar c : name)
        if (!c.isSpace() && c != u'_')
            result += c.toLower();
    return result;
}

} // namespace

std::span<const clsTableColumn> mdScheduleColumns()
{
    return ScheduleColumns;
}

std::span<const char *const> mdScheduleFigures()
{
    return ScheduleFigures;
}

std::span<const clsTableColumn> mdDisbursementColumns()
{
    return DisbursementColumns;
}

std::span<const clsTableColumn> mdExpertColumns()
{
    return ExpertColumns;
}

std::span<const clsTableColumn> mdCommunicationsColumns()
{
    return CommunicationsColumns;
}

int mdColumnOf(std::span<const clsTableColumn> columns, const QString &name)
{
    const QString word = known(name);
    for (size_t place = 0; place < columns.size(); ++place)
        if (word == QLatin1String(columns[place].name)
            || word == QString::fromLatin1(columns[place].property).toLower())
            return int(place);
    return -1;
}

bool mdIsSameName(const QString &one, const QString &other)
{
    return known(one) == known(other);
}

QString mdNameOfReferred(const clsZR3Form &form, const QString &property, const QString &identity)
{
    const auto named = [&](const auto &item, auto name) { return item ? ((*item).*name)() : identity; };
    if (property == QLatin1String("FeeEarnerUniqueID"))
        return named(form.FeeEarnerByUniqueID(identity), &clsZR3FeeEarner::Reference);
    if (property == QLatin1String("GroupUniqueID"))
        return named(form.FeeEarnerGroupByUniqueID(identity), &clsZR3FeeEarnerGroup::Reference);
    if (property == QLatin1String("CounselUniqueID"))
        return named(form.CounselByUniqueID(identity), &clsZR3Counsel::Name);
    return named(form.EnhancementByUniqueID(identity), &clsZR3Enhancement::Name);
}
