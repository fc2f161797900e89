#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>

/// A text with "?" for each control character. A claim or the name of a file can hold some, and a terminal obeys them.
QString mdWithoutControls(QString text);

/// What a stream is given of a text whose lines end in CR LF. Where it is a terminal, control characters are shown as
/// "?".
QByteArray mdPrinted(std::FILE *stream, const QString &text);

/// Writes the same to the stream.
void mdPrint(std::FILE *stream, const QString &text);

/// Writes a result to standard output, byte for byte.
void mdPrintBytes(const QByteArray &bytes);

/// Whether a stream ends in a terminal.
bool mdIsTerminal(std::FILE *stream);
