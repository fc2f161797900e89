// The program opens a claim in which some figures can't be computed, and reports the cause of errors.

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "preview/oPreviewGrid.h"
#include "tests/support/mdTestPaths.h"
#include "tests/support/mdTestPrinting.h"
#include "tests/window/clsProgramTest.h"

#include <QAction>
#include <QLineEdit>
#include <QRegularExpression>

namespace {

class BrokenClaims : public clsProgramTest {
protected:
    /// A sample with the content of one element changed: the first of that name below a list or section.
    QString spoilt(const char *sample, const char *below, const char *element, const char *content)
    {
        QFile file(mdSamplePath(QString::fromLatin1(sample)));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QString text = QString::fromLatin1(file.readAll());
        const qsizetype from = text.indexOf(QStringLiteral("<%1>").arg(QString::fromLatin1(below)));
        const QString name = QString::fromLatin1(element);
        const QRegularExpression old(QStringLiteral("<%1>[^<]*</%1>|<%1/>").arg(name));
        const QRegularExpressionMatch found = old.match(text, from);
        EXPECT_TRUE(from >= 0 && found.hasMatch()) << below << " " << element;
        text.replace(found.capturedStart(), found.capturedLength(),
            QStringLiteral("<%1>%2</%1>").arg(name, QString::fromLatin1(content)));
        return put(text.toLatin1());
    }
    QString put(const QByteArray &text)
    {
        const QString claim = path("claims/broken.zr3");
        QFile written(claim);
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(text);
        return claim;
    }
    /// The number of marked cells in the preview.
    static int marks()
    {
        int count = 0;
        for (int row = 1; row <= PreviewGrid->Rows(); ++row)
            for (int column = 1; column <= PreviewGrid->Columns(); ++column)
                count += !PreviewGrid->WhyNot(row, column).isEmpty();
        return count;
    }
};

} // namespace

TEST_F(BrokenClaims, AreOpened)
{
    const struct {
        const char *sample;
        const char *below;
        const char *element;
        const char *content;
        int leastMarks;
    } rows[] = {
        {"housing-typical.zr3", "scheduleoftimeitems", "feeearneruniqueid", "ID999", 5},
        {"housing-typical.zr3", "feeearners", "groupuniqueid", "ID999", 5},
        {"housing-typical.zr3", "feeearnergroups", "hourlyrate", "", 4},
        {"housing-typical.zr3", "feeearnergroups", "hourlyrate", "99999999999999999999", 4},
        {"housing-typical.zr3", "scheduleoftimeitems", "ttime", "", 3},
        {"housing-typical.zr3", "scheduleoftimeitems", "travel", "perhaps", 14},
        {"care-typical.zr3", "vzrform", "excludenonadvocacy", "perhaps", 12},
        {"housing-typical.zr3", "disbursements", "counsel", "perhaps", 0},
        {"housing-typical.zr3", "disbursements", "amount", "abc", 0},
        {"care-typical.zr3", "fasitems", "rateforunits", "", 0},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.below) + " " + row.element + " " + row.content);
        const QString claim = spoilt(row.sample, row.below, row.element, row.content);
        EXPECT_EQ(0, run({QFile::encodeName(claim)}, [&] {
            if (QWidget *box = QApplication::activeModalWidget()) {
                ADD_FAILURE() << box->windowTitle().toStdString();
                box->close();
            }
            if (header().isEmpty())
                return false;
            EXPECT_EQ(claim + u'*', header());
            EXPECT_LE(row.leastMarks, marks());
            EXPECT_EQ(row.leastMarks > 0, marks() > 0);
            oApplication::instance()->end(0);
            return true;
        }));
    }
}

TEST_F(BrokenClaims, OfManyBlankItemsAreOpened)
{
    constexpr int Count = 20'000;
    QByteArray items;
    for (int n = 1; n <= Count; ++n)
        items += "<scheduleoftimeitem><orderid>" + QByteArray::number(n) + "</orderid></scheduleoftimeitem>";
    const QString claim
        = put("<vzrform><version>1.1.140</version><scheduleoftimeitems>" + items + "</scheduleoftimeitems></vzrform>");
    longestRun = 120'000;
    EXPECT_EQ(0, run({QFile::encodeName(claim)}, [&] {
        if (header().isEmpty())
            return false;
        EXPECT_EQ(2 * Count + 7, PreviewGrid->Rows());
        EXPECT_EQ(QStringLiteral("Schedule item 20000 names no fee earner"), PreviewGrid->WhyNot(2 * Count + 3, 13));
        oApplication::instance()->end(0);
        return true;
    }));
}

TEST_F(BrokenClaims, AnExportNamesWhatItsErrorComesFrom)
{
    const QString claim = spoilt("housing-typical.zr3", "scheduleoftimeitems", "feeearneruniqueid", "ID999");
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("out")));
    ASSERT_TRUE(QFile::link(QStringLiteral(ZR3_TEMPLATES), path("program/Templates")));
    bool asked = false;
    bool begun = false;
    QString told;
    EXPECT_EQ(1, run({QFile::encodeName(claim)}, [&] {
        if (const frmMessageBox *box = messageBox()) {
            told = textOf(*box);
            return press(box->windowTitle());
        }
        if (auto *dialog = QApplication::activeModalWidget(); dialog && asked && !begun) {
            begun = true;
            dialog->findChild<QLineEdit *>(QStringLiteral("txtExportPath"))->setText(path("out"));
            QTimer::singleShot(0, dialog, [dialog] {
                QMetaObject::invokeMethod(dialog->findChild<QWidget *>(QStringLiteral("cmdExport")), "click");
            });
        } else if (!header().isEmpty() && !asked) {
            asked = true;
            QAction *entry = topLevel<frmMain>()->findChild<QAction *>(QStringLiteral("mnuExportToWord"));
            QTimer::singleShot(0, entry, [entry] { entry->trigger(); });
        }
        return false;
    }));
    const QStringList paragraphs = told.split(QStringLiteral("\n\n"));
    ASSERT_LE(3, paragraphs.size()) << told.toStdString();
    EXPECT_EQ(QStringLiteral("Run-time error '91':"), paragraphs[0]);
    EXPECT_EQ(QStringLiteral("Object variable or With block variable not set"), paragraphs[1]);
    EXPECT_TRUE(paragraphs[2].startsWith(QLatin1String("Schedule item "))
        && paragraphs[2].endsWith(QLatin1String(" names a fee earner that no longer exists")))
        << paragraphs[2].toStdString();
    EXPECT_EQ(QStringList(), QDir(path("out")).entryList({QStringLiteral("*.doc")}, QDir::Files));
}
