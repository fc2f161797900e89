// From section to section: the targets of Prev and Next, and the keys that follow the order of the tabs.

#include "controls/oCustomButton.h"
#include "controls/oLeftRightButton.h"
#include "editors/mdSections.h"
#include "formdata/mdBegunSections.h"
#include "formdata/mdSectionTabs.h"
#include "tests/editors/clsScreenTest.h"

#include <QAccessible>
#include <QSet>

namespace {

class WalkKeys : public clsScreenTest {
protected:
    void SetUp() override
    {
        clsScreenTest::SetUp();
        SetOpenSection([this](const QString &text) { target = text; });
    }

    /// Opens the section, presses the key in the focused widget or in a control, and returns the target.
    QString leadsTo(const QString &section, Qt::Key key, const char *control = nullptr)
    {
        target.clear();
        const auto screen = opened(section);
        if (control)
            focusPart(screen->Box(control))->setFocus(Qt::TabFocusReason);
        QTest::keyClick(screen->focusWidget() ? screen->focusWidget() : screen.get(), key, Qt::ControlModifier);
        EXPECT_EQ(target.isEmpty(), screen->isVisible());
        return target;
    }
    static QString spoken(const frmScreen &screen, const char *button)
    {
        auto *found = screen.findChild<QWidget *>(QString::fromLatin1(button));
        return QAccessible::queryAccessibleInterface(found)->text(QAccessible::Name);
    }
    static QString tip(const frmScreen &screen, const char *button)
    {
        return screen.findChild<QWidget *>(QString::fromLatin1(button))->toolTip();
    }
    static QStringList sections(const char *type)
    {
        QStringList all;
        for (int tab = 1; tab <= 4; ++tab)
            all += mdSubSectionTabs(tab, QString::fromLatin1(type));
        return all;
    }

    QString target;
};

} // namespace

TEST_F(WalkKeys, PrevAndNextSayWhereTheyLead)
{
    const auto said = [](const char *type, const char *section) {
        Form->FormType = QString::fromLatin1(type);
        const auto screen = created(QString::fromLatin1(section));
        EXPECT_EQ(tip(*screen, "btnLeft").isEmpty() ? QStringLiteral("Previous") : tip(*screen, "btnLeft"),
            spoken(*screen, "btnLeft"));
        EXPECT_EQ(tip(*screen, "btnRight").isEmpty() ? QStringLiteral("Next") : tip(*screen, "btnRight"),
            spoken(*screen, "btnRight"));
        return tip(*screen, "btnLeft") + u'|' + tip(*screen, "btnRight");
    };
    EXPECT_EQ(QStringLiteral("|Next: Solicitor Details"), said("Claim1", "Client Details"));
    EXPECT_EQ(QStringLiteral("Previous: Solicitor Details|Next: Case Information"), said("Claim1", "Previous Advice"));
    EXPECT_EQ(QStringLiteral("Previous: Solicitor Details|Next: Outcome of Case"), said("Claim1A", "Previous Advice"));
    EXPECT_EQ(QStringLiteral("Previous: Details of Work|Next: Counsel Outstanding Claims"),
        said("Claim1", "Schedule of Time"));
    EXPECT_EQ(QStringLiteral("Previous: Details of Work|Next: Communications"), said("Claim1A", "Schedule of Time"));
    EXPECT_EQ(QStringLiteral("Previous: Details of Monies Awarded|"), said("Claim1", "Debtor's Details"));
    EXPECT_EQ(QStringLiteral("Previous: Solicitor Details|"), said("Claim2", "Previous Advice"))
        << "of an unknown type";
}

TEST_F(WalkKeys, PrevAndNextLeadWhereTheySay)
{
    for (const char *type : {"Claim1", "Claim1A"}) {
        Form->FormType = QString::fromLatin1(type);
        for (const QString &section : sections(type))
            for (const char *button : {"btnLeft", "btnRight"}) {
                const auto screen = opened(section);
                const auto *found = screen->findChild<oCustomButton *>(QString::fromLatin1(button));
                if (!found || !found->isEnabled())
                    continue;
                EXPECT_EQ(QLatin1String(button) == QLatin1String("btnLeft") ? QStringLiteral("<< Prev")
                                                                            : QStringLiteral("Next >>"),
                    found->Caption());
                const QString said = found->toolTip().section(QStringLiteral(": "), 1);
                press(*screen, button);
                EXPECT_EQ(said, target) << qPrintable(section) << button;
            }
    }
}

