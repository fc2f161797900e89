#include "controls/oFooterBar.h"

#include "base/mdClock.h"
#include "base/mdGetVersionInfo.h"
#include "controls/mdTheme.h"
#include "controls/oTimeSpentBox.h"

#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QLocale>
#include <QProgressBar>
#include <QScopeGuard>
#include <QTimer>
#include <QtTest>

#include <gtest/gtest.h>

namespace {

class FooterBar : public testing::Test {
protected:
    FooterBar()
    {
        SetClock([this] { return now; });
        footer = std::make_unique<oFooterBar>();
        footer->resize(1000, footer->sizeHint().height());
    }
    ~FooterBar() override { SetClock({}); }

    QString label(const char *name) const
    {
        const auto *found = footer->findChild<QLabel *>(QLatin1String(name));
        return found ? found->text() : QStringLiteral("(none)");
    }
    void second() { QMetaObject::invokeMethod(footer->findChild<QTimer *>(QStringLiteral("tmrUpdate")), "timeout"); }
    /// The number of pixels of a colour in the progress bar.
    int dots(const QColor &colour) const
    {
        const QImage image = footer->ProgressBar()->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == colour;
        return count;
    }

    QDateTime now {QDate(2026, 11, 21), QTime(14, 3)};
    std::unique_ptr<oFooterBar> footer;
};

/// Counts how often a widget is painted.
class clsPaintCounter : public QObject {
public:
    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

} // namespace

TEST_F(FooterBar, TellsTheProgramAndItsVersion)
{
    EXPECT_EQ(QStringLiteral("Velmor ZR3 v") + GetVersionInfo(), label("lblProgramInfo"));
}

TEST_F(FooterBar, TellsTheTimeEachSecond)
{
    const auto *timer = footer->findChild<QTimer *>(QStringLiteral("tmrUpdate"));
    ASSERT_NE(nullptr, timer);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(1000, timer->interval());
    EXPECT_EQ(QStringLiteral("21 November 2026 | 14:03"), label("lblDateTime"));
    now = QDateTime(QDate(2027, 1, 1), QTime(0, 0, 1));
    EXPECT_EQ(QStringLiteral("21 November 2026 | 14:03"), label("lblDateTime"));
    second();
    EXPECT_EQ(QStringLiteral("1 January 2027 | 00:00"), label("lblDateTime"));
}

TEST_F(FooterBar, IsBritishOnAnyDesktop)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    now = QDateTime(QDate(2026, 3, 5), QTime(9, 5));
    footer->UpdateInfo();
    EXPECT_EQ(QStringLiteral("5 March 2026 | 09:05"), label("lblDateTime"));
    QLocale::setDefault(before);
}

TEST_F(FooterBar, HasTheClaimsClock)
{
    ASSERT_NE(nullptr, footer->TimeSpentTimer());
    EXPECT_TRUE(footer->isAncestorOf(footer->TimeSpentTimer()));
}

TEST_F(FooterBar, ShowsHowFarWorkHasCome)
{
    footer->showProgress(5, 20, QStringLiteral("Loading, please wait"));
    EXPECT_EQ(5, footer->ProgressBar()->value());
    EXPECT_EQ(20, footer->ProgressBar()->maximum());
    EXPECT_EQ(QStringLiteral("Loading, please wait"), footer->ProgressBar()->format());
    const int quarter = dots(Theme::Purple);
    EXPECT_GT(quarter, 0);
    footer->showProgress(20, 20, QStringLiteral("Loading, please wait"));
    EXPECT_GT(dots(Theme::Purple), 3 * quarter);
}

TEST_F(FooterBar, DrawsNothingAtZero)
{
    EXPECT_EQ(0, dots(Theme::Purple) + dots(Theme::Band));
    footer->showProgress(5, 20, QStringLiteral("100 % of it"));
    EXPECT_GT(dots(Theme::Purple), 0);
    footer->clearProgress();
    EXPECT_EQ(0, footer->ProgressBar()->value());
    EXPECT_EQ(QString(), footer->ProgressBar()->format());
    EXPECT_EQ(0, dots(Theme::Purple) + dots(Theme::Band));
}

TEST_F(FooterBar, TakesFiguresThatMakeNoSense)
{
    footer->showProgress(5, 0, QStringLiteral("x"));
    EXPECT_EQ(0, dots(Theme::Purple));
    footer->showProgress(50, 20, QStringLiteral("x"));
    EXPECT_EQ(20, footer->ProgressBar()->value());
    footer->showProgress(-3, 20, QStringLiteral("x"));
    EXPECT_EQ(0, footer->ProgressBar()->value());
    footer->showProgress(1, -1, QString());
    EXPECT_EQ(0, dots(Theme::Purple));
}

TEST_F(FooterBar, RepaintsAtOnceAndOnlyWhatDiffers)
{
    footer->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(footer.get()));
    QCoreApplication::processEvents();
    clsPaintCounter counter;
    footer->ProgressBar()->installEventFilter(&counter);
    footer->showProgress(5, 20, QStringLiteral("Loading"));
    const int first = counter.paints;
    EXPECT_GE(first, 1) << "without the event loop";
    footer->showProgress(5, 20, QStringLiteral("Loading"));
    QCoreApplication::processEvents();
    EXPECT_LE(counter.paints, first + 1) << "what is left of the first call, and no more";
    const int settled = counter.paints;
    footer->showProgress(5, 20, QStringLiteral("Loading"));
    QCoreApplication::processEvents();
    EXPECT_EQ(settled, counter.paints);
}

TEST_F(FooterBar, NothingMovesWhenATextChanges)
{
    footer->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(footer.get()));
    const auto places = [this] {
        footer->layout()->activate();
        std::vector<QRect> result;
        for (const QWidget *child : footer->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
            result.push_back(child->geometry());
        return result;
    };
    const std::vector<QRect> before = places();
    footer->showProgress(5, 20, QString(300, u'x'));
    footer->TimeSpentTimer()->setTimeSpent(QStringLiteral("1000:00"));
    footer->TimeSpentTimer()->StartTimer();
    now = QDateTime(QDate(2026, 9, 30), QTime(20, 0));
    second();
    EXPECT_EQ(before, places());
}

TEST_F(FooterBar, FollowsTheDesktopsFontInAllItsParts)
{
    const QFont desktop = QApplication::font();
    const auto restore = qScopeGuard([&] { QApplication::setFont(desktop); });
    QFont large = desktop;
    large.setPointSizeF(2 * desktop.pointSizeF());
    QApplication::setFont(large);
    QCoreApplication::processEvents();
    const oFooterBar fresh; // as in a program started with that font
    EXPECT_EQ(fresh.minimumSize(), footer->minimumSize());
    const QList<QWidget *> expected = fresh.findChildren<QWidget *>();
    const QList<QWidget *> parts = footer->findChildren<QWidget *>();
    ASSERT_EQ(expected.size(), parts.size());
    int small = 0;
    for (int i = 0; i < parts.size(); ++i) {
        const std::string name = parts[i]->objectName().toStdString();
        EXPECT_EQ(expected[i]->font(), parts[i]->font()) << name;
        EXPECT_EQ(expected[i]->minimumSize(), parts[i]->minimumSize()) << name;
        EXPECT_EQ(expected[i]->sizeHint(), parts[i]->sizeHint()) << name;
        small += parts[i]->font().pointSizeF() == large.pointSizeF() - 1;
    }
    EXPECT_GE(small, 5) << "two texts, the progress, the time and its button";
    EXPECT_EQ(fresh.sizeHint(), footer->sizeHint());
}
