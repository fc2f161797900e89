// The actions on the chosen claims of a folder.

#include "shell/clsFolderModel.h"
#include "tests/window/clsClaimFolderTest.h"
#include "tests/window/clsMainWindowTest.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QProgressBar>
#include <QTableView>
#include <QTimer>

namespace {

using Column = clsFolderModel;

class FolderActions : public clsClaimFolderTest {
protected:
    void SetUp() override
    {
        clsClaimFolderTest::SetUp();
        ASSERT_TRUE(QDir().mkpath(out()));
    }
    QString out() const { return path("out"); }
    /// With a script in place of the headless program, which it may run as $TOOL.
    void startWith(const char *script)
    {
        QFile tool(path("tool"));
        ASSERT_TRUE(tool.open(QIODevice::WriteOnly));
        tool.write("#!/bin/sh\nTOOL='" ZR3_TOOL "'\n");
        tool.write(script);
        tool.close();
        tool.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        start(tool.fileName());
    }
    void press(const char *name) const
    {
        ASSERT_TRUE(button(name).isEnabled()) << name;
        QTest::keyClick(&button(name), Qt::Key_Space);
    }
    void expectTold(const QString &text) const { QTRY_COMPARE_WITH_TIMEOUT(told(), text, Patience); }
    /// The rows of the results that a button opens.
    QStringList results(const char *name) const
    {
        QStringList rows;
        QTimer::singleShot(0, window.get(), [&] { rows = rowsOf(QApplication::activeModalWidget()); });
        press(name);
        return rows;
    }
    static QStringList rowsOf(QWidget *dialog)
    {
        QStringList rows;
        const auto *table = dialog ? dialog->findChild<QTableView *>() : nullptr;
        const auto *model = table ? table->model() : nullptr;
        for (int row = 0; model && row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells << model->index(row, column).data().toString();
            rows << cells.join(u'|');
        }
        if (dialog)
            dialog->close();
        return rows;
    }
    static void replaceIn(const QString &claim, const QByteArray &from, const QByteArray &to)
    {
        QFile file(claim);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        QByteArray bytes = file.readAll();
        ASSERT_TRUE(bytes.contains(from)) << from.constData();
        bytes.replace(from, to);
        file.resize(0);
        file.seek(0);
        file.write(bytes);
    }
};

} // namespace

TEST_F(FolderActions, NothingChosenTurnsThemOff)
{
    put("empty.zr3", "a.zr3");
    start();
    read(1);
    table().clearSelection();
    for (const char *name : {"cmdCheck", "cmdCompare", "cmdExport", "cmdExportAsPdf"})
        EXPECT_FALSE(button(name).isEnabled()) << name;
    EXPECT_TRUE(button("cmdOpen").isEnabled()) << "it is about the row with the focus";
    choose({0});
    for (const char *name : {"cmdCheck", "cmdCompare", "cmdExport", "cmdExportAsPdf"})
        EXPECT_TRUE(button(name).isEnabled()) << name;
}

