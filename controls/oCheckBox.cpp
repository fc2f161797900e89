#include "controls/oCheckBox.h"

#include "controls/mdCaption.h"

oCheckBox::oCheckBox(QWidget *parent)
    : QCheckBox(parent)
{
    connect(this, &QCheckBox::toggled, this, &oCheckBox::Click);
}

void oCheckBox::setCaption(const QString &caption)
{
    setAccessibleName(mdSpokenCaption(caption));
}
