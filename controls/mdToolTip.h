#pragma once

#include <QTextDocument>

/// A text for a tooltip, shown literally. Tooltips would draw mark-up, and a claim's texts and paths may contain any
/// characters.
inline QString mdPlainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}
