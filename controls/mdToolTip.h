#pragma once

#include <QTextDocument>

/// A text for a tooltip that is shown as it stands. Tooltips draw what reads as mark-up as such, and a claim's texts
/// and paths may hold anything.
inline QString mdPlainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}
