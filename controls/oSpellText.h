#pragma once

#include <QPlainTextEdit>

#include <memory>

class oSpellHighlighter;

/// The platform's text box with the program's extensions: one line or several, with or without spell checking. It
/// reports only changes of its text, keeps undo through the program's own changes, and returns line breaks as CR LF. A
/// single line is an editor of one line's height, since the platform's line box can't underline.
class oSpellText : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit oSpellText(QWidget *parent = nullptr);
    ~oSpellText() override;

    QString Text() const;
    /// Replaces the text; can't be undone.
    void setText(const QString &text);
    /// Replaces the text as an edit by the user would: only the differing part is changed, and it can be undone.
    void rewriteText(const QString &text);

    /// The caret, or the start of the selection. A line break counts as two characters.
    int SelStart() const;
    /// Moves the caret there, or to the nearest valid position, and clears the selection.
    void setSelStart(int position);

    bool MultiLine() const { return m_multiLine; }
    void setMultiLine(bool multiLine);
    bool SpellCheck() const { return m_highlighter != nullptr; }
    void setSpellCheck(bool spellCheck);

    /// The preferred size: a width, and the number of lines of a multi-line box.
    void setRoom(int width, int lines);
    /// The height of a box that shows that many lines without scrolling.
    int heightOfLines(int lines) const;
    /// The distance from the top of the box to the top of its first line.
    int topOfFirstLine() const;
    /// The menu for a position of the text, with the box's own actions at its end.
    std::unique_ptr<QMenu> menuAt(int position);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The user or the program has changed the text.
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
    bool m_writing = false; ///< the program is writing and will report it itself
    bool m_leftWithWindow = false; ///< the focus was lost by the whole window, not to another control
    std::unique_ptr<oSpellHighlighter> m_highlighter;
};
