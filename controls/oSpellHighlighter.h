#pragma once

#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTimer>

class QPlainTextEdit;

/// Underlines the misspelled words of a text box. What has changed is looked at after a short pause, and the word that
/// is being typed only once the caret has left it. Lives as long as its box is checked, and takes its lines with it.
///
/// Underlining lets the editor tell of a change though no text has changed; the box must see to that.
class oSpellHighlighter final : public QSyntaxHighlighter {
    Q_OBJECT

public:
    explicit oSpellHighlighter(QPlainTextEdit *editor);
    ~oSpellHighlighter() override;

    /// Whether something waits for the end of the pause.
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
    QTextCursor m_waiting; ///< its selection spans what has changed since the last check
    bool m_isWaiting = false;
    bool m_isChecking = false;
    int m_typedAt = -1; ///< where the last change left the caret, as long as it stands there
    QTimer m_pause;
};
