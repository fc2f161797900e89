#include "base/mdPercentageCalculate.h"

#include "base/mdNumberText.h"

Money PercentageCalculate(Money amount, QStringView percentage)
{
    // Divides before multiplying: the order decides the fourth decimal of some figures.
    const double base = amount.toDouble() / 100.0;
    return MoneyFromDouble(base * TextValue(percentage));
}
