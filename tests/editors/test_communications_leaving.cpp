#include "tests/editors/clsCommunicationsTest.h"

#include <QAccessible>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>

// The letters and calls: the boxes beside the grid, and what each way of leaving stores.

using CommunicationsLeaving = clsCommunicationsTest;

TEST_F(CommunicationsLeaving, TheBoxesShowTheClaimsSettings)
{
    Form->Communications.EnhanceLettersIn = true;
    Form->Communications.LettersInEnhancementUniqueID = idOf(2);
    openWith(1);
    EXPECT_FALSE(enhancement("oCallsEnhancement").IncludeInEnhancements());
    EXPECT_TRUE(enhancement("oLettersInEnhancement").IncludeInEnhancements());
    EXPECT_EQ(idOf(2), enhancement("oLettersInEnhancement").EnhancementUniqueID());
    EXPECT_FALSE(enhancement("oLettersOutEnhancement").IncludeInEnhancements());
}

TEST_F(CommunicationsLeaving, EveryWayOutButTheCloseBoxStoresTheBoxes)
{
    struct Way {
        const char *name; ///< of a button, a menu entry or a key
        const char *section;
    };
    const Way ways[] = {
        {"cmdClose", ""},
        {"Esc", ""},
        {"btnLeft", "Disbursements"},
        {"btnRight", "Details of Costs Awarded"},
        {"cmdScheduleOfTime", "Schedule of Time"},
        {"cmdDisbursements", "Disbursements"},
        {"mnuScheduleOfTime", "Schedule of Time"},
        {"mnuDisbursements", "Disbursements"},
    };
    QString target;
    SetOpenSection([&target](const QString &text) { target = text; });
    openWith(1);
    for (const Way &way : ways) {
        for (const char *flag : {"EnhanceCalls", "EnhanceLettersIn", "EnhanceLettersOut"})
            Form->Communications.field(QString::fromUtf8(flag))->writeBoolean(false);
        for (const char *id :
            {"CallsEnhancementUniqueID", "LettersInEnhancementUniqueID", "LettersOutEnhancementUniqueID"})
            Form->Communications.field(QString::fromUtf8(id))->writeText({});
        target.clear();
        screen = opened(QStringLiteral("Communications"));
        changeBoxes();
        EXPECT_EQ(untouched(), settings()) << way.name;
        const QString name = QString::fromUtf8(way.name);
        if (auto *entry = screen->findChild<QAction *>(name))
            entry->trigger();
        else if (auto *button = screen->findChild<QWidget *>(name))
            click(*button);
        else
            QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(screen->isVisible()) << way.name;
        EXPECT_EQ(changed(), settings()) << way.name;
        EXPECT_EQ(QString::fromUtf8(way.section), target) << way.name;
    }
}

TEST_F(CommunicationsLeaving, WhatIsUntickedIsStoredWithoutAnEnhancement)
{
    Form->Communications.EnhanceCalls = true;
    Form->Communications.CallsEnhancementUniqueID = idOf(2);
    openWith(1);
    click(*enhancement("oCallsEnhancement").findChild<oCheckBox *>());
    clsScreenTest::press(*screen, "cmdClose");
    EXPECT_EQ(untouched(), settings());
}

