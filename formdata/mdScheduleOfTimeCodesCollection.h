#pragma once

#include <QStringList>

/// The 32 activity codes in order. Only a code's first letter has a meaning for the program.
QStringList mdScheduleOfTimeCodesCollection();

/// True if the text is a code, compared exactly; otherwise shows a message and returns false.
bool mdCheckScheduleOfTimeCode(const QString &code);
