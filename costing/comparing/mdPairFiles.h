#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Two files of the same name, or one without a counterpart.
struct clsFilePair {
    QString Name; ///< the file's; its path below the folder if several have that name
    QString Old; ///< its path, empty if there is none
    QString New;
};

/// Pairs the files of two folders with the same name: first those at the same path, then the others in the order of
/// their paths. The pairs are sorted by name.
std::vector<clsFilePair> mdPairFiles(
    const QString &oldFolder, const QStringList &oldPaths, const QString &newFolder, const QStringList &newPaths);
