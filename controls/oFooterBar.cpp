#include "controls/oFooterBar.h"

#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"
#include "controls/oTimeSpentBox.h"
#include "shell/mdClock.h"
#include "shell/mdGetVersionInfo.h"

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

/// The text and a thin bar behind it; nothing at 0. Its `format` holds the text as it is: nothing in it is replaced.
class clsFooterProgress final : public QProgressBar {
public:
    using QProgressBar::QProgressBar;

    QSize sizeHint() const override { return {2 * Theme::scaled(BarWidth), fontMetrics().height()}; }
    QSize minimumSizeHint() const override { return {Theme::scaled(BarWidth), fontMetrics().height()}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        if (value() <= 0 || maximum() <= 0)
            return;
        QPainter painter(this);
        const int barWidth = Theme::scaled(BarWidth);
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
    label->setFont(Theme::font(-1));
    QPalette palette;
    palette.setColor(QPalette::WindowText, Theme::Ink2);
    label->setPalette(palette);
    return label;
}

/// A thin upright line.
QWidget *addSeparator(QWidget *parent)
{
    auto *line = new QWidget(parent);
    QPalette palette;
    palette.setColor(QPalette::Window, Theme::Line);
    line->setPalette(palette);
    line->setAutoFillBackground(true);
    line->setFixedSize(1, QFontMetrics(Theme::font(-1)).height());
    return line;
}

} // namespace

oFooterBar::oFooterBar(QWidget *parent)
    : QWidget(parent)
    , lblProgramInfo(addLabel(this, QStringLiteral("lblProgramInfo")))
    , m_progressBar(new clsFooterProgress(this))
    , m_timeSpentTimer(new oTimeSpentBox(this))
    , lblDateTime(addLabel(this, QStringLiteral("lblDateTime")))
    , tmrUpdate(this)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_progressBar->setObjectName(QStringLiteral("ProgressBar"));
    m_progressBar->setAccessibleName(tr("Progress"));
    m_progressBar->setFont(Theme::font(-1));
    m_progressBar->setFormat(QString());
    m_progressBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_timeSpentTimer->setObjectName(QStringLiteral("TimeSpentTimer"));
    m_timeSpentTimer->setAccessibleName(tr("Time spent"));
    lblDateTime->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // As wide as the widest text of a year, so that nothing moves at midnight.
    for (int month = 1; month <= 12; ++month) {
        lblDateTime->setText(dateTimeText(QDateTime(QDate(2000, month, 28), QTime(20, 0))));
        lblDateTime->setMinimumWidth(std::max(lblDateTime->minimumWidth(), lblDateTime->sizeHint().width()));
    }

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Theme::Space16, 1, Theme::Space16, 0);
    row->setSpacing(Theme::Space16);
    row->addWidget(lblProgramInfo);
    row->addWidget(m_progressBar, 1);
    row->addWidget(m_timeSpentTimer);
    row->addWidget(addSeparator(this));
    row->addWidget(lblDateTime);
    setMinimumHeight(fontMetrics().height() + Theme::scaled(FooterRoomAboveAndBelow));

    UpdateInfo();
    tmrUpdate.setObjectName(QStringLiteral("tmrUpdate"));
    tmrUpdate.setInterval(std::chrono::seconds(1));
    connect(&tmrUpdate, &QTimer::timeout, this, &oFooterBar::updateDateTime);
    tmrUpdate.start();
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
    if (changed)
        bar.repaint();
}

void oFooterBar::clearProgress()
{
    showProgress(0, m_progressBar->maximum(), QString());
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
    painter.fillRect(0, 0, width(), 1, Theme::Line);
}
