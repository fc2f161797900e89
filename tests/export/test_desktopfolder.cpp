#include "base/mdDesktopFolder.h"
#include "tests/export/clsExportTest.h"

// The folder of an export for which none was chosen.

namespace {

class DesktopFolder : public clsExportTest {
protected:
    void SetUp() override
    {
        clsExportTest::SetUp();
        for (const char *name : {"UserProfile", "HOME", "XDG_CONFIG_HOME"})
            m_before.emplace_back(name, qEnvironmentVariableIsSet(name), qgetenv(name));
        qunsetenv("UserProfile");
        ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("home")));
        qputenv("HOME", QFile::encodeName(home()));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home() + QStringLiteral("/.config")));
    }
    void TearDown() override
    {
        for (const auto &[name, set, value] : m_before)
            if (set)
                qputenv(name, value);
            else
                qunsetenv(name);
        clsExportTest::TearDown();
    }

    QString home() const { return path(QStringLiteral("home")); }
    QString made(const QString &relative) const
    {
        EXPECT_TRUE(QDir(folder.path()).mkpath(relative));
        return path(relative);
    }

private:
    std::vector<std::tuple<const char *, bool, QByteArray>> m_before;
};

} // namespace

TEST_F(DesktopFolder, IsThatOfTheProfileWhereOneIsNamed)
{
    made(QStringLiteral("home/Desktop"));
    qputenv("UserProfile", QFile::encodeName(path(QStringLiteral("profile"))));
    const QString desktop = made(QStringLiteral("profile/Desktop"));
    EXPECT_EQ(desktop, mdDesktopFolder());
}

TEST_F(DesktopFolder, IsTheUsersOwnWhereNoProfileIsNamed)
{
    const QString desktop = made(QStringLiteral("home/Desktop"));
    EXPECT_EQ(desktop, mdDesktopFolder());
    qputenv("UserProfile", "");
    EXPECT_EQ(desktop, mdDesktopFolder());
}

TEST_F(DesktopFolder, IsTheHomeFolderWhereThereIsNoDesktop)
{
    EXPECT_EQ(home(), mdDesktopFolder());
    qputenv("UserProfile", QFile::encodeName(path(QStringLiteral("profile"))));
    EXPECT_EQ(home(), mdDesktopFolder());
}

TEST_F(DesktopFolder, LogsThatItIsLookedFor)
{
    switchLogOn();
    mdDesktopFolder();
    EXPECT_EQ(QStringList({QStringLiteral("Begin Get Desktop Folder"), QStringLiteral("End Get Desktop Folder")}),
        logLines());
}
