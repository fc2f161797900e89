#pragma once

#include "controls/mdTheme.h"
#include "controls/oCheckBox.h"
#include "tests/editors/clsScreenTest.h"

#include <QLabel>

/// Base of tests of record screens: clicks and reads ticks by name, and finds the count of a text box.
class clsRecordTest : public clsScreenTest {
protected:
    static void click(const frmScreen &screen, const char *box)
    {
        QWidget &control = screen.Box(box);
        QTest::mouseClick(&control, Qt::LeftButton, {}, control.rect().center());
    }
    static bool ticked(const frmScreen &screen, const char *box) { return screen.Box<oCheckBox>(box).Checked(); }
    /// The number beside a text box.
    static const QLabel &countOf(const frmScreen &screen, const char *box)
    {
        return *screen.Box(box).findChild<QLabel *>(QStringLiteral("lblCharacterAllowance"));
    }
    static QColor colourOf(const QLabel &label)
    {
        return label.palette().color(QPalette::Active, QPalette::WindowText);
    }
    static QString textOf(const frmScreen &screen, const char *box)
    {
        return screen.Box(box).property("Text").toString();
    }
    /// Expects that everything can be entered, on both form types and whatever is ticked.
    static void expectAllOpen(const char *section)
    {
        for (const char *type : {"Claim1", "Claim1A"}) {
            Form->FormType = QString::fromUtf8(type);
            const auto screen = opened(QString::fromUtf8(section));
            const auto expectOpen = [&] {
                for (const clsScreenField &field : screen->Fields()) {
                    EXPECT_TRUE(field.control->isEnabledTo(screen.get())) << type << " " << field.row->control;
                    EXPECT_TRUE(field.control->isVisibleTo(screen.get())) << type << " " << field.row->control;
                }
            };
            expectOpen();
            for (const clsScreenField &field : screen->Fields()) {
                if (auto *tick = qobject_cast<oCheckBox *>(field.control)) {
                    tick->setChecked(true);
                    expectOpen();
                }
            }
        }
    }
};
