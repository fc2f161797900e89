#include "editors/clsPasteList.h"

#include "formdata/mdRecordInWords.h"

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
        .copied =
            [] {
                QStringList names;
                for (const clsTableColumn &column : mdDisbursementColumns())
                    if (column.kind != clsCellKind::Passed)
                        names << QString::fromLatin1(column.property);
                return names;
            },
        .total = "amount",
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
