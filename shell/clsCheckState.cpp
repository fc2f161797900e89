#include "shell/clsCheckState.h"

#include "base/mdClock.h"
#include "base/mdProgramFolder.h"
#include "base/mdRunTimeErrorOf.h"
#include "commands/mdPutAside.h"
#include "costing/checking/clsFindingItems.h"
#include "costing/checking/mdCheckClaim.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "shell/clsLongWork.h"
#include "shell/clsPagesMaker.h"
#include "shell/mdCopyOfClaim.h"
#include "wordexport/clsForecast.h"
#include "wordexport/mdBoxesToCheck.h"
#include "wordexport/mdForecast.h"

#include <QApplication>

namespace {

/// Idle time before the printed texts are checked.
constexpr int IdleMilliseconds = 80;

} // namespace

clsCheckState::clsCheckState(QObject *parent)
    : QObject(parent)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(IdleMilliseconds);
    connect(&m_idle, &QTimer::timeout, this, &clsCheckState::LookAtPrint);
}

clsCheckState::~clsCheckState() = default;

bool clsCheckState::isCurrent() const
{
    return m_copy && m_day == Now().date() && Document().filePath() == m_asideOf && Form->XMLOutputIs(m_text);
}

void clsCheckState::Renew()
{
    if (!Form)
        return Forget();
    if (isCurrent())
        return;
    takeClaim();
    look();
}

void clsCheckState::RenewPrint(bool overScreen)
{
    Renew();
    if (!m_copy)
        return;
    m_overScreen = overScreen;
    m_idle.start();
}

void clsCheckState::Forget()
{
    m_idle.stop();
    m_items.reset();
    m_copy.reset();
    m_text.clear();
    m_printedText.clear();
    m_boxes.clear();
    m_findings.clear();
    m_groups.clear();
    m_failure.clear();
    m_trouble.clear();
    m_aside.clear();
    m_hasAside = false;
    emit Changed();
}

void clsCheckState::takeClaim()
{
    m_text = Form->XMLOutput();
    m_items.reset();
    m_failure.clear();
    try {
        m_copy = mdCopyOfClaim(*Form);
    } catch (const std::exception &) {
        const clsRunTimeError error = mdRunTimeErrorOf(std::current_exception());
        m_failure = error.cause().isEmpty() ? error.description() : error.cause();
        m_copy = std::make_unique<clsZR3Form>();
    }
    m_items = std::make_unique<clsFindingItems>(*m_copy);
    readKept();
}

/// After Save As the claim keeps its dismissals.
void clsCheckState::readKept()
{
    const QString path = Document().filePath();
    if (m_hasAside && path == m_asideOf)
        return;
    const clsPutAside kept = mdReadPutAside(path);
    const bool hadSome = m_hasAside && !m_aside.isEmpty();
    m_aside = hadSome ? m_aside + kept.keys : kept.keys;
    if (hadSome)
        mdKeepPutAside(path, m_aside);
    if (kept.wasBroken)
        m_trouble = QStringLiteral("What was put aside could not be read. Its file has been set aside.");
    m_asideOf = path;
    m_hasAside = true;
}

void clsCheckState::look()
{
    m_day = Now().date();
    clsFindings found;
    if (m_failure.isEmpty()) {
        const clsCheckFacts facts {.Today = m_day, .CostsLimit = mdStoredCostsLimit(*m_copy), .Boxes = m_boxes};
        found = mdCheckClaim(*m_copy, facts);
    }
    m_findings.clear();
    m_findings.reserve(found.size());
    for (clsFinding &finding : found) {
        const bool isAside = !m_aside.isEmpty() && m_aside.contains(m_items->keyOf(finding));
        QString place = m_items->placeOf(finding);
        m_findings.push_back({std::move(finding), std::move(place), isAside});
    }
    group();
}

void clsCheckState::group()
{
    m_groups = mdGroupFindings(m_findings);
    emit Changed();
}

void clsCheckState::LookAtPrint()
{
    // Skipped if a screen has opened meanwhile; the activation after that screen calls it again.
    const bool isFree = m_overScreen || !QApplication::activeModalWidget();
    if (!m_copy || !m_failure.isEmpty() || !isFree || clsLongWork::isRunning())
        return;
    // The open menu refers to a finding by its number.
    if (QApplication::activePopupWidget())
        return m_idle.start();
    const QString text = mdPrintedText(*m_copy);
    if (text == m_printedText)
        return;
    m_boxes = mdBoxesToCheck(mdForecast(*m_copy, TemplatesFolder()));
    m_printedText = text;
    look();
}

QString clsCheckState::KeyOf(int finding) const
{
    return m_items->keyOf(m_findings[size_t(finding)].Finding);
}

void clsCheckState::PutAside(const std::vector<int> &findings, bool aside)
{
    for (const int finding : findings) {
        const QString key = KeyOf(finding);
        if (aside)
            m_aside << key;
        else
            m_aside.remove(key);
    }
    mdKeepPutAside(m_asideOf, m_aside);
    // Other findings may be about an item with the same content.
    for (clsShownFinding &shown : m_findings)
        shown.IsAside = m_aside.contains(m_items->keyOf(shown.Finding));
    group();
}