TEST_F(CommunicationsLeaving, TheCloseBoxDropsTheBoxesAndKeepsTheCounts)
{
    openWith(1);
    press(Qt::Key_C);
    changeBoxes();
    screen->close();
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(untouched(), settings());
    EXPECT_EQ((Counts {4, 5, 7}), counts(1));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CommunicationsLeaving, TheMenuSaveWritesTheCountsAndNotTheBoxes)
{
    Form->path = path("claim.vzf");
    openWith(1);
    press(Qt::Key_C);
    changeBoxes();
    QTest::keyClick(screen->focusWidget(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(untouched(), settings());
    const QByteArray saved = bytesOf(path("claim.vzf"));
    EXPECT_TRUE(saved.contains("<calls>4</calls>"));
    EXPECT_TRUE(saved.contains("<enhancecalls>False</enhancecalls>"));
}

TEST_F(CommunicationsLeaving, PrevLeadsByTheFormType)
{
    QString target;
    SetOpenSection([&target](const QString &text) { target = text; });
    openWith(1);
    const std::pair<const char *, const char *> types[]
        = {{"Claim1", "Disbursements"}, {"Claim1A", "Schedule of Time"}};
    for (const auto &[type, section] : types) {
        Form->FormType = QString::fromUtf8(type);
        screen = opened(QStringLiteral("Communications"));
        screen->Prev();
        EXPECT_EQ(QString::fromUtf8(section), target);
        screen = opened(QStringLiteral("Communications"));
        screen->Next();
        EXPECT_EQ(QStringLiteral("Details of Costs Awarded"), target);
    }
}

TEST_F(CommunicationsLeaving, OnANarrowWindowTheJumpsAreInTheirMenuOnly)
{
    QString target;
    SetOpenSection([&target](const QString &text) { target = text; });
    openWith(1);
    auto *button = screen->findChild<QWidget *>(QStringLiteral("cmdDisbursements"));
    EXPECT_TRUE(button->isVisible());
    screen->resize(800, 600);
    QTest::qWait(10);
    EXPECT_FALSE(button->isVisible());
    QAction *menu = screen->findChild<QMenuBar *>()->actions().at(2);
    EXPECT_EQ(QStringLiteral("&Jump To"), menu->text());
    QTest::keyClick(screen->focusWidget(), Qt::Key_J, Qt::AltModifier);
    ASSERT_TRUE(menu->menu()->isVisible());
    const QList<QAction *> entries = menu->menu()->actions();
    ASSERT_EQ(2, entries.size());
    EXPECT_EQ(QStringLiteral("&Schedule of Time"), entries[0]->text());
    EXPECT_EQ(QStringLiteral("&Disbursements"), entries[1]->text());
    QTest::keyClick(menu->menu(), Qt::Key_D);
    EXPECT_EQ(QStringLiteral("Disbursements"), target);
}

TEST_F(CommunicationsLeaving, TheBoxesStandBelowTheGridInOneLineWhereThereIsRoomAndNothingIsCut)
{
    openWith(20);
    const auto place = [this](const char *name) {
        const QWidget &box = screen->Box(name);
        return QRect(box.mapTo(screen.get(), QPoint()), box.size());
    };
    for (const QSize size : {QSize(1100, 680), QSize(1284, 722), QSize(902, 507), QSize(620, 640)}) {
        screen->resize(size);
        QTest::qWait(20);
        const QRect calls = place("oCallsEnhancement");
        const QRect lettersIn = place("oLettersInEnhancement");
        const QRect lettersOut = place("oLettersOutEnhancement");
        EXPECT_GT(calls.top(), place("sgCommunications").bottom()) << size.width();
        if (size.width() >= 902) {
            EXPECT_EQ(calls.top(), lettersIn.top()) << size.width();
            EXPECT_EQ(calls.top(), lettersOut.top()) << size.width();
            EXPECT_GT(lettersIn.left(), calls.right()) << size.width();
            EXPECT_GT(lettersOut.left(), lettersIn.right()) << size.width();
        } else {
            EXPECT_GT(lettersIn.top(), calls.bottom()) << size.width();
            EXPECT_GT(lettersOut.top(), lettersIn.bottom()) << size.width();
        }
        const QScrollArea &page = *screen->findChild<QScrollArea *>();
        EXPECT_EQ(0, page.horizontalScrollBar()->maximum());
        EXPECT_LE(page.widget()->width(), page.viewport()->width());
        for (const clsScreenField &field : screen->Fields()) {
            EXPECT_GE(field.control->width(), field.control->minimumSizeHint().width()) << size.width();
            EXPECT_GE(field.control->height(), field.control->minimumSizeHint().height()) << size.width();
        }
        // If everything is visible, there is nothing to scroll.
        if (size.height() >= 680) {
            EXPECT_EQ(0, page.verticalScrollBar()->maximum()) << size.height();
        }
    }
}

TEST_F(CommunicationsLeaving, TheBoxesAreStoredInTheirOrder)
{
    expectStoredInOrder({"enhancecalls", "callsenhancementuniqueid", "enhancelettersin", "lettersinenhancementuniqueid",
                            "enhancelettersout", "lettersoutenhancementuniqueid"},
        [] {
            Form = std::make_unique<clsZR3Form>();
            Form->AddEnhancement();
            return opened(QStringLiteral("Communications"));
        });
}

TEST_F(CommunicationsLeaving, TheTicksOfOneNameAreReadOutWithTheirFrames)
{
    openWith(1);
    QStringList spoken;
    for (const char *name : {"oCallsEnhancement", "oLettersInEnhancement", "oLettersOutEnhancement"}) {
        const QAccessibleInterface *part
            = QAccessible::queryAccessibleInterface(enhancement(name).findChild<oCheckBox *>());
        QString groups;
        for (const QAccessibleInterface *at = part->parent(); at; at = at->parent())
            if (at->role() == QAccessible::Grouping)
                groups += at->text(QAccessible::Name) + u'/';
        spoken << groups + part->text(QAccessible::Name);
    }
    EXPECT_EQ(QStringList({QStringLiteral("Calls/Include in Enhancements"),
                  QStringLiteral("Letters In/Include in Enhancements"),
                  QStringLiteral("Letters Out/Include in Enhancements")}),
        spoken);
}
