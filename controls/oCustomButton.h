#pragma once

#include "controls/mdIcons.h"

#include <QPushButton>

/// The one button of all windows. Its look says what it is: the one default of a screen is filled, all others are
/// plain. It raises Click once, on the release of the mouse inside it or by the keyboard, and only while it is enabled.
class oCustomButton : public QPushButton {
    Q_OBJECT

public:
    enum class Look {
        Secondary,
        Default, ///< filled; Enter presses it wherever the focus is not in another button
        Danger, ///< the default of a question about losing something
        Small, ///< beside a line of small text
        JoinedLeft, ///< left half of a pair
        JoinedRight,
        Arrow, ///< narrow, with a glyph only
        Band, ///< on the band of the second row of tabs
    };
    Q_ENUM(Look)

    explicit oCustomButton(QWidget *parent = nullptr);

    /// An ampersand marks the mnemonic; the reader gives the caption as it reads, without it.
    void setCaption(const QString &caption);
    QString Caption() const;

    void setLook(Look look);
    oCustomButton::Look look() const { return m_look; }

    /// A sign before the caption, in its colour.
    void setGlyph(Glyph glyph);

    /// The look of this name, which the style finds in the property "look"; Secondary for any other.
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
