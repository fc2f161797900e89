// The list of claims that keeps running and reports changes.

#include "tests/zr3tool/clsManyTest.h"

#include <QElapsedTimer>

namespace {

class Follow : public clsManyTest {
protected:
    void TearDown() override
    {
        if (tool.state() != QProcess::NotRunning) {
            tool.terminate();
            EXPECT_TRUE(tool.waitForFinished());
        }
    }
    void start()
    {
        tool.setStandardErrorFile(QProcess::nullDevice());
        tool.start(QStringLiteral(ZR3_TOOL), {"list"_q, "--jsonl"_q, "--follow"_q, claims()}, QIODevice::ReadOnly);
    }
    /// The next line; an empty object if none arrives in time.
    QJsonObject next()
    {
        QElapsedTimer waited;
        waited.start();
        constexpr int Patience = 20'000;
        while (!tool.canReadLine() && waited.elapsed() < Patience)
            tool.waitForReadyRead(50);
        return QJsonDocument::fromJson(tool.readLine()).object();
    }
    void expectCount(int count)
    {
        const QJsonObject line = next();
        EXPECT_EQ(count, line["claims"_q].toInt(-1)) << QJsonDocument(line).toJson().toStdString();
    }

    QProcess tool;
};

} // namespace

TEST_F(Follow, TellsWhatIsThereAndThenWhatChanges)
{
    const QString first = addClaim("a.zr3"_q);
    const QString second = addClaim("sub/b.zr3"_q);
    start();
    EXPECT_EQ(first, next()["path"_q].toString());
    EXPECT_EQ(second, next()["path"_q].toString());
    expectCount(2);

    QElapsedTimer waited;
    waited.start();
    const QString third = addClaim("c.zr3"_q);
    EXPECT_EQ(third, next()["path"_q].toString());
    EXPECT_LT(waited.elapsed(), 2000);
    expectCount(3);

    putBelow("a.zr3"_q, "<broken");
    const QJsonObject broken = next();
    EXPECT_EQ(first, broken["path"_q].toString());
    EXPECT_EQ(QString::fromUtf8(m_noClaim), broken["error"_q].toString());
    expectCount(3);

    ASSERT_TRUE(QFile::remove(second));
    const QJsonObject gone = next();
    EXPECT_EQ(second, gone["path"_q].toString());
    EXPECT_TRUE(gone["gone"_q].toBool());
    expectCount(2);
}

TEST_F(Follow, TellsOfAnEmptyFolderAndOfOneThatIsGone)
{
    ASSERT_TRUE(QDir().mkpath(claims()));
    start();
    expectCount(0);
    ASSERT_TRUE(QDir().rmdir(claims()));
    const QJsonObject line = next();
    EXPECT_EQ(claims(), line["path"_q].toString());
    EXPECT_NE(QString(), line["error"_q].toString());
}

TEST_F(Follow, EndsWhenItIsToldTo)
{
    addClaim("a.zr3"_q);
    start();
    EXPECT_NE(QJsonObject(), next());
    expectCount(1);
    tool.terminate();
    EXPECT_TRUE(tool.waitForFinished(1000));
    EXPECT_EQ(QProcess::CrashExit, tool.exitStatus()); // by the signal
}

TEST_F(Follow, EndsWhenItsReaderIsGone)
{
    addClaim("a.zr3"_q);
    const QString steps = QStringLiteral(ZR3_TOOL) + " list --jsonl --follow claims | head -n 1"_q;
    const clsToolResult result = runProgram("sh"_q, {"-c"_q, steps});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ(1, result.out.count('\n'));
}
