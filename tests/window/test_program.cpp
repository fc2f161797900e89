#include "shell/clsFileSystem.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "formdata/clsZR3Form.h"
#include "shell/mdGetResourceData.h"
#include "shell/mdGlobals.h"
#include "shell/mdProgramFolder.h"
#include "shell/mdSubMain.h"
#include "shell/oApplication.h"
#include "controls/oHeaderBar.h"
#include "tests/support/mdTestPaths.h"
#include "tests/support/mdTestPrinting.h"

#include <QAction>
#include <QDir>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>
#include <vector>

namespace {

/// What a run of the program is watched by: it is asked every few milliseconds, from the first event on.
std::function<void()> onTick;

void startTicking()
{
    if (!onTick)
        return;
    auto *ticker = new QTimer(QCoreApplication::instance());
    QObject::connect(ticker, &QTimer::timeout, ticker, [] { onTick(); });
    ticker->start(5);
}
Q_COREAPP_STARTUP_FUNCTION(startTicking)

template <class Window> Window *topLevel()
{
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *window = qobject_cast<Window *>(widget))
            return window;
    return nullptr;
}

/// Runs of the whole program within this process.
class Program : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        for (const char *name : {"program/Databases", "claims", "config", "state"})
            ASSERT_TRUE(QDir(folder.path()).mkpath(QString::fromLatin1(name)));
        SetProgramFolder(path("program"));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(path("config")));
        qputenv("XDG_CONFIG_DIRS", QFile::encodeName(path("machine")));
        qputenv("XDG_STATE_HOME", QFile::encodeName(path("state")));
        QFile file(path("program/Databases/Preferences Database.vzp"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(
            GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")).toLatin1());
    }
    void TearDown() override
    {
        onTick = nullptr;
        SetProgramFolder(QString());
    }

    QString path(const char *relative) const { return folder.filePath(QString::fromUtf8(relative)); }

    /// The status of the program, watched by a step that is asked until it says that it is done.
    int run(const std::vector<QByteArray> &arguments, std::function<bool()> step)
    {
        QElapsedTimer patience;
        patience.start();
        bool done = false;
        onTick = [&] {
            if (!done && step())
                done = true;
            else if (patience.elapsed() > 20000) {
                ADD_FAILURE() << "the program does not come to its end";
                oApplication::instance()->end(99);
            }
        };
        std::vector<QByteArray> held = arguments;
        held.insert(held.begin(), "velmor-zr3");
        std::vector<char *> argv;
        for (QByteArray &argument : held)
            argv.push_back(argument.data());
        argv.push_back(nullptr);
        const int status = RunProgram(int(held.size()), argv.data());
        EXPECT_TRUE(done);
        return status;
    }

    static QString header()
    {
        const auto *window = topLevel<frmMain>();
        return window && window->isVisible() ? window->findChild<oHeaderBar *>()->Caption() : QString();
    }
    static bool press(const QString &title, QMessageBox::StandardButton button)
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || box->windowTitle() != title)
            return false;
        box->button(button)->click();
        return true;
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(Program, BeginsWithANewClaimAndEndsWhenItsWindowIsClosed)
{
    bool splashSeen = false;
    EXPECT_EQ(0, run({}, [&] {
        const auto *splash = topLevel<frmSplash>();
        splashSeen = splashSeen || (splash && splash->isVisible() && !topLevel<frmMain>());
        if (header().isEmpty() || !splash || splash->isVisible())
            return false;
        EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
        EXPECT_TRUE(topLevel<frmMain>()->windowState().testFlag(Qt::WindowMaximized));
        topLevel<frmMain>()->close();
        return true;
    }));
    EXPECT_TRUE(splashSeen);
}

TEST_F(Program, TheWholeCommandLineIsOnePath)
{
    const QString claim = path("claims/a claim with blanks.zr3");
    ASSERT_TRUE(QFile::copy(mdSamplePath(QStringLiteral("empty.zr3")), claim));
    const QByteArray whole = QFile::encodeName(claim);
    const QByteArray quoted = '"' + whole + '"';
    std::vector<QByteArray> inPieces;
    for (const QByteArray &piece : whole.split(' '))
        inPieces.push_back(piece);
    for (const std::vector<QByteArray> &arguments : {std::vector {whole}, std::vector {quoted}, inPieces})
        EXPECT_EQ(0, run(arguments, [&] {
            if (header().isEmpty())
                return false;
            EXPECT_EQ(claim + u'*', header());
            oApplication::instance()->end(0);
            return true;
        }));
}

TEST_F(Program, NothingOnTheCommandLineIsASwitch)
{
    bool told = false;
    EXPECT_EQ(0, run({"-style", "windows"}, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            told = told || box->text().contains(QDir::current().absoluteFilePath(QStringLiteral("-style windows")));
            box->button(QMessageBox::Ok)->click();
        } else if (QWidget *modal = QApplication::activeModalWidget()) {
            modal->close();
        } else if (!header().isEmpty()) {
            oApplication::instance()->end(0);
            return true;
        }
        return false;
    }));
    EXPECT_TRUE(told);
}

