#include "controls/frmMessageBox.h"
#include "shell/clsLongWork.h"
#include "shell/clsWindowUserInterface.h"
#include "shell/mdFileHandling.h"
#include "tests/window/clsWindowTest.h"

#include <QDesktopServices>
#include <QDialog>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <QTimer>

namespace {

/// The real interface. What it opens is modal, so that a test says beforehand what is to be done with it.
class WindowUserInterface : public clsWindowTest {
protected:
    template <class Window> void whenShown(std::function<void(Window &)> step)
    {
        m_watch.disconnect();
        QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this, step] {
            QWidget *modal = QApplication::activeModalWidget();
            if (!modal)
                return;
            m_watch.stop();
            ++shown;
            auto *expected = qobject_cast<Window *>(modal);
            EXPECT_NE(nullptr, expected) << modal->metaObject()->className();
            if (expected)
                step(*expected);
            if (modal->isVisible())
                modal->close();
        });
        m_watch.start(1);
    }

    clsWindowUserInterface windows;
    int shown = 0;

private:
    QTimer m_watch;
};

} // namespace

TEST_F(WindowUserInterface, SystemBoxesHaveTitleTextIconAndAnswers)
{
    struct clsCase {
        clsUserInterface::Buttons buttons;
        QMessageBox::StandardButton pressed;
        clsUserInterface::Answer answer;
    };
    const clsCase cases[] = {
        {clsUserInterface::OKOnly, QMessageBox::Ok, clsUserInterface::OK},
        {clsUserInterface::OKCancel, QMessageBox::Cancel, clsUserInterface::Cancel},
        {clsUserInterface::OKCancel, QMessageBox::Ok, clsUserInterface::OK},
        {clsUserInterface::YesNo, QMessageBox::Yes, clsUserInterface::Yes},
        {clsUserInterface::YesNo, QMessageBox::No, clsUserInterface::No},
        {clsUserInterface::YesNoCancel, QMessageBox::No, clsUserInterface::No},
        {clsUserInterface::YesNoCancel, QMessageBox::Cancel, clsUserInterface::Cancel},
    };
    for (const clsCase &one : cases) {
        whenShown<QMessageBox>([&](QMessageBox &box) {
            EXPECT_EQ(QStringLiteral("Title"), box.windowTitle());
            EXPECT_EQ(QStringLiteral("First <b>line</b>\n\nsecond"), box.text());
            EXPECT_EQ(Qt::PlainText, box.textFormat());
            EXPECT_EQ(QMessageBox::Critical, box.icon());
            QTest::mouseClick(box.button(one.pressed), Qt::LeftButton);
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
        whenShown<QMessageBox>([key](QMessageBox &box) {
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
    // The offscreen platform has no window manager: each time it has to be told which window is the active one.
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
    whenShown<QMessageBox>([&veils](QMessageBox &) { EXPECT_EQ(1, veils()); });
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
    QMessageBox *seen = nullptr;
    QTimer::singleShot(20, [&seen] {
        seen = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!seen)
            return;
        EXPECT_TRUE(seen->isEnabled());
        EXPECT_TRUE(seen->button(QMessageBox::Ok)->isEnabled());
        EXPECT_EQ(seen->parentWidget()->objectName(), QStringLiteral("below"));
        QTest::mouseClick(seen->button(QMessageBox::Ok), Qt::LeftButton);
        if (seen->isVisible())
            seen->done(0);
    });
    below.setObjectName(QStringLiteral("below"));
    windows.systemMessage({}, {}, clsUserInterface::Critical, clsUserInterface::OKOnly);
    EXPECT_NE(nullptr, seen);

    bool answerable = false;
    QTimer::singleShot(20, [&answerable] {
        QWidget *box = QApplication::activeModalWidget();
        for (const QPushButton *button : box->findChildren<QPushButton *>())
            answerable = answerable || (button->isVisible() && button->isEnabled());
        box->close();
    });
    windows.customMessage(QStringLiteral("m"), QStringLiteral("t"), clsUserInterface::OKOnly, 0, 0);
    EXPECT_TRUE(answerable);
}

TEST_F(WindowUserInterface, ChoosesAFolder)
{
    whenShown<QFileDialog>([this](QFileDialog &dialog) {
        EXPECT_EQ(QStringLiteral("Please select a folder to export to..."), dialog.windowTitle());
        EXPECT_EQ(QFileDialog::Directory, dialog.fileMode());
        EXPECT_TRUE(dialog.testOption(QFileDialog::ShowDirsOnly));
        dialog.selectFile(path("claims"));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(path("claims"), windows.chooseFolder(QStringLiteral("Please select a folder to export to...")));
    whenShown<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(QString(), windows.chooseFolder(QStringLiteral("again")));
    EXPECT_EQ(2, shown);
}

TEST_F(WindowUserInterface, BeginsInTheFolderOfTheClaimElseInTheOneLastUsed)
{
    const QString filter = QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3");
    const QString claim = sample("empty.zr3");
    whenShown<QFileDialog>([&](QFileDialog &dialog) {
        EXPECT_EQ(QFileDialog::ExistingFile, dialog.fileMode());
        EXPECT_EQ(QStringList("Velmor ZR3 Files (*.zr3)"), dialog.nameFilters());
        dialog.setDirectory(path("claims"));
        dialog.selectFile(claim);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(claim, windows.chooseFileToOpen(filter));

    whenShown<QFileDialog>([&](QFileDialog &dialog) { EXPECT_EQ(path("claims"), dialog.directory().path()); });
    EXPECT_EQ(QString(), windows.chooseFileToOpen(filter));

    Form = std::make_unique<clsZR3Form>();
    QDir(folder.path()).mkpath(QStringLiteral("other"));
    Form->path = path("other/claim.zr3");
    whenShown<QFileDialog>([&](QFileDialog &dialog) { EXPECT_EQ(path("other"), dialog.directory().path()); });
    EXPECT_EQ(QString(), windows.chooseFileToOpen(filter));

    // A claim that can't hold the name of its folder lies in it all the same.
    Preferences = std::make_unique<clsZR3PreferencesDatabase>();
    const QString foreign = folder.filePath(QString::fromUtf8("Żółw"));
    QDir().mkpath(foreign);
    ASSERT_TRUE(QFile::copy(claim, foreign + QStringLiteral("/claim.zr3")));
    OpenFormFile(foreign + QStringLiteral("/claim.zr3"));
    whenShown<QFileDialog>([&](QFileDialog &dialog) { EXPECT_EQ(foreign, dialog.directory().path()); });
    EXPECT_EQ(QString(), windows.chooseFileToOpen(filter));
    EXPECT_EQ(4, shown);
}

TEST_F(WindowUserInterface, TheFileDialogsShowTheFilesOfTheirFilter)
{
    Form = std::make_unique<clsZR3Form>();
    Form->path = sample("empty.zr3");
    ASSERT_TRUE(QFile::copy(path("claims/empty.zr3"), path("claims/letter.doc")));
    ASSERT_TRUE(QFile::copy(path("claims/empty.zr3"), path("claims/old.zr2")));
    const auto expectFiles = [this](const QStringList &files) {
        whenShown<QFileDialog>([files](QFileDialog &dialog) {
            const auto &list = control<QListView>(dialog, "listView");
            QStringList seen;
            EXPECT_TRUE(QTest::qWaitFor(
                [&] {
                    seen.clear();
                    for (int i = 0; i < list.model()->rowCount(list.rootIndex()); ++i)
                        seen << list.model()->index(i, 0, list.rootIndex()).data().toString();
                    seen.sort();
                    return seen == files;
                },
                3000))
                << seen.join(u' ').toStdString();
        });
    };
    expectFiles({QStringLiteral("empty.zr3")});
    windows.chooseFileToOpen(QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3"));
    expectFiles({QStringLiteral("empty.zr3")});
    windows.chooseFileToSave(QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3"), QStringLiteral(".zr3"));
    expectFiles({QStringLiteral("empty.zr3"), QStringLiteral("old.zr2")});
    windows.chooseFileToOpen(QStringLiteral("Claims|*.zr3;*.zr2"));
    EXPECT_EQ(3, shown);
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

TEST_F(WindowUserInterface, SavingAddsTheExtensionAndAsksNoQuestionOfItsOwn)
{
    Form = std::make_unique<clsZR3Form>();
    Form->path = sample("empty.zr3");
    whenShown<QFileDialog>([](QFileDialog &dialog) {
        EXPECT_EQ(QFileDialog::AcceptSave, dialog.acceptMode());
        EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        dialog.selectFile(QStringLiteral("empty"));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(path("claims/empty.zr3"),
        windows.chooseFileToSave(QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3"), QStringLiteral(".zr3")));
    EXPECT_EQ(1, shown);
}

TEST_F(WindowUserInterface, SavingAddsTheExtensionWhateverNameIsTyped)
{
    const std::pair<const char *, const char *> rows[] = {
        {"Smith v. Jones", "Smith v. Jones.zr3"},
        {"12.11.2026", "12.11.2026.zr3"},
        {"letter.doc", "letter.doc.zr3"},
        {"Smith.", "Smith..zr3"},
        {"zr3", "zr3.zr3"},
        {"Smith.zr3", "Smith.zr3"},
        {"Smith.ZR3", "Smith.ZR3"},
        {"Smith v. Jones.Zr3", "Smith v. Jones.Zr3"},
        {"Smith.zr3a", "Smith.zr3a.zr3"},
    };
    Form = std::make_unique<clsZR3Form>();
    Form->path = sample("empty.zr3");
    for (const auto &[typed, saved] : rows) {
        whenShown<QFileDialog>([typed = typed](QFileDialog &dialog) {
            control<QLineEdit>(dialog, "fileNameEdit").setText(QString::fromLatin1(typed));
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        EXPECT_EQ(path("claims/") + QString::fromLatin1(saved),
            windows.chooseFileToSave(QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3"), QStringLiteral(".zr3")));
    }
    whenShown<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(QString(), windows.chooseFileToSave(QStringLiteral("Claims|*.zr3"), QStringLiteral(".zr3")));
}

TEST_F(WindowUserInterface, TheExtensionIsThereBeforeTheQuestionAboutOverwriting)
{
    Form = std::make_unique<clsZR3Form>();
    Form->path = sample("empty.zr3");
    ASSERT_TRUE(QFile::copy(path("claims/empty.zr3"), path("claims/Smith v. Jones.zr3")));
    const clsUserInterfaceScope scope(windows);
    whenShown<QFileDialog>([this](QFileDialog &dialog) {
        control<QLineEdit>(dialog, "fileNameEdit").setText(QStringLiteral("Smith v. Jones"));
        whenShown<frmMessageBox>([](frmMessageBox &box) {
            EXPECT_EQ(QStringLiteral("Overwrite?"), box.windowTitle());
            QTest::mouseClick(&control<QPushButton>(box, "cmdYes"), Qt::LeftButton);
        });
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_TRUE(SaveForm(true));
    EXPECT_EQ(2, shown);
    EXPECT_EQ(path("claims/Smith v. Jones.zr3"), Form->path());
    EXPECT_FALSE(QFile::exists(path("claims/Smith v. Jones")));
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
        whenShown<QMessageBox>([](QMessageBox &) { EXPECT_EQ(nullptr, QGuiApplication::overrideCursor()); });
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

} // namespace

TEST_F(WindowUserInterface, OpensFilesAndAddresses)
{
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

TEST_F(WindowUserInterface, ASoundThatIsNotThereIsSilent)
{
    windows.playSound(path("program/Sounds/Alert.wav"));
    {
        // One that comes after its owner's end is nothing either.
        clsWindowUserInterface gone;
        gone.playSound(path("program/Sounds/Alert.wav"));
    }
    QTest::qWait(10);
    EXPECT_EQ(0, shown);
}

#include "test_windowuserinterface.moc"
