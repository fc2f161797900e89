#include "preview/oFormPages.h"

#include "controls/mdIcons.h"
#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"
#include "preview/clsPdfPages.h"
#include "preview/oPageThumbnails.h"
#include "preview/oPageView.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QResizeEvent>
#include <QShortcut>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace {

constexpr int BarHeight = 40;
constexpr int ButtonHeight = 28;
constexpr int SignWidth = 34;
constexpr int ProgressWidth = 160;
constexpr int ProgressHeight = 6;
constexpr int WidthForThumbnails = 900;
constexpr int GlyphSide = 48;
constexpr int ZoomSteps[] = {25, 33, 50, 67, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};

QLabel *label(QWidget *parent, const char *name, const QColor &ink)
{
    auto *made = new QLabel(parent);
    made->setObjectName(QString::fromLatin1(name));
    made->setTextFormat(Qt::PlainText);
    QPalette palette = made->palette();
    palette.setColor(QPalette::WindowText, ink);
    made->setPalette(palette);
    return made;
}

/// A label that can shrink: elides its text and shows the whole of it in the tooltip.
class clsElidedLabel final : public QLabel {
public:
    using QLabel::QLabel;
    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(
            rect(), Qt::AlignLeft | Qt::AlignVCenter, fontMetrics().elidedText(text(), Qt::ElideRight, width()));
    }
};

/// The label shown if there are no pages: a page symbol above the text.
class clsNothingLabel final : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Theme::Band);
        const int side = Theme::scaled(GlyphSide);
        const int most = std::min(width() - 2 * Theme::Space24, Theme::scaled(520));
        const QRect words = painter.fontMetrics().boundingRect(
            QRect(0, 0, most, height()), Qt::AlignHCenter | Qt::TextWordWrap, text());
        const int top = (height() - side - Theme::Space16 - words.height()) / 2;
        mdPaintGlyph(painter, QRectF((width() - side) / 2.0, top, side, side), Glyph::Document, Theme::Ink3);
        painter.setPen(Theme::Ink2);
        painter.drawText(QRect((width() - most) / 2, top + side + Theme::Space16, most, words.height()),
            Qt::AlignHCenter | Qt::TextWordWrap, text());
    }
};

} // namespace

oFormPages::oFormPages(QWidget *parent)
    : QWidget(parent)
    , m_bar(new QWidget(this))
    , m_sheets(new QWidget(this))
    , m_thumbnails(new oPageThumbnails(m_sheets))
    , m_view(new oPageView(m_sheets))
    , lblNothing(new clsNothingLabel(this))
    , m_places(new QStackedLayout)
    , m_escape(new QShortcut(QKeySequence(Qt::Key_Escape), this))
{
    setObjectName(QStringLiteral("oFormPages"));
    buildBar();
    lblNothing->setObjectName(QStringLiteral("lblNothing"));
    lblNothing->setFocusPolicy(Qt::StrongFocus);
    auto *row = new QHBoxLayout(m_sheets);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_thumbnails);
    row->addWidget(mdVerticalLine(m_sheets));
    row->addWidget(m_view, 1);
    m_places->addWidget(lblNothing);
    m_places->addWidget(m_sheets);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_bar);
    column->addLayout(m_places, 1);

    connect(m_view, &oPageView::CurrentPageChanged, this, [this] {
        m_thumbnails->MarkPage(m_view->CurrentPage());
        showState();
    });
    connect(m_view, &oPageView::BoxMarked, this,
        [this](const QString &words) { m_view->setAccessibleDescription(words.isEmpty() ? lblState->text() : words); });
    connect(m_view, &oPageView::ZoomChanged, this, &oFormPages::showState);
    connect(m_thumbnails, &oPageThumbnails::Chosen, m_view, &oPageView::GoTo);
    connect(m_escape, &QShortcut::activated, this, &oFormPages::Cancel);
    for (const QKeySequence &keys : {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [this] { zoomBy(1); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Minus), this), &QShortcut::activated, this,
        [this] { zoomBy(-1); });
    connect(
        new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_0), this), &QShortcut::activated, m_view, &oPageView::FitWidth);
    followFont();
    showState();
}

oFormPages::~oFormPages()
{
    m_view->disconnect(this);
    m_view->setPages(nullptr);
    m_thumbnails->setPages(nullptr);
}

oCustomButton *oFormPages::button(const char *name, const QString &caption, const QString &spoken)
{
    auto *made = new oCustomButton(m_bar);
    made->setObjectName(QString::fromLatin1(name));
    made->setCaption(caption);
    if (!spoken.isEmpty()) {
        made->setAccessibleName(spoken);
        made->setToolTip(spoken);
    }
    return made;
}