TEST_F(FolderActions, TheMenuOfTheRowsHasThem)
{
    put("empty.zr3", "a.zr3");
    start();
    read(1);
    choose({0});
    QStringList entries;
    QTimer::singleShot(0, window.get(), [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        const QPoint row = table().viewport()->mapToGlobal(table().visualRect(table().currentIndex()).bottomLeft());
        EXPECT_EQ(row, menu->pos());
        for (const QAction *action : menu->actions())
            entries << QString(action->text()).remove(u'&');
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {0, 0}, {0, 0});
    QCoreApplication::sendEvent(&table(), &event);
    EXPECT_EQ((QStringList {"Open", "Check", "Compare...", "Export", "Export as PDF"}), entries);
}

TEST_F(FolderActions, WhatIsAskedForMeanwhileWaitsForItsTurn)
{
    put("many-sheets.zr3", "a.zr3");
    put("empty.zr3", "b.zr3");
    start();
    read(2);
    choose({0});
    user.folders = {out()};
    press("cmdExport");
    choose({1});
    press("cmdCheck");
    QTRY_VERIFY_WITH_TIMEOUT(told().startsWith("1 claim checked: "), Patience);
    EXPECT_EQ(QStringList("a Claim1.doc"), documents(out()));
}

TEST_F(FolderActions, ExportsTheChosenClaimsUnderTheirNames)
{
    put("empty.zr3", "2025/Hartwell.zr3");
    put("empty.zr3", "2026/Hartwell.zr3");
    put("empty-1a.zr3", "Abbot.zr3");
    put("empty.zr3", "not chosen.zr3");
    start();
    read(4);
    choose({0, 1, 2});
    user.folders = {out()};
    press("cmdExport");
    EXPECT_FALSE(button("cmdExport").isEnabled()) << "while it runs";
    EXPECT_TRUE(table().hasFocus()) << "and not the button that closes the window";
    EXPECT_FALSE(button("cmdExportAsPdf").isEnabled());
    EXPECT_TRUE(button("cmdCancel").isVisible());
    EXPECT_TRUE(told().startsWith("Exporting: Abbot, 1 of 3")) << told().toStdString();
    expectTold("3 of 3 claims exported to " + out());
    EXPECT_EQ((QStringList {"Abbot Claim1A.doc", "Hartwell Claim1 (2).doc", "Hartwell Claim1.doc"}), documents(out()));
    EXPECT_TRUE(button("cmdExport").isEnabled());
    EXPECT_FALSE(button("cmdCancel").isVisible());
    EXPECT_FALSE(button("cmdDetails").isVisible());
}

TEST_F(FolderActions, ADocumentThatIsThereStaysUntilItIsReplaced)
{
    put("empty.zr3", "a.zr3");
    putBytes("b.zr3", "<");
    QFile there(out() + "/a Claim1.doc");
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    there.close();
    start();
    read(2);
    choose({0, 1});
    user.folders = {out()};
    press("cmdExport");
    expectTold("0 of 2 claims exported to " + out() + "; 1 document already there");
    EXPECT_EQ(0, QFileInfo(there).size());
    const QStringList rows = results("cmdDetails");
    ASSERT_EQ(2, rows.size());
    EXPECT_EQ("a|The document " + out() + "/a Claim1.doc exists already.", rows[0]);
    EXPECT_TRUE(rows[1].startsWith("b|There was a problem opening")) << rows[1].toStdString();
    press("cmdReplace");
    expectTold("1 of 1 claim exported to " + out());
    EXPECT_LT(0, QFileInfo(there).size());
    EXPECT_FALSE(button("cmdReplace").isVisible());
}

TEST_F(FolderActions, ReplacingKeepsTheNumbersOfClaimsOfOneName)
{
    put("empty.zr3", "2025/Hartwell.zr3");
    put("empty.zr3", "2026/Hartwell.zr3");
    QFile second(out() + "/Hartwell Claim1 (2).doc");
    ASSERT_TRUE(second.open(QIODevice::WriteOnly));
    second.close();
    start();
    read(2);
    choose({0, 1});
    user.folders = {out()};
    press("cmdExport");
    expectTold("1 of 2 claims exported to " + out() + "; 1 document already there");
    press("cmdReplace");
    QTRY_VERIFY_WITH_TIMEOUT(told().startsWith("2 of 2 claims exported"), Patience);
    EXPECT_LT(0, QFileInfo(second).size()) << "and not the first one's again";
}

TEST_F(FolderActions, AFailureIsToldAfterWhatWaitedBehindIt)
{
    put("empty.zr3", "a.zr3");
    putBytes("b.zr3", "<");
    start();
    read(2);
    choose({0, 1});
    user.folders = {out()};
    press("cmdExport");
    choose({0});
    press("cmdCheck");
    QTRY_VERIFY_WITH_TIMEOUT(told().contains("1 claim checked: "), Patience);
    EXPECT_TRUE(told().startsWith("1 of 2 claims exported to " + out() + "; ")) << told().toStdString();
}

TEST_F(FolderActions, ARunThatDidNotTellOfAllClaimsIsNoSuccess)
{
    put("empty.zr3", "a.zr3");
    startWith("[ \"$1\" = list ] && exec \"$TOOL\" \"$@\"\necho 'Too many processes.' >&2\nexit 4\n");
    read(1);
    choose({0});
    user.folders = {out()};
    press("cmdExport");
    expectTold("Export stopped: Too many processes.");
    press("cmdCheck");
    expectTold("Check stopped: Too many processes.");
}

TEST_F(FolderActions, AnOtherFolderThatCantBeReadIsTold)
{
    put("empty.zr3", "a.zr3");
    startWith("[ \"$1\" = list ] && exec \"$TOOL\" \"$@\"\n"
              "echo '{\"Claims\": [{\"Name\": \"a.zr3\", \"Only\": \"new\"}]}'\n"
              "echo 'Permission denied.' >&2\nexit 3\n");
    read(1);
    choose({0});
    user.folders = {out()};
    press("cmdCompare");
    expectTold("They cannot be compared: Permission denied.");
}

TEST_F(FolderActions, CancelStopsAndLeavesNothingHalfDone)
{
    for (int number = 0; number < 12; ++number)
        put("many-sheets.zr3", qPrintable(QStringLiteral("%1.zr3").arg(number, 2)));
    start();
    read(12);
    table().selectAll();
    user.folders = {out()};
    press("cmdExport");
    QTRY_VERIFY_WITH_TIMEOUT(control<QProgressBar>(*window, "pbProgress").value() > 0, Patience);
    press("cmdCancel");
    EXPECT_EQ("Export cancelled.", told());
    EXPECT_TRUE(button("cmdExport").isEnabled());
    const auto isSwept = [this] {
        const auto all = QDir(out()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        return all == documents(out());
    };
    QTRY_VERIFY_WITH_TIMEOUT(isSwept(), 2000);
    const QStringList made = documents(out());
    EXPECT_LT(0, made.size());
    EXPECT_GT(12, made.size());
    QTest::qWait(300);
    EXPECT_EQ(made, documents(out())) << "nothing works on";
}

TEST_F(FolderActions, ChecksTheChosenClaimsWithTheirPrintedTexts)
{
    put("at-the-limit.zr3", "a.zr3");
    put("housing-typical.zr3", "b.zr3");
    start();
    read(2);
    const int before = cell(0, Column::Warnings).toInt();
    choose({0});
    press("cmdCheck");
    QTRY_VERIFY_WITH_TIMEOUT(told().startsWith("1 claim checked: "), Patience);
    const int errors = cell(0, Column::Errors).toInt();
    const int warnings = cell(0, Column::Warnings).toInt();
    EXPECT_EQ(QStringLiteral("1 claim checked: %1 errors, %2 warnings").arg(errors).arg(warnings), told());
    EXPECT_LE(before, warnings);
    const QStringList rows = results("cmdDetails");
    EXPECT_EQ(errors, rows.filter("a|Error|").size());
    EXPECT_EQ(warnings, rows.filter("a|Warning|").size());
    EXPECT_EQ(0, rows.filter("b|").size());
}

TEST_F(FolderActions, ComparesTwoChosenClaims)
{
    const QString one = put("housing-typical.zr3", "a.zr3");
    put("housing-typical.zr3", "b.zr3");
    replaceIn(one, "<vatrate>20%2E00</vatrate>", "<vatrate>5</vatrate>");
    start();
    read(2);
    choose({0, 1});
    QStringList rows;
    bool shown = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, window.get(), [&] {
        if (auto *dialog = QApplication::activeModalWidget()) {
            shown = dialog->objectName() == "frmCompare";
            rows = rowsOf(dialog);
        }
    });
    poll.start(20);
    press("cmdCompare");
    QTRY_VERIFY_WITH_TIMEOUT(shown, Patience);
    EXPECT_EQ(1, rows.filter(QRegularExpression("VAT [Rr]ate\\|")).size()) << rows.join(u'\n').toStdString();
    EXPECT_TRUE(user.prompts.isEmpty());
}

TEST_F(FolderActions, ComparesWithTheClaimsOfTheSameNamesElsewhere)
{
    put("housing-typical.zr3", "a.zr3");
    put("housing-typical.zr3", "sub/b.zr3");
    put("housing-typical.zr3", "c.zr3");
    put("housing-typical.zr3", "not chosen.zr3");
    ASSERT_TRUE(QDir().mkpath(path("backup/sub")));
    for (const char *name : {"a.zr3", "sub/b.zr3", "not chosen.zr3", "only there.zr3"})
        ASSERT_TRUE(QFile::copy(mdSamplePath("housing-typical.zr3"), path("backup/") + name));
    QFile(path("backup/a.zr3")).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    replaceIn(path("backup/a.zr3"), "<vatrate>20%2E00</vatrate>", "<vatrate>5</vatrate>");
    start();
    read(4);
    choose({0, 1, 2});
    user.folders = {path("backup")};
    QStringList rows;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, window.get(), [&] {
        if (auto *dialog = QApplication::activeModalWidget())
            rows = rowsOf(dialog);
    });
    poll.start(20);
    press("cmdCompare");
    QTRY_COMPARE_WITH_TIMEOUT(rows.size(), 3, Patience);
    EXPECT_TRUE(rows[0].contains(QRegularExpression("^a\\|\\d+ differences$"))) << rows[0].toStdString();
    EXPECT_EQ("b|Nothing differs.", rows[1]);
    EXPECT_EQ("c|There is none of this name in the other folder.", rows[2]);
}

