#pragma once

#include "controls/mdIcons.h"

#include <QPushButton>

/// The button of all windows. Its look shows its role: the default button of a screen is filled, all others are plain.
/// It raises Click once, when the mouse is released inside it or by the keyboard, and only while enabled.
class oCustomButton : public QPushButton {
    Q_OBJECT

public:
    enum class Look {
        Secondary,
        Default, ///< filled; Enter presses it unless the focus is on another button
        Danger, ///< the default of a question about a destructive action
        Small, ///< beside a line of small text
        JoinedLeft, ///< left half of a pair
        JoinedRight,
        Arrow, ///< narrow, with a glyph only
        Band, ///< on the background of the second row of tabs
    };
    Q_ENUM(Look)

    explicit oCustomButton(QWidget *parent = nullptr);

    /// An ampersand marks the mnemonic; Caption() returns the text without it.
    void setCaption(const QString &caption);
    QString Caption() const;

    void setLook(Look look);
    oCustomButton::Look look() const { return m_look; }

    /// A glyph before the caption, in its colour.
    void setGlyph(Glyph glyph);

    /// The look with this name, as in the property "look"; Secondary for any other.
    static Look lookFromName(const QString &name);

signals:
    void Click();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void chooseFont();

    Look m_look = Look::Secondary;
};
