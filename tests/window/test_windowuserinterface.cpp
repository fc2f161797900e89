#include "controls/frmMessageBox.h"
#include "controls/oHeaderBar.h"
#include "shell/clsLongWork.h"
#include "shell/frmSplash.h"
#include "tests/window/clsInterfaceTest.h"

#include <QDesktopServices>
#include <QDialog>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QThread>

namespace {

using WindowUserInterface = clsInterfaceTest;

} // namespace

TEST_F(WindowUserInterface, SystemBoxesHaveTitleTextIconAndAnswers)
{
    struct clsCase {
        clsUserInterface::Buttons buttons;
        const char *pressed;
        clsUserInterface::Answer answer;
    };
    const clsCase cases[] = {
        {clsUserInterface::OKOnly, "cmdOK", clsUserInterface::OK},
        {clsUserInterface::OKCancel, "cmdCancel", clsUserInterface::Cancel},
        {clsUserInterface::OKCancel, "cmdOK", clsUserInterface::OK},
        {clsUserInterface::YesNo, "cmdYes", clsUserInterface::Yes},
        {clsUserInterface::YesNo, "cmdNo", clsUserInterface::No},
        {clsUserInterface::YesNoCancel, "cmdNo", clsUserInterface::No},
        {clsUserInterface::YesNoCancel, "cmdCancel", clsUserInterface::Cancel},
    };
    for (const clsCase &one : cases) {
        whenShown<frmMessageBox>([&](frmMessageBox &box) {
            EXPECT_EQ(QStringLiteral("Title"), box.windowTitle());
            EXPECT_EQ(QStringLiteral("Title"), control<oHeaderBar>(box, "oHeader").Caption());
            EXPECT_EQ(2, control<oHeaderBar>(box, "oHeader").IconGroup()) << "a problem";
            EXPECT_EQ(QStringLiteral("First <b>line</b>\n\nsecond"), control<QLabel>(box, "lblMessage").text());
            EXPECT_EQ(Qt::PlainText, control<QLabel>(box, "lblMessage").textFormat());
            QTest::mouseClick(&control<QPushButton>(box, one.pressed), Qt::LeftButton);
        });
        EXPECT_EQ(one.answer,
            windows.systemMessage(QStringLiteral("First <b>line</b>\r\n\r\nsecond"), QStringLiteral("Title"),
                clsUserInterface::Critical, one.buttons));
    }
    EXPECT_EQ(int(std::size(cases)), shown);
}

TEST_F(WindowUserInterface, EscapeAndEnterOfASystemQuestionChangeNothing)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        whenShown<frmMessageBox>([key](frmMessageBox &box) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &box, key);
        });
        EXPECT_EQ(clsUserInterface::No,
            windows.systemMessage(
                QStringLiteral("?"), QStringLiteral("Reset"), clsUserInterface::Question, clsUserInterface::YesNo));
    }
    EXPECT_EQ(2, shown);
}

TEST_F(WindowUserInterface, CustomMessagesAreTheSystemsOwnBox)
{
    whenShown<frmMessageBox>([](frmMessageBox &box) {
        EXPECT_EQ(QStringLiteral("Save?"), box.windowTitle());
        box.close();
    });
    EXPECT_EQ(clsUserInterface::Cancel,
        windows.customMessage(QStringLiteral("Save changes to this form before closing?"), QStringLiteral("Save?"),
            clsUserInterface::YesNoCancel, 1, 0));
    EXPECT_EQ(1, shown);
}

TEST_F(WindowUserInterface, WhateverIsAskedVeilsTheWindowBelow)
{
    // The offscreen platform has no window manager: each time the active window must be set explicitly.
    QWidget below;
    const auto show = [](QWidget &window) {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    };
    show(below);
    const auto veils = [&below] { return below.findChildren<QWidget *>(QStringLiteral("oVeil")).size(); };
    whenShown<frmMessageBox>([&veils](frmMessageBox &) { EXPECT_EQ(1, veils()); });
    windows.customMessage(QStringLiteral("m"), QStringLiteral("t"), clsUserInterface::OKOnly, 0, 0);
    EXPECT_EQ(0, veils());
    show(below);
    whenShown<frmMessageBox>([&veils](frmMessageBox &) { EXPECT_EQ(1, veils()); });
    windows.systemMessage(
        QStringLiteral("m"), QStringLiteral("t"), clsUserInterface::Critical, clsUserInterface::OKOnly);
    EXPECT_EQ(0, veils());
    show(below);
    whenShown<QFileDialog>([&veils](QFileDialog &) { EXPECT_EQ(1, veils()); });
    windows.chooseFileToOpen(QStringLiteral("All (*)"));
    EXPECT_EQ(0, veils());
    EXPECT_EQ(3, shown);
}

