#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>

/// Replaces each control character with "?". Claims and file names can contain some, and terminals act on them.
QString mdWithoutControls(QString text);

/// The bytes written to a stream for a text whose lines end in CR LF. On a terminal control characters become "?".
QByteArray mdPrinted(std::FILE *stream, const QString &text);

/// Writes these bytes to the stream.
void mdPrint(std::FILE *stream, const QString &text);

/// Writes a result to standard output, byte for byte.
void mdPrintBytes(const QByteArray &bytes);

/// Whether a stream is a terminal.
bool mdIsTerminal(std::FILE *stream);
