#include "commands/mdFileHandling.h"
#include "controls/frmMessageBox.h"
#include "controls/oHeaderBar.h"
#include "shell/clsLongWork.h"
#include "shell/clsWindowUserInterface.h"
#include "shell/frmSplash.h"
#include "tests/window/clsWindowTest.h"

#include <QDesktopServices>
#include <QDialog>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <QTreeView>

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

TEST_F(WindowUserInterface, ChoosesAFolder)
{
    whenShown<QFileDialog>([this](QFileDialog &dialog) {
        EXPECT_EQ(QStringLiteral("Please select a folder to export to..."), dialog.windowTitle());
        EXPECT_EQ(QFileDialog::Directory, dialog.fileMode());
        EXPECT_TRUE(dialog.testOption(QFileDialog::ShowDirsOnly));
        dialog.selectFile(path("claims"));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(path("claims"), windows.chooseFolder(QStringLiteral("Please select a folder to export to..."), {}));
    whenShown<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(QString(), windows.chooseFolder(QStringLiteral("again"), {}));
    EXPECT_EQ(2, shown);
}

namespace {

/// Types a folder, as the toolkit's dialog may have it when that is done at speed: a folder above is still selected.
void typeOver(QFileDialog &dialog, const QString &selected, const QString &typed)
{
    auto &name = *dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    auto &list = *dialog.findChild<QListView *>(QStringLiteral("listView"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    name.setFocus();
    name.setText(typed);
    const QModelIndexList rows = list.selectionModel()->selectedRows();
    const auto &files = *qobject_cast<QFileSystemModel *>(list.model());
    list.selectionModel()->select(
        files.index(selected), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    for (const QModelIndex &row : rows)
        list.selectionModel()->select(row, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    ASSERT_EQ(selected, dialog.selectedFiles().value(0));
    ASSERT_EQ(typed, name.text());
}

} // namespace

TEST_F(WindowUserInterface, TheFolderThatIsTypedIsTakenAndNoneAboveIt)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("claims/2026/smith")));
    const QString wanted = path("claims/2026/smith");
    for (const QString &typed : {wanted, wanted + u'/', QStringLiteral("2026/smith"), QStringLiteral("2026/smith/")}) {
        whenShown<QFileDialog>([&](QFileDialog &dialog) {
            typeOver(dialog, path("claims/2026"), typed);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        EXPECT_EQ(wanted, windows.chooseFolder(QStringLiteral("?"), path("claims"))) << typed.toStdString();
    }
    EXPECT_EQ(4, shown);
}

TEST_F(WindowUserInterface, ATypedFolderThatIsNotThereIsRefused)
{
    bool refused = false;
    whenShown<QFileDialog>([&](QFileDialog &dialog) {
        typeOver(dialog, path("claims"), path("claims/none"));
        QTimer::singleShot(0, &dialog, [&] {
            QWidget *told = QApplication::activeModalWidget();
            refused = told != &dialog;
            if (refused)
                told->close();
        });
        QMetaObject::invokeMethod(&dialog, "accept");
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(QString(), windows.chooseFolder(QStringLiteral("?"), path("claims")));
    EXPECT_TRUE(refused);
}

TEST_F(WindowUserInterface, ARowThatIsClickedIsTakenWhateverItsName)
{
    const QString odd = path("claims/a \"b\" c");
    ASSERT_TRUE(QDir().mkpath(odd));
    whenShown<QFileDialog>([&](QFileDialog &dialog) {
        auto &list = control<QListView>(dialog, "listView");
        ASSERT_TRUE(QTest::qWaitFor([&] { return list.model()->rowCount(list.rootIndex()) == 1; }));
        list.setFocus();
        list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(odd, windows.chooseFolder(QStringLiteral("?"), path("claims")));
}

TEST_F(WindowUserInterface, ChoosingAFolderBeginsAtTheOneThatIsNamed)
{
    Form = std::make_unique<clsZR3Form>();
    Form->path = path("claims/claim.zr3");
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("out")));
    QString begun;
    const auto begins = [&](const QString &start) {
        whenShown<QFileDialog>([&](QFileDialog &dialog) { begun = dialog.directory().path(); });
        windows.chooseFolder(QStringLiteral("?"), start);
        return begun;
    };
    EXPECT_EQ(path("out"), begins(path("out")));
    EXPECT_EQ(path("claims"), begins(path("gone")));
    EXPECT_EQ(path("claims"), begins({}));
}

TEST_F(WindowUserInterface, TheColumnsOfTheFileDialogShowWhatIsInThem)
{
    Form = std::make_unique<clsZR3Form>();
    Form->path = sample("housing-typical.zr3");
    const QFont before = QApplication::font();
    for (const int points : {9, 16}) {
        QFont font = before;
        font.setPointSize(points);
        QApplication::setFont(font);
        whenShown<QFileDialog>([](QFileDialog &dialog) {
            const auto &details = control<QTreeView>(dialog, "treeView");
            ASSERT_TRUE(QTest::qWaitFor([&] { return details.model()->rowCount(details.rootIndex()) == 1; }));
            QTest::qWait(50);
            const auto &places = control<QListView>(dialog, "sidebar");
            EXPECT_GE(places.viewport()->width(), places.sizeHintForColumn(0));
            const QHeaderView &columns = *details.header();
            for (int column = 0; column < columns.count(); ++column) {
                const QString text = details.model()->index(0, column, details.rootIndex()).data().toString();
                const QString heading = details.model()->headerData(column, Qt::Horizontal).toString();
                EXPECT_FALSE(text.isEmpty()) << column;
                EXPECT_GE(columns.sectionSize(column), details.fontMetrics().horizontalAdvance(text) + 8)
                    << text.toStdString();
                EXPECT_GE(columns.sectionSize(column), columns.fontMetrics().horizontalAdvance(heading) + 14)
                    << heading.toStdString();
            }
        });
        windows.chooseFileToOpen(QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3"));
    }
    QApplication::setFont(before);
    EXPECT_EQ(2, shown);
}

namespace {

/// In the middle of a screen, but for the window manager's frame.
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
        // A place that was not asked for is the window manager's to choose, and that is a corner.
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

TEST_F(WindowUserInterface, ExportingProposesANameAndReplacesNothingUnasked)
{
    const QString filter = QStringLiteral("PDF Documents (*.pdf)|*.pdf");
    const QString proposed = path("claims/Smith.pdf");
    const clsUserInterfaceScope scope(windows);
    whenShown<QFileDialog>([this](QFileDialog &dialog) {
        EXPECT_EQ(QFileDialog::AcceptSave, dialog.acceptMode());
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite)) << "the dialog asks";
        EXPECT_EQ(path("claims"), dialog.directory().absolutePath());
        EXPECT_EQ(QStringLiteral("Smith.pdf"), control<QLineEdit>(dialog, "fileNameEdit").text());
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(proposed, windows.chooseFileToExport(filter, QStringLiteral(".pdf"), proposed));

    // The name that the dialog has asked about is not yet the whole.
    QFile other(path("claims/Smith v. Jones.pdf"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    for (const char *answer : {"cmdNo", "cmdYes"}) {
        whenShown<QFileDialog>([this, answer](QFileDialog &dialog) {
            control<QLineEdit>(dialog, "fileNameEdit").setText(QStringLiteral("Smith v. Jones"));
            whenShown<frmMessageBox>([answer](frmMessageBox &box) {
                EXPECT_EQ(QStringLiteral("Overwrite?"), box.windowTitle());
                QTest::mouseClick(&control<QPushButton>(box, answer), Qt::LeftButton);
            });
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        EXPECT_EQ(QLatin1String(answer) == QLatin1String("cmdYes") ? other.fileName() : QString(),
            windows.chooseFileToExport(filter, QStringLiteral(".pdf"), proposed));
    }
    EXPECT_EQ(5, shown);
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

/// The desktop's opener, as a script in a folder that is the only one in the search path.
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
    const clsOpenerScope none(path("none")); // then it is the toolkit's to find one
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
        // Not in the middle of other work.
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
        // One that comes after its owner's end is nothing either.
        clsWindowUserInterface gone;
        gone.playSound(path("program/Sounds/Alert.wav"));
    }
    QTest::qWait(10);
    EXPECT_EQ(0, shown);
}

#include "test_windowuserinterface.moc"
