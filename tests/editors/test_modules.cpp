#include "base/mdClock.h"
#include "base/mdLog.h"
#include "base/mdProgramFolder.h"
#include "editors/mdCheckForBlanks.h"
#include "editors/mdComboboxSelectByItemData.h"
#include "editors/mdConfirmCancelEdit.h"
#include "editors/mdConfirmDelete.h"
#include "editors/mdFormatTextForMenu.h"
#include "editors/mdLoadMenuFromCollection.h"
#include "tests/editors/clsScreenTest.h"

#include <QComboBox>
#include <QDir>
#include <QMenu>

namespace {

class Modules : public clsScreenTest {
protected:
    static QStringList shown(const QMenu &menu)
    {
        QStringList captions;
        for (const QAction *action : menu.actions())
            if (action->isVisible())
                captions << action->text() + (action->isEnabled() ? QString() : QStringLiteral(" (off)"));
        return captions;
    }
    void addGroup(const char *reference, const char *rate)
    {
        const auto group = Form->AddFeeEarnerGroup();
        group->Reference = QString::fromUtf8(reference);
        group->HourlyRate = QString::fromUtf8(rate);
    }
};

} // namespace

TEST_F(Modules, BlanksStopAtTheFirstEmptyFieldWithOneMessage)
{
    EXPECT_FALSE(mdCheckForBlanks(QStringList {QStringLiteral("a"), QString(), QString()}));
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Please complete all fields marked with a *"), user.messages[0].text);
    EXPECT_EQ(QStringLiteral("Required Fields"), user.messages[0].title);
    EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
}

TEST_F(Modules, BlanksAloneCountAsFilled)
{
    EXPECT_TRUE(mdCheckForBlanks(QStringList {QStringLiteral(" ")}));
    EXPECT_TRUE(mdCheckForBlanks(QStringList {}));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Modules, CancellingAnEditAsksNothing)
{
    EXPECT_TRUE(mdConfirmCancelEdit(QStringLiteral("Counsel"), QStringLiteral("anything")));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Modules, DeletingAsksAndOnlyYesDeletes)
{
    user.answers = {clsUserInterface::Yes, clsUserInterface::No};
    EXPECT_TRUE(mdConfirmDelete(QStringLiteral("Counsel")));
    EXPECT_FALSE(mdConfirmDelete(QStringLiteral("Disbursements"), true));
    ASSERT_EQ(2u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Are you sure you wish to delete this Counsel?"), user.messages[0].text);
    EXPECT_EQ(QStringLiteral("Are you sure you wish to delete the selected Disbursements?"), user.messages[1].text);
    for (const auto &message : user.messages) {
        EXPECT_EQ(QStringLiteral("Delete?"), message.title);
        EXPECT_EQ(clsUserInterface::YesNo, message.buttons);
        EXPECT_EQ(1, message.icon);
    }
}

TEST_F(Modules, AListSelectsTheFirstEntryWithTheDataOrStaysAsItWas)
{
    QComboBox list;
    list.addItem(QStringLiteral("one"), 7);
    list.addItem(QStringLiteral("two"), 9);
    list.addItem(QStringLiteral("three"), 9);
    mdComboboxSelectByItemData(list, 9);
    EXPECT_EQ(1, list.currentIndex());
    mdComboboxSelectByItemData(list, 8);
    EXPECT_EQ(1, list.currentIndex());
}

TEST_F(Modules, SelectingByDataTellsTheLogBeforeAndAfter)
{
    SetProgramFolder(folder.path());
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Logs")));
    SetLogSwitch([] { return true; });
    put(qPrintable(QStringLiteral("Logs/") + QFileInfo(LogPath()).fileName()), "");
    QComboBox list;
    mdComboboxSelectByItemData(list, 1);
    const QByteArray log = bytesOf(LogPath());
    SetLogSwitch(nullptr);
    SetProgramFolder(QString());
    EXPECT_EQ(2, log.count(" Combobox Select By Item Data"));
    EXPECT_LT(log.indexOf(" : Begin Combobox"), log.indexOf(" : End Combobox"));
}

TEST_F(Modules, ATextForAMenuIsNeitherAccessKeyNorSeparator)
{
    EXPECT_EQ(QStringLiteral("R&&D"), mdFormatTextForMenu(QStringLiteral("R&D")));
    EXPECT_EQ(QString(QChar(0x2014)), mdFormatTextForMenu(QStringLiteral("-")));
    EXPECT_EQ(QStringLiteral("--"), mdFormatTextForMenu(QStringLiteral("--")));
    EXPECT_EQ(QString(), mdFormatTextForMenu(QString()));
}

TEST_F(Modules, AMenuOfAnEmptyCollectionSaysSo)
{
    QMenu menu;
    mdLoadMenuFromCollection(menu, Form->FeeEarnerGroupsCollection(), u"Reference");
    EXPECT_EQ(QStringList {QStringLiteral("No items available (off)")}, shown(menu));
}

TEST_F(Modules, AMenuIsMadeAnewEachTimeInTheOrderOfTheCollection)
{
    addGroup("R&D", "2");
    addGroup("-", "10");
    QMenu menu;
    mdLoadMenuFromCollection(menu, Form->FeeEarnerGroupsCollection(), u"Reference");
    const QStringList expected {QStringLiteral("R&&D"), QString(QChar(0x2014))};
    EXPECT_EQ(expected, shown(menu));
    mdLoadMenuFromCollection(menu, Form->FeeEarnerGroupsCollection(), u"Reference");
    EXPECT_EQ(expected, shown(menu));
    EXPECT_EQ(2, menu.actions().constLast()->data().toInt());
    Form->DeleteFeeEarnerGroup(2);
    Form->DeleteFeeEarnerGroup(1);
    mdLoadMenuFromCollection(menu, Form->FeeEarnerGroupsCollection(), u"Reference");
    EXPECT_EQ(QStringList {QStringLiteral("No items available (off)")}, shown(menu));
}

TEST_F(Modules, AMenuIsSortedByAPropertyAndTheCollectionIsNot)
{
    addGroup("b", "2");
    addGroup("a", "10");
    addGroup("c", "2");
    QMenu menu;
    mdLoadMenuFromCollection(menu, Form->FeeEarnerGroupsCollection(), u"Reference", u"Reference");
    EXPECT_EQ(QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}), shown(menu));
    // The entry still has the item's index in its collection.
    EXPECT_EQ(2, menu.actions().at(1)->data().toInt());
    mdLoadMenuFromCollection(
        menu, Form->FeeEarnerGroupsCollection(), u"Reference", u"OrderID", clsMenuOrder::Descending);
    EXPECT_EQ(QStringList({QStringLiteral("c"), QStringLiteral("a"), QStringLiteral("b")}), shown(menu));
    mdLoadMenuFromCollection(menu, Form->FeeEarnerGroupsCollection(), u"Reference", u"HourlyRate");
    EXPECT_EQ(QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}), shown(menu));
    EXPECT_EQ(QStringLiteral("b"), Form->FeeEarnerGroup(1)->Reference());
}
