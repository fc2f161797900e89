#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "editors/mdScreenControls.h"
#include "editors/oCounselBox.h"
#include "editors/oEnhancementsBox.h"
#include "editors/oFieldLabel.h"
#include "tests/editors/clsModalTest.h"
#include "tests/support/mdExpectError.h"

#include <QComboBox>
#include <QSignalSpy>

namespace {

using enum clsRowKind;

clsScreen editorOf(const std::vector<clsScreenRow> &rows)
{
    return {.name = "frmThingEdit",
        .header = "Thing",
        .subCaption = "",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {{"bxGeneral", "Thing", rows}},
        .itemWord = "Thing",
        .fileMenu = false};
}

/// Screens as those that the boxes stand on, each with a field before the box and one behind it.
const clsScreen Disbursement = editorOf({
    {Text, "txtDescription", "Description:"},
    {.kind = Other, .control = "oCounsel", .caption = "Counsel:", .other = &CounselOfItem},
    {Date, "txtDateOfWork", "Date of Work:"},
});
const clsScreen TimeItem = editorOf({
    {Text, "txtDescription", "Description:"},
    {.kind = Other, .control = "oEnhancement", .caption = "Include in Enhancements:", .other = &EnhancementsOfItem},
    {Tick, "chkTravel", "Travel:"},
});
const clsScreen Calls = editorOf({
    {.kind = Other,
        .control = "oCallsEnhancement",
        .caption = "Include in Enhancements:",
        .member = "EnhanceCalls CallsEnhancementUniqueID",
        .other = &EnhancementsOfItem},
});

class Boxes : public clsModalTest {
protected:
    template <class Part> static Part &part(const QWidget &box, const char *name)
    {
        auto *found = box.findChild<Part *>(QString::fromUtf8(name));
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }
    static oCheckBox &counselTick(const QWidget &box) { return part<oCheckBox>(box, "chkCounsel"); }
    static QComboBox &counselList(const QWidget &box) { return part<QComboBox>(box, "cmbCounsel"); }
    static oCustomButton &add(const QWidget &box) { return part<oCustomButton>(box, "cmdAddCounsel"); }
    static oCustomButton &edit(const QWidget &box) { return part<oCustomButton>(box, "cmdEditCounsel"); }
    static oCheckBox &tick(const QWidget &box) { return part<oCheckBox>(box, "chkIncludeInEnhancements"); }
    static QComboBox &list(const QWidget &box) { return part<QComboBox>(box, "cmbEnhancement"); }
    static QStringList entries(const QComboBox &list)
    {
        QStringList result;
        for (int entry = 0; entry < list.count(); ++entry)
            result << list.itemText(entry) + u' ' + list.itemData(entry).toString();
        return result;
    }
    static QString addCounsel(const char *name)
    {
        const auto counsel = Form->AddCounsel();
        counsel->Name = QString::fromUtf8(name);
        return counsel->UniqueID();
    }
    static QString addEnhancement(const char *name)
    {
        const auto enhancement = Form->AddEnhancement();
        enhancement->Name = QString::fromUtf8(name);
        return enhancement->UniqueID();
    }
    static std::unique_ptr<frmSection> edited(const clsScreen &table, clsXMLRecord &record)
    {
        auto screen = std::make_unique<frmSection>(table);
        screen->Initialise(&record);
        show(*screen);
        return screen;
    }
    template <class Box> static std::unique_ptr<Box> shown()
    {
        auto box = std::make_unique<Box>();
        box->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(box.get()));
        return box;
    }
};

class CounselBox : public Boxes { };
class EnhancementsBox : public Boxes { };

} // namespace

TEST_F(EnhancementsBox, OffersTheEnhancementsInTheUsersOrderUnderTheirPlaceInTheClaim)
{
    addEnhancement("Novel");
    addEnhancement("Urgent");
    addEnhancement("Complex");
    Form->Enhancement(1)->OrderID = 3;
    Form->Enhancement(3)->OrderID = 1;
    const oEnhancementsBox box;
    EXPECT_EQ((QStringList {QStringLiteral("Complex 3"), QStringLiteral("Urgent 2"), QStringLiteral("Novel 1")}),
        entries(list(box)));
    EXPECT_EQ(-1, list(box).currentIndex());
    EXPECT_FALSE(tick(box).Checked());
    EXPECT_TRUE(tick(box).isEnabled());
    EXPECT_FALSE(list(box).isEnabled());
}

