#include "base/mdVersionComparison.h"

#include "base/clsRunTimeError.h"
#include "base/mdNumberText.h"

#include <QList>

#include <array>

namespace {

using Fields = std::array<double, 3>; // major, minor, revision

Fields fieldsOf(const QString &version)
{
    const QList<QStringView> parts = QStringView(version).split(u'.');
    Fields fields = {};
    if (parts.size() < qsizetype(fields.size()))
        throw clsRunTimeError(clsRunTimeError::SubscriptOutOfRange);
    for (size_t i = 0; i < fields.size(); ++i)
        fields[i] = TextValue(parts[qsizetype(i)]);
    return fields;
}

} // namespace

int CompareVersions(const QString &fileVersion, const QString &programVersion)
{
    enum Result { Older = 0, Same = 1, Newer = 2 };
    if (fileVersion == programVersion)
        return Same;
    // Both are parsed before they are compared, so that a damaged version is detected whatever its first field is.
    const Fields file = fieldsOf(fileVersion);
    const Fields program = fieldsOf(programVersion);
    return file > program ? Newer : Older;
}
