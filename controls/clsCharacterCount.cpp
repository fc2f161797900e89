#include "controls/clsCharacterCount.h"

#include "controls/mdTheme.h"

namespace {

std::optional<QColor> colourOf(qint64 remaining, bool overRun)
{
    if (remaining >= 6)
        return Theme::Green;
    // Exactly 5 keeps the colour that the count had before, whether rising or falling. Required behaviour; do not fix.
    if (remaining == 5)
        return {};
    if (remaining >= 1)
        return Theme::Orange;
    return overRun ? Theme::Blue : Theme::Red;
}

QString wordsOf(qint64 remaining, int allowance, bool overRun)
{
    if (remaining >= 0)
        return QStringLiteral("%1 of %2 left").arg(remaining).arg(allowance);
    if (overRun)
        return QStringLiteral("%1 over %2; the rest goes to a continuation sheet").arg(-remaining).arg(allowance);
    return QStringLiteral("%1 over the %2 that the printed box holds").arg(-remaining).arg(allowance);
}

} // namespace

clsCharacterCount::clsCharacterCount(int allowance, qsizetype length, bool overRun)
{
    const qint64 remaining = qint64(allowance) - length;
    // Beyond the allowance it counts the excess upwards.
    text = QString::number(qAbs(remaining));
    // The parentheses mark a field that may overrun, from the first character on.
    if (overRun)
        text = u'(' + text + u')';
    words = wordsOf(remaining, allowance, overRun);
    colour = colourOf(remaining, overRun);
}
