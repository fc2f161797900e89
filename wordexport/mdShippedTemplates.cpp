#include "wordexport/mdShippedTemplates.h"

#include <QCryptographicHash>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *Sums[] = {
#include "ShippedTemplates.inc" // generated with the templates
};

} // namespace

bool mdIsShippedTemplate(const QByteArray &bytes)
{
    // The fastest hash that is safe against deliberate collisions.
    const QByteArray sum = QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_256).toHex();
    return std::any_of(std::begin(Sums), std::end(Sums), [&sum](const char *shipped) { return sum == shipped; });
}
