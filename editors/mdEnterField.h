#pragma once

class QWidget;

/// Gives the focus to a field as its letter does: to the part that takes it for the whole or, while that is disabled,
/// to the first that can be entered, such as the tick of a date that is switched off. False where none can, and then
/// the focus stays.
bool mdEnterField(QWidget &field);
