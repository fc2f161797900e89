#include "shell/oPreviewArea.h"

#include "controls/mdTheme.h"

#include <algorithm>

namespace {

constexpr int WideWindow = 1280; ///< from here on the two are side by side

} // namespace

oPreviewArea::oPreviewArea(QWidget *preview, QWidget *panel, QWidget *parent)
    : QWidget(parent)
    , m_preview(preview)
    , m_panel(panel)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_preview->setParent(this);
    m_panel->setParent(this);
    m_panel->hide();
}

bool oPreviewArea::isWide(int windowWidth)
{
    return windowWidth >= Theme::scaled(WideWindow);
}

bool oPreviewArea::panelLiesOver() const
{
    return m_open && !isWide(window()->width());
}

int oPreviewArea::previewWidth(int windowWidth) const
{
    const int whole = std::min(width(), windowWidth);
    return m_open && isWide(windowWidth) ? std::max(0, whole - m_panel->sizeHint().width()) : whole;
}

void oPreviewArea::setPanelOpen(bool open)
{
    m_open = open;
    m_panel->setVisible(open);
    place();
}

void oPreviewArea::place()
{
    const int left = previewWidth(window()->width());
    m_preview->setGeometry(0, 0, left, height());
    const int panel = std::min(m_panel->sizeHint().width(), width());
    m_panel->setGeometry(width() - panel, 0, panel, height());
    m_panel->raise();
    const bool beside = m_open && !panelLiesOver();
    if (beside != m_beside) {
        m_beside = beside;
        emit BesideChanged();
    }
}

void oPreviewArea::resizeEvent(QResizeEvent *)
{
    place();
}
