#include "editors/mdCalculateVAT.h"

#include "controls/oCustomButton.h"
#include "controls/oDecimalBox.h"
#include "costing/Money.h"
#include "editors/frmSection.h"
#include "formdata/clsZR3Form.h"
#include "shell/mdGlobals.h"
#include "shell/mdNumberText.h"

#include <QLocale>

void mdCalculateVAT(const oDecimalBox &netBox, oDecimalBox &vatBox)
{
    const Money amount = MoneyFromDouble(TextValue(netBox.Text()));
    // The amount is divided before it is multiplied: the order decides the last digit of some figures.
    const double base = amount.toDouble() / 100.0;
    const double product = DoubleFromStrictText(Form->VATRate()) * base;
    // The whole figure goes to the box, whose own format is the one rounding of it.
    vatBox.setText(QString::number(product, 'f', QLocale::FloatingPointShortest));
}

void mdCalculateVATByButton(frmSection &screen, const char *netBox, const char *vatBox)
{
    const auto &button = screen.Box<oCustomButton>("cmdCalculate");
    const auto &net = screen.Box<oDecimalBox>(netBox);
    auto &vat = screen.Box<oDecimalBox>(vatBox);
    QObject::connect(&button, &oCustomButton::Click, &screen, [&net, &vat] { mdCalculateVAT(net, vat); });
}
