#include "tests/soak/mdActions.h"

#include "controls/oSGrid.h"
#include "tests/soak/mdFieldActions.h"
#include "tests/soak/mdWindowActions.h"

#include <QWidget>

namespace {

// The weights are those of people at work: most of the time is spent in the fields and lists of screens.
// clang-format off
constexpr clsSoakAction OnSections[] = {
    {"type",          34, mdTypeIntoField},
    {"click",         18, mdClickButton},
    {"choose",         8, mdUseList},
    {"grid by keys",  12, mdUseGridByKeys},
    {"grid by mouse",  9, mdUseGridByMouse},
    {"grid heading",   1, mdSortGrid},
    {"page",           4, mdOpenPage},
    {"keys",           6, mdPressKeys},
    {"wheel",          2, mdTurnWheel},
    {"menu",           2, mdOpenMenu},
    {"resize",         1, mdResize},
    {"save",           2, mdSaveFromScreen},
    {"leave",          5, mdLeaveScreen},
    {"click below",    1, mdClickBelow},
};
constexpr clsSoakAction OnLists[] = {
    {"grid by keys",  34, mdUseGridByKeys},
    {"grid by mouse", 20, mdUseGridByMouse},
    {"click",         16, mdClickButton},
    {"page",           8, mdOpenPage},
    {"type",           4, mdTypeIntoField},
    {"choose",         2, mdUseList},
    {"grid heading",   2, mdSortGrid},
    {"keys",           6, mdPressKeys},
    {"wheel",          2, mdTurnWheel},
    {"menu",           2, mdOpenMenu},
    {"resize",         1, mdResize},
    {"save",           3, mdSaveFromScreen},
    {"leave",          4, mdLeaveScreen},
};
constexpr clsSoakAction OnMain[] = {
    {"tab",           42, mdClickTab},
    {"shortcut",      20, mdPressShortcut},
    {"menu",          10, mdOpenMenu},
    {"preview",        8, mdScrollPreview},
    {"keys",           5, mdPressKeys},
    {"click",          3, mdClickButton},
    {"type",           3, mdTypeIntoField},
    {"wheel",          2, mdTurnWheel},
    {"resize",         3, mdResize},
    {"end",            2, mdEndProgram},
};
constexpr clsSoakAction OnExport[] = {
    {"click",         60, mdClickButton},
    {"type",          10, mdTypeIntoField},
    {"keys",          10, mdPressKeys},
    {"leave",         20, mdLeaveScreen},
};
constexpr clsSoakAction OnBoxes[] = {{"answer", 1, mdAnswerBox}};
constexpr clsSoakAction OnPopups[] = {{"popup", 9, mdUsePopup}, {"keys", 1, mdPressKeys}};
// clang-format on

} // namespace

std::span<const clsSoakAction> mdActionsFor(const QWidget &front)
{
    if (front.windowType() == Qt::Popup)
        return OnPopups;
    if (front.inherits("frmScreen"))
        return front.findChild<oSGrid *>() ? std::span<const clsSoakAction>(OnLists) : OnSections;
    if (front.inherits("frmExportToWord"))
        return OnExport;
    if (front.inherits("frmMain"))
        return OnMain;
    return OnBoxes;
}
