#include "editors/clsPasteList.h"

#include "formdata/mdRecordInWords.h"

namespace {

/// The item's own columns, without its position in the claim.
template <std::span<const clsTableColumn> (*Columns)()> QStringList ownNames()
{
    QStringList names;
    for (const clsTableColumn &column : Columns())
        if (column.kind != clsCellKind::Passed)
            names << QString::fromLatin1(column.property);
    return names;
}

} // namespace

const clsPasteList &mdPasteSchedule()
{
    static const clsPasteList list {
        .section = "Schedule of Time",
        .import = mdScheduleImport,
        .table = "schedule",
        .total = "time",
    };
    return list;
}

const clsPasteList &mdPasteDisbursements()
{
    static const clsPasteList list {
        .section = "Other Disbursements",
        .import = mdDisbursementsImport,
        .table = "disbursements",
        .copied = ownNames<mdDisbursementColumns>,
        .total = "amount",
    };
    return list;
}

const clsPasteList &mdPasteExperts()
{
    static const clsPasteList list {
        .section = "Expert Invoices",
        .import = mdExpertsImport,
        .table = "experts",
        .copied = ownNames<mdExpertColumns>,
        .total = "netamount",
    };
    return list;
}

const clsPasteList &mdPasteCommunications()
{
    static const clsPasteList list {
        .section = "Communications",
        .import = mdCommunicationsImport,
        .table = "feeearners",
        .copied =
            [] {
                return QStringList {QStringLiteral("Reference"), QStringLiteral("Calls"), QStringLiteral("LettersIn"),
                    QStringLiteral("LettersOut")};
            },
        .hasCopyKey = false,
    };
    return list;
}

QString mdColumnCaption(const clsTableColumn &column)
{
    switch (column.kind) {
    case clsCellKind::FeeEarner: return QStringLiteral("Fee Earner");
    case clsCellKind::Enhancement: return QStringLiteral("Enhancement");
    case clsCellKind::Counsel: return QStringLiteral("Counsel's Name");
    case clsCellKind::CommsKind: return QStringLiteral("Kind");
    default: return mdPropertyInWords(QString::fromLatin1(column.property));
    }
}
