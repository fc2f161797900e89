#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Two files of one name, or one that has no other.
struct clsFilePair {
    QString Name; ///< the file's; its path below the folder where several have that name
    QString Old; ///< its path, empty where there is none
    QString New;
};

/// Finds the files of two folders that have the same name: first those that lie at the same place, then the others in
/// the order of their paths. The pairs stand in the order of their names.
std::vector<clsFilePair> mdPairFiles(
    const QString &oldFolder, const QStringList &oldPaths, const QString &newFolder, const QStringList &newPaths);
