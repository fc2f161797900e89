#include "costing/mdStrictDouble.h"

#include "costing/Money.h"
#include "costing/mdNumberText.h"

double mdStrictDouble(const QString &text)
{
    static_cast<void>(MoneyFromText(text)); // for its refusal of what is no number
    return TextValue(QString(text).remove(u','));
}
