#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

/// The expected report of the claim that is entered by keyboard, worked out by hand. The rates of its two groups:
///
///            hourly  calls  in    out   advocacy  counsel  travel and waiting
///     PA      47.25   4.15  2.05  4.05     71.15    38.65               29.45   enhanced by 50 %, letters too
///     TR      33.33   3.65  1.85  3.75     58.50    30.15               25.75
namespace KeyboardClaim {

struct clsItemFigures {
    int column;
    const char *rate;
    const char *basic;
    const char *percentage;
    const char *claim;
};

// clang-format off
inline constexpr clsItemFigures Items[] = {
    //  1  PA, attendance: 1.5 h x 47.25 = 70.875, rounded up to 70.88; uplift 35.44.
    {0, "47.25", "70.88",  "50", "106.32"},
    //  2  TR, documents: 25 / 60 x 33.33 = 13.8875, that is 13.89; no uplift.
    {1, "33.33", "13.89",  "0",  "13.89"},
    //  3  PA, hearing: 2.2 h x 47.25 = 103.95; uplift 51.975; the sum 155.925 is rounded, once, to 155.93.
    {2, "47.25", "103.95", "50", "155.93"},
    //  4  PA, advocacy: 50 / 60 x 71.15 = 59.2917, that is 59.29; uplift 29.645; 88.935 is 88.94.
    {2, "71.15", "59.29",  "50", "88.94"},
    //  5  TR, advocacy at the hourly rate: 70 / 60 x 33.33 = 38.885, that is 38.89.
    {2, "33.33", "38.89",  "0",  "38.89"},
    //  6  PA, attending counsel: 1.25 h x 38.65 = 48.3125, that is 48.31; uplift 24.155; 72.465 is 72.47.
    {0, "38.65", "48.31",  "50", "72.47"},
    //  7  PA, travel: 50 / 60 x 29.45 = 24.5417, that is 24.54; uplift 12.27.
    {3, "29.45", "24.54",  "50", "36.81"},
    //  8  TR, waiting: 35 / 60 x 25.75 = 15.0208, that is 15.02.
    {4, "25.75", "15.02",  "0",  "15.02"},
    //  9  PA, advocacy and travel, where travel takes precedence: 2 h x 29.45 = 58.90; uplift 29.45.
    {3, "29.45", "58.9",   "50", "88.35"},
    // 10  PA, with the listed enhancement of 10 %: 10 / 60 x 47.25 = 7.875, that is 7.88; 60 % of it 4.728; 12.608.
    {0, "47.25", "7.88",   "60", "12.61"},
    // 11  TR, research: 20 / 60 x 33.33 = 11.11.
    {1, "33.33", "11.11",  "0",  "11.11"},
    // 12  PA, no date: 0.1 h x 47.25 = 4.725, that is 4.73; uplift 2.365; 7.095 is 7.10.
    {1, "47.25", "4.73",   "50", "7.1"},
};
// clang-format on

struct clsLineFigures {
    int kind;
    int line;
    const char *rate;
    const char *count;
    const char *basic;
    const char *enhancement;
    const char *claim;
};

// clang-format off
inline constexpr clsLineFigures Lines[] = {
    // Calls. PA: 3 + 1 of its two fee earners, 4 x 4.15 = 16.60; uplift 8.30. TR: 7 x 3.65 = 25.55.
    {0, 1, "4.15", "4",  "16.6",  "8.3",    "24.9"},
    {0, 2, "3.65", "7",  "25.55", "0",      "25.55"},
    // Letters in. PA has none, so the first line is TR's: 4 x 1.85 = 7.40.
    {1, 1, "1.85", "4",  "7.4",   "0",      "7.4"},
    {1, 2, "0",    "",   "0",     "0",      "0"},
    // Letters out, with the listed 10 %. PA: 5 + 2, 7 x 4.05 = 28.35; its own uplift 14.175 is rounded to 14.18, the
    // listed one, 2.835, is not. TR: 12 x 3.75 = 45.00; the listed uplift 4.50.
    {2, 1, "4.05", "7",  "28.35", "17.015", "45.365"},
    {2, 2, "3.75", "12", "45",    "4.5",    "49.5"},
};

struct clsFigure {
    const char *key;
    const char *value;
};

inline constexpr const char *ColumnTimes[] = {
    "02:55", //  1,  6, 10: 90 + 75 + 10 minutes
    "00:51", //  2, 11, 12: 25 + 20 + 6
    "04:12", //  3,  4,  5: 132 + 50 + 70
    "02:50", //  7,  9: 50 + 120
    "00:35", //  8
};
inline constexpr const char *ColumnClaims[] = {
    "191.4",  // 106.32 + 72.47 + 12.61
    "32.1",   // 13.89 + 11.11 + 7.10
    "283.76", // 155.93 + 88.94 + 38.89
    "125.16", // 36.81 + 88.35
    "15.02",
};

inline constexpr clsFigure Totals[] = {
    {"ScheduleTotal",                      "647.44"},  // 191.40 + 32.10 + 283.76 + 125.16 + 15.02
    {"AdvocacyTotal",                      "216.18"},  // items 4, 5 and 9: 88.94 + 38.89 + 88.35
    {"CounselDisbursementsAmountTotal",    "450"},
    {"CounselDisbursementsVATTotal",       "90"},      // typed
    {"NonCounselDisbursementsAmountTotal", "33.33"},
    {"NonCounselDisbursementsVATTotal",    "6.67"},    // calculated: 6.666
    {"ExpertInvoicesNetTotal",             "1234.56"},
    {"ExpertInvoicesVATTotal",             "246.91"},  // calculated: 246.912
    {"CounselFeesAmountTotal",             "450"},
    {"CounselFeesVATTotal",                "90"},
    {"CounselFeesTotal",                   "540"},
    {"FASItemsTotal",                      "0"},
    {"FASVATTotal",                        "0"},
    {"CommsTotal",                         "152.72"},  // 24.90 + 25.55 + 7.40 + 45.365 + 49.50 = 152.715
    {"ProfitCostsTotal",                   "800.16"},  // 647.44 + 152.72
    {"ProfitCostsVAT",                     "160.032"}, // VAT is not rounded to pence
    {"AdvocacyVAT",                        "43.236"},
    {"LoadFromBillNet",                    "583.98"},  // 800.16 - 216.18
    {"LoadFromBillVAT",                    "116.796"},
};

inline constexpr clsFigure Summary[] = {
    {"npc",        "800.16"},
    {"nex",        "1234.56"},
    {"ndibs",      "33.33"},
    {"vpc",        "160.032"},
    {"vex",        "246.91"},
    {"vdibs",      "6.67"},
    {"ntotal",     "2068.05"},  // 800.16 + 1234.56 + 33.33
    {"vtotal",     "413.612"},  // 160.032 + 246.91 + 6.67
    {"grandtotal", "2481.662"},
    {"ncf",        "450"},
    {"vcf",        "90"},
    {"cftotal",    "540"},
};
// clang-format on

inline QJsonArray items()
{
    QJsonArray array;
    for (int number = 1; const clsItemFigures &row : Items) {
        array << QJsonObject {{"OrderID", number}, {"InExport", true}, {"SOTItemNumber", number},
            {"TimeColumn", row.column}, {"Rate", row.rate}, {"BasicClaim", row.basic},
            {"TotalEnhancementPercentage", row.percentage}, {"Claim", row.claim}};
        ++number;
    }
    return array;
}

inline QJsonArray communications()
{
    QJsonArray array;
    for (const clsLineFigures &row : Lines)
        array << QJsonObject {{"Kind", row.kind}, {"Line", row.line}, {"Rate", row.rate}, {"Count", row.count},
            {"Basic", row.basic}, {"Enhancement", row.enhancement}, {"Claim", row.claim}};
    return array;
}

/// The form shows the breakdown by counsel if there are at least two.
inline QJsonArray counselAtLine()
{
    QJsonArray array;
    for (int position = 1; position <= 6; ++position)
        array << QJsonObject {{"Position", position}, {"AccountNumber", ""}, {"Gross", "0"}};
    return array;
}

template <size_t Count> QJsonArray texts(const char *const (&values)[Count])
{
    QJsonArray array;
    for (const char *value : values)
        array << QString::fromUtf8(value);
    return array;
}

template <size_t Count> void add(QJsonObject &object, const clsFigure (&figures)[Count])
{
    for (const clsFigure &figure : figures)
        object[QString::fromUtf8(figure.key)] = QString::fromUtf8(figure.value);
}

/// The whole report.
inline QJsonObject report()
{
    QJsonObject summary;
    add(summary, Summary);
    QJsonObject all {{"FormType", "Claim1"}, {"VATRate", "20.00"}, {"ScheduleItems", items()},
        {"FASItems", QJsonArray()}, {"Communications", communications()}, {"ColumnTimeTotal", texts(ColumnTimes)},
        {"ColumnClaimTotal", texts(ColumnClaims)}, {"CounselAtLine", counselAtLine()}, {"Summary", summary},
        {"BlankItems", QJsonObject {{"ScheduleItems", 0}, {"Disbursements", 0}, {"Message", "No blank items found"}}}};
    add(all, Totals);
    return all;
}

} // namespace KeyboardClaim
