#pragma once

#include "base/mdReadAs.h"
#include "controls/clsHoldingBox.h"
#include "controls/oLineBox.h"

#include <optional>

/// One kind of typed value: what becomes of a text, and what a user is told whose text doesn't fit.
struct clsTypedKind {
    std::optional<QString> (*normalised)(const QString &text); ///< nothing where the text doesn't fit
    QLatin1String whatFits; ///< "A date, such as 21/11/26"
    Qt::AlignmentFlag alignment;
    bool normalisesWrites; ///< a value that the program writes is normalised at once
    bool refusesWhenDisabled; ///< a disabled box turns pale pink too
    /// What is told of a text that was read as something else; nothing for a kind that never tells.
    std::optional<clsReadAs> (*readAs)(const QString &typed, const QString &read) = nullptr;
};

/// The text box inside every typed box, and all that they have in common: the whole text is selected on entering, the
/// text is normalised on leaving, and a text that doesn't fit stays as it is, turns the box pale pink and keeps the
/// focus. No message, no sound.
///
/// Left is a box only when the focus moves within its window. Another window in front, an open menu and a closing
/// window are no leaving, so that a held box lets Esc and the close box through and two programs don't fight over the
/// focus. A second bad box can't fight either: it never got the focus that the first one took back. What else a held
/// box stops is told in mdLeaveFocusedBox.h.
class oTypedText final : public oLineBox, public clsHoldingBox {
    Q_OBJECT

public:
    /// Makes the text box of a typed box, lets it fill the box and gives it the focus of the whole.
    static oTypedText *inside(QWidget &box, const clsTypedKind &kind);

    /// Writes a text for the program: one that is there already is no change.
    void write(const QString &text);
    /// Normalises the text, or refuses it and takes the focus; whether it fits.
    bool validate();
    /// Refuses a text that doesn't fit as above, and leaves one that does as it stands.
    bool refuses();
    bool leave() override;
    const QWidget &whole() const override { return *parentWidget(); }
    /// Whether the user is in this box: it has the focus of its window, which may itself lie behind another.
    bool isActive() const;
    /// The small form of the footer: less high and wide, its text in the middle.
    void setCompact();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// A key with a character was pressed, before the box takes it; with the character's code.
    void KeyPress(int character);
    /// The focus has gone, or is about to go, and the text fits.
    void Left();

protected:
    /// Without the blanks around it too: what is pasted from a table or a letter brings them along.
    QString cleaned(const QString &text) const override { return oLineBox::cleaned(text).trimmed(); }
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    oTypedText(QWidget &box, const clsTypedKind &kind);

    void setInvalid(bool invalid);
    /// Tells beside the box how a text was read that the user typed.
    void tellReading(const QString &typed, const QString &read);

    const clsTypedKind &m_kind;
    bool m_inside = false;
    bool m_selectsOnRelease = false;
    bool m_compact = false;
    bool m_invalid = false;
};