void oFormPages::buildBar()
{
    lblCaption = label(m_bar, "lblCaption", Theme::Ink);
    lblCaption->setText(QStringLiteral("Form Pages"));
    auto *state = new clsElidedLabel(m_bar);
    state->setObjectName(QStringLiteral("lblState"));
    QPalette palette = state->palette();
    palette.setColor(QPalette::WindowText, Theme::Ink2);
    state->setPalette(palette);
    lblState = state;
    m_progressBar = new QProgressBar(m_bar);
    m_progressBar->setObjectName(QStringLiteral("pbPages"));
    m_progressBar->setAccessibleName(QStringLiteral("Progress"));
    m_progressBar->setTextVisible(false);
    cmdCancel = button("cmdCancelPages", QStringLiteral("Cancel"), QString());
    cmdRefresh = button("cmdRefreshPages", QStringLiteral("&Refresh"), QString());
    cmdSmaller = button("cmdZoomOut", QStringLiteral("\u2212"), QStringLiteral("Smaller"));
    lblZoom = label(m_bar, "lblZoom", Theme::Ink2);
    lblZoom->setAlignment(Qt::AlignCenter);
    lblZoom->setAccessibleName(QStringLiteral("Size"));
    cmdLarger = button("cmdZoomIn", QStringLiteral("+"), QStringLiteral("Larger"));
    cmdFitWidth = button("cmdFitWidth", QStringLiteral("Fit &Width"), QString());
    cmdExportAsPdf = button("cmdExportAsPdf", QStringLiteral("&Export as PDF..."), QString());
    connect(cmdCancel, &oCustomButton::Click, this, &oFormPages::Cancel);
    connect(cmdRefresh, &oCustomButton::Click, this, &oFormPages::Refresh);
    connect(cmdSmaller, &oCustomButton::Click, this, [this] { zoomBy(-1); });
    connect(cmdLarger, &oCustomButton::Click, this, [this] { zoomBy(1); });
    connect(cmdFitWidth, &oCustomButton::Click, m_view, &oPageView::FitWidth);
    connect(cmdExportAsPdf, &oCustomButton::Click, this, &oFormPages::ExportAsPdf);

    auto *row = new QHBoxLayout(m_bar);
    row->setContentsMargins(Theme::Space16, 0, Theme::Space16 - Theme::RingRoom, 0);
    row->setSpacing(Theme::Space4);
    row->addWidget(lblCaption);
    row->addSpacing(Theme::Space12);
    row->addWidget(lblState, 1);
    row->addWidget(m_progressBar);
    row->addSpacing(Theme::Space12);
    row->addWidget(cmdCancel);
    row->addWidget(cmdRefresh);
    row->addWidget(cmdSmaller);
    row->addWidget(lblZoom);
    row->addWidget(cmdLarger);
    row->addWidget(cmdFitWidth);
    row->addSpacing(Theme::Space8);
    QWidget *line = mdVerticalLine(m_bar);
    line->setFixedHeight(Theme::scaled(Theme::Space16));
    row->addWidget(line);
    row->addSpacing(Theme::Space8);
    row->addWidget(cmdExportAsPdf);
}

void oFormPages::followFont()
{
    m_bar->setFixedHeight(Theme::scaled(BarHeight));
    lblCaption->setFont(Theme::font(0, true));
    lblState->setFont(Theme::font(-1));
    lblZoom->setFont(Theme::font(-1));
    lblZoom->setMinimumWidth(QFontMetrics(lblZoom->font()).horizontalAdvance(QStringLiteral("000 %")) + Theme::Space4);
    m_progressBar->setFixedSize(Theme::scaled(ProgressWidth), Theme::scaled(ProgressHeight));
    for (oCustomButton *one : {cmdCancel, cmdRefresh, cmdSmaller, cmdLarger, cmdFitWidth, cmdExportAsPdf})
        one->setFixedHeight(Theme::scaled(ButtonHeight) + 2 * Theme::RingRoom);
    for (oCustomButton *one : {cmdSmaller, cmdLarger})
        one->setFixedWidth(Theme::scaled(SignWidth) + 2 * Theme::RingRoom);
}

void oFormPages::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        followFont();
}

void oFormPages::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(m_bar->geometry(), Theme::Paper);
    mdPaintLine(painter, m_bar->geometry(), Qt::TopEdge | Qt::BottomEdge, Theme::Line);
}

void oFormPages::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeThumbnails();
}

