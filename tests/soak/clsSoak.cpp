#include "tests/soak/clsSoak.h"

#include "commands/mdRecoveredCopy.h"
#include "controls/clsSpellingChecker.h"
#include "controls/mdApplyTheme.h"
#include "controls/oFooterBar.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "shell/clsLongWork.h"
#include "shell/frmMain.h"
#include "shell/oApplication.h"
#include "tests/soak/clsSoakUser.h"
#include "tests/soak/mdActions.h"
#include "tests/soak/mdAllowedErrors.h"
#include "tests/soak/mdHands.h"
#include "tests/soak/mdSoakFolder.h"
#include "wordexport/mdWordAlreadyRunning.h"

#include <QScopeGuard>
#include <QThread>
#include <QTimer>

#include <unistd.h>

namespace {

/// An action that takes longer counts as hung. A large claim with sanitizers on a busy machine is slow.
constexpr unsigned SecondsOfAnAction = 300;
constexpr qint64 MillisecondsForTheKeys = 20000;
constexpr int AnswersOfABox = 12;
/// Often enough for a trend even in a short run, and rarely enough for a claim to grow in between.
constexpr int Rests = 15;
constexpr int FewestBetweenRests = 50;
constexpr int MostBetweenRests = 200;
constexpr int TriesToRest = 60;

bool isBox(const QWidget &window)
{
    return window.inherits("frmMessageBox") || window.inherits("QMessageBox");
}

} // namespace

clsSoak::clsSoak(const clsSoakOptions &options)
    : m_options(options)
    , m_dice(options.seed)
    , m_trail(options.tellsAll)
    , m_betweenRests(qBound(FewestBetweenRests, options.actions / Rests, MostBetweenRests))
    , m_restAt(m_betweenRests)
{ }

int clsSoak::run()
{
    if (!m_folder.isValid()) {
        std::fprintf(stderr, "No temporary folder can be made.\n");
        return 2;
    }
    // Another word processor on the tester's machine must not affect the soak.
    const clsProcessListScope noProcesses([] { return QStringList(); });
    m_claims = mdMakeSoakFolder(m_folder.path(), m_dice, m_options.samplesOnly);
    m_disk.begin();
    while (m_trail.actions() < m_options.actions && m_failure.isEmpty())
        live();
    return report();
}

void clsSoak::fail(const QString &what)
{
    if (!m_failure.isEmpty())
        return;
    m_failure = what;
    if (auto *application = oApplication::instance())
        application->end(1);
}

/// One life of the program, from its start to its end.
void clsSoak::live()
{
    ++m_lives;
    static char name[] = "soak";
    static char *arguments[] = {name, nullptr};
    int count = 1;
    oApplication application(count, arguments);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPointSize(10);
    QApplication::setFont(font);
    mdApplyTheme(application);
    clsSoakUser user(m_dice, m_folder.path());
    user.claims = m_claims;
    user.onMessage = [this](const QString &title) {
        if (title == QLatin1String("Export Complete"))
            m_disk.exported();
    };
    user.onRunTimeError = [this](const QString &text) { runTimeError(text); };
    const clsUserInterfaceScope scope(user);
    application.writeRecoveredCopy = WriteRecoveredCopy;

    std::unique_ptr<frmMain> window;
    const QString claim = m_dice.chance(50) ? QString() : m_dice.oneOf(m_claims);
    m_trail.note(QStringLiteral("the program starts on <") + claim + u'>');
    application.guarded([&] {
        window = std::make_unique<frmMain>();
        QObject::connect(window.get(), &frmMain::Closed, &application, [&application] { application.end(0); });
        user.setProgressDisplay({[footer = window->footer()](int value, int maximum, const QString &text) {
                                     footer->showProgress(value, maximum, text);
                                 },
            [footer = window->footer()] { footer->clearProgress(); }});
        // Claims that the program refuses or warns about show a box before the window.
        QTimer::singleShot(1, &application, [this] { turn(); });
        window->Load(claim);
        window->setWindowState(Qt::WindowNoState);
        window->resize(1200, 760);
        window->show();
    });
    application.run();
    user.setProgressDisplay({});
    m_claims = user.claims;
    for (const auto &[title, times] : user.boxes)
        m_boxes[title] += times;
    window.reset();
    Form.reset();
    Preferences.reset();
}

/// Takes the next action as soon as possible; called in each iteration of each event loop.
void clsSoak::turn()
{
    if (oApplication::ending())
        return;
    // Not immediately: pending work of the last action comes first.
    QTimer::singleShot(1, qApp, [this] { turn(); });
    if (!isFree() || waitsForKeys())
        return;
    check();
    if (m_failure.isEmpty())
        act(*Hands::front());
    else
        oApplication::instance()->end(1);
}

/// Events are handled between two keys of an action; the next action must wait for its end, unless the action has
/// opened a nested event loop.
bool clsSoak::isFree() const
{
    if (!m_loops.empty() && QThread::currentThread()->loopLevel() <= m_loops.back())
        return false;
    const QWidget *modal = QApplication::activeModalWidget();
    return !clsLongWork::isRunning() || (modal && isBox(*modal));
}

bool clsSoak::waitsForKeys()
{
    if (Hands::ready()) {
        m_waiting.invalidate();
        return false;
    }
    if (!m_waiting.isValid())
        m_waiting.start();
    else if (m_waiting.elapsed() > MillisecondsForTheKeys)
        fail(QStringLiteral("no window takes the keys"));
    return true;
}