TEST_F(WalkKeys, TheKeysWalkTheTabsInTheirOrder)
{
    for (const char *type : {"Claim1", "Claim1A"}) {
        Form->FormType = QString::fromLatin1(type);
        const QStringList all = sections(type);
        for (int i = 4; i < all.size(); ++i) { // from the first with Prev and Next
            EXPECT_EQ(all.value(i + 1), leadsTo(all[i], Qt::Key_PageDown)) << type << ' ' << qPrintable(all[i]);
            EXPECT_EQ(all.value(i - 1), leadsTo(all[i], Qt::Key_PageUp)) << type << ' ' << qPrintable(all[i]);
        }
    }
    EXPECT_EQ(QString(), leadsTo(QStringLiteral("Debtor's Details"), Qt::Key_PageDown)) << "the end";
}

TEST_F(WalkKeys, ScreensWithoutPrevAndNextHaveNone)
{
    for (const QString &section : mdSubSectionTabs(1, QStringLiteral("Claim1"))) {
        EXPECT_EQ(QString(), leadsTo(section, Qt::Key_PageDown)) << qPrintable(section);
        EXPECT_EQ(QString(), leadsTo(section, Qt::Key_PageUp)) << qPrintable(section);
    }
}

TEST_F(WalkKeys, NoFieldKeepsThem)
{
    const auto group = Form->AddFeeEarnerGroup();
    Form->AddFeeEarner()->GroupUniqueID = group->UniqueID();
    QSet<QString> walked;
    for (const char *type : {"Claim1", "Claim1A"}) {
        Form->FormType = QString::fromLatin1(type);
        for (const QString &section : sections(type).mid(4, sections(type).size() - 5)) {
            std::vector<const char *> controls;
            const auto built = created(section);
            for (const clsScreenField &field : built->Fields())
                controls.push_back(field.row->control);
            for (const char *control : controls) {
                if (!*control || walked.contains(section + QLatin1String(control)))
                    continue;
                walked << section + QLatin1String(control);
                EXPECT_NE(QString(), leadsTo(section, Qt::Key_PageDown, control)) << qPrintable(section) << control;
            }
        }
    }
    EXPECT_GT(walked.size(), 100);
}

TEST_F(WalkKeys, TheyStoreAsNextDoes)
{
    const auto screen = opened(QStringLiteral("Client Details"));
    type(screen->Box("txtSurname"), QStringLiteral("Hartwell"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("Solicitor Details"), target);
    EXPECT_EQ(QStringLiteral("Hartwell"), Form->ClientDetails.Surname());
}

TEST_F(WalkKeys, ABoxWithBadInputHoldsThemAsItHoldsNext)
{
    const auto screen = opened(QStringLiteral("Previous Advice"));
    type(screen->Box("txtTotalCostsIncurred"), QStringLiteral("12x"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(QString(), target);
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(QString(), Form->PreviousAdvice.TotalCostsIncurred());
    type(screen->Box("txtTotalCostsIncurred"), QStringLiteral("12"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("Case Information"), target);
    EXPECT_EQ(QStringLiteral("12.00"), Form->PreviousAdvice.TotalCostsIncurred());
}

TEST_F(WalkKeys, AScreenOnWhichNothingWasEnteredStoresNothingThatCounts)
{
    for (const char *type : {"Claim1", "Claim1A"})
        for (const QString &section : sections(type)) {
            Form = std::make_unique<clsZR3Form>();
            const auto screen = opened(section);
            for (const clsScreenField &field : screen->Fields())
                focusPart(*field.control)->setFocus(Qt::TabFocusReason);
            screen->Save();
            EXPECT_FALSE(screen->isVisible());
            EXPECT_TRUE(mdBegunSections(*Form).isEmpty()) << qPrintable(section);
        }
}
