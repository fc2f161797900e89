#include "controls/oTotalsStrip.h"

#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oStripFigure.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int Height = 38;
constexpr int LowHeight = 30;
constexpr int WidthHint = 600;
constexpr int Between = 8; ///< two figures, in addition to their padding
constexpr int AroundLine = 11;
constexpr int LineHeight = 26;

} // namespace

/// The steps by which the strip shrinks, one after another.
struct oTotalsStrip::clsForm {
    oStripLimit::clsForm limit;
    bool hasOther; ///< in the place of several figures
    int gone; ///< the last `turn` among the figures left out
};

oTotalsStrip::oTotalsStrip(QWidget *parent)
    : QWidget(parent)
    , m_limit(new oStripLimit(this))
{
    setAccessibleName(QStringLiteral("Totals"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_limit->setObjectName(QStringLiteral("oLimit"));
    m_limit->setKey(QString::fromLatin1(LimitKey));
    prepared(m_limit)->hide();
}

oStripItem *oTotalsStrip::prepared(oStripItem *item)
{
    item->installEventFilter(this);
    connect(item, &oStripItem::clicked, this, [this, item] { emit Chosen(item->Key()); });
    connect(item, &oStripItem::Move, this, [this, item](int steps) { move(item, steps); });
    return item;
}

void oTotalsStrip::setTotals(const std::vector<clsStripTotal> &totals, const clsStripTotal &other)
{
    // Existing figures are updated in place, so that a focused one keeps the focus.
    size_t place = 0;
    bool otherShown = false;
    for (const clsStripTotal &total : totals) {
        if (total.place == clsStripTotal::GoesIntoOther && !std::exchange(otherShown, true))
            showTotal(other, place++, true);
        showTotal(total, place++, false);
    }
    while (m_figures.size() > place) {
        delete m_figures.back().figure;
        m_figures.pop_back();
    }
    layOut();
}

void oTotalsStrip::Clear()
{
    setTotals({}, {});
    setLimit({});
}

void oTotalsStrip::showTotal(const clsStripTotal &total, size_t place, bool isOther)
{
    if (place == m_figures.size()) {
        auto *figure = new oStripFigure(this);
        // A new widget is last in the tab order of its window.
        setTabOrder(place == 0 ? static_cast<QWidget *>(m_limit) : m_figures.back().figure, prepared(figure));
        m_figures.push_back({figure, total.place, total.turn, false, false});
    }
    clsFigure &shown = m_figures[place];
    shown.place = total.place;
    shown.turn = total.turn;
    shown.apart = total.standsApart;
    shown.isOther = isOther;
    oStripFigure &figure = *shown.figure;
    figure.setObjectName(QStringLiteral("oFigure") + total.key);
    figure.setKey(total.key);
    figure.setWords(total.words);
    figure.setStrong(total.strong);
    if (total.failure.isEmpty())
        figure.setFigure(total.figure);
    else
        figure.setFailure(total.failure);
}

void oTotalsStrip::setLimit(const std::optional<clsStripLimit> &limit)
{
    m_hasLimit = limit.has_value();
    if (limit)
        m_limit->setLimit(*limit);
    layOut();
}

void oTotalsStrip::setLow(bool low)
{
    if (low == m_low)
        return;
    m_low = low;
    updateGeometry();
}

QSize oTotalsStrip::sizeHint() const
{
    return {Theme::scaled(WidthHint), Theme::scaled(m_low ? LowHeight : Height)};
}

QSize oTotalsStrip::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

bool oTotalsStrip::shows(const clsFigure &figure, const clsForm &form) const
{
    if (figure.isOther)
        return form.hasOther;
    return !(figure.place == clsStripTotal::GoesIntoOther && form.hasOther)
        && !(figure.place == clsStripTotal::GoesAltogether && figure.turn <= form.gone);
}

int oTotalsStrip::widthIn(const clsForm &form) const
{
    int width = 2 * (Theme::Space16 - oStripItem::padding());
    bool apart = false;
    for (const clsFigure &figure : m_figures)
        if (shows(figure, form)) {
            width += figure.figure->sizeHint().width() + Theme::scaled(Between);
            if (figure.apart && !std::exchange(apart, true))
                width += 2 * Theme::scaled(AroundLine) - Theme::scaled(Between);
        }
    return width + (m_hasLimit ? m_limit->widthIn(form.limit) : 0);
}

void oTotalsStrip::layOut()
{
    using enum oStripLimit::clsForm;
    constexpr clsForm Forms[] = {
        {WholeCaption, false, 0},
        {ShortCaption, false, 0},
        {ShortCaption, true, 0},
        {BarOnly, true, 0},
        {BarOnly, true, 1},
        {BarOnly, true, 2},
        {BarOnly, true, 3},
    };
    const auto *form = std::find_if(
        std::begin(Forms), std::end(Forms) - 1, [this](const clsForm &tried) { return widthIn(tried) <= width(); });
    placeItems(*form);
    setTabStop(nullptr);
    update();
}

void oTotalsStrip::placeItems(const clsForm &form)
{
    int left = Theme::Space16 - oStripItem::padding();
    const auto place = [this](QWidget &item, int at, int width) {
        item.setGeometry(at, (height() - item.sizeHint().height()) / 2, width, item.sizeHint().height());
    };
    m_line = -1;
    for (const clsFigure &figure : m_figures) {
        const bool isShown = shows(figure, form);
        figure.figure->setVisible(isShown);
        if (!isShown)
            continue;
        if (figure.apart && m_line < 0) {
            m_line = left - Theme::scaled(Between) + Theme::scaled(AroundLine);
            left = m_line + Theme::scaled(AroundLine);
        }
        const int wide = figure.figure->sizeHint().width();
        place(*figure.figure, left, wide);
        left += wide + Theme::scaled(Between);
    }
    m_limit->setVisible(m_hasLimit);
    m_limit->setForm(form.limit);
    const int wide = m_limit->widthIn(form.limit);
    place(*m_limit, std::max(left, width() - Theme::Space16 + oStripItem::padding() - wide), wide);
}

std::vector<oStripItem *> oTotalsStrip::shownItems() const
{
    std::vector<oStripItem *> items;
    for (const clsFigure &figure : m_figures)
        if (!figure.figure->isHidden())
            items.push_back(figure.figure);
    if (m_hasLimit)
        items.push_back(m_limit);
    return items;
}

QStringList oTotalsStrip::Shown() const
{
    QStringList shown;
    for (const clsFigure &figure : m_figures)
        if (!figure.figure->isHidden())
            shown << figure.figure->Words() + u' ' + figure.figure->Figure();
    return shown;
}

oStripItem *oTotalsStrip::Item(const QString &key) const
{
    for (oStripItem *item : shownItems())
        if (item->Key() == key)
            return item;
    return nullptr;
}

void oTotalsStrip::move(const oStripItem *from, int steps)
{
    const std::vector<oStripItem *> items = shownItems();
    const auto at = std::find(items.begin(), items.end(), from) - items.begin();
    const auto to = std::clamp<std::ptrdiff_t>(at + steps, 0, std::ssize(items) - 1);
    items[size_t(to)]->setFocus(Qt::OtherFocusReason);
}

/// The Tab key stops once, at the last focused or the first figure.
void oTotalsStrip::setTabStop(const QWidget *stop)
{
    const std::vector<oStripItem *> items = shownItems();
    const auto isStop
        = [stop](const oStripItem *item) { return stop ? item == stop : item->focusPolicy() == Qt::StrongFocus; };
    auto kept = std::find_if(items.begin(), items.end(), isStop);
    if (kept == items.end())
        kept = items.begin();
    for (const clsFigure &figure : m_figures)
        figure.figure->setFocusPolicy(Qt::ClickFocus);
    m_limit->setFocusPolicy(Qt::ClickFocus);
    if (kept != items.end())
        (*kept)->setFocusPolicy(Qt::StrongFocus);
}

bool oTotalsStrip::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn)
        setTabStop(qobject_cast<QWidget *>(watched));
    return QWidget::eventFilter(watched, event);
}

bool oTotalsStrip::event(QEvent *event)
{
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::ApplicationFontChange) {
        updateGeometry();
        layOut();
    }
    return done;
}

void oTotalsStrip::resizeEvent(QResizeEvent *)
{
    layOut();
}

void oTotalsStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::Paper);
    mdPaintLine(painter, rect(), Qt::TopEdge, Theme::Line);
    if (m_line < 0)
        return;
    const int high = Theme::scaled(LineHeight);
    mdPaintLine(painter, QRect(m_line, (height() - high) / 2, 1, high), Qt::LeftEdge, Theme::Line);
}
