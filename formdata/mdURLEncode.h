#pragma once

#include <QByteArray>
#include <QString>

/// The encoded form of a text: only ASCII letters, digits, "+" and "%". Digits and letters are unchanged, a blank is
/// "+", every other byte of the code page is "%" and two upper-case hexadecimal digits. Encoded values need no escaping
/// in XML, and no parser can drop their blanks.
QByteArray URLEncode(QStringView text);

/// The text of an encoded value. Characters other than "+" and "%" are copied, so that a plain default such as 0.00
/// reads like its encoded form. The two digits after "%" are not validated: if they are not a number, the result is the
/// character 0.
QString URLDecode(QStringView encoded);
QString URLDecode(QLatin1String encoded);
