#include "controls/oTimeBox.h"

#include "base/mdTypedText.h"
#include "controls/oTypedText.h"

namespace {

// clang-format off
const clsTypedKind Kind {
    .normalised = TypedTime,
    .whatFits = QLatin1String("A time, such as 1:30, 1.5 or 90"),
    .alignment = Qt::AlignLeft,
    .normalisesWrites = false,
    .refusesWhenDisabled = true,
};
// clang-format on

} // namespace

oTimeBox::oTimeBox(QWidget *parent)
    : QWidget(parent)
    , txtText(oTypedText::inside(*this, Kind))
{
    connect(txtText, &oTypedText::KeyPress, this, &oTimeBox::KeyPress);
    connect(txtText, &oTypedText::Left, this, &oTimeBox::Left);
}

QString oTimeBox::Text() const
{
    return txtText->text();
}

void oTimeBox::setText(const QString &text)
{
    txtText->write(text);
}

bool oTimeBox::ForceFormat()
{
    return txtText->validate();
}

bool oTimeBox::isActive() const
{
    return txtText->isActive();
}

void oTimeBox::setCompact()
{
    txtText->setCompact();
}
