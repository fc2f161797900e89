#pragma once

#include <QString>

#include <vector>

/// A claim that a path stands for, or what kept it from being found.
struct clsClaimPath {
    QString path; ///< the one given, "/" and the rest
    /// Why it, or the folder of that path, can't be looked into: the title and the text of a message; else empty.
    QString errorTitle {};
    QString error {};
};

/// What a path stands for: itself, or, where it is a folder, all claims below it in the order of the paths' code units.
/// What is hidden, folders of recovered copies, and what lies behind links to folders are left out. A folder that can't
/// be read, and a claim whose name the program can't hold, stand in the row with the reason.
std::vector<clsClaimPath> mdClaimPaths(const QString &path);
