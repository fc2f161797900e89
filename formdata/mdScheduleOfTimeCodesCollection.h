#pragma once

#include <QStringList>

/// The 32 activity codes in their order. A code's meaning for the program lies only in its first letter.
const QStringList &mdScheduleOfTimeCodesCollection();

/// True if the text is a code, compared exactly; otherwise shows a message and returns false.
bool mdCheckScheduleOfTimeCode(const QString &code);
