#include "shell/mdRegistry.h"

#include "shell/mdLog.h"
#include "shell/mdSystemFailure.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

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

/// The name as the store knows it. The store is the program's own, so that its values need no longer name than their
/// last part.
QString storeKey(QString name)
{
    const QString base = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmor\\ZR3\\");
    if (name.startsWith(base))
        name.remove(0, base.size());
    return name.replace(u'\\', u'/');
}

/// One opened store.
class clsStore {
public:
    explicit clsStore(const QString &path)
        : m_settings(regular(path), QSettings::IniFormat)
    { }

    std::optional<QString> value(const QString &key)
    {
        if (m_settings.contains(key)) {
            const QVariant value = m_settings.value(key);
            // A path with commas that somebody wrote into the file by hand reads as a list.
            if (value.metaType().id() == QMetaType::QStringList)
                return value.toStringList().join(u',');
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
    /// A pipe or a folder in the store's place would hold the program up.
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

    QSettings m_settings;
};

std::optional<QString> firstValue(const QStringList &paths, const QString &key)
{
    for (const QString &path : paths)
        if (const auto value = clsStore(path).value(key))
            return value;
    return {};
}

void store(const QString &key, const QString &value)
{
    clsStore user(stores().first());
    // A machine-wide value is not copied to the user, or the administrator's next change of it would reach nobody.
    if (!user.value(key) && firstValue(stores().mid(1), key) == value)
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

/// Runs one operation between its two lines of the log; a failure shows the box instead of the second.
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
