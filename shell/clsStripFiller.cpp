#include "shell/clsStripFiller.h"

#include "base/mdFormatMoney.h"
#include "controls/oTotalsStrip.h"
#include "costing/checking/mdClaimTotals.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "shell/clsLongWork.h"
#include "shell/mdCopyOfClaim.h"

#include <QEvent>

namespace {

constexpr int BusyMilliseconds = 20;
constexpr int AfterShowMilliseconds = 50; ///< after the window is shown
constexpr int NearlyAll = 10; ///< a limit is nearly reached when less than 1/NearlyAll of it is left

clsStripTotal shown(const clsClaimTotal &total, bool apart)
{
    clsStripTotal result {total.Key, total.Words, mdFormatMoney(total.Value), total.Failure};
    result.standsApart = apart;
    return result;
}

/// Sets what is left out of a narrow strip and what is emphasised, by the figure's key.
void setLook(clsStripTotal &total)
{
    constexpr const char *IntoOther[] = {"CommsTotal", "ExpertInvoicesNetTotal", "NonCounselDisbursementsAmountTotal"};
    for (const char *key : IntoOther)
        if (total.key == QLatin1String(key))
            total.place = clsStripTotal::GoesIntoOther;
    constexpr const char *Altogether[] = {"vat", "fixedfee", "fas"}; // in this order
    for (const char *const &key : Altogether)
        if (total.key == QLatin1String(key)) {
            total.place = clsStripTotal::GoesAltogether;
            total.turn = int(&key - Altogether) + 1;
        }
    total.strong = total.key == QLatin1String("total");
}

clsStripLimit limitOf(Money limit, const clsClaimTotal &costs)
{
    clsStripLimit result;
    const QString all = mdFormatMoney(limit);
    if (costs.hasFailed()) {
        result.state = clsStripLimit::Failed;
        result.figures = QStringLiteral("! of %1").arg(all);
        result.words = costs.Failure;
        return result;
    }
    const Money left = limit - costs.Value;
    result.share = costs.Value.toDouble() / limit.toDouble();
    result.figures = QStringLiteral("%1 of %2").arg(mdFormatMoney(costs.Value), all);
    if (left < Money())
        result.state = clsStripLimit::Over;
    else if (left.tenThousandths() <= limit.tenThousandths() / NearlyAll)
        result.state = clsStripLimit::Near;
    result.words = result.state == clsStripLimit::Over
        ? QStringLiteral("%1 net of VAT with counsel; %2 too much")
              .arg(mdFormatMoney(costs.Value), mdFormatMoney(costs.Value - limit))
        : QStringLiteral("%1 net of VAT with counsel; %2 left").arg(mdFormatMoney(costs.Value), mdFormatMoney(left));
    return result;
}

void show(oTotalsStrip &strip, const clsClaimTotals &totals)
{
    std::vector<clsStripTotal> figures;
    for (const clsClaimTotal &total : totals.Figures)
        setLook(figures.emplace_back(shown(total, false)));
    for (const clsClaimTotal &total : totals.Apart)
        setLook(figures.emplace_back(shown(total, true)));
    strip.setTotals(figures, shown(totals.Other, false));
    strip.setLimit(totals.Limit ? std::optional(limitOf(*totals.Limit, totals.Costs)) : std::nullopt);
}

} // namespace

clsStripFiller::clsStripFiller(oTotalsStrip &strip, QObject *parent)
    : QObject(parent)
    , m_strip(strip)
{
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, &clsStripFiller::fill);
    m_strip.installEventFilter(this);
}

void clsStripFiller::Renew()
{
    if (m_strip.isVisible())
        m_idle.start(0);
}

bool clsStripFiller::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show)
        m_idle.start(AfterShowMilliseconds);
    return QObject::eventFilter(watched, event);
}

void clsStripFiller::Forget()
{
    m_idle.stop();
    m_strip.Clear();
}

void clsStripFiller::fill()
{
    // Work that processes events may have left the claim half loaded.
    if (clsLongWork::isRunning())
        return m_idle.start(BusyMilliseconds);
    if (!Form)
        return Forget();
    try {
        const auto copy = mdCopyOfClaim(*Form);
        show(m_strip, mdClaimTotals(*copy));
    } catch (const std::exception &) {
        // The claim can't be copied; its lists report what is wrong.
        m_strip.Clear();
    }
    emit Renewed();
}
