#include "base/clsProgramEnd.h"
#include "base/clsQuietUserInterface.h"
#include "base/clsRunTimeError.h"
#include "base/mdClock.h"
#include "base/mdLog.h"
#include "base/mdProgramFolder.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "shell/clsWindowUserInterface.h"
#include "shell/oApplication.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdTestPrinting.h"

#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QMetaMethod>
#include <QScopeGuard>
#include <QSessionManager>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <optional>

namespace {

/// Base of tests with an application of their own, which may end.
class Application : public testing::Test {
protected:
    void SetUp() override
    {
        application = std::make_unique<oApplication>(m_count, m_arguments);
        application->writeRecoveredCopy = [this] {
            ++copies;
            return copy;
        };
        // An endless event loop fails instead of hanging.
        QTimer::singleShot(5000, application.get(), [] { QCoreApplication::exit(99); });
    }

    /// Runs a step as an event of the loop; returns the status with which the program ends.
    int statusOf(const std::function<void()> &step)
    {
        QTimer::singleShot(0, application.get(), step);
        return application->run();
    }

    void expectBox(const QString &text) const
    {
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QStringLiteral("Velmor ZR3"), user.messages[0].title);
        EXPECT_EQ(text, user.messages[0].text);
        EXPECT_TRUE(user.messages[0].system);
        EXPECT_EQ(int(clsUserInterface::Critical), user.messages[0].icon);
        EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
    }

    std::unique_ptr<oApplication> application;
    clsScriptedUserInterface user;
    clsRecoveredCopy copy;
    int copies = 0;

private:
    clsUserInterfaceScope m_scope {user};
    int m_count = 1;
    char m_name[5] = "test";
    char *m_arguments[2] = {m_name, nullptr};
};

} // namespace

TEST_F(Application, AnEndWithoutAFailureHasItsStatus)
{
    EXPECT_EQ(0, statusOf([this] { application->end(0); }));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(0, copies);
}

TEST_F(Application, ARunTimeErrorIsToldAndEndsTheProgram)
{
    EXPECT_EQ(1, statusOf([] { throw clsRunTimeError(clsRunTimeError::FileNotFound); }));
    expectBox(QStringLiteral("Run-time error '53':\r\n\r\nFile not found"));
    EXPECT_EQ(1, copies);
}

TEST_F(Application, TheBoxSaysWhereTheCopyOfTheClaimLies)
{
    copy = {clsLossCause::UnsavedChanges, QStringLiteral("/somewhere/Recovered/claim.zr3"), {}};
    EXPECT_EQ(1, statusOf([] { throw clsRunTimeError(9); }));
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_TRUE(
        user.messages[0].text.startsWith(QStringLiteral("Run-time error '9':\r\n\r\nSubscript out of range\r\n\r\n")));
    EXPECT_TRUE(user.messages[0].text.endsWith(copy.path));
}

TEST_F(Application, ACopyThatFailsHoldsNothingUp)
{
    application->writeRecoveredCopy = []() -> clsRecoveredCopy { throw clsRunTimeError(clsRunTimeError::DiskFull); };
    EXPECT_EQ(1, statusOf([] { throw clsRunTimeError(9); }));
    expectBox(QStringLiteral("Run-time error '9':\r\n\r\nSubscript out of range"));
}

TEST_F(Application, MemoryThatIsNotThereIsError7)
{
    EXPECT_EQ(1, statusOf([] { throw std::bad_alloc(); }));
    expectBox(QStringLiteral("Run-time error '7':\r\n\r\nOut of memory"));
}

TEST_F(Application, AnyOtherFailureIsAnInternalError)
{
    EXPECT_EQ(1, statusOf([] { throw std::logic_error("something odd"); }));
    expectBox(QStringLiteral("Run-time error '51':\r\n\r\nsomething odd"));
}

TEST_F(Application, EvenWhatIsNoExceptionIsCaught)
{
    EXPECT_EQ(1, statusOf([] { throw 42; }));
    expectBox(QStringLiteral("Run-time error '51':\r\n\r\nInternal error"));
}

TEST_F(Application, AProgramEndEndsItWithoutAWordAndWritesTheCopy)
{
    EXPECT_EQ(3, statusOf([] { throw clsProgramEnd {3}; }));
    EXPECT_EQ(1, copies);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Application, AnEndWithoutABoxTellsStandardErrorAndTheLogOfTheCopy)
{
    QTemporaryDir program;
    ASSERT_TRUE(QDir(program.path()).mkpath(QStringLiteral("Logs")));
    SetProgramFolder(program.path());
    SetLogSwitch([] { return true; });
    SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3, 22)); });
    const auto atTheEnd = qScopeGuard([] {
        SetProgramFolder(QString());
        SetLogSwitch(nullptr);
        SetClock(nullptr);
    });
    copy = {clsLossCause::UnsavedChanges, QStringLiteral("/somewhere/Recovered/claim.zr3"), {}};
    testing::internal::CaptureStderr();
    EXPECT_EQ(3, statusOf([] { throw clsProgramEnd {3}; }));
    const std::string sentence = "A copy of your claim with its unsaved changes is in: /somewhere/Recovered/claim.zr3";
    EXPECT_EQ("Velmor ZR3: " + sentence + "\n", testing::internal::GetCapturedStderr());
    QFile log(LogPath());
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_EQ("21/11/2026 14:03:22 : " + sentence + "\r\n", log.readAll().toStdString());
}

