#pragma once

#include "base/mdGetResourceData.h"
#include "base/mdProgramFolder.h"
#include "commands/mdFirmOffer.h"
#include "controls/frmMessageBox.h"
#include "controls/oHeaderBar.h"
#include "shell/frmMain.h"
#include "shell/mdSubMain.h"
#include "shell/oApplication.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

/// Called every few milliseconds while the program runs, from the first event on.
inline std::function<void()> onTick;

inline void startTicking()
{
    if (!onTick)
        return;
    auto *ticker = new QTimer(QCoreApplication::instance());
    QObject::connect(ticker, &QTimer::timeout, ticker, [] { onTick(); });
    ticker->start(5);
}
template <class Window> Window *topLevel()
{
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *window = qobject_cast<Window *>(widget))
            return window;
    return nullptr;
}

/// Runs of the whole program within this process.
class clsProgramTest : public testing::Test {
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
        mdFirmOfferAnswered();
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

    /// Runs the program and returns its status; calls `step` repeatedly until it returns true.
    int run(const std::vector<QByteArray> &arguments, std::function<bool()> step)
    {
        QElapsedTimer patience;
        patience.start();
        bool done = false;
        onTick = [&] {
            if (!done && step())
                done = true;
            else if (patience.elapsed() > longestRun) {
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

    /// The recovered copies.
    QStringList recovered() const { return QDir(path("program/Databases/Recovered")).entryList(QDir::Files); }

    static QString header()
    {
        const auto *window = topLevel<frmMain>();
        return window && window->isVisible() ? window->findChild<oHeaderBar *>()->Caption() : QString();
    }
    /// The open message box, if any.
    static frmMessageBox *messageBox() { return qobject_cast<frmMessageBox *>(QApplication::activeModalWidget()); }
    static QString textOf(const frmMessageBox &box)
    {
        return box.findChild<QLabel *>(QStringLiteral("lblMessage"))->text();
    }
    /// Presses OK in the box with this title; false if it is not open.
    static bool press(const QString &title)
    {
        frmMessageBox *box = messageBox();
        if (!box || box->windowTitle() != title)
            return false;
        box->findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
        return true;
    }

    QTemporaryDir folder;
    int longestRun = 20000; ///< in milliseconds
};
