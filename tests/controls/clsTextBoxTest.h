#pragma once

#include "controls/oAllPurposeBox.h"
#include "tests/support/clsReplacementsTest.h"

#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

/// A shown and active window with one text box, and a button that can take the focus.
class clsTextBoxTest : public clsReplacementsTest {
protected:
    void SetUp() override
    {
        clsReplacementsTest::SetUp();
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(box);
        layout->addWidget(other);
        box->setObjectName(QStringLiteral("txtSurname"));
    }
    void TearDown() override
    {
        SetEditReplacements({});
        clsReplacementsTest::TearDown();
    }

    void show()
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// Shows the box with the caret at the end of its text.
    void enter()
    {
        show();
        other->setFocus();
        box->setFocus();
        ASSERT_TRUE(editor()->hasFocus());
    }
    void type(const QString &keys) { QTest::keyClicks(editor(), keys); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(editor(), key, modifiers); }

    QPlainTextEdit *editor() { return box->findChild<QPlainTextEdit *>(QStringLiteral("txtText")); }
    QLabel *count() { return box->findChild<QLabel *>(QStringLiteral("lblCharacterAllowance")); }
    QColor countColour() { return count()->palette().color(QPalette::Active, QPalette::WindowText); }

    QWidget window;
    oAllPurposeBox *box = new oAllPurposeBox;
    QWidget *other = makeOther();

private:
    static QWidget *makeOther()
    {
        auto *widget = new QWidget;
        widget->setFocusPolicy(Qt::StrongFocus);
        return widget;
    }
};
