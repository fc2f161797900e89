#include "editors/mdScreenControls.h"
#include "editors/oCounselBox.h"
#include "editors/oFieldLabel.h"
#include "tests/editors/clsItemBoxTest.h"

#include <QSignalSpy>

namespace {

using enum clsRowKind;

class CounselBox : public clsItemBoxTest {
protected:
    static oCheckBox &counselTick(const QWidget &box) { return part<oCheckBox>(box, "chkCounsel"); }
    static QComboBox &counselList(const QWidget &box) { return part<QComboBox>(box, "cmbCounsel"); }
    static oCustomButton &add(const QWidget &box) { return part<oCustomButton>(box, "cmdAddCounsel"); }
    static oCustomButton &edit(const QWidget &box) { return part<oCustomButton>(box, "cmdEditCounsel"); }
    inline static const clsScreen Disbursement = editorOf({
        {Text, "txtDescription", "Description:"},
        {.kind = Other, .control = "oCounsel", .caption = "Counsel:", .other = &CounselOfItem},
        {Date, "txtDateOfWork", "Date of Work:"},
    });
};

} // namespace

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
        [](frmScreen &screen) {
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
        [](frmScreen &screen) {
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
        [](frmScreen &screen) {
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
        [](frmScreen &screen) {
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
    EXPECT_FALSE(edit(box).isEnabled()) << "ticked, but no counsel is chosen";
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
    // The caption's letter moves to the first usable part: at first only the Add button, which it doesn't press.
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
        [](frmScreen &editor) {
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
    inModal([&] { key(*screen, Qt::Key_Return); }, [](frmScreen &editor) { key(editor, Qt::Key_Escape); });
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
}
