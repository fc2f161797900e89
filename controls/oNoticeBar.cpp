#include "controls/oNoticeBar.h"

#include "controls/mdAccessible.h"
#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"
#include "controls/oCustomButton.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int Height = 40;
constexpr int ButtonHeight = 28;
constexpr int LowButtonHeight = 24;
constexpr int LowWindow = 620;
constexpr int EdgeWidth = 3;
constexpr int SignSide = 14;
constexpr int NarrowestSentence = 120;

struct clsSignLook {
    Sign sign;
    QColor edge;
    QColor tint;
    const char *word; ///< for screen readers, instead of the sign
};

// clang-format off
constexpr clsSignLook Looks[] = {
    {Sign::Note,    Theme::Blue,     Theme::InformationTint, "Note"},
    {Sign::Warning, Theme::Amber, Theme::CautionTint,     "Warning"},
    {Sign::Error,   Theme::Red,      Theme::Pink,            "Error"},
};
// clang-format on

const clsSignLook &lookOf(Sign sign)
{
    return *std::find_if(
        std::begin(Looks), std::end(Looks), [sign](const clsSignLook &look) { return look.sign == sign; });
}

QAccessibleInterface *accessibleBar(const QString &, QObject *object)
{
    auto *bar = qobject_cast<oNoticeBar *>(object);
    return bar ? new QAccessibleWidget(bar, QAccessible::AlertMessage) : nullptr;
}

QLabel *addLabel(QWidget *parent, const char *name, const QColor &ink)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    QPalette palette;
    palette.setColor(QPalette::WindowText, ink);
    label->setPalette(palette);
    return label;
}

} // namespace

oNoticeBar::oNoticeBar(QWidget *parent)
    : QWidget(parent)
    , m_row(new QHBoxLayout(this))
    , lblSentence(addLabel(this, "lblSentence", Theme::Ink))
    , lblCount(addLabel(this, "lblCount", Theme::Ink2))
{
    mdInstallAccessible<accessibleBar>();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    lblSentence->setMinimumWidth(Theme::scaled(NarrowestSentence));
    lblSentence->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblSentence->installEventFilter(this);
    cmdNext = addButton(QStringLiteral("cmdNextNotice"));
    cmdNext->setLook(oCustomButton::Look::Arrow);
    cmdNext->setGlyph(Glyph::ChevronRight);
    cmdNext->setAccessibleName(QStringLiteral("Next notice"));
    cmdNext->setToolTip(QStringLiteral("Next notice"));
    connect(cmdNext, &oCustomButton::Click, this, &oNoticeBar::showNext);

    const int left = Theme::Space24 + Theme::scaled(SignSide) + Theme::Space12;
    m_row->setContentsMargins(left, 0, Theme::Space24, 1);
    m_row->setSpacing(Theme::Space12);
    m_row->addWidget(lblSentence, 1);
    m_row->addWidget(lblCount);
    m_row->addWidget(cmdNext);
    hide();
}

oCustomButton *oNoticeBar::addButton(const QString &name)
{
    auto *button = new oCustomButton(this);
    button->setObjectName(name);
    button->setLook(oCustomButton::Look::Small);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return button;
}

QString oNoticeBar::Sentence() const
{
    return m_notices.empty() ? QString() : shown().sentence;
}

size_t oNoticeBar::placeOf(const QString &sentence) const
{
    const auto found = std::find_if(
        m_notices.begin(), m_notices.end(), [&](const clsNotice &notice) { return notice.sentence == sentence; });
    return size_t(found - m_notices.begin());
}

void oNoticeBar::setNotices(std::vector<clsNotice> notices)
{
    const QString before = Sentence();
    const Sign signBefore = m_notices.empty() ? Sign::Note : shown().sign;
    m_notices = std::move(notices);
    const bool sameStays = m_shown < m_notices.size() && m_notices[m_shown].sentence == before;
    const size_t same = sameStays ? m_shown : placeOf(before);
    const bool isGraver = !m_notices.empty() && m_notices.front().sign < signBefore;
    m_shown = same < m_notices.size() && !isGraver ? same : 0;
    present();
}

void oNoticeBar::showNext()
{
    if (m_notices.empty())
        return;
    m_shown = (m_shown + 1) % m_notices.size();
    present();
}

