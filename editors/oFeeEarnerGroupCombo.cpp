#include "editors/oFeeEarnerGroupCombo.h"

#include "editors/mdComboboxSelectByItemData.h"
#include "editors/mdEditedForm.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdInOrder.h"

#include <QSignalBlocker>

oFeeEarnerGroupCombo::oFeeEarnerGroupCombo(QWidget *parent)
    : oScreenList(parent)
{
    connect(this, &QComboBox::currentIndexChanged, this, &oFeeEarnerGroupCombo::Change);
    fill();
}

void oFeeEarnerGroupCombo::fill()
{
    refill([this] {
        if (m_showNoneOption)
            addItem(QStringLiteral("None"));
        for (const auto &group : mdInOrder(mdEditedForm().FeeEarnerGroupsCollection()))
            addItem(group->Reference(), group->Index);
        return 0;
    });
    emit Change();
}

void oFeeEarnerGroupCombo::setShowNoneOption(bool showNoneOption)
{
    if (m_showNoneOption == showNoneOption)
        return;
    m_showNoneOption = showNoneOption;
    fill();
}

QString oFeeEarnerGroupCombo::SelectedFeeEarnerGroupUniqueID() const
{
    if (!Enabled() || !currentData().isValid())
        return {};
    return mdEditedForm().FeeEarnerGroup(currentData().toInt())->UniqueID();
}

void oFeeEarnerGroupCombo::setSelectedFeeEarnerGroupUniqueID(const QString &uniqueID)
{
    if (uniqueID.isEmpty())
        return;
    const auto group = mdEditedForm().FeeEarnerGroupByUniqueID(uniqueID);
    {
        const QSignalBlocker quiet(this);
        if (group)
            mdComboboxSelectByItemData(*this, group->Index);
        else
            setCurrentIndex(-1);
    }
    emit Change();
}

void oFeeEarnerGroupCombo::setEnabled(bool enabled)
{
    oScreenList::setEnabled(enabled);
    setCurrentIndex(enabled && count() > 0 ? 0 : -1);
}