TEST_F(WindowUserInterface, ABoxOverADisabledWindowCanBeAnswered)
{
    QDialog below;
    below.setModal(true);
    show(below);
    below.setEnabled(false);
    below.setObjectName(QStringLiteral("below"));
    const auto answer = [this](const QString &parent) {
        whenShown<frmMessageBox>([parent](frmMessageBox &box) {
            EXPECT_TRUE(box.isEnabled());
            EXPECT_EQ(parent, box.parentWidget()->objectName());
            auto &ok = control<QPushButton>(box, "cmdOK");
            EXPECT_TRUE(ok.isVisible() && ok.isEnabled());
            QTest::mouseClick(&ok, Qt::LeftButton);
            EXPECT_FALSE(box.isVisible());
        });
    };
    answer(QStringLiteral("below"));
    windows.systemMessage({}, {}, clsUserInterface::Critical, clsUserInterface::OKOnly);
    answer(QStringLiteral("below"));
    windows.customMessage(QStringLiteral("m"), QStringLiteral("t"), clsUserInterface::OKOnly, 0, 0);
    EXPECT_EQ(2, shown);
}

namespace {

/// In the middle of a screen, apart from the window manager's frame.
void expectInTheMiddle(const QWidget &box, const QScreen &screen)
{
    const QPoint off = box.geometry().center() - screen.availableGeometry().center();
    EXPECT_LE(std::abs(off.x()), 4);
    EXPECT_LE(std::abs(off.y()), 4);
}

} // namespace

TEST_F(WindowUserInterface, ABoxBeforeTheMainWindowStandsOverTheSplash)
{
    frmSplash splash;
    control<QTimer>(splash, "tmrInit").stop();
    show(splash);
    const auto stands = [&](const QWidget &box) {
        EXPECT_EQ(&splash, box.parentWidget());
        // Without a requested position the window manager chooses one, usually a corner.
        EXPECT_TRUE(box.testAttribute(Qt::WA_Moved));
        expectInTheMiddle(box, *splash.screen());
    };
    for (const bool inFront : {true, false}) {
        if (!inFront)
            QApplication::setActiveWindow(nullptr);
        whenShown<frmMessageBox>([&](frmMessageBox &box) { stands(box); });
        windows.systemMessage(
            QStringLiteral("m"), QStringLiteral("Folder Error"), clsUserInterface::Critical, clsUserInterface::OKOnly);
    }
    QApplication::setActiveWindow(nullptr);
    whenShown<frmMessageBox>([&](frmMessageBox &box) { stands(box); });
    windows.customMessage(QStringLiteral("m"), QStringLiteral("Error"), clsUserInterface::OKOnly, 0, 0);
    QApplication::setActiveWindow(nullptr);
    whenShown<QFileDialog>([&](QFileDialog &dialog) { stands(dialog); });
    windows.chooseFolder(QStringLiteral("Please select a valid database folder"), {});
    EXPECT_EQ(4, shown);
}

TEST_F(WindowUserInterface, ABoxBeforeTheSplashStandsInTheMiddleOfTheScreen)
{
    QApplication::setActiveWindow(nullptr);
    whenShown<frmMessageBox>([&](frmMessageBox &box) {
        EXPECT_TRUE(box.testAttribute(Qt::WA_Moved));
        expectInTheMiddle(box, *box.screen());
    });
    windows.customMessage(QStringLiteral("m"), QStringLiteral("Network Error"), clsUserInterface::OKOnly, 0, 0);
    EXPECT_EQ(1, shown);
}

TEST_F(WindowUserInterface, ABoxOfAProgramThatIsNotInFrontBelongsToItsMainWindow)
{
    QMainWindow main;
    main.setObjectName(QStringLiteral("main"));
    show(main);
    QApplication::setActiveWindow(nullptr);
    ASSERT_EQ(nullptr, QApplication::activeWindow());
    whenShown<frmMessageBox>([&](frmMessageBox &box) { EXPECT_EQ(&main, box.parentWidget()); });
    windows.customMessage(QStringLiteral("m"), QStringLiteral("t"), clsUserInterface::OKOnly, 0, 0);
    EXPECT_EQ(1, shown);
}

TEST_F(WindowUserInterface, ProgressGoesToItsDisplayAndLetsTheWindowsRepaint)
{
    QStringList seen;
    int cleared = 0;
    windows.setProgressDisplay({
        [&](int value, int maximum, const QString &text) {
            seen << QStringLiteral("%1 of %2 %3").arg(value).arg(maximum).arg(text);
        },
        [&] { ++cleared; },
    });
    bool repainted = false;
    bool insideLongWork = false;
    QTimer::singleShot(0, [&] {
        repainted = true;
        insideLongWork = clsLongWork::isRunning();
        windows.showProgress(9, 9, QStringLiteral("inside"));
    });
    windows.showProgress(1, 3, QStringLiteral("Exporting Page 1"));
    EXPECT_TRUE(repainted);
    EXPECT_TRUE(insideLongWork);
    windows.clearProgress();
    EXPECT_EQ(QStringList({QStringLiteral("1 of 3 Exporting Page 1"), QStringLiteral("9 of 9 inside")}), seen);
    EXPECT_EQ(1, cleared);
    EXPECT_FALSE(clsLongWork::isRunning());
}

