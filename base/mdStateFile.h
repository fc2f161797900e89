#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

// The small files of the state folder. No claim depends on them: without them their contents last until the program
// ends.

/// The content of a file; empty if there is none that belongs to this user.
QByteArray mdReadStateFile(const QString &name);

/// The object in a JSON file, empty if there is no file; nothing if it can't be parsed.
std::optional<QJsonObject> mdReadStateObject(const QString &name);

/// Writes a file atomically, readable only by its owner. False if it can't be written.
bool mdWriteStateFile(const QString &name, const QByteArray &content);

/// Renames an unreadable file, so that it can be examined and a new one written.
void mdSetStateFileAside(const QString &name);
