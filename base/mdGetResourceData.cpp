#include "base/mdGetResourceData.h"

#include "base/clsRunTimeError.h"
#include "base/mdCodePage.h"

#include <QFile>
#include <QHash>

// Must be outside any namespace, as the macro requires. It also makes the linker keep the resources, which nothing else
// in a static library refers to.
static void initialiseResources()
{
    Q_INIT_RESOURCE(resources);
}

namespace {

constexpr int ResourceNotFound = 326;

QString readResource(const QString &name, const QString &group)
{
    [[maybe_unused]] static const bool initialised = (initialiseResources(), true);
    QFile file(QStringLiteral(":/") + group + u'/' + name);
    if (!file.open(QIODevice::ReadOnly))
        throw clsRunTimeError(
            ResourceNotFound, QStringLiteral("Resource with identifier '") + name + QStringLiteral("' not found"));
    return mdFromCodePage(file.readAll());
}

} // namespace

QString GetResourceData(const QString &name, const QString &group)
{
    // Resources never change, so each is read only once.
    static QHash<QString, QString> dictionary;
    const QString key = name + QStringLiteral(" - ") + group;
    if (const auto known = dictionary.constFind(key); known != dictionary.constEnd())
        return *known;
    const QString text = readResource(name, group);
    dictionary.insert(key, text);
    return text;
}
