#pragma once

class QComboBox;
class QVariant;

/// Selects the first entry whose data equals the value. Without one, the selection stays as it was.
void mdComboboxSelectByItemData(QComboBox &combo, const QVariant &value);
