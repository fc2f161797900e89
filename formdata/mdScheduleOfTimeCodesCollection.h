#pragma once

#include <QStringList>

/// The 32 activity codes in their order. A code's meaning for the program lies only in its first letter.
const QStringList &mdScheduleOfTimeCodesCollection();

/// True when the text is a code, compared exactly; otherwise the user is told, and it is false.
bool mdCheckScheduleOfTimeCode(const QString &code);
