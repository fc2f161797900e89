#pragma once

#include <QByteArray>
#include <QString>

/// The whole content of a file, one character of the code page for each byte. A failure shows the box "File Not Read"
/// and returns an empty text, which the caller can't distinguish from an empty file. `logIt` logs the beginning and the
/// end.
QString ReadTextDocument(const QString &path, bool logIt);

/// The same text in UTF-8, without a conversion if the file is plain ASCII, as most claims are. The number of a failure
/// is stored in `failure` if given.
QByteArray ReadTextDocumentAsUtf8(const QString &path, bool logIt, int *failure = nullptr);

/// Replaces the whole content of a file, one byte for each character. The old content stays beside the file, at its
/// path followed by "a", until the new one is on the disk; a crash or failure leaves it there for the user. A failure
/// shows the box "File Not Saved" and returns false, and its number in `failure` if given; the caller continues as if
/// the file were saved.
bool WriteTextDocument(const QString &text, const QString &path, bool logIt, int *failure = nullptr);
