#pragma once

class QWidget;

/// A box that holds the user while its text doesn't fit. It is the very widget that has the focus; mdLeaveFocusedBox.h
/// tells what it stops.
class clsHoldingBox {
public:
    /// What leaving by keyboard or mouse does, with the focus where it is; whether the box lets go.
    virtual bool leave() = 0;
    /// The control that the user takes for the box: going to another part of it is no leaving.
    virtual const QWidget &whole() const = 0;

protected:
    ~clsHoldingBox() = default;
};
