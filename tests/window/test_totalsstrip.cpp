// The strip of totals above the footer.

#include "controls/mdTheme.h"
#include "tests/window/clsFiguresTest.h"

#include <QAccessible>

namespace {

class TotalsStrip : public clsFiguresTest {
protected:
    QStringList shownAt(int width) const
    {
        strip().resize(width, strip().height());
        return strip().Shown();
    }
    int tabStops() const
    {
        int stops = 0;
        for (const auto *item : strip().findChildren<oStripItem *>())
            stops += !item->isHidden() && (item->focusPolicy() & Qt::TabFocus) ? 1 : 0;
        return stops;
    }
};

} // namespace

TEST_F(TotalsStrip, ShowsTheTotalsOfClaim1)
{
    startOn("housing-typical.zr3");
    EXPECT_EQ(QStringList({"Schedule 4,213.49", "Letters and calls 867.17", "Experts 3,591.21", "Disbursements 735.25",
                  "VAT 1,397.19", "Total 10,804.31", "Counsel 1,756.84"}),
        strip().Shown());
    EXPECT_EQ(QStringLiteral("Total 10,804.31"), figure("total").accessibleName());
    EXPECT_EQ(nullptr, strip().Item(QStringLiteral("limit")));
}

TEST_F(TotalsStrip, ShowsTheTotalsOfClaim1A)
{
    startOn("care-typical.zr3");
    Form->ActualCostsIncurred.FixedFee = QStringLiteral("1500.00");
    renew();
    // VAT 1,998.648 and 231; total 10,213.50, 3,616.5373 and that VAT.
    const QStringList shown = shownAt(1600);
    EXPECT_EQ(QStringList({"VAT 2,229.65", "Total 16,059.69", "Counsel 1,995.95", "Advocacy scheme 3,616.54",
                  "Fixed fee 1,500.00"}),
        shown.mid(4));
}

TEST_F(TotalsStrip, OfANewClaimIsZero)
{
    start();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !strip().Shown().isEmpty(); }, 5000));
    for (const QString &shown : strip().Shown())
        EXPECT_TRUE(shown.endsWith(QLatin1String(" 0.00"))) << shown.toStdString();
}

TEST_F(TotalsStrip, IsFilledOnceTheWindowIsThere)
{
    window = std::make_unique<frmMain>();
    window->Load(sample("housing-typical.zr3"));
    QCoreApplication::processEvents();
    EXPECT_EQ(QStringList(), strip().Shown());
    show(*window);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !strip().Shown().isEmpty(); }, 5000));
}

TEST_F(TotalsStrip, FollowsTheClaim)
{
    startOn("housing-typical.zr3");
    Form->ExpertInvoiceByOrderID(1)->NetAmount = QStringLiteral("0.00");
    const auto old = figure("ExpertInvoicesNetTotal").Figure();
    renew();
    EXPECT_NE(old, figure("ExpertInvoicesNetTotal").Figure());
    user.answers = {clsUserInterface::No};
    entry("mnuNew").trigger();
    ASSERT_TRUE(QTest::qWaitFor([this] { return strip().Shown().contains(QStringLiteral("Total 0.00")); }, 5000));
}

TEST_F(TotalsStrip, MarksAFigureThatCantBeComputed)
{
    startOn("housing-typical.zr3");
    Form->ExpertInvoiceByOrderID(1)->NetAmount = QStringLiteral("much");
    renew();
    const QString why = QStringLiteral("Expert invoice 1: Net Amount holds \"much\", which is not an amount");
    for (const char *key : {"ExpertInvoicesNetTotal", "total"}) {
        EXPECT_EQ(QStringLiteral("!"), figure(key).Figure());
        EXPECT_EQ(why, figure(key).toolTip());
        EXPECT_EQ(why, figure(key).accessibleDescription());
    }
    EXPECT_EQ(QStringLiteral("Experts can't be computed"), figure("ExpertInvoicesNetTotal").accessibleName());
    EXPECT_EQ(QStringLiteral("4,213.49"), figure("ScheduleTotal").Figure());
    EXPECT_EQ(QString(), figure("ScheduleTotal").toolTip());
    // The error is corrected.
    Form->ExpertInvoiceByOrderID(1)->NetAmount = QStringLiteral("1.00");
    renew();
    EXPECT_EQ(QString(), figure("total").toolTip());
}

