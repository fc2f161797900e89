#include "controls/oDecimalBox.h"

#include "base/mdReadAs.h"
#include "base/mdTypedText.h"
#include "controls/oTypedText.h"

namespace {

// clang-format off
const clsTypedKind Kind {
    .normalised = TypedDecimal,
    .whatFits = QLatin1String("An amount, such as 1200.50"),
    .alignment = Qt::AlignRight,
    .normalisesWrites = true,
    .refusesWhenDisabled = true,
    .readAs = DecimalReadAs,
};
// clang-format on

} // namespace

oDecimalBox::oDecimalBox(QWidget *parent)
    : QWidget(parent)
    , txtText(oTypedText::inside(*this, Kind))
{ }

QString oDecimalBox::Text() const
{
    return txtText->text();
}

void oDecimalBox::setText(const QString &text)
{
    txtText->write(text);
}
