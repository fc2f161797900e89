#pragma once

#include <QPlainTextEdit>

#include <memory>

class oSpellHighlighter;

/// The platform's text box as the program needs it: one line or several, with the spelling checked or not. It tells of
/// a change only when its text has changed, keeps undo through the program's own changes, and gives line breaks as CR
/// LF. One line is an editor of one line's height, since the platform's line box can't underline.
class oSpellText : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit oSpellText(QWidget *parent = nullptr);
    ~oSpellText() override;

    QString Text() const;
    /// Puts a new text in place of the old one, which can't be undone.
    void setText(const QString &text);
    /// The same as an edit of the user's: only the stretch that differs is touched, and it can be undone.
    void rewriteText(const QString &text);

    /// The caret, or the beginning of what is selected. A line break counts as two characters.
    int SelStart() const;
    /// Puts the caret there, or to the nearest place that there is; nothing is selected afterwards.
    void setSelStart(int position);

    bool MultiLine() const { return m_multiLine; }
    void setMultiLine(bool multiLine);
    bool SpellCheck() const { return m_highlighter != nullptr; }
    void setSpellCheck(bool spellCheck);

    /// How much room the box asks for: a width, and the lines of a box of several.
    void setRoom(int width, int lines);
    /// The height of a box that shows so many lines without scrolling.
    int heightOfLines(int lines) const;
    /// The distance from the top of the box to the top of its first line.
    int topOfFirstLine() const;
    /// The menu for a place of the text, with the box's own actions at its end.
    std::unique_ptr<QMenu> menuAt(int position);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The text has been changed, by the user or the program.
    void Change();
    void KeyRelease(int KeyCode);

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    QString editorText() const;
    void layOut();
    void tellChange();

    bool m_multiLine = false;
    int m_width;
    int m_lines = 3;
    int m_lineHeight = 0;
    bool m_edited = false; ///< the document's text has changed since the last `Change`
    bool m_writing = false; ///< the program is writing and will tell of it itself
    bool m_leftWithWindow = false; ///< the focus went with the whole window, and not to another control
    std::unique_ptr<oSpellHighlighter> m_highlighter;
};
