#include "costing/comparing/mdPairFiles.h"

#include <QHash>
#include <QMap>

#include <algorithm>

namespace {

QString below(const QString &folder, const QString &path)
{
    const QString relative = path.mid(folder.size());
    return relative.startsWith(u'/') ? relative.mid(1) : relative;
}

QString fileName(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

/// The files with the same name, as paths below their folders.
struct clsNamesakes {
    QStringList old;
    QStringList now;

    bool areSeveral() const { return old.size() > 1 || now.size() > 1; }
};

/// Adds the pairs among the files with the same name.
void addPairs(std::vector<clsFilePair> &pairs, const QString &name, clsNamesakes files)
{
    const bool several = files.areSeveral();
    const auto add = [&](const QString &old, const QString &now) {
        pairs.push_back({several ? (old.isEmpty() ? now : old) : name, old, now});
    };
    for (const QString &path : QStringList(files.old))
        if (files.now.removeOne(path)) {
            files.old.removeOne(path);
            add(path, path);
        }
    for (qsizetype place = 0; place < std::max(files.old.size(), files.now.size()); ++place)
        add(files.old.value(place), files.now.value(place));
}

} // namespace

std::vector<clsFilePair> mdPairFiles(
    const QString &oldFolder, const QStringList &oldPaths, const QString &newFolder, const QStringList &newPaths)
{
    QMap<QString, clsNamesakes> byName;
    for (const QString &path : oldPaths)
        byName[fileName(path)].old << below(oldFolder, path);
    for (const QString &path : newPaths)
        byName[fileName(path)].now << below(newFolder, path);
    std::vector<clsFilePair> pairs;
    for (auto files = byName.cbegin(); files != byName.cend(); ++files)
        addPairs(pairs, files.key(), files.value());
    const auto in = [](const QString &folder, QString &path) {
        if (!path.isEmpty())
            path.prepend(folder.endsWith(u'/') ? folder : folder + u'/');
    };
    for (clsFilePair &pair : pairs) {
        in(oldFolder, pair.Old);
        in(newFolder, pair.New);
    }
    return pairs;
}
