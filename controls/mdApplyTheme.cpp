#include "controls/mdApplyTheme.h"

#include "controls/mdTheme.h"
#include "controls/oInputFilter.h"
#include "controls/oStyle.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>

namespace {

QPalette palette()
{
    // Every role in every group, so that no colour of a dark desktop appears on the program's surfaces.
    struct clsRole {
        QPalette::ColorRole role;
        QColor active;
        QColor disabled;
    };
    // clang-format off
    static const clsRole roles[] = {
        {QPalette::Window,          Theme::Canvas,      Theme::Canvas},
        {QPalette::WindowText,      Theme::Ink,         Theme::Ink3},
        {QPalette::Base,            Theme::Paper,       Theme::Canvas},
        {QPalette::AlternateBase,   Theme::Paper,       Theme::Canvas},
        {QPalette::ToolTipBase,     Theme::TooltipBack, Theme::TooltipBack},
        {QPalette::ToolTipText,     Theme::Paper,       Theme::Paper},
        {QPalette::PlaceholderText, Theme::Ink3,        Theme::Ink3},
        {QPalette::Text,            Theme::Ink,         Theme::Ink3},
        {QPalette::Button,          Theme::Paper,       Theme::Canvas},
        {QPalette::ButtonText,      Theme::Ink,         Theme::Ink3},
        {QPalette::BrightText,      Theme::Red,         Theme::Red},
        {QPalette::Light,           Theme::Paper,       Theme::Paper},
        {QPalette::Midlight,        Theme::Hairline,    Theme::Hairline},
        {QPalette::Mid,             Theme::Edge,        Theme::EdgeOff},
        {QPalette::Dark,            Theme::Ink3,        Theme::EdgeOff},
        {QPalette::Shadow,          Theme::Ink2,        Theme::EdgeOff},
        {QPalette::Highlight,       Theme::Purple,      Theme::EdgeOff},
        {QPalette::HighlightedText, Theme::Paper,       Theme::Ink},
        {QPalette::Link,            Theme::Purple,      Theme::Ink3},
        {QPalette::LinkVisited,     Theme::Purple,      Theme::Ink3},
    };
    // clang-format on
    QPalette result;
    for (const clsRole &row : roles) {
        result.setColor(QPalette::Active, row.role, row.active);
        result.setColor(QPalette::Inactive, row.role, row.active);
        result.setColor(QPalette::Disabled, row.role, row.disabled);
    }
    return result;
}

} // namespace

void mdApplyTheme(QApplication &application)
{
    QApplication::setStyle(new oStyle);
    const QPalette common = palette();
    QApplication::setPalette(common);
    // Selected rows and menu entries keep their text colour; only selected text turns white.
    QPalette rows = common;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        rows.setColor(group, QPalette::Highlight, Theme::Selected);
        rows.setColor(group, QPalette::HighlightedText, Theme::Ink);
    }
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        rows.setColor(group, QPalette::Window, Theme::Paper);
    QApplication::setPalette(rows, "QAbstractItemView");
    QApplication::setPalette(rows, "QMenu");
    QApplication::setPalette(rows, "QMenuBar");
    // Tooltips have a separate palette and font, which the desktop may have set.
    QToolTip::setPalette(common);
    QToolTip::setFont(Theme::font(-1));
    oInputFilter::install(application);
}
