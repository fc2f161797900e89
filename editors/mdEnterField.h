#pragma once

class QWidget;

/// Sets the focus to a field as its letter does: to its focus proxy or, if that is disabled, to the first part that can
/// take it, such as the tick of a date that is switched off. False, without moving the focus, if no part can take it.
bool mdEnterField(QWidget &field);
