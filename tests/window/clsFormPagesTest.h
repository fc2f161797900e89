#pragma once

#include "preview/oFormPages.h"
#include "preview/oPageView.h"
#include "shell/clsFormPages.h"
#include "shell/mdPageBoxes.h"
#include "tests/window/clsMainWindowTest.h"
#include "wordexport/mdOfficeProgram.h"

#include <QBuffer>
#include <QLabel>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTimer>

#include <optional>

/// A PDF of several pages, each with its name at the head.
inline QByteArray mdPdfOf(int pages)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    for (int i = 1; i <= pages; ++i) {
        if (i > 1)
            writer.newPage();
        painter.drawText(200, 400, QStringLiteral("See Page 99 (9)"));
        painter.drawText(200, 800, QStringLiteral("Page 88 (8) is the eighth sheet of page 88."));
        painter.drawText(200, 1200, QStringLiteral("Page %1 (2)").arg(i));
    }
    painter.end();
    return buffer.data();
}

/// Base of tests of the form pages, with a script as the office program.
class clsFormPagesTest : public clsMainWindowTest {
protected:
    void SetUp() override
    {
        clsMainWindowTest::SetUp();
        ASSERT_TRUE(QFile::link(QStringLiteral(ZR3_TEMPLATES), path("program/Templates")));
        SetClock([] { return QDateTime(QDate(2026, 11, 22), QTime(14, 11)); });
    }
    void TearDown() override
    {
        clsMainWindowTest::TearDown();
        m_office.reset();
    }

    /// A script in place of the office program. It counts its runs, and $3 is the folder for its PDF.
    void officeProgram(const QByteArray &steps, int longestMilliseconds = 60000)
    {
        QFile pdf(path("ready.pdf"));
        ASSERT_TRUE(pdf.open(QIODevice::WriteOnly));
        pdf.write(mdPdfOf(3));
        pdf.close();
        QFile script(path("office"));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nhere=" + QFile::encodeName(folder.path())
            + "\necho run >> $here/runs\n"
              "while [ $# -gt 1 ]; do [ \"$1\" = --outdir ] && out=$2; shift; done\n"
              "made=$out/$(basename \"$1\" .doc).pdf\n"
            + steps);
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_office.reset();
        m_office.emplace(path("office"), longestMilliseconds);
    }
    void workingOfficeProgram() { officeProgram("cp $here/ready.pdf $made\n"); }
    void noOfficeProgram()
    {
        m_office.reset();
        m_office.emplace(QString(), 60000);
    }
    int runs() const
    {
        QFile file(path("runs"));
        return file.open(QIODevice::ReadOnly) ? int(file.readAll().count('\n')) : 0;
    }

    oFormPages &page() const { return control<oFormPages>(*window, "oFormPages"); }
    QString state() const { return control<QLabel>(*window, "lblState").text(); }
    QString nothing() const { return control<QLabel>(*window, "lblNothing").text(); }
    clsPagesMaker &maker() const { return window->findChild<clsFormPages *>()->Maker(); }
    bool wait() const
    {
        return QTest::qWaitFor([this] { return !maker().isRunning(); }, 60000);
    }
    void showPages()
    {
        entry("mnuFormPages").trigger();
        ASSERT_TRUE(wait());
    }
    /// As many as the script makes.
    static void includeThreePages()
    {
        for (int number = 4; number <= 13; ++number)
            Form->field(QStringLiteral("IncludePage%1").arg(number))->writeBoolean(false);
    }
    int boxOf(const char *property) const
    {
        const auto boxes = mdPageMarks(maker().Sheets(), Form->FormType(), page().Pages()).boxes;
        for (size_t i = 0; i < boxes.size(); ++i)
            if (boxes[i].target == QLatin1String(property))
                return int(i);
        return -1;
    }
    /// Closes the next screen that opens; returns its name, and the field that has the focus.
    static void closeScreen(QString &focus)
    {
        QTimer::singleShot(300, [&focus] {
            QWidget *screen = QApplication::activeModalWidget();
            ASSERT_NE(nullptr, screen);
            QWidget *field = screen->focusWidget();
            while (field && field != screen && !field->objectName().startsWith(QLatin1String("txtSurname")))
                field = field->parentWidget();
            focus = screen->objectName() + u' ' + (field ? field->objectName() : QString());
            screen->close();
        });
    }
    void change() { Form->ClientDetails.Surname = Form->ClientDetails.Surname() + u'x'; }

private:
    std::optional<clsOfficeProgramScope> m_office;
};
