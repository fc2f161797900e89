#pragma once

#include <QByteArray>
#include <QString>

/// The single-byte code page of all text files and encoded values: always Windows-1252. Its five undefined bytes map to
/// the control characters of the same number, so every byte survives a round trip.

/// Whether all bytes are ASCII, which is the same in this page, in Latin-1 and in UTF-8.
bool mdIsPlainAscii(QByteArrayView bytes);

/// One character for each byte.
QString mdFromCodePage(QByteArrayView bytes);
/// The same text in UTF-8. Plain ASCII is returned unchanged.
QByteArray mdUtf8FromCodePage(QByteArray bytes);
/// One byte for each character; a character outside the page becomes "?".
QByteArray mdToCodePage(QStringView text);
/// The character of one byte.
QChar mdFromCodePage(uchar byte);
/// Whether the page has the character.
bool mdInCodePage(QChar character);
