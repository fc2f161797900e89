#include "costing/checking/clsWhy.h"

#include "base/mdFormatMoney.h"

QString clsWhyStep::sentence() const
{
    return (Reason.isEmpty() ? Text : Text + QStringLiteral(": ") + Reason).simplified() + u'.';
}

QString clsWhyStep::shown() const
{
    if (Value.startsWith(u'!'))
        return QStringLiteral("!");
    switch (Unit) {
    case Amount: return mdFormatMoney(Value);
    case PerCent: return Value + QStringLiteral(" %");
    case Words: break;
    }
    return Value;
}
