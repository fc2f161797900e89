#pragma once

#include "controls/clsHoldingBox.h"

#include <QComboBox>

class clsCodeList;

/// The list of activity codes, in which a code can be typed as well: it completes what only one code begins with, and
/// on leaving turns it to upper case and checks it. What is no code is told once, and the user is held until it is one;
/// Esc and the close box are free. A code that the program writes is shown as it is and not checked.
class oCodeCombo : public QComboBox, public clsHoldingBox {
    Q_OBJECT

public:
    explicit oCodeCombo(QWidget *parent = nullptr);

    /// What a new item begins with.
    static QString FirstCode() { return QStringLiteral("DOT"); }

    QString Code() const { return currentText(); }
    void setCode(const QString &code);
    /// The column of the code and the firm's words for it; empty while what is typed is no code.
    QString InWords() const;

    bool leave() override;
    const QWidget &whole() const override { return *this; }

    QSize sizeHint() const override;
    void showPopup() override;

signals:
    /// The user has changed the firm's words.
    void WordsChanged();

protected:
    bool event(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void explain();
    void complete();

    clsCodeList *m_list;
    bool m_telling = false;
    bool m_untold = false;
};