TEST_F(FolderActions, ComparisonsThatWaitKeepTheirClaims)
{
    put("empty.zr3", "a.zr3");
    put("empty.zr3", "b.zr3");
    start();
    read(2);
    user.folders = {out(), out()};
    QStringList rows;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, window.get(), [&] {
        if (auto *dialog = QApplication::activeModalWidget())
            rows << rowsOf(dialog);
    });
    poll.start(20);
    for (const int row : {0, 1}) {
        choose({row});
        press("cmdCompare");
    }
    const auto have = [&](const char *name) {
        return rows.contains(QLatin1String(name) + "|There is none of this name in the other folder.");
    };
    QTRY_VERIFY_WITH_TIMEOUT(have("a") && have("b"), Patience);
}

namespace {

class FolderOfClaims : public clsMainWindowTest {
protected:
    /// Opens the list from the menu and presses a key in it once the claim is there.
    void openFirst()
    {
        bool pressed = false;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, window.get(), [&] {
            auto *dialog = qobject_cast<frmFolderOfClaims *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            auto *table = dialog->findChild<oFolderTable *>();
            if (table->currentIndex().isValid()) {
                pressed = true;
                QTest::keyClick(table, Qt::Key_Return);
            }
        });
        poll.start(20);
        entry("mnuFolderOfClaims").trigger();
        EXPECT_TRUE(pressed);
    }
};

} // namespace

TEST_F(FolderOfClaims, OpensAClaimInTheMainWindowAfterItsQuestion)
{
    SetProgramFolder(QFileInfo(QStringLiteral(ZR3_TOOL)).path());
    const QString claim = savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    user.answers = {clsUserInterface::Cancel};
    const size_t before = user.messages.size();
    openFirst();
    ASSERT_EQ(before + 1, user.messages.size());
    EXPECT_EQ("Save?", user.messages.back().title);
    EXPECT_TRUE(FormIsDirty()) << "the claim stays open, with its changes";
    user.answers = {clsUserInterface::No};
    openFirst();
    EXPECT_EQ(claim, Document().filePath());
    EXPECT_FALSE(FormIsDirty());
}
