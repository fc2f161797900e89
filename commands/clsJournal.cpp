#include "commands/clsJournal.h"

#include "base/clsFileSystem.h"
#include "base/clsHeldFile.h"
#include "base/clsRunTimeError.h"
#include "base/mdCodePage.h"
#include "base/mdLog.h"
#include "base/mdRunTimeErrorOf.h"
#include "commands/clsNotStored.h"
#include "commands/mdFailureInWords.h"
#include "commands/mdLossCause.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QHash>
#include <QRandomGenerator>

namespace {

const QString NoFolder = QStringLiteral("its folder cannot be written to");

size_t standsFor(const QString &text, const clsJournalHead &head)
{
    size_t seed = qHash(text, 1);
    seed = qHashMulti(seed, head.claim, head.known);
    for (const clsTypedTexts &texts : head.typed) {
        seed = qHashMulti(seed, texts.screen, texts.orderID);
        for (const auto &[property, typed] : texts.fields)
            seed = qHashMulti(seed, property, typed);
    }
    return seed == 0 ? 1 : seed;
}

/// Runs a step and logs its error instead of raising it. Returns the error's number, 0 for none.
template <class Step> int guarded(Step step) noexcept
{
    int failure = 0;
    try {
        try {
            step();
        } catch (...) {
            failure = clsRunTimeError::OutOfMemory;
            const clsRunTimeError error = mdRunTimeErrorOf(std::current_exception());
            failure = error.number();
            WriteLog(QStringLiteral("Journal: ") + error.description());
        }
    } catch (...) {
        // The log failed too.
    }
    return failure;
}

} // namespace

clsJournal &Journal()
{
    // The program has one document, and all higher floors report its changes.
    static clsJournal journal;
    return journal;
}

clsJournal::clsJournal() = default;

clsJournal::~clsJournal()
{
    if (m_writing.valid())
        m_writing.wait();
}

void clsJournal::begin(clsJournalHooks hooks)
{
    end();
    m_hooks = std::move(hooks);
    m_on = true;
    Document().history.stepTaken = [this] { stepTaken(); };
}

void clsJournal::end()
{
    finishWrite();
    letGo();
    if (m_on)
        Document().history.stepTaken = nullptr;
    m_hooks = {};
    m_on = false;
    m_notSaved.clear();
    m_notKept.clear();
}

void clsJournal::stepTaken()
{
    if (m_on && m_hooks.stepTaken)
        m_hooks.stepTaken();
}

std::vector<clsTypedTexts> clsJournal::typedTexts() const
{
    return m_hooks.typedTexts ? m_hooks.typedTexts() : std::vector<clsTypedTexts>();
}

bool clsJournal::isNeeded(const QString &text, const std::vector<clsTypedTexts> &typed) const
{
    return !typed.empty() || !m_notSaved.isEmpty() || HoldsUnsavedWork(text);
}

/// A failure before the write is reported like one of the write itself.
template <class Step> void clsJournal::keep(Step step) noexcept
{
    const int failure = guarded(step);
    if (failure)
        guarded([&] { m_notKept = FailureInWords(failure); });
}

void clsJournal::update() noexcept
{
    keep([this] { bringUpToDate(false); });
}

void clsJournal::flush() noexcept
{
    keep([this] {
        finishWrite();
        bringUpToDate(true);
    });
}

void clsJournal::bringUpToDate(bool atOnce)
{
    if (m_writing.valid() && m_writing.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        return;
    finishWrite();
    if (!m_on || !Form || Document().opening)
        return;
    clsWrite what {Form->XMLOutput(), {}};
    const std::vector<clsTypedTexts> typed = typedTexts();
    if (!isNeeded(what.text, typed))
        return remove();
    what.head = NewJournalHead();
    what.head.claim = Document().filePath();
    what.head.known = Document().onDisk.mark();
    // Text not stored earlier comes first: if there are two entries for a screen, the later counts.
    what.head.typed = NotStored().all();
    what.head.typed.insert(what.head.typed.end(), typed.begin(), typed.end());
    write(std::move(what), atOnce);
}

void clsJournal::write(clsWrite what, bool atOnce)
{
    m_underWay = standsFor(what.text, what.head);
    if (m_underWay == m_held)
        return;
    if (!takeFile()) {
        m_notKept = NoFolder;
        return;
    }
    startWrite(std::move(what), atOnce);
}

/// In the background: on a slow disk, writing a large claim would delay typing.
void clsJournal::startWrite(clsWrite what, bool atOnce)
{
    auto work = [file = m_file, what = std::move(what)] {
        try {
            WriteJournal(file, JournalBytes(what.head, mdToCodePage(what.text)));
            return 0;
        } catch (...) {
            return mdRunTimeErrorOf(std::current_exception()).number();
        }
    };
    m_writing = std::async(atOnce ? std::launch::deferred : std::launch::async, std::move(work));
    if (atOnce)
        finishWrite();
}

void clsJournal::finishWrite()
{
    if (!m_writing.valid())
        return;
    const int failure = m_writing.get();
    m_held = failure ? 0 : m_underWay;
    m_notKept = failure ? FailureInWords(failure) : QString();
}

/// Makes sure that this process has a journal file with a lock. False if it can't be created.
bool clsJournal::takeFile()
{
    if (!MakeJournalFolder())
        return false;
    if (m_lock && FileSystem().FileExists(JournalLock(m_file)))
        return true;
    letGo();
    const QString name = QString::number(QRandomGenerator::system()->generate64(), 16);
    m_file = JournalFolder() + u'/' + name + QLatin1String(JournalEnd);
    m_lock = std::make_unique<clsHeldFile>(JournalLock(m_file));
    if (m_lock->isHeld())
        return true;
    letGo();
    return false;
}

void clsJournal::remove()
{
    finishWrite();
    if (!m_file.isEmpty())
        RemoveJournal(m_file);
    letGo();
    m_notKept.clear();
}

void clsJournal::letGo()
{
    m_lock.reset();
    m_file.clear();
    m_held = 0;
}

void clsJournal::saved(bool written, int failure) noexcept
{
    if (!m_on)
        return;
    guarded([&] {
        int number = written ? 0 : failure;
        try {
            const bool holds = !written || FileSystem().FileHolds(Document().filePath(), mdToCodePage(CleanXML));
            if (!holds)
                number = clsRunTimeError::InputPastEnd;
        } catch (const clsRunTimeError &error) {
            number = error.number();
        }
        m_notSaved = number ? FailureInWords(number) : QString();
        stepTaken();
        if (m_notSaved.isEmpty() && typedTexts().empty())
            remove();
    });
}

void clsJournal::leaveClaim() noexcept
{
    if (!m_on)
        return;
    if (m_notSaved.isEmpty()) {
        guarded([this] { remove(); });
    } else {
        flush();
        letGo();
    }
    m_notSaved.clear();
}

void clsJournal::adopt(
    const QString &journal, std::unique_ptr<clsHeldFile> lock, const std::vector<clsTypedTexts> &typed)
{
    finishWrite();
    letGo();
    m_file = journal;
    m_lock = std::move(lock);
    for (const clsTypedTexts &texts : typed)
        NotStored().keep(texts);
    stepTaken();
}