TEST_F(Application, ASignalTellsStandardErrorWhereNothingCouldBeWritten)
{
    copy = {clsLossCause::SaveFailed, {}, {QStringLiteral("/a/Recovered"), QStringLiteral("/b/Recovered")}};
    testing::internal::CaptureStderr();
    EXPECT_EQ(0, statusOf([this] { application->endUnasked(); }));
    EXPECT_EQ("Velmor ZR3: No copy of your claim could be written. The program tried these folders: /a/Recovered, "
              "/b/Recovered\n",
        testing::internal::GetCapturedStderr());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Application, AFailureBeforeTheLoopEndsItToo)
{
    application->guarded([] { throw clsRunTimeError(clsRunTimeError::FileNotFound); });
    EXPECT_EQ(1, application->run());
    expectBox(QStringLiteral("Run-time error '53':\r\n\r\nFile not found"));
}

TEST_F(Application, LoopsWithinLoopsEndAndNoFurtherEventIsDelivered)
{
    int after = 0;
    const int status = statusOf([&] {
        QTimer::singleShot(0, [&] {
            QTimer::singleShot(0, [&] { ++after; });
            throw clsRunTimeError(clsRunTimeError::FileNotFound);
        });
        QEventLoop inner;
        inner.exec();
        // Code that runs while the stack unwinds meets an application that no longer delivers events.
        EXPECT_TRUE(oApplication::ending());
        QDialog late;
        late.exec();
        QCoreApplication::processEvents();
    });
    EXPECT_EQ(1, status);
    EXPECT_EQ(0, after);
    EXPECT_EQ(1u, user.messages.size());
}

TEST_F(Application, WhatFailsWhileTheBoxStandsIsNotToldAgain)
{
    struct clsAsking final : clsQuietUserInterface {
        Answer systemMessage(const QString &, const QString &, SystemIcon, Buttons) override
        {
            ++boxes;
            QTimer::singleShot(0, [] { throw clsRunTimeError(clsRunTimeError::Overflow); });
            QEventLoop box;
            QTimer::singleShot(20, &box, &QEventLoop::quit);
            box.exec();
            return OK;
        }
        int boxes = 0;
    } asking;
    const clsUserInterfaceScope scope(asking);
    EXPECT_EQ(1, statusOf([] { throw clsRunTimeError(clsRunTimeError::FileNotFound); }));
    EXPECT_EQ(1, asking.boxes);
}

TEST_F(Application, ASignalWhileTheBoxStandsKeepsTheStatusOfTheFailure)
{
    struct clsSignalled final : clsQuietUserInterface {
        Answer systemMessage(const QString &, const QString &, SystemIcon, Buttons) override
        {
            oApplication::instance()->endUnasked();
            return OK;
        }
    } signalled;
    const clsUserInterfaceScope scope(signalled);
    EXPECT_EQ(1, statusOf([] { throw clsRunTimeError(clsRunTimeError::FileNotFound); }));
    EXPECT_EQ(1, copies);
}

TEST_F(Application, AQuestionThatTheEndClosesChangesNothing)
{
    clsWindowUserInterface windows;
    std::optional<clsUserInterface::Answer> answer;
    const auto end = [this] {
        ASSERT_NE(nullptr, QApplication::activeModalWidget());
        application->endUnasked();
    };
    EXPECT_EQ(0, statusOf([&] {
        QTimer::singleShot(20, application.get(), end);
        answer = windows.customMessage(
            QStringLiteral("?"), QStringLiteral("Overwrite?"), clsUserInterface::OKCancel, 1, 0);
    }));
    EXPECT_EQ(clsUserInterface::Cancel, answer);
}

TEST_F(Application, ASystemQuestionThatTheEndClosesChangesNothing)
{
    clsWindowUserInterface windows;
    std::optional<clsUserInterface::Answer> answer;
    EXPECT_EQ(0, statusOf([&] {
        QTimer::singleShot(20, application.get(), [this] { application->endUnasked(); });
        answer = windows.systemMessage(
            QStringLiteral("?"), QStringLiteral("Reset"), clsUserInterface::Question, clsUserInterface::YesNo);
    }));
    EXPECT_EQ(clsUserInterface::No, answer);
}

TEST_F(Application, TheDesktopsQuestionBeforeTheSessionsEndWritesTheCopyAndEndsNothing)
{
    // Only the desktop can create a session; the connected slot doesn't use its argument.
    alignas(QSessionManager) char noSession[sizeof(QSessionManager)] = {};
    void *arguments[] = {nullptr, noSession};
    const QMetaMethod signal = QMetaMethod::fromSignal(&QGuiApplication::commitDataRequest);
    EXPECT_EQ(0, statusOf([&] {
        QMetaObject::activate(application.get(), signal.methodIndex(), arguments);
        EXPECT_EQ(1, copies);
        EXPECT_FALSE(oApplication::ending());
        application->end(0);
    }));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Application, TheDesktopsRequestToQuitWritesTheCopyAndAsksNothing)
{
    EXPECT_EQ(0, statusOf([] {
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &quit);
    }));
    EXPECT_EQ(1, copies);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Application, TheEndOfTheLastWindowIsNotItsEnd)
{
    bool goesOn = false;
    EXPECT_EQ(0, statusOf([&] {
        QDialog window;
        window.show();
        window.close();
        QTimer::singleShot(50, application.get(), [&] {
            goesOn = true;
            application->end(0);
        });
    }));
    EXPECT_TRUE(goesOn);
}
