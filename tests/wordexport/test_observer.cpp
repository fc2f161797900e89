#include "wordexport/document/clsMSWordObserver.h"

#include "tests/wordexport/clsTestDocument.h"

#include <QFileInfo>

namespace {

/// Records each event as a line.
class clsRecorder final : public clsMSWordObserver {
public:
    QStringList events;

    void opened(const QString &path) override { events << QStringLiteral("opened ") + QFileInfo(path).fileName(); }
    void movedDown(int n) override { events << QStringLiteral("down %1").arg(n); }
    void movedRight(int n) override { events << QStringLiteral("right %1").arg(n); }
    void movedToRowStart() override { events << QStringLiteral("rowstart"); }
    void nextRow() override { events << QStringLiteral("nextrow"); }
    void newParagraph() override { events << QStringLiteral("newpara"); }
    void tabs(int n) override { events << QStringLiteral("tabs %1").arg(n); }
    void replaced(const QString &find, const QString &text, bool tick) override
    {
        events << QStringLiteral("replaced %1 '%2'%3").arg(find, text, tick ? QStringLiteral(" tick") : QString());
    }
    void typed(const QString &text, bool tick, bool bold) override
    {
        events << QStringLiteral("typed '%1'%2%3")
                      .arg(
                          text, tick ? QStringLiteral(" tick") : QString(), bold ? QStringLiteral(" bold") : QString());
    }
    void failed(const QString &what, const QString &value) override
    {
        events << QStringLiteral("failed %1 '%2'").arg(what, value);
    }
    void inserted(const QString &path) override { events << QStringLiteral("inserted ") + QFileInfo(path).fileName(); }
    void backSpace() override { events << QStringLiteral("backspace"); }
    void savedAndClosed() override { events << QStringLiteral("saved"); }
};

TEST(clsMSWordObserver, SeesEachOperationOnceWithTheTextsAsTyped)
{
    const clsTestFolder folder;
    const QString path
        = folder.write(QStringLiteral("a.doc"), clsTestDocument(p(QStringLiteral("{a}{b}{c}{d}")) + grid(2, 2) + p()));
    const QString other = folder.write(QStringLiteral("b.doc"), clsTestDocument(p(QStringLiteral("b"))));
    clsRecorder recorder;
    const clsMSWordObserverScope scope(recorder);
    clsMSWord word;
    word.OpenDocument(path);
    word.DoReplace(QStringLiteral("{a}"), QStringLiteral("True"), true, false, true);
    word.DoReplace(QStringLiteral("{b}"), QString(), false, false, true);
    word.DoReplace(QStringLiteral("{c}"), QStringLiteral("1\r\n2"), false, false, true);
    word.DoReplace(QStringLiteral("{d}"), QStringLiteral("no"), false, true, true);
    word.MoveCursorDown(2);
    word.SetText(QStringLiteral("1234.5"), false, true, true, false);
    word.MoveCursorRight(1);
    word.SetText(QString(), false, false, true, true);
    word.SetText(QStringLiteral("x"), false, true, true, false);
    word.MoveSursorToNextLine();
    word.MoveCursorToStartOfRow();
    word.NextLine();
    word.NextColumn();
    word.MoveColumns(2);
    word.InsertFileAtEnd(other);
    word.InsertFileAtEnd(folder.path(QStringLiteral("none.doc")));
    word.TypeBackSpace();
    word.SaveAndClose();
    EXPECT_EQ(recorder.events,
        (QStringList {
            QStringLiteral("opened a.doc"),
            QStringLiteral("replaced {a} '%1' tick").arg(QChar(0xFE)),
            QStringLiteral("replaced {b} ' '"),
            QStringLiteral("replaced {c} '1\v2'"),
            QStringLiteral("failed {d} 'no'"),
            QStringLiteral("down 2"),
            QStringLiteral("typed '1,234.50'"),
            QStringLiteral("right 1"),
            QStringLiteral("typed '' bold"),
            QStringLiteral("failed cell 'x'"),
            QStringLiteral("nextrow"),
            QStringLiteral("rowstart"),
            QStringLiteral("newpara"),
            QStringLiteral("tabs 1"),
            QStringLiteral("tabs 2"),
            QStringLiteral("inserted b.doc"),
            QStringLiteral("failed InsertFileAtEnd '%1'").arg(folder.path(QStringLiteral("none.doc"))),
            QStringLiteral("backspace"),
            QStringLiteral("saved"),
        }));
    EXPECT_TRUE(word.sheetLost());
}

TEST(clsMSWordObserver, IsWatchingOnlyAsLongAsItsScope)
{
    clsRecorder recorder;
    {
        const clsMSWordObserverScope scope(recorder);
    }
    clsMSWord().TypeBackSpace();
    EXPECT_TRUE(recorder.events.isEmpty());
}

} // namespace
