#pragma once

#include <QByteArray>
#include <QString>

/// Writes a copy of the claim's file, or of the one that is named, under its name and the time into a folder that is
/// this user's alone and made where it is missing. Only its owner can read it, and it is on the disk when this returns.
/// Its path; empty where that failed, and then nothing is left of it.
QString WriteDatedCopy(const QString &folder, const QByteArray &bytes, const QString &fileName = {});
