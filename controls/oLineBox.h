#pragma once

#include <QClipboard>
#include <QLineEdit>

/// A single-line box that cleans text not typed key by key: pasted by key, menu or middle button, dropped, or committed
/// by an input method. Text from the program is not altered.
class oLineBox : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    /// The cleaned form of a pasted or dropped text: one line with plain blanks.
    virtual QString cleaned(const QString &text) const;

    void contextMenuEvent(QContextMenuEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void pasteFrom(QClipboard::Mode mode);
};