TEST_F(EnhancementsBox, AGapInTheOrderHidesNothing)
{
    addEnhancement("Novel");
    addEnhancement("Urgent");
    addEnhancement("Complex");
    Form->DeleteEnhancement(2);
    const oEnhancementsBox box;
    EXPECT_EQ((QStringList {QStringLiteral("Novel 1"), QStringLiteral("Complex 2")}), entries(list(box)));
}

TEST_F(EnhancementsBox, CanBeTickedOnlyWhileTheClaimHasAnEnhancement)
{
    const auto box = shown<oEnhancementsBox>();
    EXPECT_FALSE(tick(*box).isEnabled());
    EXPECT_TRUE(tick(*box).isVisible());
    EXPECT_TRUE(list(*box).isVisible());
    EXPECT_EQ(QStringLiteral("Add an enhancement first"), tick(*box).toolTip());
    click(tick(*box));
    EXPECT_FALSE(box->IncludeInEnhancements());
    addEnhancement("Novel");
    box->fill();
    EXPECT_TRUE(tick(*box).isEnabled());
    EXPECT_EQ(QString(), tick(*box).toolTip());
    Form->DeleteEnhancement(1);
    box->fill();
    EXPECT_FALSE(tick(*box).isEnabled());
    EXPECT_EQ(0, list(*box).count());
}

TEST_F(EnhancementsBox, TheTickOpensTheListAndChoosesTheFirstWhereNothingIsChosen)
{
    const QString first = addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    const auto box = shown<oEnhancementsBox>();
    click(tick(*box));
    EXPECT_TRUE(list(*box).isEnabled());
    EXPECT_EQ(QStringLiteral("Novel"), list(*box).currentText());
    EXPECT_EQ(first, box->EnhancementUniqueID());
    box->setEnhancementUniqueID(second);
    click(tick(*box));
    EXPECT_FALSE(list(*box).isEnabled());
    EXPECT_TRUE(list(*box).isVisible());
    EXPECT_EQ(QStringLiteral("Urgent"), list(*box).currentText());
    click(tick(*box));
    EXPECT_EQ(second, box->EnhancementUniqueID());
}

TEST_F(EnhancementsBox, UntickingChoosesTheFirstTooWhereNothingIsChosen)
{
    oEnhancementsBox box;
    box.setIncludeInEnhancements(true);
    EXPECT_TRUE(list(box).isEnabled());
    EXPECT_EQ(QString(), box.EnhancementUniqueID());
    addEnhancement("Novel");
    box.fill();
    EXPECT_EQ(-1, list(box).currentIndex());
    EXPECT_EQ(QString(), box.EnhancementUniqueID());
    box.setIncludeInEnhancements(false);
    EXPECT_EQ(0, list(box).currentIndex());
}

TEST_F(EnhancementsBox, AnUntickedBoxHasNoIdentityEvenIfAnEntryIsChosen)
{
    addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    oEnhancementsBox box;
    box.setEnhancementUniqueID(second);
    EXPECT_EQ(QStringLiteral("Urgent"), list(box).currentText());
    EXPECT_FALSE(box.IncludeInEnhancements());
    EXPECT_EQ(QString(), box.EnhancementUniqueID());
    box.setIncludeInEnhancements(true);
    EXPECT_EQ(second, box.EnhancementUniqueID());
}

TEST_F(EnhancementsBox, AnEmptyOrUnknownIdentityLeavesTheChoice)
{
    addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    oEnhancementsBox box;
    box.setIncludeInEnhancements(true);
    box.setEnhancementUniqueID(second);
    box.setEnhancementUniqueID(QString());
    EXPECT_EQ(second, box.EnhancementUniqueID());
    box.setEnhancementUniqueID(QStringLiteral("ID99"));
    EXPECT_EQ(second, box.EnhancementUniqueID());
    EXPECT_TRUE(box.IncludeInEnhancements());
}

TEST_F(EnhancementsBox, FillingKeepsTheChosenItemThroughNewNamesAndANewOrder)
{
    addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    oEnhancementsBox box;
    box.setIncludeInEnhancements(true);
    box.setEnhancementUniqueID(second);
    Form->Enhancement(2)->Name = QStringLiteral("Very urgent");
    Form->Enhancement(1)->OrderID = 2;
    Form->Enhancement(2)->OrderID = 1;
    box.fill();
    EXPECT_EQ((QStringList {QStringLiteral("Very urgent 2"), QStringLiteral("Novel 1")}), entries(list(box)));
    EXPECT_EQ(second, box.EnhancementUniqueID());
}

