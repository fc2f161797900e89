#include "controls/oSpellText.h"

#include "controls/mdBoxText.h"
#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdSpellingMenu.h"
#include "controls/mdTheme.h"
#include "controls/oSpellHighlighter.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace {

/// From the edge of the box to its text, on the left and right.
constexpr int SidePadding = 9;
/// Around the document: small, so that a wide frame leaves room for a line.
constexpr int DocumentMargin = 1;

/// The length that two texts have in common, without splitting a surrogate pair.
int lengthOfCommonStart(const QString &first, const QString &second)
{
    const auto [end, other] = std::mismatch(first.begin(), first.end(), second.begin(), second.end());
    const int length = int(end - first.begin());
    return length > 0 && first[length - 1].isHighSurrogate() ? length - 1 : length;
}

int lengthOfCommonEnd(QStringView first, QStringView second)
{
    int length = 0;
    while (length < qMin(first.size(), second.size())
        && first[first.size() - 1 - length] == second[second.size() - 1 - length])
        ++length;
    return length > 0 && first[first.size() - length].isLowSurrogate() ? length - 1 : length;
}

/// The height of a line as laid out by the editor, in some font sizes a pixel more than the metrics.
int laidOutLine(const QFont &font)
{
    QTextDocument document;
    auto *layout = new QPlainTextDocumentLayout(&document);
    document.setDocumentLayout(layout);
    document.setDocumentMargin(0);
    document.setDefaultFont(font);
    document.setPlainText(QStringLiteral("x"));
    return qCeil(layout->blockBoundingRect(document.firstBlock()).height());
}

} // namespace

oSpellText::oSpellText(QWidget *parent)
    : QPlainTextEdit(parent)
    , m_width(fontMetrics().averageCharWidth() * 20)
{
    setFrameShape(QFrame::StyledPanel);
    setAttribute(Qt::WA_Hover);
    setTabChangesFocus(true);
    document()->setDocumentMargin(DocumentMargin);
    // Highlighting makes the editor report a change though its document has none.
    connect(document(), &QTextDocument::contentsChange, this, [this] { m_edited = true; });
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (m_edited && !m_writing)
            tellChange();
    });
    layOut();
}

oSpellText::~oSpellText()
{
    // A box being destroyed reports no more changes, although its underlines are removed.
    blockSignals(true);
    document()->disconnect(this);
}

QString oSpellText::editorText() const
{
    // Not toPlainText(), which replaces the claim's non-breaking blanks.
    return document()->toRawText();
}

QString oSpellText::Text() const
{
    return WithLineBreaks(editorText());
}

void oSpellText::setText(const QString &text)
{
    {
        const QScopedValueRollback writing(m_writing, true);
        setPlainText(BoxText(text, m_multiLine));
        // Before its layout, a box is too low for a line in a larger font, and the editor scrolls by a line.
        verticalScrollBar()->setValue(0);
        m_leftWithWindow = false;
    }
    tellChange();
}

void oSpellText::rewriteText(const QString &text)
{
    {
        const QScopedValueRollback writing(m_writing, true);
        const QString before = BoxText(editorText(), true);
        const QString after = BoxText(text, m_multiLine);
        const int start = lengthOfCommonStart(before, after);
        // Stops at the caret, which must be after the new text when the edit is redone.
        const int end = qMin(int(before.size()) - textCursor().position(),
            lengthOfCommonEnd(QStringView(before).mid(start), QStringView(after).mid(start)));
        if (before != after) {
            // Starts at the caret, to which undo returns.
            QTextCursor cursor = textCursor();
            cursor.beginEditBlock();
            cursor.setPosition(start);
            cursor.setPosition(int(before.size()) - end, QTextCursor::KeepAnchor);
            cursor.insertText(after.mid(start, after.size() - start - end));
            cursor.endEditBlock();
        }
    }
    tellChange();
}

void oSpellText::tellChange()
{
    m_edited = false;
    emit Change();
}

int oSpellText::SelStart() const
{
    return int(WithLineBreaks(editorText().left(textCursor().selectionStart())).size());
}

void oSpellText::setSelStart(int position)
{
    const QString text = BoxText(editorText(), true);
    int place = 0;
    for (int passed = 0; place < text.size(); ++place) {
        passed += text[place] == u'\n' ? 2 : 1;
        if (passed > position)
            break;
    }
    QTextCursor cursor = textCursor();
    cursor.setPosition(place);
    setTextCursor(cursor);
}

void oSpellText::setMultiLine(bool multiLine)
{
    if (m_multiLine == multiLine)
        return;
    m_multiLine = multiLine;
    // A multi-line text must be converted for a single-line box.
    if (!multiLine && blockCount() > 1)
        setText(Text());
    layOut();
}

void oSpellText::setSpellCheck(bool spellCheck)
{
    if (spellCheck == SpellCheck())
        return;
    const QScopedValueRollback writing(m_writing, true);
    m_highlighter = spellCheck ? std::make_unique<oSpellHighlighter>(this) : nullptr;
    // The document may report a change when its underlines are removed.
    m_edited = false;
}

