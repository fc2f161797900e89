#include "shell/clsJournalKeeper.h"

#include "base/clsFileWatch.h"
#include "base/mdClock.h"
#include "commands/clsJournal.h"
#include "commands/mdFileHandling.h"
#include "editors/mdTypedTexts.h"
#include "formdata/mdGlobals.h"
#include "shell/mdComparison.h"

#include <QFileInfo>
#include <QLocale>

namespace {

constexpr std::chrono::milliseconds BetweenLooks(50); ///< while a write is running

/// The kinds of notice, most serious first.
enum clsKind { NotSaved, ChangedOnDisk, NotClosed, NotKept, Broken };

struct clsKindRow {
    clsKind kind;
    Sign sign;
};

struct clsAnswerRow {
    clsKind kind;
    const char *caption;
    void (clsJournalKeeper::*act)(const QString &journal);
};

// clang-format off
constexpr clsKindRow Kinds[] = {
    {NotSaved,      Sign::Error},
    {ChangedOnDisk, Sign::Warning},
    {NotClosed,     Sign::Note},
    {NotKept,       Sign::Warning},
    {Broken,        Sign::Note},
};

constexpr clsAnswerRow Answers[] = {
    {NotSaved,      "Save &As...",  &clsJournalKeeper::SaveAs},
    {ChangedOnDisk, "&Compare",     &clsJournalKeeper::CompareTheirs},
    {ChangedOnDisk, "&Open theirs", &clsJournalKeeper::OpenTheirs},
    {NotClosed,     "&Open",        &clsJournalKeeper::OpenLeft},
    {NotClosed,     "&Compare",     &clsJournalKeeper::CompareLeft},
    {NotClosed,     "&Discard",     &clsJournalKeeper::DiscardLeft},
    {Broken,        "O&K",          &clsJournalKeeper::BrokenRead},
};
// clang-format on

bool isToday(const QDateTime &time)
{
    return time.toLocalTime().date() == Now().date();
}

QString dayOf(const QDateTime &time)
{
    static const QLocale british(QLocale::English, QLocale::UnitedKingdom);
    return british.toString(time.toLocalTime().date(), QStringLiteral("d MMMM"));
}

QString minuteOf(const QDateTime &time)
{
    return time.toLocalTime().toString(QStringLiteral("HH:mm"));
}

QString changedSentence(const QDateTime &time, bool isUnreadable)
{
    const QString sentence = isToday(time)
        ? QStringLiteral("Changed on disk at %1 by another program").arg(minuteOf(time))
        : QStringLiteral("Changed on disk on %1 at %2 by another program").arg(dayOf(time), minuteOf(time));
    return isUnreadable ? sentence + QStringLiteral(", and cannot be read") : sentence;
}

QString leftSentence(const clsJournalHead &head)
{
    const QString name
        = head.claim.isEmpty() ? QStringLiteral("A new claim") : QFileInfo(head.claim).completeBaseName();
    const QString day = isToday(head.changed) ? QString() : dayOf(head.changed) + QStringLiteral(", ");
    return QStringLiteral("%1 was not closed properly: changes until %2.").arg(name, day + minuteOf(head.changed));
}

bool originalChanged(const clsLeftJournal &left)
{
    if (left.head.claim.isEmpty())
        return false;
    clsFileWatch file;
    file.wasKnown(left.head.claim, left.head.known);
    return file.changedByOthers().has_value();
}

QString brokenSentence(int count)
{
    return count == 1 ? QStringLiteral("A recovery copy was broken and has been set aside.")
                      : QStringLiteral("%1 recovery copies were broken and have been set aside.").arg(count);
}

} // namespace

clsJournalKeeper::clsJournalKeeper(oNoticeBar &bar, clsKeeperCommands commands, QObject *parent)
    : QObject(parent)
    , m_bar(bar)
    , m_commands(std::move(commands))
{
    m_soon.setSingleShot(true);
    m_soon.setTimerType(Qt::PreciseTimer);
    connect(&m_soon, &QTimer::timeout, this, &clsJournalKeeper::tick);
    connect(&m_regular, &QTimer::timeout, this, &clsJournalKeeper::tick);
}

