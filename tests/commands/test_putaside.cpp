// The state folder's record of findings that are not mistakes.

#include "base/mdStateFile.h"
#include "base/mdStateFolder.h"
#include "commands/mdPutAside.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class PutAside : public testing::Test {
protected:
    void SetUp() override
    {
        before = qgetenv("XDG_STATE_HOME");
        qputenv("XDG_STATE_HOME", QFile::encodeName(folder.path()));
    }
    void TearDown() override
    {
        if (before.isNull())
            qunsetenv("XDG_STATE_HOME");
        else
            qputenv("XDG_STATE_HOME", before);
    }

    QString file() const { return StateFolder() + QStringLiteral("/Put aside.json"); }
    void write(const QByteArray &content) const
    {
        ASSERT_TRUE(MakeStateFolder());
        QFile made(file());
        ASSERT_TRUE(made.open(QIODevice::WriteOnly));
        made.write(content);
    }

    QTemporaryDir folder;
    QByteArray before;
    const QString claim = QStringLiteral("/claims/one.zr3");
    const QString other = QStringLiteral("/claims/two.zr3");
};

QSet<QString> keys(std::initializer_list<const char *> texts)
{
    QSet<QString> result;
    for (const char *text : texts)
        result << QString::fromLatin1(text);
    return result;
}

} // namespace

TEST_F(PutAside, IsKeptForEachClaim)
{
    EXPECT_TRUE(mdReadPutAside(claim).keys.isEmpty());
    EXPECT_FALSE(QFile::exists(StateFolder())) << "reading makes nothing";
    EXPECT_TRUE(mdKeepPutAside(claim, keys({"a", "b"})));
    EXPECT_TRUE(mdKeepPutAside(other, keys({"c"})));
    EXPECT_EQ(keys({"a", "b"}), mdReadPutAside(claim).keys);
    EXPECT_EQ(keys({"c"}), mdReadPutAside(other).keys);
    EXPECT_TRUE(mdKeepPutAside(claim, {}));
    EXPECT_TRUE(mdReadPutAside(claim).keys.isEmpty());
    EXPECT_EQ(keys({"c"}), mdReadPutAside(other).keys);
    EXPECT_FALSE(mdKeepPutAside(QString(), keys({"a"}))) << "a claim that was never saved";
    EXPECT_TRUE(mdReadPutAside(QString()).keys.isEmpty());
}

TEST_F(PutAside, OnlyItsOwnerCanReadIt)
{
    ASSERT_TRUE(mdKeepPutAside(claim, keys({"a"})));
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_FALSE(QFileInfo(file()).permissions() & others);
    EXPECT_FALSE(QFileInfo(StateFolder()).permissions() & (others | QFile::ExeGroup | QFile::ExeOther));
}

TEST_F(PutAside, ABrokenFileIsSetAsideAndToldOnce)
{
    for (const char *broken : {"{", "[1]", "\"text\"", "nonsense \x01"}) {
        write(broken);
        EXPECT_TRUE(mdReadPutAside(claim).wasBroken) << broken;
        EXPECT_FALSE(mdReadPutAside(claim).wasBroken) << broken;
        EXPECT_FALSE(QFile::exists(file()));
        EXPECT_TRUE(QFile::exists(file() + QStringLiteral(".broken")));
    }
    EXPECT_TRUE(mdKeepPutAside(claim, keys({"a"})));
    EXPECT_EQ(keys({"a"}), mdReadPutAside(claim).keys);
    write("{\"/claims/one.zr3\": 7}");
    EXPECT_TRUE(mdReadPutAside(claim).keys.isEmpty()) << "what is no list of keys is none";
}

TEST_F(PutAside, NothingIsReadFromAPipeAndNothingWrittenWhereTheFolderIsNone)
{
    ASSERT_TRUE(MakeStateFolder());
    ASSERT_TRUE(QDir().mkpath(file()));
    EXPECT_TRUE(mdReadStateFile(QStringLiteral("Put aside.json")).isEmpty()) << "a folder";
    qputenv("XDG_STATE_HOME", "/proc/none");
    EXPECT_FALSE(mdKeepPutAside(claim, keys({"a"})));
}
