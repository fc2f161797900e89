#include "editors/mdCalculateVAT.h"

#include "base/Money.h"
#include "base/mdNumberText.h"
#include "controls/oDecimalBox.h"
#include "editors/frmScreen.h"
#include "editors/mdConnectCalculate.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QLocale>

namespace {

double rate()
{
    try {
        return DoubleFromStrictText(Form->VATRate());
    } catch (const clsRunTimeError &error) {
        throw error.because(QStringLiteral("Form Setup: the VAT rate is not a number"));
    }
}

} // namespace

void mdCalculateVAT(const oDecimalBox &netBox, oDecimalBox &vatBox)
{
    const Money amount = MoneyFromDouble(TextValue(netBox.Text()));
    // Divides before multiplying: the order affects the last digit of some amounts.
    const double base = amount.toDouble() / 100.0;
    const double product = rate() * base;
    // Passes the unrounded amount, which the box rounds once.
    vatBox.setText(QString::number(product, 'f', QLocale::FloatingPointShortest));
}

void mdCalculateVATByButton(frmScreen &screen, const char *netBox, const char *vatBox)
{
    const auto &net = screen.Box<oDecimalBox>(netBox);
    auto &vat = screen.Box<oDecimalBox>(vatBox);
    mdConnectCalculate(screen, [&net, &vat] { mdCalculateVAT(net, vat); });
}
