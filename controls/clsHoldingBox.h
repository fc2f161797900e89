#pragma once

class QWidget;

/// A box that keeps the focus until its text is valid. The implementing class is the focused widget itself;
/// mdLeaveFocusedBox.h describes what it blocks.
class clsHoldingBox {
public:
    /// Acts as if the user left by keyboard or mouse, without moving the focus; false if the box keeps the focus.
    virtual bool leave() = 0;
    /// The whole control as the user sees it: moving to another part of it is not leaving.
    virtual const QWidget &whole() const = 0;

protected:
    ~clsHoldingBox() = default;
};
