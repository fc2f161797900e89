#include "base/mdRegistry.h"

#include "base/mdLog.h"
#include "base/mdSystemFailure.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace {

/// The stores, the user's first.
QStringList stores()
{
    QStringList paths = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    for (QString &path : paths)
        path += QStringLiteral("/Velmor/ZR3.conf");
    return paths;
}

/// The name as a key of the store. The store belongs to this program, so the last part of a name is enough.
QString storeKey(QString name)
{
    const QString base = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmor\\ZR3\\");
    if (name.startsWith(base))
        name.remove(0, base.size());
    return name.replace(u'\\', u'/');
}

/// The text of a key as written in a store's file; empty if missing. The last entry wins, as in the library.
QString textAsWritten(const QString &path, const QString &key)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString text;
    bool general = true; // the lines above the first section belong to it
    for (const QByteArray &line : file.readAll().split('\n')) {
        const QByteArray plain = line.trimmed();
        const qsizetype equals = plain.indexOf('=');
        if (plain.startsWith('['))
            general = plain.toLower() == "[general]";
        else if (general && equals > 0 && QUrl::fromPercentEncoding(plain.left(equals).trimmed()) == key)
            text = QString::fromUtf8(plain.mid(equals + 1));
    }
    // A semicolon starts a comment.
    return text.section(u';', 0, 0).trimmed();
}

/// One opened store.
class clsStore {
public:
    explicit clsStore(const QString &path)
        : m_path(regular(path))
        , m_settings(path, QSettings::IniFormat)
    { }

    std::optional<QString> value(const QString &key)
    {
        if (m_settings.contains(key)) {
            const QVariant value = m_settings.value(key);
            // A hand-written path with commas reads as a list, without the blanks beside the commas.
            if (value.metaType().id() == QMetaType::QStringList)
                return textAsWritten(m_path, key);
            return value.toString();
        }
        check();
        return {};
    }
    void set(const QString &key, const QString &value)
    {
        m_settings.setValue(key, value);
        m_settings.sync();
        check();
    }
    void remove(const QString &key)
    {
        m_settings.remove(key);
        m_settings.sync();
        check();
    }

private:
    /// A pipe or a folder in place of the store would block the program.
    static QString regular(const QString &path)
    {
        const QFileInfo file(path);
        if (file.exists() && !file.isFile())
            throw clsRunTimeError(clsRunTimeError::PathFileAccess);
        return path;
    }
    void check() const
    {
        switch (m_settings.status()) {
        case QSettings::NoError: return;
        case QSettings::AccessError: throw clsRunTimeError(clsRunTimeError::PathFileAccess);
        case QSettings::FormatError: throw clsRunTimeError(clsRunTimeError::InvalidFileFormat);
        }
    }

    QString m_path;
    QSettings m_settings;
};

std::optional<QString> firstValue(const QStringList &paths, const QString &key)
{
    for (const QString &path : paths)
        if (const auto value = clsStore(path).value(key))
            return value;
    return {};
}

/// Whether a stored text is the value, with or without a trailing slash.
bool means(const std::optional<QString> &stored, const QString &value)
{
    return stored && (*stored == value || *stored == value + u'/' || *stored == value + u'\\');
}

void store(const QString &key, const QString &value)
{
    clsStore user(stores().first());
    // A machine-wide value is not copied to the user, or the administrator's next change would have no effect.
    if (!user.value(key) && means(firstValue(stores().mid(1), key), value))
        return;
    user.set(key, value);
}

void removeOrHide(const QString &key)
{
    clsStore user(stores().first());
    if (firstValue(stores().mid(1), key))
        user.set(key, QString());
    else
        user.remove(key);
}

/// Logs the beginning and end of an operation; a failure shows the message box instead of the second line.
template <class Operation>
void logged(const char *what, const char *whatWasTried, const QString &name, Operation operation)
{
    const QString line = QString::fromLatin1(what) + QStringLiteral(" Reg Key - ") + name;
    WriteLog(QStringLiteral("Begin ") + line);
    try {
        operation();
    } catch (const clsRunTimeError &error) {
        mdSystemFailure(QStringLiteral("Registry Key"), QString::fromLatin1(whatWasTried), name, error);
        return;
    }
    WriteLog(QStringLiteral("End ") + line);
}

} // namespace

QString ReadRegKey(const QString &name)
{
    QString value;
    logged("Read", "There was a problem reading the following registry key:", name,
        [&] { value = firstValue(stores(), storeKey(name)).value_or(QString()); });
    return value;
}

QString ReadRegKeyQuietly(const QString &name)
{
    try {
        return firstValue(stores(), storeKey(name)).value_or(QString());
    } catch (const clsRunTimeError &) {
        return {};
    }
}

bool RegKeyIsMissing(const QString &name)
{
    try {
        return firstValue(stores(), storeKey(name)).value_or(QString()).isEmpty();
    } catch (const clsRunTimeError &) {
        return false;
    }
}

void WriteRegKey(const QString &name, const QString &value)
{
    logged("Write", "There was a problem writing to the following registry key:", name,
        [&] { store(storeKey(name), value); });
}

void DeleteRegKey(const QString &name)
{
    logged("Delete", "There was a problem deleting the following registry key:", name,
        [&] { removeOrHide(storeKey(name)); });
}
