#pragma once

#include <QByteArray>

#include <utility>
#include <vector>

// The least that a program can do which makes one package from others: unpack those and pack this one. By the zip
// library alone, with none of the house's own code.

using clsUnpackedFiles = std::vector<std::pair<QByteArray, QByteArray>>; ///< names and contents

/// The files of a package; the program ends if it is none.
clsUnpackedFiles mdUnpack(const QByteArray &package);
/// Packs files with the library's own settings and returns the size of the package.
qsizetype mdPack(const clsUnpackedFiles &files);
