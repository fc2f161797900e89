#include "editors/oFeeEarnerGroupCombo.h"

#include "editors/mdComboboxSelectByItemData.h"
#include "editors/mdInOrder.h"
#include "formdata/clsZR3Form.h"
#include "shell/mdExisting.h"
#include "shell/mdGlobals.h"

#include <QEvent>
#include <QSignalBlocker>

oFeeEarnerGroupCombo::oFeeEarnerGroupCombo(QWidget *parent)
    : oScreenList(parent)
{
    connect(this, &QComboBox::currentIndexChanged, this, &oFeeEarnerGroupCombo::Change);
    fill();
}

void oFeeEarnerGroupCombo::fill()
{
    {
        const QSignalBlocker quiet(this);
        clear();
        if (m_showNoneOption)
            addItem(QStringLiteral("None"));
        for (const auto &group : mdInOrder(Form->FeeEarnerGroupsCollection()))
            addItem(group->Reference(), group->Index);
        setCurrentIndex(count() > 0 ? 0 : -1);
    }
    updateGeometry();
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
    return Form->FeeEarnerGroup(currentData().toInt())->UniqueID();
}

void oFeeEarnerGroupCombo::setSelectedFeeEarnerGroupUniqueID(const QString &uniqueID)
{
    if (uniqueID.isEmpty())
        return;
    const int index = mdExisting(Form->FeeEarnerGroupByUniqueID(uniqueID)).Index;
    {
        const QSignalBlocker quiet(this);
        mdComboboxSelectByItemData(*this, index);
    }
    emit Change();
}

void oFeeEarnerGroupCombo::changeEvent(QEvent *event)
{
    oScreenList::changeEvent(event);
    // Not when the whole window is disabled for a while: that is no choice of the screen's.
    if (event->type() != QEvent::EnabledChange || Enabled() == m_wasEnabled)
        return;
    m_wasEnabled = Enabled();
    setCurrentIndex(m_wasEnabled && count() > 0 ? 0 : -1);
}
