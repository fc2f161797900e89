#pragma once

class QByteArray;
class QString;

/// The file itself, whatever links lead to it, as the system names it; empty where there is none. Never by way of a
/// text: a link may lead through names that no text can hold.
QByteArray mdRealPath(const QByteArray &path);

/// The folder in which the file itself lies, without a slash at its end; where there is no file, the one that its path
/// names.
QByteArray mdRealFolder(const QString &path);
