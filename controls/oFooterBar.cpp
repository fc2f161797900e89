#include "controls/oFooterBar.h"

#include "base/mdClock.h"
#include "base/mdGetVersionInfo.h"
#include "controls/mdLine.h"
#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"
#include "controls/oFooterLine.h"
#include "controls/oTimeSpentBox.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QProgressBar>
#include <QStyleOption>

#include <algorithm>
#include <chrono>

namespace {

constexpr int FooterRoomAboveAndBelow = 18;
constexpr int BarWidth = 160;
constexpr int NarrowestProgress = 40;

/// The text followed by a thin bar; nothing at 0. Its `format` is the literal text, without substitutions. In a narrow
/// window it shrinks in favour of its neighbours.
class clsFooterProgress final : public QProgressBar {
public:
    using QProgressBar::QProgressBar;

    QSize sizeHint() const override { return {2 * Theme::scaled(BarWidth), fontMetrics().height()}; }
    QSize minimumSizeHint() const override { return {Theme::scaled(NarrowestProgress), fontMetrics().height()}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        if (value() <= 0 || maximum() <= 0)
            return;
        QPainter painter(this);
        const int barWidth = std::min(Theme::scaled(BarWidth), width() / 2);
        QStyleOptionProgressBar option;
        initStyleOption(&option);
        option.rect.setLeft(width() - barWidth);
        mdPaintProgressGroove(painter, option);
        mdPaintProgress(painter, option);

        const QRect room(0, 0, width() - barWidth - Theme::Space12, height());
        painter.setPen(Theme::Ink2);
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter,
            painter.fontMetrics().elidedText(format(), Qt::ElideMiddle, room.width()));
    }
};

/// The long date and the short time, British on every desktop.
QString dateTimeText(const QDateTime &dateTime)
{
    static const QLocale british(QLocale::English, QLocale::UnitedKingdom);
    return british.toString(dateTime, QStringLiteral("d MMMM yyyy '|' HH:mm"));
}

QLabel *addLabel(QWidget *parent, const QString &name)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    QPalette palette;
    palette.setColor(QPalette::WindowText, Theme::Ink2);
    label->setPalette(palette);
    return label;
}

} // namespace

oFooterBar::oFooterBar(QWidget *parent)
    : QWidget(parent)
    , lblProgramInfo(addLabel(this, QStringLiteral("lblProgramInfo")))
    , m_progressBar(new clsFooterProgress(this))
    , m_timeSpentTimer(new oTimeSpentBox(this))
    , m_line(mdVerticalLine(this))
    , lblDateTime(addLabel(this, QStringLiteral("lblDateTime")))
    , m_footerLine(new oFooterLine(this))
    , tmrUpdate(this)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_progressBar->setObjectName(QStringLiteral("ProgressBar"));
    m_progressBar->setAccessibleName(QStringLiteral("Progress"));
    m_progressBar->setFormat(QString());
    m_progressBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_timeSpentTimer->setObjectName(QStringLiteral("TimeSpentTimer"));
    m_timeSpentTimer->setAccessibleName(QStringLiteral("Time spent"));
    lblDateTime->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Theme::Space16, 1, Theme::Space16, 0);
    row->setSpacing(Theme::Space16);
    row->addWidget(lblProgramInfo);
    row->addWidget(m_progressBar, 1);
    row->addWidget(m_timeSpentTimer);
    row->addWidget(m_line);
    row->addWidget(lblDateTime);
    followFont();
    connect(m_footerLine, &oFooterLine::Taken, this, &oFooterBar::OfferTaken);

    UpdateInfo();
    tmrUpdate.setObjectName(QStringLiteral("tmrUpdate"));
    tmrUpdate.setInterval(std::chrono::seconds(1));
    connect(&tmrUpdate, &QTimer::timeout, this, &oFooterBar::updateDateTime);
    tmrUpdate.start();
}

void oFooterBar::followFont()
{
    const QFont small = Theme::font(-1);
    const QFontMetrics metrics(small);
    for (QWidget *part : {static_cast<QWidget *>(lblProgramInfo), static_cast<QWidget *>(m_progressBar),
             static_cast<QWidget *>(lblDateTime)})
        part->setFont(small);
    m_line->setFixedHeight(metrics.height());
    // As wide as the widest text of a year, so that nothing moves at midnight.
    int widest = 0;
    for (int month = 1; month <= 12; ++month)
        widest
            = std::max(widest, metrics.size(0, dateTimeText(QDateTime(QDate(2000, month, 28), QTime(20, 0)))).width());
    lblDateTime->setMinimumWidth(widest);
    setMinimumHeight(QFontMetrics(Theme::font()).height() + Theme::scaled(FooterRoomAboveAndBelow));
}

bool oFooterBar::event(QEvent *event)
{
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::ApplicationFontChange)
        followFont();
    return done;
}

void oFooterBar::showProgress(int value, int maximum, const QString &text)
{
    const int shown = std::clamp(value, 0, std::max(maximum, 0));
    QProgressBar &bar = *m_progressBar;
    const bool changed = bar.maximum() != maximum || bar.value() != shown || bar.format() != text;
    if (bar.maximum() != maximum)
        bar.setMaximum(maximum);
    if (bar.value() != shown)
        bar.setValue(shown);
    if (bar.format() != text)
        bar.setFormat(text);
    m_footerLine->standBack(shown > 0);
    if (changed)
        bar.repaint();
}

void oFooterBar::clearProgress()
{
    showProgress(0, m_progressBar->maximum(), QString());
}

void oFooterBar::showLine(const QString &line)
{
    m_footerLine->tell(line);
}

void oFooterBar::showOffer(const QString &text, const QString &caption)
{
    m_footerLine->offer(text, caption);
}

void oFooterBar::placeLine()
{
    m_footerLine->setRoom({0, 0, m_timeSpentTimer->geometry().left() - Theme::Space16, height()});
}

void oFooterBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeLine();
}

void oFooterBar::UpdateInfo()
{
    lblProgramInfo->setText(QStringLiteral("Velmor ZR3 v") + GetVersionInfo());
    updateDateTime();
}

void oFooterBar::updateDateTime()
{
    const QString text = dateTimeText(Now());
    if (lblDateTime->text() != text)
        lblDateTime->setText(text);
}

void oFooterBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Theme::Paper);
    mdPaintLine(painter, rect(), Qt::TopEdge, Theme::Line);
}
