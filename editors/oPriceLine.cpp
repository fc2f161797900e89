#include "editors/oPriceLine.h"

#include "base/clsRunTimeError.h"
#include "base/mdFormatMoney.h"
#include "base/mdTypedText.h"
#include "controls/mdTheme.h"
#include "controls/oTimeBox.h"
#include "editors/frmScreen.h"
#include "editors/mdScreenControls.h"
#include "editors/oFeeEarnerCombo.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

oPriceLine::oPriceLine(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("lblPrice"));
    setTextFormat(Qt::RichText);
    setFont(Theme::font(-1));
    m_renewal.setSingleShot(true);
    connect(&m_renewal, &QTimer::timeout, this, &oPriceLine::renew);
}

oPriceLine::~oPriceLine() = default;

void oPriceLine::Follow(frmScreen &screen)
{
    m_screen = &screen;
    const auto changed = qOverload<>(&QTimer::start);
    connect(&screen, &frmScreen::Loaded, &m_renewal, changed);
    for (const clsScreenField &field : screen.Fields()) {
        QList<QWidget *> parts = field.control->findChildren<QWidget *>();
        parts << field.control;
        for (QWidget *part : parts) {
            if (auto *text = qobject_cast<QLineEdit *>(part))
                connect(text, &QLineEdit::textChanged, &m_renewal, changed);
            else if (auto *list = qobject_cast<QComboBox *>(part))
                connect(list, &QComboBox::currentIndexChanged, &m_renewal, changed);
            else if (auto *tick = qobject_cast<QAbstractButton *>(part))
                connect(tick, &QAbstractButton::toggled, &m_renewal, changed);
        }
    }
    m_renewal.start();
}

/// Prices the item as it would be stored now, with the time in the form that its box would give it.
void oPriceLine::renew()
{
    if (!Form)
        return;
    if (!m_screen->Box<oFeeEarnerCombo>("cmbFeeEarner").SelectedFeeEarner())
        return tell(QStringLiteral("Choose a fee earner to see the price"), {});
    const std::optional<QString> time = TypedTime(m_screen->Box<oTimeBox>("txtTime").Text());
    if (!time || time->isEmpty())
        return tell({}, {});
    try {
        if (!m_item)
            m_item = Form->LooseScheduleOfTimeItem();
        for (const clsScreenField &field : m_screen->Fields())
            mdStoreControl(*field.row, *field.control, *m_item);
        m_item->TTime = *time;
        const QString basic = mdFormatMoney(m_item->BasicClaim());
        const Money percentage = m_item->TotalEnhancementPercentage();
        const QString start = *time + QStringLiteral(" at ") + mdFormatMoney(m_item->Rate()) + QStringLiteral(" is ");
        if (percentage == Money())
            tell(start, basic);
        else
            tell(start + basic + QStringLiteral("; with ") + MoneyToText(percentage) + QStringLiteral(" %: "),
                mdFormatMoney(m_item->Claim()));
    } catch (const clsRunTimeError &) {
        tell({}, {}); // a rate in the file isn't a number, or an enhancement is missing
    }
}

void oPriceLine::tell(const QString &reason, const QString &result)
{
    const auto span = [](const QString &text, const QColor &ink, int weight) {
        return QStringLiteral("<span style=\"color:%1;font-weight:%2\">%3</span>")
            .arg(ink.name())
            .arg(weight)
            .arg(text.toHtmlEscaped());
    };
    setText(span(reason, Theme::Ink2, QFont::Normal) + span(result, Theme::Ink, QFont::DemiBold));
    setAccessibleName(reason + result);
}

QSize oPriceLine::sizeHint() const
{
    return {QLabel::sizeHint().width(), fontMetrics().height()};
}

bool oPriceLine::event(QEvent *event)
{
    const bool done = QLabel::event(event);
    if (event->type() == QEvent::ApplicationFontChange)
        setFont(Theme::font(-1));
    return done;
}
