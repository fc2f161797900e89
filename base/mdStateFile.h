#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

// The small files of the state folder. A claim needs none of them: what can't be kept is kept no further than this
// start of the program.

/// The content of a file; empty where there is none that is this user's own.
QByteArray mdReadStateFile(const QString &name);

/// The object in a JSON file, empty where there is no file; nothing where it can't be understood.
std::optional<QJsonObject> mdReadStateObject(const QString &name);

/// Writes a file whole, so that what was there before stays until the new one is on the disk. Only its owner can read
/// it. False where it can't be written.
bool mdWriteStateFile(const QString &name, const QByteArray &content);

/// Keeps a file that can't be understood beside its place, for a look at it, so that a new one can be written.
void mdSetStateFileAside(const QString &name);
