// When the preview is redrawn, and at which scroll position.

#include "base/mdGetResourceData.h"
#include "base/mdProgramFolder.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "tests/preview/clsPreviewTest.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QTemporaryDir>

namespace {

constexpr auto Schedule = clsPreviewKind::ScheduleOfTime;
constexpr auto Notes = clsPreviewKind::AdditionalInformation;

class PreviewRefresh : public clsPreviewTest {
protected:
    void SetUp() override
    {
        clsPreviewTest::SetUp();
        ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Databases")));
        QFile file(folder.filePath(QStringLiteral("Databases/Preferences Database.vzp")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(
            GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")).toLatin1());
        file.close();
        SetProgramFolder(folder.path());
        qputenv("HOME", QFile::encodeName(folder.path())); // each test has its own registry
        Preferences = std::make_unique<clsZR3PreferencesDatabase>();
        Preferences->AutoRefreshPreview = true;
    }
    void TearDown() override
    {
        Preferences.reset();
        SetProgramFolder(QString());
        clsPreviewTest::TearDown();
    }
    static void leaveItems(int count)
    {
        for (int n = int(Form->ScheduleOfTimeItemsCollection().size()); n > count; --n)
            Form->DeleteScheduleOfTimeItem(n);
        makeLists();
    }
    static QScrollBar &bar() { return *grid().verticalScrollBar(); }

    QTemporaryDir folder;
};

} // namespace

TEST_F(PreviewRefresh, WithoutThePreferenceTheOldPreviewStands)
{
    Preferences->AutoRefreshPreview = false;
    addItems(2);
    mdDrawPreview(Schedule);
    addItems(1);
    mdRefreshPreview(Schedule);
    EXPECT_EQ(11, grid().Rows());
    mdDrawPreview(Schedule); // choosing it in the menu still redraws it
    EXPECT_EQ(13, grid().Rows());
    Preferences->AutoRefreshPreview = true;
    addItems(1);
    mdRefreshPreview(Schedule);
    EXPECT_EQ(15, grid().Rows());
    mdRefreshPreview(Notes);
    EXPECT_EQ(2, grid().Columns());
}

TEST_F(PreviewRefresh, KeepsThePlaceToThePixel)
{
    addItems(300);
    mdDrawPreview(Schedule);
    for (const int place : {0, 1, 7, 1000, 1003, 1011, 3000, bar().maximum() - 1, bar().maximum()}) {
        bar().setValue(place);
        const int first = grid().FirstRowInView();
        const int last = grid().LastRowInView();
        for (int times = 0; times < 3; ++times) {
            mdRefreshPreview(Schedule);
            EXPECT_EQ(place, bar().value());
            EXPECT_EQ(first, grid().FirstRowInView());
            EXPECT_EQ(last, grid().LastRowInView());
        }
    }
}

TEST_F(PreviewRefresh, AMenuEntryStartsFromTheTop)
{
    addItems(300);
    mdDrawPreview(Schedule);
    bar().setValue(2000);
    mdDrawPreview(Schedule);
    EXPECT_EQ(0, bar().value());
    EXPECT_EQ(1, grid().FirstRowInView());
}

TEST_F(PreviewRefresh, ARememberedRowBeyondTheLastIsIgnored)
{
    addItems(300);
    mdDrawPreview(Schedule);
    bar().setValue(bar().maximum());
    leaveItems(3);
    mdRefreshPreview(Schedule); // neither row exists any more
    EXPECT_EQ(13, grid().Rows());
    EXPECT_EQ(0, bar().value());

    addItems(297);
    mdDrawPreview(Schedule);
    bar().setValue(bar().maximum());
    const int first = grid().FirstRowInView();
    ASSERT_LT(first, 600);
    leaveItems((first - 3) / 2 + 1); // the first row still exists, the last does not
    mdRefreshPreview(Schedule);
    EXPECT_LE(grid().FirstRowInView(), first);
    EXPECT_GE(grid().LastRowInView(), first);
    EXPECT_GT(bar().value(), 0);
}

TEST_F(PreviewRefresh, ALongerListKeepsThePlaceToo)
{
    addItems(300);
    mdDrawPreview(Schedule);
    bar().setValue(1234);
    addItems(20);
    mdRefreshPreview(Schedule);
    EXPECT_EQ(1234, bar().value());
}

TEST_F(PreviewRefresh, ThePlaceInsideATallNoteIsKept)
{
    addItem()->Description = QStringLiteral("line\r\n").repeated(300);
    makeLists();
    mdDrawPreview(Notes);
    bar().setValue(777);
    mdRefreshPreview(Notes);
    EXPECT_EQ(777, bar().value());
}

TEST_F(PreviewRefresh, ANarrowerWindowKeepsTheRows)
{
    addItems(300);
    mdDrawPreview(Schedule);
    bar().setValue(3000);
    const int first = grid().FirstRowInView();
    window.resize(700, 600);
    ASSERT_TRUE(QTest::qWaitFor([this] { return sheet->width() == 700; }));
    mdRefreshPreview(Schedule);
    EXPECT_NEAR(first, grid().FirstRowInView(), 2);
}

TEST_F(PreviewRefresh, AnEmptyGridIsFilled)
{
    addItems(2);
    mdRefreshPreview(Schedule);
    EXPECT_EQ(11, grid().Rows());
}

TEST_F(PreviewRefresh, ClearingLeavesNothing)
{
    addItems(2);
    mdDrawPreview(Schedule);
    mdClearPreview();
    EXPECT_EQ(0, grid().Rows());
    EXPECT_EQ(0, grid().Columns());
    EXPECT_FALSE(grid().grab().isNull());
}

TEST_F(PreviewRefresh, WithoutAClaimItIsTheObjectError)
{
    Form.reset();
    EXPECT_EQ(clsRunTimeError::ObjectNotSet, errorOf([] { mdRefreshPreview(Schedule); }));
    EXPECT_TRUE(window.isEnabled());
    EXPECT_TRUE(grid().updatesEnabled());
    Preferences.reset();
    EXPECT_EQ(clsRunTimeError::ObjectNotSet, errorOf([] { mdRefreshPreview(Schedule); }));
}

TEST_F(PreviewRefresh, TheFocusOfTheMenuBarGoesBackToWhatHadIt)
{
    auto *bar = new QMenuBar(&window);
    bar->addMenu(QStringLiteral("&Preview"))->addAction(QStringLiteral("&Schedule of Time"));
    auto *first = new QLineEdit(&window);
    auto *box = new QLineEdit(&window);
    window.layout()->setMenuBar(bar);
    window.layout()->addWidget(first);
    window.layout()->addWidget(box);
    for (QWidget *added : {static_cast<QWidget *>(bar), static_cast<QWidget *>(first), static_cast<QWidget *>(box)})
        added->show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Alt);
    ASSERT_TRUE(bar->hasFocus());
    mdDrawPreview(Schedule);
    EXPECT_TRUE(box->hasFocus());
    EXPECT_FALSE(bar->activeAction()) << "no entry stays chosen";
    // If the bar got the focus in another way, it doesn't know the previous widget.
    bar->setFocus();
    mdDrawPreview(Schedule);
    EXPECT_TRUE(first->hasFocus());
}
