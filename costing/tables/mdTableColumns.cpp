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
    {"enhancement",           "EnhancementUniqueID",   clsCellKind::Enhancement},
};
// clang-format on

constexpr const char *ScheduleFigures[] = {"rate", "claim"};

} // namespace

std::span<const clsTableColumn> mdScheduleColumns()
{
    return ScheduleColumns;
}

std::span<const char *const> mdScheduleFigures()
{
    return ScheduleFigures;
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
