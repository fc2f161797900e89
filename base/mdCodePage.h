#pragma once

#include <QByteArray>
#include <QString>

/// The single-byte code page of all text files and of the encoded values: Windows-1252, always.
/// Its five undefined bytes are the control characters of the same number, so that every byte survives a read
/// and a write.

/// Whether there is nothing but ASCII, which is the same in this page, in Latin-1 and in UTF-8.
bool mdIsPlainAscii(QByteArrayView bytes);

/// One character for each byte.
QString mdFromCodePage(QByteArrayView bytes);
/// The same text in UTF-8. Plain ASCII is that already and is handed back as it is.
QByteArray mdUtf8FromCodePage(QByteArray bytes);
/// One byte for each character; a character outside the page becomes "?".
QByteArray mdToCodePage(QStringView text);
/// The character of one byte.
QChar mdFromCodePage(uchar byte);
/// Whether a character is in the page: the one that its byte stands for.
bool mdInCodePage(QChar character);