clsJournalKeeper::~clsJournalKeeper()
{
    if (m_on)
        Journal().end();
}

void clsJournalKeeper::begin()
{
    m_on = true;
    Journal().begin({[this] { step(); }, mdTypedTexts});
    m_regular.start(between);
    refresh();
}

void clsJournalKeeper::leave()
{
    m_soon.stop();
    m_regular.stop();
    if (m_on)
        Journal().leaveClaim();
    m_on = false;
    Journal().end();
}

void clsJournalKeeper::setOffer(std::optional<clsNotice> offer)
{
    m_offer = std::move(offer);
    refresh();
}

void clsJournalKeeper::step()
{
    if (!m_soon.isActive())
        m_soon.start(afterStep);
}

void clsJournalKeeper::tick()
{
    const QString before = Journal().notKept();
    Journal().update();
    if (Journal().isWriting())
        m_soon.start(BetweenLooks);
    if (before != Journal().notKept())
        show();
}

void clsJournalKeeper::refresh()
{
    if (!m_on)
        return;
    m_left.look();
    show();
}

void clsJournalKeeper::show()
{
    std::vector<clsNotice> notices;
    const auto add = [&](clsKind kind, const QString &sentence, const QString &journal = {}) {
        notices.push_back(notice(kind, sentence, journal));
    };
    if (const QString why = Journal().notSaved(); !why.isEmpty())
        add(NotSaved, QStringLiteral("Not saved: ") + why);
    if (const auto changed = Document().changedOnDisk())
        add(ChangedOnDisk, changedSentence(*changed, Document().onDisk.isUnreadable()));
    for (const clsLeftJournal &one : m_left.all())
        add(NotClosed, leftSentence(one.head), one.file);
    if (const QString why = Journal().notKept(); !why.isEmpty())
        add(NotKept, QStringLiteral("No recovery copy is kept: ") + why);
    if (m_left.broken() > 0)
        add(Broken, brokenSentence(m_left.broken()));
    if (m_offer)
        notices.push_back(*m_offer);
    m_bar.setNotices(std::move(notices));
}

clsNotice clsJournalKeeper::notice(int kind, const QString &sentence, const QString &journal)
{
    clsNotice result {Kinds[kind].sign, sentence, {}};
    for (const clsAnswerRow &row : Answers)
        if (row.kind == kind)
            result.answers.push_back(
                {QString::fromLatin1(row.caption), [this, act = row.act, journal] { (this->*act)(journal); }});
    // If the original has changed since, "Compare" is the first button.
    if (const clsLeftJournal *one = left(journal); one && originalChanged(*one))
        std::swap(result.answers[0], result.answers[1]);
    return result;
}

const clsLeftJournal *clsJournalKeeper::left(const QString &journal) const
{
    for (const clsLeftJournal &one : m_left.all())
        if (one.file == journal)
            return &one;
    return nullptr;
}

void clsJournalKeeper::SaveAs(const QString &)
{
    m_commands.saveAs();
    refresh();
}

void clsJournalKeeper::OpenTheirs(const QString &)
{
    m_commands.openInstead([path = Document().filePath()] { OpenFormFile(path); });
    refresh();
}

void clsJournalKeeper::OpenLeft(const QString &journal)
{
    // Looked up again after the question: another window may have opened it meanwhile.
    m_commands.openInstead([this, journal] {
        m_left.look();
        if (const clsLeftJournal *one = left(journal))
            m_left.open(*one);
    });
    refresh();
}

void clsJournalKeeper::CompareTheirs(const QString &)
{
    m_commands.compare(mdCompareWithDisk());
    refresh();
}

void clsJournalKeeper::CompareLeft(const QString &journal)
{
    if (const clsLeftJournal *one = left(journal))
        m_commands.compare(mdCompareWithJournal(*one));
    refresh();
}

void clsJournalKeeper::DiscardLeft(const QString &journal)
{
    if (const clsLeftJournal *one = left(journal))
        m_left.discard(*one);
    refresh();
}

void clsJournalKeeper::BrokenRead(const QString &)
{
    m_left.brokenWereTold();
    refresh();
}
