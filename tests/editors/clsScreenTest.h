#pragma once

#include "commands/clsNotStored.h"
#include "controls/oCheckBox.h"
#include "controls/oSGrid.h"
#include "editors/frmScreen.h"
#include "editors/mdSections.h"
#include "editors/mdUnloadAndDummyTabClick.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "tests/support/clsFolderTest.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPrinting.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QTest>

#include <functional>
#include <memory>
#include <stdexcept>

/// Base of tests of screens: a new claim, a scripted user, and windows shown without waiting for them to close.
class clsScreenTest : public clsFolderTest {
protected:
    /// The editor of a test item with these rows.
    static clsScreen editorOf(const std::vector<clsScreenRow> &rows)
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
    void SetUp() override { Form = std::make_unique<clsZR3Form>(); }
    void TearDown() override
    {
        SetOpenSection(nullptr);
        NotStored().leaveClaim();
        Form.reset();
    }

    /// The screen of a section, filled and shown.
    static std::unique_ptr<frmScreen> opened(const QString &section)
    {
        auto screen = created(section);
        show(*screen);
        return screen;
    }
    static std::unique_ptr<frmScreen> created(const QString &section)
    {
        std::unique_ptr<frmScreen> screen(dynamic_cast<frmScreen *>(mdCreateScreen(section, nullptr)));
        if (!screen)
            throw std::runtime_error("no screen " + section.toStdString());
        return screen;
    }
    static void show(frmScreen &screen)
    {
        screen.resize(screen.sizeHint());
        screen.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
    }

    /// The widget in a control that receives keys: the control itself or its focus proxy.
    static QWidget *focusPart(QWidget &control)
    {
        QWidget *part = &control;
        while (part->focusProxy())
            part = part->focusProxy();
        return part;
    }
    /// The rows of a grid as shown, with a bar between cells.
    static QStringList rows(const oSGrid &grid)
    {
        const auto &cells = *grid.findChild<QAbstractItemView *>()->model();
        QStringList result;
        for (int row = 0; row < cells.rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < cells.columnCount(); ++column)
                texts << cells.index(row, column).data(Qt::DisplayRole).toString();
            result << texts.join(u'|');
        }
        return result;
    }
    /// A menu entry of the screen.
    static QAction &entry(const frmScreen &screen, const char *name)
    {
        auto *found = screen.findChild<QAction *>(QString::fromUtf8(name));
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }
    /// Replaces the text of a box by typing.
    static void type(QWidget &box, const QString &text)
    {
        QWidget *part = focusPart(box);
        part->setFocus(Qt::TabFocusReason);
        QTest::keyClick(part, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(part, Qt::Key_Delete);
        QTest::keyClicks(part, text);
    }
    static void press(frmScreen &screen, const char *button)
    {
        auto *found = screen.findChild<QWidget *>(QString::fromUtf8(button));
        ASSERT_TRUE(found) << button;
        QTest::mouseClick(found, Qt::LeftButton);
    }
    /// Changes the value of a field.
    static void change(const clsScreenField &field)
    {
        if (auto *box = qobject_cast<oCheckBox *>(field.control))
            box->setChecked(!box->Checked());
        else if (field.row->kind == clsRowKind::Text)
            type(*field.control, QStringLiteral("changed"));
        else if (field.row->kind == clsRowKind::Decimal)
            type(*field.control, QStringLiteral("9"));
        else if (field.row->kind == clsRowKind::Date)
            type(*field.control, QStringLiteral("1.2.24"));
        else if (field.row->kind == clsRowKind::Other)
            if (auto *tick = field.control->findChild<oCheckBox *>())
                tick->setChecked(!tick->Checked());
    }
    /// Expects that the screen made by `opens`, each time on a fresh record, stores its fields in the order of these
    /// elements. Each in turn is removed, which stops the storing there: earlier elements then have their new value,
    /// later ones their old value.
    static void expectStoredInOrder(
        const std::vector<const char *> &elements, const std::function<std::unique_ptr<frmScreen>()> &opens)
    {
        for (size_t gone = 0; gone < elements.size(); ++gone) {
            const auto screen = opens();
            pugi::xml_node record = screen->Record()->XMLNode();
            for (const clsScreenField &field : screen->Fields())
                change(field);
            for (const char *button : {"cmdSave", "cmdClose"})
                if (auto *found = screen->findChild<QWidget *>(QString::fromUtf8(button)))
                    found->setFocus();
            std::vector<QByteArray> before;
            for (const char *element : elements)
                before.push_back(record.child(element).child_value());
            ASSERT_TRUE(record.remove_child(elements[gone])) << elements[gone];
            EXPECT_EQ(int(clsRunTimeError::ObjectNotSet), errorOf([&] { screen->Store(clsStoring::Closing); }));
            for (size_t i = 0; i < elements.size(); ++i) {
                if (i != gone) {
                    EXPECT_EQ(i < gone, before[i] != record.child(elements[i]).child_value())
                        << elements[i] << " without " << elements[gone];
                }
            }
        }
    }

    /// The field of the screen that has the focus, or null.
    static const clsScreenField *focusedField(const frmScreen &screen)
    {
        for (const clsScreenField &field : screen.Fields()) {
            const QWidget *focused = screen.focusWidget();
            if (focused && (field.control == focused || field.control->isAncestorOf(focused)))
                return &field;
        }
        return nullptr;
    }
    static QString focusedName(const frmScreen &screen)
    {
        const clsScreenField *field = focusedField(screen);
        return field ? field->control->objectName() : QString();
    }

    clsScriptedUserInterface user;

private:
    clsUserInterfaceScope m_scope {user};
};
