#pragma once

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

/// Base of tests of boxes: a screen with the test's boxes, a plain text box before them, and Save and Cancel after
/// them.
class BoxWindow : public testing::Test {
protected:
    template <class Box> Box *add(const char *name)
    {
        auto *box = new Box(&screen);
        box->setObjectName(QLatin1String(name));
        rows.addWidget(box);
        return box;
    }

    /// Shows and activates the screen.
    void show()
    {
        cmdSave.setDefault(true);
        cmdCancel.setAutoDefault(false);
        rows.addWidget(&cmdSave);
        rows.addWidget(&cmdCancel);
        QObject::connect(&cmdSave, &QPushButton::clicked, &screen, [this] { ++saved; });
        QObject::connect(&cmdCancel, &QPushButton::clicked, &screen, [this] {
            ++cancelled;
            screen.reject();
        });
        screen.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
        txtOther.setFocus();
        ASSERT_TRUE(txtOther.hasFocus());
    }

    /// The text box inside a typed box.
    static QLineEdit *inner(QWidget *box) { return box->findChild<QLineEdit *>(QStringLiteral("txtText")); }

    /// Enters a box and types over what is selected in it.
    static void type(QWidget *box, const char *text)
    {
        inner(box)->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(inner(box), QString::fromUtf8(text));
    }
    /// Moves to the plain text box, if the current box allows it.
    void leave() { txtOther.setFocus(Qt::TabFocusReason); }
    /// Types a value into a box and leaves it; returns the resulting text.
    std::string typed(QWidget *box, const char *text)
    {
        type(box, text);
        leave();
        return inner(box)->text().toStdString();
    }

    static void press(QWidget *widget) { QTest::mouseClick(widget, Qt::LeftButton); }
    static bool isPink(QWidget *box)
    {
        return inner(box)->property("invalid").toBool()
            && inner(box)->palette().color(QPalette::Active, QPalette::Base) == QColor(255, 246, 241);
    }
    static bool isWhite(QWidget *box)
    {
        return !inner(box)->property("invalid").toBool()
            && inner(box)->palette().color(QPalette::Active, QPalette::Base) == QColor(255, 255, 255);
    }
    static bool has(QWidget *box) { return inner(box)->hasFocus(); }

    QDialog screen;
    QVBoxLayout rows {&screen};
    QLineEdit txtOther;
    QPushButton cmdSave {QStringLiteral("&Save")};
    QPushButton cmdCancel {QStringLiteral("Ca&ncel")};
    int saved = 0;
    int cancelled = 0;

    BoxWindow() { rows.addWidget(&txtOther); }
};
