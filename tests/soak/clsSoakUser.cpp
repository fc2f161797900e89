#include "tests/soak/clsSoakUser.h"

#include "tests/soak/clsDice.h"

namespace {

/// Names to save a claim under; saving to one a second time asks about overwriting.
const char16_t *const Names[] = {u"one.zr3", u"two.zr3", u"with blanks.zr3", u"quote's \"name\".zr3", u"100% #1.zr3",
    u"Ünïcode é.zr3", u"日本.zr3", u"no extension", u"UPPER.ZR3", u"a&b+c.zr3"};

} // namespace

clsSoakUser::clsSoakUser(clsDice &dice, const QString &folder)
    : m_dice(dice)
    , m_folder(folder)
{ }

clsUserInterface::Answer clsSoakUser::customMessage(
    const QString &message, const QString &title, Buttons buttons, int icon, int timeout)
{
    ++boxes[title];
    if (onMessage)
        onMessage(title);
    return m_windows.customMessage(message, title, buttons, icon, timeout);
}

clsUserInterface::Answer clsSoakUser::systemMessage(
    const QString &message, const QString &title, SystemIcon icon, Buttons buttons)
{
    if (title == QLatin1String("Velmor ZR3") && icon == Critical) {
        onRunTimeError(message);
        return OK;
    }
    ++boxes[title];
    return m_windows.systemMessage(message, title, icon, buttons);
}

QString clsSoakUser::chooseFolder(const QString &, const QString &)
{
    constexpr const char *Folders[] = {"/export", "/export", "/backups", "/no such folder", ""};
    const QString folder = QLatin1String(m_dice.oneOf(Folders));
    return folder.isEmpty() ? folder : m_folder + folder;
}

QString clsSoakUser::chooseFileToOpen(const QString &)
{
    return m_dice.chance(10) ? QString() : m_dice.oneOf(claims);
}

QString clsSoakUser::chooseFileToSave(const QString &, const QString &)
{
    if (m_dice.chance(10))
        return {};
    const QString path = m_folder + QStringLiteral("/claims/") + QString::fromUtf16(m_dice.oneOf(Names));
    if (!claims.contains(path))
        claims << path;
    return path;
}

QString clsSoakUser::chooseFileToExport(const QString &, const QString &extension, const QString &)
{
    return m_dice.chance(10) ? QString() : m_folder + QStringLiteral("/export/pages") + extension;
}

bool clsSoakUser::openTarget(const QString &)
{
    return m_dice.chance(80);
}
