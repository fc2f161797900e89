#include "wordexport/mdExportDriver.h"

#include "wordexport/mdExportWordClaim1.h"
#include "wordexport/mdExportWordClaim1a.h"

#include <QLatin1String>

namespace {

struct Row {
    QLatin1String formType;
    clsExportDriver driver;
};

constexpr Row Drivers[] = {
    {QLatin1String("Claim1"), mdExportWordClaim1},
    {QLatin1String("Claim1A"), mdExportWordClaim1a},
};

} // namespace

QString mdNoPagesMessage(const QString &formType)
{
    return QStringLiteral("There are no pages for the form type \"%1\" of this claim.").arg(formType);
}

clsExportDriver mdExportDriver(QStringView formType)
{
    for (const Row &row : Drivers)
        if (formType == row.formType)
            return row.driver;
    return nullptr;
}