TEST_F(WindowUserInterface, TheWindowsGetTheirTurnAtMostEveryFiftyMilliseconds)
{
    windows.showProgress(1, 3, {});
    bool ran = false;
    QTimer::singleShot(0, [&] { ran = true; });
    windows.showProgress(2, 3, {});
    EXPECT_FALSE(ran);
    QThread::msleep(60);
    windows.showProgress(3, 3, {});
    EXPECT_TRUE(ran);
}

TEST_F(WindowUserInterface, TheBusyCursorComesWithTimeAndGoesWithTheWork)
{
    {
        const clsLongWork work;
        windows.showProgress(1, 3, {});
        EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
        QThread::msleep(210);
        windows.showProgress(2, 3, {});
        ASSERT_NE(nullptr, QGuiApplication::overrideCursor());
        EXPECT_EQ(Qt::WaitCursor, QGuiApplication::overrideCursor()->shape());
        // Not over a question.
        whenShown<frmMessageBox>([](frmMessageBox &) { EXPECT_EQ(nullptr, QGuiApplication::overrideCursor()); });
        windows.systemMessage({}, {}, clsUserInterface::Critical, clsUserInterface::OKOnly);
        windows.showProgress(3, 3, {});
        EXPECT_NE(nullptr, QGuiApplication::overrideCursor());
    }
    EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
}

namespace {

class clsOpener : public QObject {
    Q_OBJECT

public:
    QList<QUrl> opened;
public slots:
    void open(const QUrl &url) { opened << url; }
};

/// A script as the desktop's opener, in a folder that is the only one in the search path.
class clsOpenerScope {
public:
    explicit clsOpenerScope(const QString &folder, const QByteArray &script = {})
    {
        if (!script.isEmpty()) {
            QDir().mkpath(folder);
            QFile file(folder + QStringLiteral("/xdg-open"));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write("#!/bin/sh\n" + script + '\n');
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        qputenv("PATH", QFile::encodeName(folder));
    }
    ~clsOpenerScope() { qputenv("PATH", m_path); }
    clsOpenerScope(const clsOpenerScope &) = delete;
    clsOpenerScope &operator=(const clsOpenerScope &) = delete;

private:
    QByteArray m_path = qgetenv("PATH");
};

} // namespace

TEST_F(WindowUserInterface, OpensFilesAndAddresses)
{
    const clsOpenerScope none(path("none")); // then Qt looks for one
    clsOpener opener;
    for (const char *scheme : {"file", "https", "mailto"})
        QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), &opener, "open");
    const QString file = sample("empty.zr3");
    const QString odd = path("claims/100% #1.txt");
    QFile::copy(file, odd);
    EXPECT_TRUE(windows.openTarget(odd));
    EXPECT_TRUE(windows.openTarget(path("claims")));
    EXPECT_TRUE(windows.openTarget(QStringLiteral("https://www.velmor.example/zr3")));
    EXPECT_TRUE(windows.openTarget(QStringLiteral("mailto:support@velmor.example")));
    EXPECT_FALSE(windows.openTarget(path("claims/none.pdf")));
    EXPECT_EQ((QList<QUrl> {QUrl::fromLocalFile(odd), QUrl::fromLocalFile(path("claims")),
                  QUrl(QStringLiteral("https://www.velmor.example/zr3")),
                  QUrl(QStringLiteral("mailto:support@velmor.example"))}),
        opener.opened);
    for (const char *scheme : {"file", "https", "mailto"})
        QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
}

TEST_F(WindowUserInterface, TheDesktopsOpenerIsGivenTheTarget)
{
    const clsOpenerScope opener(path("bin"), "printf '%s' \"$1\" > \"${0%/*}/told\"");
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("claims/a b%#")));
    EXPECT_TRUE(windows.openTarget(path("claims/a b%#")));
    QFile told(path("bin/told"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() > 0; }));
    ASSERT_TRUE(told.open(QIODevice::ReadOnly));
    EXPECT_EQ(QUrl::fromLocalFile(path("claims/a b%#")), QUrl::fromEncoded(told.readAll()));
    QTest::qWait(20);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(WindowUserInterface, AnOpenerThatFindsNoProgramIsToldOf)
{
    const clsOpenerScope opener(path("bin"), "exit 3");
    EXPECT_TRUE(windows.openTarget(path("claims")));
    {
        // Not during other work.
        const clsLongWork work;
        QTest::qWait(300);
        EXPECT_TRUE(user.messages.empty());
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return !user.messages.empty(); }));
    EXPECT_EQ(QStringLiteral("Open Error"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("Velmor ZR3 could not open the following:\r\n\r\n") + path("claims")
            + QStringLiteral("\r\n\r\nPlease check that it exists and that this computer has a program to open it "
                             "with."),
        user.messages[0].text);
}

TEST_F(WindowUserInterface, ASoundThatIsNotThereIsSilent)
{
    windows.playSound(path("program/Sounds/Alert.wav"));
    {
        // Nothing happens after the object is destroyed either.
        clsWindowUserInterface gone;
        gone.playSound(path("program/Sounds/Alert.wav"));
    }
    QTest::qWait(10);
    EXPECT_EQ(0, shown);
}

#include "test_windowuserinterface.moc"
