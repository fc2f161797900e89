#pragma once

#include <QByteArray>
#include <QString>

/// The encoded form of a text: ASCII letters, digits, "+" and "%" only. Digits and letters stand as they are, a
/// blank is "+", every other byte of the code page is "%" and two upper-case hexadecimal digits.
/// A value in this form never needs escaping in XML, and no parser can take its blanks away.
QByteArray URLEncode(QStringView text);

/// The text of an encoded value. What is neither "+" nor "%" is copied, so that a plain default such as 0.00 reads
/// like its encoded form. Two digits behind "%" are taken for granted: what is no number gives the character 0.
QString URLDecode(QStringView encoded);
QString URLDecode(QLatin1String encoded);
