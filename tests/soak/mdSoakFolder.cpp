#include "tests/soak/mdSoakFolder.h"

#include "base/mdGetResourceData.h"
#include "base/mdProgramFolder.h"
#include "tests/soak/clsDice.h"
#include "tests/soak/mdRandomClaim.h"
#include "tests/support/mdTestPaths.h"

#include <QDir>
#include <QFile>

namespace {

/// The number of items in the longest list of each random claim. The last is as large as claims get.
constexpr int ItemsOfClaims[] = {0, 1, 3, 12, 25, 33, 34, 60, 90, 150, 1500};

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

} // namespace

QStringList mdMakeSoakFolder(const QString &folder, clsDice &dice, bool samplesOnly)
{
    for (const char *name :
        {"program/Databases", "program/Logs", "claims", "export", "backups", "config", "state", "profile/Desktop"})
        QDir(folder).mkpath(QLatin1String(name));
    const auto in = [&folder](const char *relative) { return folder + u'/' + QLatin1String(relative); };
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(name, QFile::encodeName(in("config")));
    const QString runtime = in("runtime");
    QDir().mkpath(runtime);
    QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
    qputenv("UserProfile", QFile::encodeName(in("profile")));
    SetProgramFolder(in("program"));
    QFile::link(QStringLiteral(ZR3_TEMPLATES), in("program/Templates"));
    write(in("program/Databases/Preferences Database.vzp"),
        GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")).toLatin1());

    QStringList claims;
    for (const QString &sample : QDir(mdSampleFolder()).entryList({QStringLiteral("*.zr3")}, QDir::Files, QDir::Name)) {
        claims << in("claims/") + sample;
        QFile::copy(mdSamplePath(sample), claims.last());
        QFile::setPermissions(claims.last(), QFile::ReadOwner | QFile::WriteOwner);
    }
    if (samplesOnly)
        return claims;
    for (const int items : ItemsOfClaims) {
        claims << in("claims/") + QStringLiteral("random of %1.zr3").arg(items);
        mdWriteRandomClaim(dice, items, claims.last());
    }
    // A file that is not a claim is refused, and a new claim is started.
    claims << in("claims/broken.zr3");
    write(claims.last(), "<vzrform><path>");
    return claims;
}

void mdTidySoakFolder(const QString &folder)
{
    QDir logs(folder + QStringLiteral("/program/Logs"));
    for (const QString &log : logs.entryList(QDir::Files))
        logs.remove(log);
}