void oFormPages::placeThumbnails()
{
    m_thumbnails->setVisible(width() >= Theme::scaled(WidthForThumbnails));
}

void oFormPages::zoomBy(int direction)
{
    const int now = m_view->Zoom();
    if (direction > 0) {
        for (int step : ZoomSteps)
            if (step > now)
                return m_view->setZoom(step);
        return;
    }
    for (auto step = std::rbegin(ZoomSteps); step != std::rend(ZoomSteps); ++step)
        if (*step < now)
            return m_view->setZoom(*step);
}

int oFormPages::Pages() const
{
    return m_pages ? m_pages->Count() : 0;
}

QByteArray oFormPages::Pdf() const
{
    return m_pages ? m_pages->Bytes() : QByteArray();
}

bool oFormPages::ShowPages(const QByteArray &pdf, const QDateTime &asOf)
{
    auto pages = std::make_unique<clsPdfPages>(pdf);
    if (pages->Count() == 0)
        return false;
    m_failure.clear();
    m_asOf = asOf;
    m_old = false;
    const bool focusOnNothing = lblNothing->hasFocus();
    m_thumbnails->setPages(pages.get());
    m_view->setPages(pages.get());
    m_pages = std::move(pages);
    m_places->setCurrentWidget(m_sheets);
    m_thumbnails->MarkPage(m_view->CurrentPage());
    if (focusOnNothing)
        m_view->setFocus();
    showState();
    return true;
}

void oFormPages::Clear()
{
    m_view->setPages(nullptr);
    m_thumbnails->setPages(nullptr);
    m_pages.reset();
    m_failure.clear();
    m_old = false;
    m_places->setCurrentWidget(lblNothing);
    showState();
}

void oFormPages::setAsOf(const QDateTime &asOf)
{
    m_asOf = asOf;
    m_old = false;
    m_failure.clear();
    showState();
}

void oFormPages::setOld(bool old)
{
    if (m_old == old)
        return;
    m_old = old;
    if (!old)
        m_failure.clear();
    showState();
}

void oFormPages::ShowProgress(int value, int maximum, const QString &text)
{
    m_making = true;
    m_progress = text;
    m_failure.clear();
    m_progressBar->setRange(0, maximum);
    m_progressBar->setValue(value);
    showState();
    // Painted immediately: the window handles no events during an export.
    m_bar->repaint();
}

void oFormPages::EndProgress()
{
    m_making = false;
    showState();
}

void oFormPages::TakeFocus()
{
    (m_pages ? static_cast<QWidget *>(m_view) : lblNothing)->setFocus();
}

void oFormPages::ShowFailure(const QString &sentence)
{
    m_failure = sentence;
    showState();
}

void oFormPages::showState()
{
    QString state;
    if (m_making)
        state = m_progress;
    else if (m_pages && !m_failure.isEmpty())
        state = m_failure;
    else if (m_pages && m_old)
        state = QStringLiteral("Shown as of %1; the claim has changed").arg(m_asOf.toString(QStringLiteral("HH:mm")));
    else if (m_pages)
        state = QStringLiteral("%1, paper page %2 of %3. As the claim stands at %4.")
                    .arg(m_pages->Caption(m_view->CurrentPage()))
                    .arg(m_view->CurrentPage() + 1)
                    .arg(m_pages->Count())
                    .arg(m_asOf.toString(QStringLiteral("HH:mm")));
    lblState->setText(state);
    lblState->setToolTip(lblState->sizeHint().width() > lblState->width() ? state : QString());
    m_view->setAccessibleName(QStringLiteral("Form pages"));
    m_view->setAccessibleDescription(state);
    lblNothing->setText(m_making ? m_progress : m_failure);
    lblNothing->setAccessibleName(lblNothing->text());
    // Hiding a button with the focus would move the focus to the next one.
    const bool focusGoes = cmdCancel->hasFocus() ? !m_making : cmdRefresh->hasFocus() && m_making;
    if (focusGoes)
        TakeFocus();
    m_progressBar->setVisible(m_making);
    cmdCancel->setVisible(m_making);
    m_escape->setEnabled(m_making);
    cmdRefresh->setVisible(!m_making && (m_old || !m_failure.isEmpty()));
    lblZoom->setText(QStringLiteral("%1 %").arg(m_view->Zoom()));
    for (QWidget *part : {static_cast<QWidget *>(cmdSmaller), static_cast<QWidget *>(lblZoom),
             static_cast<QWidget *>(cmdLarger), static_cast<QWidget *>(cmdFitWidth)})
        part->setEnabled(m_pages != nullptr);
}
