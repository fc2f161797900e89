#include "editors/mdComboboxSelectByItemData.h"

#include "base/mdLog.h"

#include <QComboBox>
#include <QVariant>

void mdComboboxSelectByItemData(QComboBox &combo, const QVariant &value)
{
    WriteLog(QStringLiteral("Begin Combobox Select By Item Data"));
    for (int entry = 0; entry < combo.count(); ++entry) {
        if (combo.itemData(entry) == value) {
            combo.setCurrentIndex(entry);
            break;
        }
    }
    WriteLog(QStringLiteral("End Combobox Select By Item Data"));
}
