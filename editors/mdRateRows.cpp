#include "editors/mdRateRows.h"

std::vector<clsScreenRow> mdRateRows(const std::vector<clsScreenRow> &besideHourly)
{
    using enum clsRowKind;
    // clang-format off
    return mdJoinedRows({
        {
            {.kind = Decimal, .control = "txtHourly",     .caption = "Hourly:*",      .flags = NoteBeneath,
             .member = "HourlyRate"},
        },
        besideHourly,
        {
            {.kind = Decimal, .control = "txtCalls",      .caption = "Calls:*",       .member = "CallsRate"},
            {.kind = Decimal, .control = "txtLettersIn",  .caption = "Letters In:*",  .member = "LettersInRate"},
            {.kind = Decimal, .control = "txtLettersOut", .caption = "Letters Out:*", .member = "LettersOutRate"},
            {.kind = Decimal, .control = "txtAdvocacy",   .caption = "Advocacy:*",    .member = "AdvocacyRate"},
            {.kind = Decimal, .control = "txtCounsel",    .caption = "Counsel:*",     .member = "CounselRate"},
            {.kind = Decimal, .control = "txtTravelAndWaiting", .caption = "Travel and Waiting:*",
             .member = "TravelAndWaitingRate"},
        },
    });
    // clang-format on
}

std::vector<clsScreenRow> mdJoinedRows(std::initializer_list<std::vector<clsScreenRow>> tables)
{
    std::vector<clsScreenRow> rows;
    for (const std::vector<clsScreenRow> &table : tables)
        rows.insert(rows.end(), table.begin(), table.end());
    return rows;
}
