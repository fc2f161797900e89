#pragma once

#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTimer>

class QPlainTextEdit;

/// Underlines the misspelt words of a text box. Changes are checked after a short pause, and a word being typed only
/// once the caret has left it. Lives as long as its box is checked; its destructor removes the underlines.
///
/// Underlining makes the editor report a change though no text has changed; the box must filter that.
class oSpellHighlighter final : public QSyntaxHighlighter {
    Q_OBJECT

public:
    explicit oSpellHighlighter(QPlainTextEdit *editor);
    ~oSpellHighlighter() override;

    /// Whether changes wait for the end of the pause.
    bool IsWaiting() const { return m_isWaiting; }

protected:
    void highlightBlock(const QString &text) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void noteChange(int from, int removed, int added);
    void noteCaret();
    void leaveTypedWord();
    void wait(int from, int to);
    void waitForAll();
    void checkWaiting();
    bool isMisspelled(const QString &word) const;
    bool isBeingTyped(int start, int end) const;

    QPlainTextEdit *m_editor;
    QTextCharFormat m_misspelled;
    QTextCursor m_waiting; ///< its selection spans the changes since the last check
    bool m_isWaiting = false;
    bool m_isChecking = false;
    int m_typedAt = -1; ///< the caret after the last change, until it moves
    QTimer m_pause;
};
