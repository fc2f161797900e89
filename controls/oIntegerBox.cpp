#include "controls/oIntegerBox.h"

#include "base/mdTypedText.h"
#include "controls/oTypedText.h"

namespace {

// clang-format off
const clsTypedKind Kind {
    .normalised = TypedInteger,
    .whatFits = QLatin1String("A number of no more than 2,147,483,647, such as 12"),
    .alignment = Qt::AlignRight,
    .normalisesWrites = false,
    .refusesWhenDisabled = true,
};
// clang-format on

} // namespace

oIntegerBox::oIntegerBox(QWidget *parent)
    : QWidget(parent)
    , txtText(oTypedText::inside(*this, Kind))
{ }

QString oIntegerBox::Text() const
{
    return txtText->text();
}

void oIntegerBox::setText(const QString &text)
{
    txtText->write(text);
}
