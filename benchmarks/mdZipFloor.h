#pragma once

#include <QByteArray>

#include <utility>
#include <vector>

// The minimum work of a program that makes one package from others: decompress those and compress this one. Uses only
// the zip library, none of our own code.

using clsUnpackedFiles = std::vector<std::pair<QByteArray, QByteArray>>; ///< names and contents

/// The files of a package; ends the program if it is not a package.
clsUnpackedFiles mdUnpack(const QByteArray &package);
/// Compresses files with the library's default settings and returns the size of the package.
qsizetype mdPack(const clsUnpackedFiles &files);
