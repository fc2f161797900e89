#pragma once

#include "controls/clsHoldingBox.h"

#include <QComboBox>

class clsCodeList;

/// The list of activity codes, in which a code can also be typed. It completes an unambiguous beginning, and on leaving
/// turns the code to upper case and checks it. An invalid code is reported once and holds the focus until it is valid;
/// Esc and the close box still work. A code set by the program is shown without a check.
class oCodeCombo : public QComboBox, public clsHoldingBox {
    Q_OBJECT

public:
    explicit oCodeCombo(QWidget *parent = nullptr);

    /// The code of a new item.
    static QString FirstCode() { return QStringLiteral("DOT"); }

    QString Code() const { return currentText(); }
    void setCode(const QString &code);
    /// The code's column and the firm's words for it; empty while the typed text is not a code.
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
