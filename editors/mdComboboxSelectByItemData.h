#pragma once

class QComboBox;
class QVariant;

/// Selects the first entry whose data equals the value; if there is none, keeps the selection.
void mdComboboxSelectByItemData(QComboBox &combo, const QVariant &value);