TEST_F(Program, ANetworkFolderIsRefusedBeforeTheSplash)
{
    SetProgramFolder(QStringLiteral("\\\\server\\share"));
    bool splashSeen = false;
    QString title;
    EXPECT_EQ(1, run({}, [&] {
        splashSeen = splashSeen || topLevel<frmSplash>();
        QWidget *box = QApplication::activeModalWidget();
        if (!box)
            return false;
        title = box->windowTitle();
        box->close();
        return true;
    }));
    EXPECT_EQ(QStringLiteral("Network Error"), title);
    EXPECT_FALSE(splashSeen);
    EXPECT_TRUE(QDir(path("config")).isEmpty());
}

TEST_F(Program, WithoutADatabaseFolderItEnds)
{
    QDir(path("program/Databases")).removeRecursively();
    bool windowSeen = false;
    EXPECT_EQ(1, run({}, [&] {
        windowSeen = windowSeen || (topLevel<frmMain>() && topLevel<frmMain>()->isVisible());
        return press(QStringLiteral("Folder Error"), QMessageBox::Ok);
    }));
    EXPECT_FALSE(windowSeen);
}

TEST_F(Program, WithoutPreferencesItEndsWithARunTimeError)
{
    QFile::remove(path("program/Databases/Preferences Database.vzp"));
    bool notRead = false;
    EXPECT_EQ(1, run({}, [&] {
        notRead = press(QStringLiteral("File Not Read"), QMessageBox::Ok) || notRead;
        return press(QStringLiteral("Velmor ZR3"), QMessageBox::Ok);
    }));
    EXPECT_TRUE(notRead);
}

TEST_F(Program, ASignalToEndSetsTheUnsavedClaimAside)
{
    bool signalled = false;
    EXPECT_EQ(0, run({}, [&] {
        if (header().isEmpty() || signalled)
            return false;
        Form->ClientDetails.Surname = QStringLiteral("Hartwell");
        signalled = true;
        std::raise(SIGTERM);
        return true;
    }));
    const QStringList copies = QDir(path("program/Databases/Recovered")).entryList(QDir::Files);
    ASSERT_EQ(1, copies.size());
    QFile copy(path("program/Databases/Recovered/") + copies.first());
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_TRUE(copy.readAll().contains("Hartwell"));
}

TEST_F(Program, AnExportWithoutItsTemplatesEndsTheProgramAndKeepsTheClaim)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("out")));
    bool asked = false, pressed = false;
    QString text;
    EXPECT_EQ(1, run({}, [&] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal && !header().isEmpty() && !asked) {
            asked = true;
            Form->ExportPath = path("out");
            auto *entry = topLevel<frmMain>()->findChild<QAction *>(QStringLiteral("mnuExportToWord"));
            QTimer::singleShot(0, entry, &QAction::trigger);
        } else if (modal && modal->objectName() == QLatin1String("frmExportToWord") && !pressed) {
            pressed = true;
            auto *button = modal->findChild<QPushButton *>(QStringLiteral("cmdExport"));
            QTimer::singleShot(0, button, &QPushButton::click);
        } else if (const auto *box = qobject_cast<QMessageBox *>(modal)) {
            text = box->text();
            return press(QStringLiteral("Velmor ZR3"), QMessageBox::Ok);
        } else if (pressed && modal && modal->windowTitle() == QLatin1String("Word Instances")) {
            // Another word processor may run where the tests do.
            modal->findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
        }
        return false;
    }));
    EXPECT_TRUE(text.startsWith(QStringLiteral("Run-time error '"))) << qPrintable(text);
    EXPECT_FALSE(QFile::exists(path("out/Claim1.doc")));
    const QStringList copies = QDir(path("program/Databases/Recovered")).entryList(QDir::Files);
    ASSERT_EQ(1, copies.size());
    EXPECT_TRUE(text.endsWith(copies.first()));
}