void oSpellText::setRoom(int width, int lines)
{
    m_width = width;
    m_lines = lines;
    updateGeometry();
}

void oSpellText::layOut()
{
    setLineWrapMode(m_multiLine ? WidgetWidth : NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(m_multiLine ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, m_multiLine ? QSizePolicy::MinimumExpanding : QSizePolicy::Fixed);
    // The frame has a width and the document a margin; the rest of the padding is between them.
    const int inner = frameWidth() + DocumentMargin;
    const int padding = Theme::boxHeight(fontMetrics()) - fontMetrics().height();
    // An odd pixel is added above the text, as in neighbouring boxes.
    const int above = qMax(0, (padding + 1) / 2 - inner);
    // None below a single line: the toolkit would scroll the line if its room were even a pixel too low. For several
    // lines the toolkit reserves a pixel.
    const int below = m_multiLine ? qMax(0, padding - 2 * inner - above - 1) : 0;
    m_lineHeight = m_multiLine ? laidOutLine(font()) : fontMetrics().height();
    const int side = qMax(0, SidePadding - inner);
    setViewportMargins(qMax(0, side - 1), above, side, below);
    updateGeometry();
}

int oSpellText::topOfFirstLine() const
{
    return frameWidth() + viewportMargins().top() + DocumentMargin;
}

int oSpellText::heightOfLines(int lines) const
{
    return Theme::boxHeight(fontMetrics()) - fontMetrics().height() + lines * m_lineHeight;
}

QSize oSpellText::sizeHint() const
{
    return {m_width, heightOfLines(m_multiLine ? m_lines : 1)};
}

QSize oSpellText::minimumSizeHint() const
{
    return {qMin(m_width, fontMetrics().averageCharWidth() * 8), sizeHint().height()};
}

std::unique_ptr<QMenu> oSpellText::menuAt(int position)
{
    std::unique_ptr<QMenu> menu(createStandardContextMenu());
    // Removes the icons, which are the desktop's and vary.
    const QList<QAction *> standard = menu->actions();
    for (QAction *entry : standard)
        entry->setIcon({});
    if (SpellCheck())
        mdAddSpellingEntries(*menu, *this, position);
    if (!actions().isEmpty())
        menu->addSeparator();
    menu->addActions(actions());
    return menu;
}

void oSpellText::contextMenuEvent(QContextMenuEvent *event)
{
    // The key opens the menu at the caret, wherever the pointer is.
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const int position = byKey ? textCursor().position() : cursorForPosition(event->pos()).position();
    menuAt(position)->exec(byKey ? viewport()->mapToGlobal(cursorRect().bottomLeft()) : event->globalPos());
}

void oSpellText::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        layOut();
}

void oSpellText::focusInEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusInEvent(event);
    // When the focus returns from a menu or another window, the caret stays.
    const Qt::FocusReason reason = event->reason();
    if (mdIsInterruption(reason) && (reason != Qt::ActiveWindowFocusReason || m_leftWithWindow))
        return;
    const int across = horizontalScrollBar()->value();
    const int down = verticalScrollBar()->value();
    moveCursor(QTextCursor::End);
    if (reason != Qt::MouseFocusReason)
        return;
    // Scroll back, so that the click that set the focus places the caret where the user clicked.
    horizontalScrollBar()->setValue(across);
    verticalScrollBar()->setValue(down);
}

void oSpellText::focusOutEvent(QFocusEvent *event)
{
    m_leftWithWindow = event->reason() == Qt::ActiveWindowFocusReason;
    QPlainTextEdit::focusOutEvent(event);
}

void oSpellText::inputMethodEvent(QInputMethodEvent *event)
{
    const QString typed = PastedBoxText(event->commitString(), m_multiLine);
    if (typed != event->commitString())
        event->setCommitString(typed, event->replacementStart(), event->replacementLength());
    QPlainTextEdit::inputMethodEvent(event);
}

void oSpellText::insertFromMimeData(const QMimeData *source)
{
    insertPlainText(PastedBoxText(source->text(), m_multiLine));
    ensureCursorVisible();
}

void oSpellText::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && !m_multiLine) {
        // For the default button of the screen.
        event->ignore();
        return;
    }
    // Shift doesn't change a line break, nor any modifier a blank.
    QString typed = event->text();
    if (event->matches(QKeySequence::InsertLineSeparator))
        typed = QStringLiteral("\n");
    else if (typed.size() != 1 || typed[0].category() != QChar::Separator_Space || typed == QStringLiteral(" ")) {
        QPlainTextEdit::keyPressEvent(event);
        return;
    }
    insertPlainText(PastedBoxText(typed, m_multiLine));
    ensureCursorVisible();
}

void oSpellText::keyReleaseEvent(QKeyEvent *event)
{
    QPlainTextEdit::keyReleaseEvent(event);
    // A key held down is released once, although the desktop may report a release at each repetition.
    if (!event->isAutoRepeat())
        emit KeyRelease(event->key());
}