/// Checks what must hold after every action.
void clsSoak::check()
{
    QString wrong;
    try {
        wrong = m_disk.whatIsWrong();
    } catch (const std::exception &error) {
        wrong = QStringLiteral("what was written can't be read: ") + QString::fromUtf8(error.what());
    }
    if (!wrong.isEmpty())
        fail(wrong);
    QWidget *front = Hands::front();
    if (!isBox(*front) || front != m_box)
        m_answers = 0;
    m_box = front;
    if (isBox(*front) && ++m_answers > AnswersOfABox)
        fail(QStringLiteral("a box does not go: ") + front->windowTitle());
}

void clsSoak::act(QWidget &front)
{
    m_loops.push_back(QThread::currentThread()->loopLevel());
    const auto over = qScopeGuard([this] { m_loops.pop_back(); });
    alarm(SecondsOfAnAction);
    m_resting = m_resting || m_trail.actions() >= m_restAt;
    if (m_resting)
        comeToRest(front);
    else
        takeAction(front);
}

void clsSoak::takeAction(QWidget &front)
{
    clsScene scene {front, m_dice, m_trail};
    const auto actions = mdActionsFor(front);
    int weights = 0;
    for (const clsSoakAction &action : actions)
        weights += action.weight;
    for (int tries = 0; tries < 50; ++tries) {
        int left = m_dice.below(weights);
        for (const clsSoakAction &action : actions) {
            left -= action.weight;
            if (left >= 0)
                continue;
            if (action.act(scene))
                return;
            break;
        }
    }
    fail(QStringLiteral("nothing can be done on ") + mdNameOf(front));
}

/// Closes everything without saving, starts a new claim and measures.
void clsSoak::comeToRest(QWidget &front)
{
    if (++m_triesToRest > TriesToRest)
        return fail(QStringLiteral("the program does not come to rest; in front is ") + mdNameOf(front));
    if (front.windowType() == Qt::Popup)
        Hands::key(Qt::Key_Escape);
    else if (isBox(front))
        leaveBox(front);
    else if (front.isModal())
        front.close();
    else if (Form->path().isEmpty() && Form->FeeEarnersCollection().empty() && Form->CounselCollection().empty()
        && m_triesToRest > 3)
        measure(front);
    else
        beginAnew();
}

void clsSoak::leaveBox(const QWidget &front)
{
    // Answers No to saving, and leaves every editor.
    const bool asksToSave = front.windowTitle() == QLatin1String("Save?");
    auto *button = front.findChild<QWidget *>(QLatin1String(asksToSave ? "cmdNo" : "cmdYes"));
    if (!button || !Hands::click(*button))
        Hands::key(Qt::Key_Return);
}

void clsSoak::beginAnew()
{
    // An invalid time would keep the focus in the status bar.
    if (m_triesToRest % 8 == 7) {
        Hands::key(Qt::Key_A, Qt::ControlModifier);
        Hands::type(QStringLiteral("0:00"));
    }
    Hands::key(Qt::Key_N, Qt::ControlModifier);
}

void clsSoak::measure(QWidget &window)
{
    window.resize(1200, 760);
    Hands::key(Qt::Key_T, Qt::ControlModifier);
    mdTidySoakFolder(m_folder.path());
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    // The dictionary, which is loaded for the first box with a text, takes much of the memory: load it now, so that it
    // counts at every rest.
    SpellingChecker().IsAvailable();
    m_memory.take(m_trail.actions());
    const clsMemoryWatch::clsPoint &point = m_memory.points().back();
    m_trail.note(QStringLiteral("at rest: %1 bytes, %2 objects, %3 windows")
                     .arg(point.heap)
                     .arg(point.objects)
                     .arg(point.windows));
    m_resting = false;
    m_triesToRest = 0;
    m_restAt = m_trail.actions() + m_betweenRests;
    if (m_trail.actions() >= m_options.actions)
        oApplication::instance()->end(0);
}

void clsSoak::runTimeError(const QString &text)
{
    const QString why = mdWhyAllowed(text);
    if (why.isEmpty())
        return fail(text);
    m_trail.note(QStringLiteral("the program ends: ") + why);
    ++m_allowed[why];
}

int clsSoak::report()
{
    const QString grows = m_memory.whatGrows();
    const auto counts = [](const char *heading, const std::map<QString, int> &of) {
        std::printf("%s:", heading);
        for (const auto &[what, times] : of)
            std::printf(" %s %d;", qPrintable(what), times);
        std::printf("\n");
    };
    std::printf("Seed %llu: %d actions in %d runs of the program, %zu claims, %d saves and %d exports checked.\n",
        m_options.seed, m_trail.actions(), m_lives, size_t(m_claims.size()), m_disk.saves(), m_disk.exports());
    counts("Actions", m_trail.counts());
    counts("Boxes", m_boxes);
    counts("Ends that the input explains", m_allowed);
    std::printf("At rest (action: bytes in use, objects, windows):");
    for (const clsMemoryWatch::clsPoint &point : m_memory.points())
        std::printf(" %d: %lld, %lld, %lld;", point.action, point.heap, point.objects, point.windows);
    std::printf("\n");
    if (m_failure.isEmpty() && grows.isEmpty())
        return 0;
    m_trail.printLast();
    std::fprintf(stderr, "FAILED: %s\nAgain by: soak --seed %llu --actions %d%s\n",
        qPrintable(m_failure.isEmpty() ? grows : m_failure), m_options.seed, m_options.actions,
        m_options.samplesOnly ? " --samples" : "");
    return 1;
}
