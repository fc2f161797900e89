#pragma once

#include <QClipboard>
#include <QLineEdit>

/// A box of one line that cleans what comes into it other than key by key: a paste by key, menu or middle button, a
/// drop, and what an input method commits. What the program writes stays as it is.
class oLineBox : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    /// What is left of a text that is pasted or dropped: one line with plain blanks.
    virtual QString cleaned(const QString &text) const;

    void contextMenuEvent(QContextMenuEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void pasteFrom(QClipboard::Mode mode);
};
