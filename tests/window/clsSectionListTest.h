#pragma once

#include "controls/oCloseButton.h"
#include "formdata/mdSectionTabs.h"
#include "shell/clsSectionModel.h"
#include "shell/oSectionList.h"
#include "shell/oSectionPanel.h"
#include "tests/window/clsCheckPanelTest.h"

#include <QDialog>
#include <QTimer>

#include <functional>

/// Tests of the list of all sections.
class clsSectionListTest : public clsCheckPanelTest {
protected:
    void startOn(const char *claim, int width = 1400)
    {
        start(sample(claim));
        window->resize(width, 760);
    }
    void openList() { QTest::keyClick(window.get(), Qt::Key_L, Qt::ControlModifier); }
    oSectionPanel &sections() const { return control<oSectionPanel>(*window, "oSectionPanel"); }
    oSectionList &list() const { return *sections().List(); }
    oCloseButton &cross() const { return control<oCloseButton>(sections(), "cmdCloseSections"); }

    QModelIndex row(const char *section) const
    {
        for (int i = 0; i < list().model()->rowCount(); ++i)
            if (const QModelIndex index = list().model()->index(i, 0);
                index.data().toString() == QLatin1String(section))
                return index;
        ADD_FAILURE() << "no row " << section;
        return {};
    }
    QString spoken(const char *section) const { return row(section).data(Qt::AccessibleTextRole).toString(); }
    QStringList texts() const
    {
        QStringList all;
        for (int i = 0; i < list().model()->rowCount(); ++i)
            all << list().model()->index(i, 0).data().toString();
        return all;
    }
    /// The expected list for a form: the captions of the first row of tabs, each followed by its second row.
    static QStringList expected(const char *type)
    {
        QStringList all;
        for (int tab = 1; tab <= 4; ++tab)
            all << mdSectionTabs()[tab - 1] << mdSubSectionTabs(tab, QString::fromLatin1(type));
        return all;
    }
    /// Calls `act`, which opens a screen, and closes that screen. Returns its name.
    QString screenAfter(const std::function<void()> &act) const
    {
        QString name;
        QTimer timer;
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, [&] {
            if (auto *screen = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                name = screen->objectName();
                screen->reject();
            }
        });
        timer.start(200);
        act();
        return name;
    }
    int panelRight() const
    {
        const auto &check = control<QWidget>(*window, "oCheckPanel");
        return check.mapTo(window.get(), QPoint()).x() + check.width();
    }
    bool isMarked(const char *section) const
    {
        const QRect at = list().visualRect(row(section));
        const QImage picture = list().viewport()->grab(at).toImage();
        return picture.pixelColor(picture.width() - 8, 4) == QColor(0xEF, 0xDF, 0xEF);
    }
};
