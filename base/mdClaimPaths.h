#pragma once

#include <QString>

#include <vector>

/// A claim that a path refers to, or the reason why it was not found.
struct clsClaimPath {
    QString path; ///< the given path or, for a claim in a folder, that path, "/" and the path below it
    /// Why it, or the folder of that path, can't be read: the title and text of a message; otherwise empty.
    QString errorTitle {};
    QString error {};
};

/// The claims that a path refers to: itself or, for a folder, all claims below it in the order of the paths' code
/// units. Omits hidden entries, folders of recovered copies, and folders behind links. A folder that can't be read, and
/// a claim whose name the program can't represent, are listed with the reason.
std::vector<clsClaimPath> mdClaimPaths(const QString &path);