TEST_F(EnhancementsBox, IsLoadedAndStoredByItsRow)
{
    const QString first = addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    const auto item = Form->AddScheduleOfTimeItem();
    item->IncludeInEnhancements = true;
    item->EnhancementUniqueID = second;
    auto screen = edited(TimeItem, *item);
    auto *box = &screen->Box<oEnhancementsBox>("oEnhancement");
    EXPECT_TRUE(box->IncludeInEnhancements());
    EXPECT_EQ(second, box->EnhancementUniqueID());
    box->setEnhancementUniqueID(first);
    press(*screen, "cmdSave");
    EXPECT_TRUE(item->IncludeInEnhancements());
    EXPECT_EQ(first, item->EnhancementUniqueID());

    // Without the tick the identity goes too, so that the enhancement is free to be deleted.
    screen = edited(TimeItem, *item);
    box = &screen->Box<oEnhancementsBox>("oEnhancement");
    click(tick(*box));
    press(*screen, "cmdSave");
    EXPECT_FALSE(item->IncludeInEnhancements());
    EXPECT_EQ(QString(), item->EnhancementUniqueID());
}

TEST_F(EnhancementsBox, TheRowMayNameTheProperties)
{
    const QString first = addEnhancement("Novel");
    addEnhancement("Urgent");
    Form->Communications.EnhanceCalls = true;
    Form->Communications.CallsEnhancementUniqueID = first;
    const auto screen = edited(Calls, Form->Communications);
    const auto &box = screen->Box<oEnhancementsBox>("oCallsEnhancement");
    EXPECT_EQ(first, box.EnhancementUniqueID());
    QTest::keyClick(&list(box), Qt::Key_Down);
    press(*screen, "cmdSave");
    EXPECT_TRUE(Form->Communications.EnhanceCalls());
    EXPECT_EQ(Form->Enhancement(2)->UniqueID(), Form->Communications.CallsEnhancementUniqueID());
    EXPECT_FALSE(Form->Communications.EnhanceLettersIn());
    EXPECT_EQ(QString(), Form->Communications.LettersInEnhancementUniqueID());
}

TEST_F(EnhancementsBox, APropertyThatTheRecordLacksIsAnError)
{
    frmSection wrong(TimeItem);
    EXPECT_EQ(clsRunTimeError::ObjectNotSet, errorOf([&wrong] { wrong.Initialise(Form->AddCounsel().get()); }));
}

TEST_F(EnhancementsBox, IsUsedByTheKeyboardAlone)
{
    addEnhancement("Novel");
    const QString second = addEnhancement("Urgent");
    const auto item = Form->AddScheduleOfTimeItem();
    const auto screen = edited(TimeItem, *item);
    EXPECT_EQ(QStringLiteral("txtDescription"), focusedName(*screen));
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("chkIncludeInEnhancements"), focused(*screen));
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("chkTravel"), focused(*screen)) << "a disabled list is no stop";
    key(*screen, Qt::Key_Backtab);
    key(*screen, Qt::Key_Space);
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("cmbEnhancement"), focused(*screen));
    key(*screen, Qt::Key_Down);
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("chkTravel"), focused(*screen));
    press(*screen, "cmdSave");
    EXPECT_EQ(second, item->EnhancementUniqueID());
}

