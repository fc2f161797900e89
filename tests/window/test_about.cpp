#include "base/mdGetVersionInfo.h"
#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"
#include "shell/frmAbout.h"
#include "tests/window/clsWindowTest.h"
#include "wordexport/document/clsMSWord.h"

#include <QFormLayout>
#include <QLabel>

namespace {

using About = clsWindowTest;

/// The caption of the row that holds a label.
QString captionOf(const QLabel &label)
{
    for (const QFormLayout *rows : label.window()->findChildren<QFormLayout *>())
        if (auto *caption = qobject_cast<QLabel *>(rows->labelForField(const_cast<QLabel *>(&label))))
            return caption->text();
    return {};
}

QString resource(const char *name)
{
    return GetResourceData(QString::fromLatin1(name), QStringLiteral("COMPANYINFO"));
}

} // namespace

TEST_F(About, ShowsItsRows)
{
    const frmAbout about(true);
    const auto &version = control<QLabel>(about, "lblVersion");
    EXPECT_EQ(QStringLiteral("Version:"), captionOf(version));
    EXPECT_EQ(QStringLiteral("Velmor ZR3 ") + GetVersionInfo(), version.text());
    const auto &word = control<QLabel>(about, "lblWordStatus");
    EXPECT_EQ(QStringLiteral("MS Word Status:"), captionOf(word));
    EXPECT_EQ(QStringLiteral("Found - Microsoft Word ") + clsMSWord::versionYear(QStringLiteral("12.0")), word.text());
    EXPECT_NE(Theme::Red, word.palette().color(QPalette::WindowText));
    EXPECT_EQ(QStringLiteral("Support Email:"), captionOf(control<QLabel>(about, "lblSupportEmail")));
    EXPECT_TRUE(control<QLabel>(about, "lblSupportEmail").text().contains(resource("ciSupportEmail")));
    EXPECT_EQ(QStringLiteral("Web Address:"), captionOf(control<QLabel>(about, "lblWebAddress")));
    EXPECT_TRUE(control<QLabel>(about, "lblWebAddress").text().contains(resource("ciWebsite")));
}

TEST_F(About, SaysInRedThatThereIsNoWord)
{
    const frmAbout about(false);
    const auto &word = control<QLabel>(about, "lblWordStatus");
    EXPECT_EQ(QStringLiteral("Not Found"), word.text());
    EXPECT_EQ(Theme::Red, word.palette().color(QPalette::WindowText));
}

TEST_F(About, AClickOpensMailAndSite)
{
    frmAbout about(true);
    show(about);
    for (const char *name : {"lblSupportEmail", "lblWebAddress"}) {
        auto &label = control<QLabel>(about, name);
        QTest::mouseClick(&label, Qt::LeftButton, {}, QPoint(10, label.height() / 2));
    }
    EXPECT_EQ(
        QStringList({QStringLiteral("mailto:") + resource("ciSupportEmail"), resource("ciWebsite")}), user.opened);
}

TEST_F(About, TheLinksWorkByKeyboard)
{
    frmAbout about(true);
    show(about);
    auto &label = control<QLabel>(about, "lblSupportEmail");
    ASSERT_TRUE(QTest::qWaitFor([&] {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        return QApplication::focusWidget() == &label;
    }));
    QTest::keyClick(&label, Qt::Key_Return);
    EXPECT_EQ(QStringList(QStringLiteral("mailto:") + resource("ciSupportEmail")), user.opened);
    EXPECT_TRUE(about.isVisible());
}

TEST_F(About, CloseAndEscapeCloseIt)
{
    frmAbout about(true);
    show(about);
    EXPECT_EQ(QStringLiteral("Close"), control<oCustomButton>(about, "cmdClose").Caption());
    QTest::mouseClick(&control<oCustomButton>(about, "cmdClose"), Qt::LeftButton);
    EXPECT_FALSE(about.isVisible());
    show(about);
    QTest::keyClick(&about, Qt::Key_Escape);
    EXPECT_FALSE(about.isVisible());
}
