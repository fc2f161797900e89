#include "costing/checking/clsWhy.h"

QString clsWhyStep::sentence() const
{
    return (Reason.isEmpty() ? Text : Text + QStringLiteral(": ") + Reason).simplified() + u'.';
}
