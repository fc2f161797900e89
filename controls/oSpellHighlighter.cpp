#include "controls/oSpellHighlighter.h"

#include "controls/clsSpellingChecker.h"
#include "controls/mdSpellingWords.h"
#include "controls/mdTheme.h"

#include <QEvent>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextBlock>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds Pause {300};

} // namespace

oSpellHighlighter::oSpellHighlighter(QPlainTextEdit *editor)
    : QSyntaxHighlighter(editor->document())
    , m_editor(editor)
    , m_waiting(editor->document())
{
    m_misspelled.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    m_misspelled.setUnderlineColor(Theme::Red);
    m_pause.setSingleShot(true);
    m_pause.setInterval(Pause);
    connect(&m_pause, &QTimer::timeout, this, &oSpellHighlighter::checkWaiting);
    connect(document(), &QTextDocument::contentsChange, this, &oSpellHighlighter::noteChange);
    connect(editor, &QPlainTextEdit::cursorPositionChanged, this, &oSpellHighlighter::noteCaret);
    connect(&SpellingChecker(), &clsSpellingChecker::WordsChanged, this, &oSpellHighlighter::waitForAll);
    editor->installEventFilter(this);
    waitForAll();
}

oSpellHighlighter::~oSpellHighlighter()
{
    // Removing the underlines reports a change, which must no longer be handled.
    disconnect(document(), &QTextDocument::contentsChange, this, &oSpellHighlighter::noteChange);
    disconnect(m_editor, nullptr, this, nullptr);
}

void oSpellHighlighter::highlightBlock(const QString &text)
{
    for (const clsWordPlace &word : SpellingWords(text)) {
        const int start = currentBlock().position() + word.start;
        if (!isBeingTyped(start, start + word.length) && isMisspelled(text.mid(word.start, word.length)))
            setFormat(word.start, word.length, m_misspelled);
    }
}

bool oSpellHighlighter::isMisspelled(const QString &word) const
{
    if (m_isChecking)
        return !SpellingChecker().IsCorrect(word);
    // The toolkit asks at each key. Words already checked keep their underline, so that nothing flickers; new ones
    // wait.
    return !SpellingChecker().KnownResult(word).value_or(true);
}

bool oSpellHighlighter::isBeingTyped(int start, int end) const
{
    const int caret = m_editor->textCursor().position();
    if (!m_editor->hasFocus() || caret <= start || caret > end)
        return false;
    // While the toolkit asks, the text has just changed at the caret; later the caret may have been moved there.
    return !m_isChecking || caret == m_typedAt;
}

bool oSpellHighlighter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut)
        leaveTypedWord();
    return QSyntaxHighlighter::eventFilter(watched, event);
}

void oSpellHighlighter::noteChange(int from, int, int added)
{
    m_typedAt = m_editor->hasFocus() ? m_editor->textCursor().position() : -1;
    wait(from, from + added);
}

void oSpellHighlighter::noteCaret()
{
    if (m_editor->textCursor().position() != m_typedAt)
        leaveTypedWord();
}

void oSpellHighlighter::leaveTypedWord()
{
    if (m_typedAt >= 0)
        wait(m_typedAt, m_typedAt);
    m_typedAt = -1;
}

void oSpellHighlighter::wait(int from, int to)
{
    if (m_isWaiting) {
        from = qMin(from, m_waiting.selectionStart());
        to = qMax(to, m_waiting.selectionEnd());
    }
    const int end = document()->characterCount() - 1;
    m_waiting.setPosition(qBound(0, from, end));
    m_waiting.setPosition(qBound(0, to, end), QTextCursor::KeepAnchor);
    m_isWaiting = true;
    m_pause.start();
}

void oSpellHighlighter::waitForAll()
{
    wait(0, document()->characterCount());
}

void oSpellHighlighter::checkWaiting()
{
    const QScopedValueRollback checking(m_isChecking, true);
    m_isWaiting = false;
    const QTextBlock last = document()->findBlock(m_waiting.selectionEnd());
    for (QTextBlock block = document()->findBlock(m_waiting.selectionStart()); block.isValid(); block = block.next()) {
        rehighlightBlock(block);
        if (block == last)
            break;
    }
}
