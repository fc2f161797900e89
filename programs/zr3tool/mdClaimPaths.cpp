#include "programs/zr3tool/mdClaimPaths.h"

#include <QDir>
#include <QFileInfo>

namespace {

void addClaims(QStringList &paths, const QString &folder)
{
    const QString separator = folder.endsWith(u'/') ? QString() : QStringLiteral("/");
    const auto entries = QDir(folder).entryInfoList(QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        const QString path = folder + separator + entry.fileName();
        if (entry.isDir()) {
            if (!entry.isSymLink() && entry.fileName() != QLatin1String("Recovered"))
                addClaims(paths, path);
        } else if (path.endsWith(QLatin1String(".zr3"), Qt::CaseInsensitive)) {
            paths << path;
        }
    }
}

} // namespace

QStringList mdClaimPaths(const QString &path)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList paths;
    addClaims(paths, path);
    paths.sort();
    return paths;
}