void oNoticeBar::present()
{
    if (m_notices.empty()) {
        m_announced.clear();
        hide();
        return;
    }
    const bool several = m_notices.size() > 1;
    lblCount->setText(QStringLiteral("%1 of %2").arg(m_shown + 1).arg(m_notices.size()));
    lblCount->setVisible(several);
    cmdNext->setVisible(several);
    buildAnswers();
    followWindow();
    setAccessibleName(QString::fromLatin1(lookOf(shown().sign).word) + QStringLiteral(": ") + shown().sentence);
    leaveFocusBehind();
    show();
    elide();
    update();
    if (m_announced == shown().sentence)
        return;
    m_announced = shown().sentence;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    emit Announced(m_announced);
}

/// In a window that was never active, the focus would move to its first tab stop.
void oNoticeBar::leaveFocusBehind()
{
    if (window() == this || window()->focusWidget())
        return;
    for (QWidget *next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
        const bool takesFocus = next->focusPolicy() & Qt::TabFocus && !next->focusProxy();
        if (takesFocus && !isAncestorOf(next) && next->isEnabled() && next->isVisibleTo(window()))
            return next->setFocus();
    }
}

/// Existing buttons are reused, so that a focused one keeps the focus.
void oNoticeBar::buildAnswers()
{
    const auto &answers = shown().answers;
    while (m_answers.size() < answers.size()) {
        QWidget *before = m_answers.empty() ? cmdNext : m_answers.back();
        m_answers.push_back(addButton(QStringLiteral("cmdAnswer%1").arg(m_answers.size() + 1)));
        oCustomButton *button = m_answers.back();
        m_row->addWidget(button);
        // A new widget is last in the tab order of its window.
        setTabOrder(before, button);
        connect(button, &oCustomButton::Click, this, [this, place = m_answers.size() - 1] {
            // A copy: the action may change the notices.
            if (place < shown().answers.size())
                if (const auto act = shown().answers[place].act)
                    act();
        });
    }
    for (size_t i = 0; i < m_answers.size(); ++i) {
        const bool used = i < answers.size();
        if (used && m_answers[i]->text() != answers[i].caption)
            m_answers[i]->setCaption(answers[i].caption);
        m_answers[i]->setVisible(used);
    }
}

void oNoticeBar::followWindow()
{
    const bool isLow = window()->height() < Theme::scaled(LowWindow);
    const int visible = Theme::scaled(isLow ? LowButtonHeight : ButtonHeight);
    for (oCustomButton *button : m_answers)
        button->setFixedHeight(visible + 2 * Theme::RingRoom);
    cmdNext->setFixedSize(visible + 2 * Theme::RingRoom, visible + 2 * Theme::RingRoom);
    lblCount->setFont(Theme::font(-1));
}

void oNoticeBar::elide()
{
    const QString whole = Sentence();
    const QString text = lblSentence->fontMetrics().elidedText(whole, Qt::ElideMiddle, lblSentence->width());
    if (lblSentence->text() != text)
        lblSentence->setText(text);
    setToolTip(text == whole ? QString() : mdPlainToolTip(whole));
}

QSize oNoticeBar::sizeHint() const
{
    return {Theme::scaled(320), Theme::scaled(Height)};
}

QSize oNoticeBar::minimumSizeHint() const
{
    return {0, Theme::scaled(Height)};
}

bool oNoticeBar::event(QEvent *event)
{
    if (event->type() == QEvent::Show)
        window()->installEventFilter(this);
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::ApplicationFontChange) {
        followWindow();
        updateGeometry();
        elide();
    }
    return done;
}

bool oNoticeBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == window())
        followWindow();
    if (event->type() == QEvent::Resize && watched == lblSentence)
        elide();
    return QWidget::eventFilter(watched, event);
}

void oNoticeBar::paintEvent(QPaintEvent *)
{
    if (m_notices.empty())
        return;
    QPainter painter(this);
    const clsSignLook &look = lookOf(shown().sign);
    painter.fillRect(rect(), look.tint);
    mdPaintLine(painter, rect(), Qt::BottomEdge, Theme::Line);
    painter.fillRect(QRect(0, 0, EdgeWidth, height()), look.edge);
    const double side = Theme::scaled(SignSide);
    mdPaintSign(painter, QRectF(Theme::Space24, (height() - 1 - side) / 2, side, side), look.sign);
}