TEST_F(TotalsStrip, LooksAtACopy)
{
    startOn("care-typical.zr3");
    Form->FASItem(1)->VATForFAS = QString();
    const QString before = Form->XMLOutput();
    renew();
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_EQ(QString(), Form->FASItem(1)->VATForFAS());
}

TEST_F(TotalsStrip, IsOneStopOfTheTabKey)
{
    startOn("housing-typical.zr3");
    EXPECT_EQ(1, tabStops());
    grid().setFocus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(figure("ScheduleTotal").hasFocus());
    press(Qt::Key_Right);
    EXPECT_TRUE(figure("CommsTotal").hasFocus());
    EXPECT_EQ(1, tabStops());
    press(Qt::Key_End);
    EXPECT_TRUE(figure("counsel").hasFocus());
    press(Qt::Key_Right);
    EXPECT_TRUE(figure("counsel").hasFocus());
    press(Qt::Key_Home);
    press(Qt::Key_Left);
    EXPECT_TRUE(figure("ScheduleTotal").hasFocus());
    press(Qt::Key_Right);
    press(Qt::Key_Tab);
    EXPECT_FALSE(strip().isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(figure("CommsTotal").hasFocus()) << "where it was left";
    renew();
    EXPECT_TRUE(figure("CommsTotal").hasFocus());
}

TEST_F(TotalsStrip, GivesWayInANarrowWindow)
{
    startOn("housing-typical.zr3");
    const QStringList all = shownAt(1600);
    EXPECT_EQ(7, all.size());
    int wide = 1600;
    const auto narrowerThan = [&](const QStringList &shown) {
        while (wide > 100 && shownAt(wide) == shown)
            --wide;
        return shownAt(wide);
    };
    const QStringList withOther = narrowerThan(all);
    EXPECT_EQ(
        QStringList({"Schedule 4,213.49", "Other 5,193.63", "VAT 1,397.19", "Total 10,804.31", "Counsel 1,756.84"}),
        withOther);
    EXPECT_LT(wide, 1000);
    EXPECT_EQ(QStringList({"Schedule 4,213.49", "Other 5,193.63", "Total 10,804.31", "Counsel 1,756.84"}),
        narrowerThan(withOther));
    EXPECT_EQ(1, tabStops());
    EXPECT_EQ(4, shownAt(300).size()) << "total and counsel never go";
}

TEST_F(TotalsStrip, OfClaim1AIsNeverCutOff)
{
    startOn("care-typical.zr3");
    const auto words = [this](int width) {
        QStringList result;
        for (const QString &shown : shownAt(width))
            result << shown.left(shown.lastIndexOf(u' '));
        return result.join(u'|');
    };
    QStringList forms {words(1600)};
    for (int width = 1600; width > 620; --width) {
        if (const QString shown = words(width); shown != forms.last())
            forms << shown;
        for (const auto *item : strip().findChildren<oStripItem *>())
            ASSERT_TRUE(item->isHidden() || item->geometry().right() < width) << qPrintable(item->Words()) << width;
    }
    EXPECT_EQ(
        QStringList({"Schedule|Letters and calls|Experts|Disbursements|VAT|Total|Counsel|Advocacy scheme|Fixed fee",
            "Schedule|Other|VAT|Total|Counsel|Advocacy scheme|Fixed fee",
            "Schedule|Other|Total|Counsel|Advocacy scheme|Fixed fee", "Schedule|Other|Total|Counsel|Advocacy scheme",
            "Schedule|Other|Total|Counsel"}),
        forms);
}

TEST_F(TotalsStrip, IsLowerInALowWindow)
{
    startOn("housing-typical.zr3");
    EXPECT_EQ(Theme::scaled(38), strip().height());
    window->resize(1200, Theme::scaled(620) - 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return strip().height() == Theme::scaled(30); }, 2000));
    window->resize(1200, 760);
    EXPECT_TRUE(QTest::qWaitFor([this] { return strip().height() == Theme::scaled(38); }, 2000));
}

TEST_F(TotalsStrip, IsReadAsButtonsWithNames)
{
    startOn("housing-typical.zr3");
    const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&figure("vat"));
    EXPECT_EQ(QAccessible::Button, spoken->role());
    EXPECT_EQ(QStringLiteral("VAT 1,397.19"), spoken->text(QAccessible::Name));
    EXPECT_EQ(QStringLiteral("Totals"), strip().accessibleName());
}
