#pragma once

#include "base/mdReadAs.h"
#include "controls/clsHoldingBox.h"
#include "controls/oLineBox.h"

#include <optional>

/// A type of typed value: how its text is normalised, and the message for a text that doesn't fit.
struct clsTypedKind {
    std::optional<QString> (*normalised)(const QString &text); ///< nothing if the text doesn't fit
    QLatin1String whatFits; ///< "A date, such as 21/11/26"
    Qt::AlignmentFlag alignment;
    bool normalisesWrites; ///< normalises values written by the program too
    bool refusesWhenDisabled; ///< a disabled box turns pale pink too
    /// The note about a text that was read as something else; null for a type without notes.
    std::optional<clsReadAs> (*readAs)(const QString &typed, const QString &read) = nullptr;
};

/// The text box inside every typed box, with their common behaviour: entering selects the whole text, leaving
/// normalises it, and a text that doesn't fit is left unchanged, turns the box pale pink and keeps the focus. No
/// message, no sound.
///
/// A box counts as left only if the focus moves within its window. Another window in front, an open menu or a closing
/// window don't count, so that Esc and the close box work in spite of a held box, and two programs can't fight over the
/// focus. Nor can a second invalid box: it never got the focus that the first one took back. mdLeaveFocusedBox.h
/// describes what else a held box blocks.
class oTypedText final : public oLineBox, public clsHoldingBox {
    Q_OBJECT

public:
    /// Creates the text box of a typed box, fills the box with it and makes it the box's focus proxy.
    static oTypedText *inside(QWidget &box, const clsTypedKind &kind);

    /// Writes a text from the program; writing the present text is not a change.
    void write(const QString &text);
    /// Normalises the text, or refuses it and takes the focus; true if it is valid.
    bool validate();
    /// Refuses an invalid text as above, and leaves a valid one unchanged.
    bool refuses();
    bool leave() override;
    const QWidget &whole() const override { return *parentWidget(); }
    /// Whether the box has the focus of its window, which may be behind another.
    bool isActive() const;
    /// Sets the small form for the footer: lower, narrower, with centred text.
    void setCompact();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// A key with a character was pressed, before the box handles it; with the character's code.
    void KeyPress(int character);
    /// The focus has left, or is about to leave, and the text is valid.
    void Left();

protected:
    /// Also removes surrounding blanks, which text pasted from a table or a letter often has.
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
    /// Shows beside the box how a typed text was read.
    void tellReading(const QString &typed, const QString &read);

    const clsTypedKind &m_kind;
    bool m_inside = false;
    bool m_selectsOnRelease = false;
    bool m_compact = false;
    bool m_invalid = false;
};
