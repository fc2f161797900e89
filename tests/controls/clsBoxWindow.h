#pragma once

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

/// A screen with whatever boxes a test puts on it, a plain text box before them, and Save and Cancel behind them.
class BoxWindow : public testing::Test {
protected:
    template <class Box> Box *add(const char *name)
    {
        auto *box = new Box(&screen);
        box->setObjectName(QLatin1String(name));
        rows.addWidget(box);
        return box;
    }

    /// Shows the screen as the user has it in front.
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
    /// Goes to the plain text box, if the present one lets go.
    void leave() { txtOther.setFocus(Qt::TabFocusReason); }
    /// Types a value into a box and leaves it; the text that it then has.
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
