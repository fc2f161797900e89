#include "editors/oScreenList.h"

#include "controls/mdTheme.h"

namespace {

constexpr int ShortWidth = 224;
constexpr int LongWidth = 560;
/// What the arrow and the edges take of the width.
constexpr int Trimmings = 48;
constexpr int FewestCharacters = 8;

} // namespace

oScreenList::oScreenList(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(FewestCharacters);
}

QSize oScreenList::sizeHint() const
{
    int widest = 0;
    for (int entry = 0; entry < count(); ++entry)
        widest = qMax(widest, fontMetrics().horizontalAdvance(itemText(entry)));
    const int width = widest + Theme::scaled(Trimmings) > Theme::scaled(ShortWidth) ? LongWidth : ShortWidth;
    return {Theme::scaled(width), QComboBox::sizeHint().height()};
}