TEST_F(CounselBox, WithoutCounselThereIsNothingToTickUntilOneIsAdded)
{
    const auto box = shown<oCounselBox>();
    EXPECT_FALSE(counselTick(*box).isEnabled());
    EXPECT_EQ(QStringLiteral("Add a counsel first"), counselTick(*box).toolTip());
    EXPECT_FALSE(counselList(*box).isEnabled());
    EXPECT_FALSE(edit(*box).isEnabled());
    EXPECT_TRUE(add(*box).isEnabled());
    for (const QWidget *each : box->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        EXPECT_TRUE(each->isVisible());
    inModal([&] { click(add(*box)); },
        [](frmSection &screen) {
            EXPECT_EQ(QStringLiteral("frmCounselEdit"), screen.objectName());
            type(screen.Box("txtName"), QStringLiteral("Ms A. Barrister"));
            press(screen, "cmdSave");
        });
    ASSERT_EQ(1u, Form->CounselCollection().size());
    EXPECT_TRUE(counselTick(*box).isEnabled());
    EXPECT_FALSE(counselTick(*box).Checked());
    EXPECT_EQ(QStringList {QStringLiteral("Ms A. Barrister 1")}, entries(counselList(*box)));
    EXPECT_FALSE(edit(*box).isEnabled());
    click(counselTick(*box));
    EXPECT_EQ(Form->Counsel(1)->UniqueID(), box->CounselUniqueID());
    EXPECT_TRUE(edit(*box).isEnabled());
    EXPECT_TRUE(counselList(*box).isEnabled());
}

TEST_F(CounselBox, CancellingAnAddAddsNobody)
{
    const auto box = shown<oCounselBox>();
    inModal([&] { click(add(*box)); },
        [](frmSection &screen) {
            type(screen.Box("txtName"), QStringLiteral("Ms A. Barrister"));
            press(screen, "cmdCancel");
        });
    EXPECT_TRUE(Form->CounselCollection().empty());
    EXPECT_FALSE(counselTick(*box).isEnabled());
}

TEST_F(CounselBox, AddingKeepsTheChosenCounsel)
{
    addCounsel("Ms A");
    const QString second = addCounsel("Mr B");
    const auto box = shown<oCounselBox>();
    box->setCounsel(true);
    box->setCounselUniqueID(second);
    QSignalSpy changed(box.get(), &oCounselBox::Change);
    inModal([&] { click(add(*box)); },
        [](frmSection &screen) {
            type(screen.Box("txtName"), QStringLiteral("Ms C"));
            press(screen, "cmdSave");
        });
    EXPECT_EQ(3, counselList(*box).count());
    EXPECT_EQ(second, box->CounselUniqueID());
    EXPECT_EQ(0, changed.count());
}

TEST_F(CounselBox, EditOpensTheChosenCounselAndShowsTheNewName)
{
    addCounsel("Ms A");
    const QString second = addCounsel("Mr B");
    const auto box = shown<oCounselBox>();
    box->setCounsel(true);
    box->setCounselUniqueID(second);
    inModal([&] { click(edit(*box)); },
        [](frmSection &screen) {
            EXPECT_EQ(QStringLiteral("Mr B"), mdTextOf(screen.Box("txtName")));
            type(screen.Box("txtName"), QStringLiteral("Mr Bee"));
            press(screen, "cmdSave");
        });
    EXPECT_EQ(QStringLiteral("Mr Bee"), Form->Counsel(2)->Name());
    EXPECT_EQ(QStringLiteral("Mr Bee"), counselList(*box).toolTip());
    EXPECT_EQ((QStringList {QStringLiteral("Ms A 1"), QStringLiteral("Mr Bee 2")}), entries(counselList(*box)));
    EXPECT_EQ(second, box->CounselUniqueID());
}

TEST_F(CounselBox, EditNeedsTheTickAndAChosenCounsel)
{
    oCounselBox box;
    box.setCounsel(true);
    EXPECT_FALSE(edit(box).isEnabled());
    addCounsel("Ms A");
    box.fill();
    EXPECT_FALSE(edit(box).isEnabled()) << "ticked, but nobody is chosen";
    box.setCounselUniqueID(Form->Counsel(1)->UniqueID());
    EXPECT_TRUE(edit(box).isEnabled());
    box.setCounsel(false);
    EXPECT_FALSE(edit(box).isEnabled());
    EXPECT_FALSE(counselList(box).isEnabled());
    EXPECT_EQ(0, counselList(box).currentIndex());
}

TEST_F(CounselBox, AnUntickedBoxHasNoIdentityAndAnEmptyOneChangesNothing)
{
    addCounsel("Ms A");
    const QString second = addCounsel("Mr B");
    oCounselBox box;
    box.setCounselUniqueID(second);
    EXPECT_EQ(1, counselList(box).currentIndex());
    EXPECT_EQ(QString(), box.CounselUniqueID());
    box.setCounsel(true);
    EXPECT_EQ(second, box.CounselUniqueID());
    box.setCounselUniqueID(QString());
    EXPECT_EQ(second, box.CounselUniqueID());
}

TEST_F(CounselBox, TellsTheCounselWhenAnotherIsChosen)
{
    addCounsel("Ms A");
    addCounsel("Mr B");
    oCounselBox box;
    QStringList told;
    QObject::connect(&box, &oCounselBox::Change, &box,
        [&told](const std::shared_ptr<clsZR3Counsel> &counsel) { told << (counsel ? counsel->Name() : QString()); });
    box.setCounsel(true);
    QTest::keyClick(&counselList(box), Qt::Key_Down);
    box.fill();
    box.setCounsel(false);
    EXPECT_EQ((QStringList {QStringLiteral("Ms A"), QStringLiteral("Mr B")}), told);
    Form->DeleteCounsel(2);
    box.fill();
    EXPECT_EQ(3, told.size());
    EXPECT_EQ(QString(), told.last());
}

TEST_F(CounselBox, IsLoadedAndStoredByItsRow)
{
    addCounsel("Ms A");
    const QString second = addCounsel("Mr B");
    const auto item = Form->AddDisbursement();
    item->Counsel = true;
    item->CounselUniqueID = second;
    auto screen = edited(Disbursement, *item);
    EXPECT_EQ(second, screen->Box<oCounselBox>("oCounsel").CounselUniqueID());
    press(*screen, "cmdSave");
    EXPECT_TRUE(item->Counsel());
    EXPECT_EQ(second, item->CounselUniqueID());
    screen = edited(Disbursement, *item);
    click(counselTick(screen->Box("oCounsel")));
    press(*screen, "cmdSave");
    EXPECT_FALSE(item->Counsel());
    EXPECT_EQ(QString(), item->CounselUniqueID());
}

TEST_F(CounselBox, IsUsedByTheKeyboardAlone)
{
    const auto item = Form->AddDisbursement();
    const auto screen = edited(Disbursement, *item);
    auto &box = screen->Box("oCounsel");
    // The caption's letter leads to what can be done: at first that is only to add, which it doesn't do by itself.
    const auto *caption = [&] {
        for (const clsScreenField &field : screen->Fields())
            if (field.control == &box)
                return field.label;
        return static_cast<oFieldLabel *>(nullptr);
    }();
    const Qt::Key letter = Qt::Key(caption->text().at(caption->text().indexOf(u'&') + 1).toUpper().unicode());
    key(*screen, letter, Qt::AltModifier);
    EXPECT_EQ(QStringLiteral("cmdAddCounsel"), focused(*screen));
    inModal([&] { key(*screen, Qt::Key_Space); },
        [](frmSection &editor) {
            EXPECT_EQ(QStringLiteral("txtName"), focusedName(editor));
            QTest::keyClicks(editor.focusWidget(), QStringLiteral("Ms A"));
            key(editor, Qt::Key_Return);
        });
    EXPECT_EQ(QStringLiteral("cmdAddCounsel"), focused(*screen));
    addCounsel("Mr B");
    static_cast<oCounselBox &>(box).fill();
    key(*screen, letter, Qt::AltModifier);
    EXPECT_EQ(QStringLiteral("chkCounsel"), focused(*screen));
    EXPECT_TRUE(static_cast<oCounselBox &>(box).Counsel()) << "a letter ticks, here as on every other tick";
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("cmbCounsel"), focused(*screen));
    key(*screen, Qt::Key_Down);
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("cmdAddCounsel"), focused(*screen));
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("cmdEditCounsel"), focused(*screen));
    inModal([&] { key(*screen, Qt::Key_Return); }, [](frmSection &editor) { key(editor, Qt::Key_Escape); });
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("cmdEditCounsel"), focused(*screen));
    key(*screen, Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("txtDateOfWork"), focusedName(*screen));
    press(*screen, "cmdSave");
    EXPECT_EQ(Form->Counsel(2)->UniqueID(), item->CounselUniqueID());
}

TEST_F(CounselBox, EachPartIsReadOutUnderANameOfItsOwn)
{
    const oCounselBox box;
    EXPECT_EQ(QStringLiteral("Counsel"), counselTick(box).accessibleName());
    EXPECT_EQ(QStringLiteral("Name of counsel"), counselList(box).accessibleName());
    EXPECT_EQ(QStringLiteral("Add counsel"), add(box).accessibleName());
    EXPECT_EQ(QStringLiteral("Edit counsel"), edit(box).accessibleName());
    EXPECT_EQ(QStringLiteral("Add"), add(box).Caption());
    EXPECT_EQ(QStringLiteral("Edit"), edit(box).Caption());
    const oEnhancementsBox other;
    EXPECT_EQ(QStringLiteral("Include in Enhancements"), tick(other).accessibleName());
    EXPECT_EQ(QStringLiteral("Enhancement"), list(other).accessibleName());
}
