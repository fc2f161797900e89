#pragma once

#include "base/mdStateFolder.h"
#include "shell/clsCheckModel.h"
#include "shell/clsCheckState.h"
#include "shell/oCheckList.h"
#include "shell/oCheckPanel.h"
#include "tests/window/clsMainWindowTest.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>

/// Tests of the check panel.
class clsCheckPanelTest : public clsMainWindowTest {
protected:
    void SetUp() override
    {
        clsMainWindowTest::SetUp();
        ASSERT_TRUE(QFile::link(QStringLiteral(ZR3_TEMPLATES), path("program/Templates")));
        SetClock([] { return QDateTime(QDate(2026, 11, 22), QTime(14, 11)); });
        m_stateBefore = qgetenv("XDG_STATE_HOME");
        qputenv("XDG_STATE_HOME", QFile::encodeName(path("state")));
    }
    void TearDown() override
    {
        clsMainWindowTest::TearDown();
        qputenv("XDG_STATE_HOME", m_stateBefore);
    }

    /// A claim with two errors, a warning and five notes.
    void startWithFindings(int width = 1400)
    {
        start(sample("empty.zr3"));
        window->resize(width, 760);
        fill(*Form);
    }
    static void fill(clsZR3Form &form)
    {
        for (int page = 1; page <= 13; ++page)
            form.field(QStringLiteral("IncludePage%1").arg(page))->writeBoolean(false);
        const auto group = form.AddFeeEarnerGroup();
        group->Reference = QStringLiteral("A");
        for (const char *rate : {"HourlyRate", "AdvocacyRate", "CounselRate", "TravelAndWaitingRate"})
            group->field(QString::fromLatin1(rate))->writeText(QStringLiteral("60.00"));
        const auto feeEarner = form.AddFeeEarner();
        feeEarner->Reference = QStringLiteral("AB");
        feeEarner->GroupUniqueID = group->UniqueID();
        addItem(form, "01/06/27", "00:10"); // after today
        addItem(form, "", "00:20"); // without a date
        addItem(form, "03/06/25", "00:00"); // no time
        for (int i = 1; i <= 5; ++i) {
            const auto disbursement = form.AddDisbursement();
            disbursement->Description = QStringLiteral("Fee %1").arg(i);
            disbursement->Amount = QStringLiteral("30.00");
            disbursement->VAT = QStringLiteral("0.00");
        }
        form.RenderScheduleOfTimeItemsForExport();
        form.SeparateCounselAndNonCounselDisbursements();
    }
    static void addItem(clsZR3Form &form, const char *date, const char *time)
    {
        const auto item = form.AddScheduleOfTimeItem();
        item->FeeEarnerUniqueID = form.FeeEarner(1)->UniqueID();
        item->dDate = QString::fromLatin1(date);
        item->TTime = QString::fromLatin1(time);
        item->Code = QStringLiteral("ASI");
    }

    oCheckPanel &panel() const { return control<oCheckPanel>(*window, "oCheckPanel"); }
    oCheckList &list() const { return *panel().List(); }
    QAbstractItemModel &model() const { return *list().model(); }
    clsCheckState &state() const { return *window->findChild<clsCheckState *>(); }
    QString counts() const { return control<QLabel>(panel(), "lblCheckCounts").text(); }
    void openPanel() { QTest::keyClick(window.get(), Qt::Key_K, Qt::ControlModifier); }

    QString chosen() const { return list().currentIndex().data().toString(); }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    /// Chooses an entry of the selected line's menu.
    void chooseFromMenu(const char *entry) const
    {
        list().PopUpMenu(list().mapToGlobal(QPoint()));
        auto *menu = list().findChild<QMenu *>(QStringLiteral("mnuFinding"));
        ASSERT_TRUE(menu);
        auto *action = menu->findChild<QAction *>(QString::fromLatin1(entry));
        ASSERT_TRUE(action);
        action->trigger();
        menu->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QStringList groups() const
    {
        QStringList result;
        for (int row = 0; row < model().rowCount(); ++row) {
            const QModelIndex group = model().index(row, 0);
            result << QStringLiteral("%1 %2%3").arg(group.data().toString(),
                group.data(clsCheckModel::CountRole).toString(),
                list().isExpanded(group) ? QString() : QStringLiteral(" folded"));
        }
        return result;
    }
    /// Writes an invalid file to the state folder.
    static void writeBroken(const char *name)
    {
        ASSERT_TRUE(MakeStateFolder());
        QFile broken(StateFolder() + u'/' + QString::fromLatin1(name));
        ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
        broken.write("{");
    }
    /// Waits for the findings about printing.
    void waitForPrint() const { QTest::qWait(150); }

    /// The sentence about the item without time.
    const QString NoTime = QStringLiteral("Item 3, 03/06/25, has a time of 00:00: enter the time, or delete the item.");

private:
    QByteArray m_stateBefore;
};
