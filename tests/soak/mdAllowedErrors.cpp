#include "tests/soak/mdAllowedErrors.h"

#include "costing/mdTotalsReport.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

struct clsAllowed {
    const char *begins; ///< of the message
    const char *figure; ///< in the claim's report, for the figure that must have failed too
    const char *why;
};

constexpr clsAllowed Allowed[] = {
    // A figure that can't be computed is always reported: an export ends with the error, and the claim is set aside;
    // previews and lists mark it. This takes amounts beyond nine hundred million million pounds, which the soak
    // sometimes types.
    {"Run-time error '6'", "\"!6\"", "a figure of the claim is larger than money can be"},
};

} // namespace

QString mdWhyAllowed(const QString &message)
{
    if (!Form)
        return {};
    const QByteArray figures = mdTotalsReport(*Form).json;
    for (const clsAllowed &row : Allowed)
        if (message.startsWith(QLatin1String(row.begins)) && figures.contains(row.figure))
            return QString::fromUtf8(row.why);
    return {};
}
