// The firm's words for the codes: in the open list, beside the box, and in their window.

#include "base/clsFileSystem.h"
#include "base/mdDatabasePath.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCustomButton.h"
#include "controls/oHeaderBar.h"
#include "editors/clsCodeList.h"
#include "editors/oCodeCombo.h"
#include "editors/oCodeDelegate.h"
#include "editors/oCodeNote.h"
#include "tests/editors/clsScheduleTest.h"

#include <QFile>
#include <QLabel>
#include <QTimer>

namespace {

constexpr char Csv[] = "HFN,Final hearing\nACT,Attending court\nDBL,Bundles\nREX,Report of an expert\n";

class CodeWordsList : public clsScheduleTest {
protected:
    void SetUp() override
    {
        clsScheduleTest::SetUp();
        QDir(folder.path()).mkpath(QStringLiteral("Databases"));
        SetDatabasePath(path("Databases"));
        put("Databases/Codes.csv", Csv);
        item = addItem("01/02/26", "AOT");
    }
    void TearDown() override
    {
        FileSystem().faultPoint = nullptr;
        screen.reset();
        SetDatabasePath(QString());
        clsScheduleTest::TearDown();
    }
    void open() { screen = editItem(item); }
    oCodeCombo &box() const { return screen->Box<oCodeCombo>("cmbCode"); }
    oCodeNote &note() const { return *screen->findChild<oCodeNote *>(); }
    QAbstractItemView &list() const { return *box().view(); }
    void openList()
    {
        box().setFocus();
        box().showPopup();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(list().window()));
    }
    QString current() const { return list().currentIndex().data().toString(); }
    /// Presses "Codes..." and calls `act` with the window that opens.
    void inCodes(const std::function<void(frmScreen &)> &act)
    {
        openList();
        auto *change = list().window()->findChild<oCustomButton *>(QStringLiteral("cmdCodeWords"));
        ASSERT_TRUE(change);
        bool opened = false;
        QTimer::singleShot(100, screen.get(), [&] {
            auto *codes = qobject_cast<frmScreen *>(QApplication::activeModalWidget());
            ASSERT_TRUE(codes);
            ASSERT_EQ(QStringLiteral("frmCodeWords"), codes->objectName());
            opened = true;
            act(*codes);
            if (codes->isVisible())
                codes->Cancel();
        });
        change->click();
        QTest::qWait(300);
        EXPECT_TRUE(opened);
    }
    static oAllPurposeBox &words(const frmScreen &codes, const char *name) { return codes.Box<oAllPurposeBox>(name); }

    Item item;
    std::unique_ptr<frmScreen> screen;
};

} // namespace

TEST_F(CodeWordsList, TheTextsStayTheCodesAndTheWordsStandBehindThem)
{
    open();
    ASSERT_EQ(32, box().count());
    const int row = box().findText(QStringLiteral("HFN"));
    EXPECT_EQ(QStringLiteral("HFN"), box().itemText(row));
    EXPECT_EQ(QStringLiteral("Hrng"), box().itemData(row, oCodeDelegate::ColumnRole).toString());
    EXPECT_EQ(QStringLiteral("Final hearing"), box().itemData(row, oCodeDelegate::WordsRole).toString());
    EXPECT_EQ(QStringLiteral("Hrng  Final hearing"), box().itemData(row, Qt::AccessibleDescriptionRole).toString());
    const int without = box().findText(QStringLiteral("DOT"));
    EXPECT_EQ(QString(), box().itemData(without, oCodeDelegate::WordsRole).toString());
}

TEST_F(CodeWordsList, TypingAWordInTheOpenListFindsTheCodeAndEnterTakesIt)
{
    open();
    openList();
    QTest::keyClicks(&list(), QStringLiteral("final h"));
    EXPECT_EQ(QStringLiteral("HFN"), current());
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_FALSE(list().isVisible());
    EXPECT_EQ(QStringLiteral("HFN"), box().Code());
    key(*screen, Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("HFN"), item->Code());
}

TEST_F(CodeWordsList, ASecondWordIsFoundTooAndOneThatNoneHasChangesNothing)
{
    open();
    openList();
    QTest::keyClicks(&list(), QStringLiteral("expert"));
    EXPECT_EQ(QStringLiteral("REX"), current());
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClicks(&list(), QStringLiteral("nothing"));
    EXPECT_EQ(QStringLiteral("REX"), current());
}

TEST_F(CodeWordsList, TypingACodeInTheOpenListWorksAsInAListWithoutWords)
{
    open();
    openList();
    for (const char *typed : {"hi", "DB", "rr", "d", "dd", "REX", "ac"}) {
        QStringList found;
        for (const bool hasWords : {false, true}) {
            auto *words = box().findChild<clsCodeList *>();
            list().removeEventFilter(words);
            if (hasWords)
                list().installEventFilter(words);
            list().setCurrentIndex(list().model()->index(0, 0));
            QTest::qWait(QApplication::keyboardInputInterval() + 50);
            QTest::keyClicks(&list(), QString::fromLatin1(typed));
            found << current();
        }
        EXPECT_EQ(found[0], found[1]) << typed;
        EXPECT_EQ(QString::fromLatin1(typed).left(1).toUpper(), found[1].left(1)) << typed;
    }
}

TEST_F(CodeWordsList, EscWithTheFocusOnTheButtonClosesTheListOnly)
{
    open();
    openList();
    QTest::keyClick(&list(), Qt::Key_Tab);
    auto *change = list().window()->findChild<oCustomButton *>(QStringLiteral("cmdCodeWords"));
    ASSERT_TRUE(change);
    EXPECT_EQ(change, list().window()->focusWidget());
    QTest::keyClick(change, Qt::Key_Escape);
    EXPECT_FALSE(list().isVisible());
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("AOT"), box().Code());
}

TEST_F(CodeWordsList, BesideTheBoxStandsWhatTheCodeIs)
{
    open();
    EXPECT_EQ(QStringLiteral("Att / Conf"), note().Words());
    type(box(), QStringLiteral("hfn"));
    EXPECT_EQ(QStringLiteral("Hrng  Final hearing"), note().Words());
    EXPECT_EQ(QStringLiteral("Hrng  Final hearing"), box().accessibleDescription());
    type(box(), QStringLiteral("XX"));
    EXPECT_EQ(QString(), note().Words());
    EXPECT_GT(note().x(), box().geometry().right());
}

TEST_F(CodeWordsList, TheWordsAreChangedFromTheList)
{
    open();
    inCodes([](frmScreen &codes) {
        EXPECT_EQ(QStringLiteral("Final hearing"), words(codes, "txtHFN").Text());
        words(codes, "txtHFN").setText(QStringLiteral("Last hearing"));
        words(codes, "txtAOT").setText(QStringLiteral("Attending others"));
        words(codes, "txtDBL").setText(QString());
        codes.Save();
    });
    EXPECT_EQ(QByteArray("Code,Words\r\nACT,Attending court\r\nAOT,Attending others\r\nHFN,Last hearing\r\n"
                         "REX,Report of an expert\r\n"),
        bytesOf(path("Databases/Codes.csv")));
    EXPECT_EQ(QStringLiteral("Att / Conf  Attending others"), note().Words());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(screen->isVisible());
}

TEST_F(CodeWordsList, CancelAndASaveWithoutAChangeLeaveTheFile)
{
    open();
    inCodes([](frmScreen &codes) { words(codes, "txtHFN").setText(QStringLiteral("Last hearing")); });
    EXPECT_EQ(QByteArray(Csv), bytesOf(path("Databases/Codes.csv")));
    inCodes([](frmScreen &codes) { codes.Save(); });
    EXPECT_EQ(QByteArray(Csv), bytesOf(path("Databases/Codes.csv")));
}

TEST_F(CodeWordsList, WhatCantBeWrittenIsToldOnceAndNothingTypedIsLost)
{
    open();
    inCodes([this](frmScreen &codes) {
        words(codes, "txtHFN").setText(QStringLiteral("Last hearing"));
        FileSystem().faultPoint = [](clsFileStep step, const QString &) {
            return clsFileFault {step == clsFileStep::OpenToWrite || step == clsFileStep::Truncate ? EACCES : 0};
        };
        codes.Save();
        FileSystem().faultPoint = nullptr;
        EXPECT_TRUE(codes.isVisible());
        EXPECT_EQ(QStringLiteral("Last hearing"), words(codes, "txtHFN").Text());
        EXPECT_EQ(1u, user.messages.size());
    });
    EXPECT_EQ(QByteArray(Csv), bytesOf(path("Databases/Codes.csv")));
}

TEST_F(CodeWordsList, LinesThatCantBeUsedAreToldInTheListAndInTheWindow)
{
    put("Databases/Codes.csv", "HFN,Final hearing\nXYZ,Unknown\n");
    open();
    const QString told = QStringLiteral("Line 2 of Codes.csv names no code, or one a second time");
    openList();
    QStringList texts;
    for (const QLabel *label : list().window()->findChildren<QLabel *>())
        texts << label->text();
    EXPECT_TRUE(texts.contains(told));
    box().hidePopup();
    inCodes([&](frmScreen &codes) {
        EXPECT_EQ(told, codes.findChild<oHeaderBar *>(QStringLiteral("oHeader"))->SubCaption());
    });
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(user.lines.isEmpty());
}
