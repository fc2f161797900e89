#include "controls/mdShowModal.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oLeftRightButton.h"
#include "tests/editors/clsScreenTest.h"

#include <QScreen>
#include <QTimer>

#include <deque>
#include <functional>
#include <utility>

namespace {

/// Goes through real modal screens: each step waits for the screen of its name; if it doesn't appear, the test fails.
class Navigation : public clsScreenTest {
protected:
    struct Step {
        const char *screen;
        std::function<void(frmScreen &)> act;
    };

    void SetUp() override
    {
        clsScreenTest::SetUp();
        SetOpenSection([this](const QString &text) { open(text); });
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { next(); });
    }

    /// Like the main window: a screen requested while another is open follows after that one closes.
    void open(const QString &text)
    {
        openedTexts << text;
        m_next = text;
        if (std::exchange(m_open, true))
            return;
        while (!m_next.isEmpty()) {
            const std::unique_ptr<QDialog> screen(mdCreateScreen(std::exchange(m_next, QString()), nullptr));
            if (screen)
                mdShowModal(*screen);
        }
        m_open = false;
    }
    void walk(const QString &first, std::deque<Step> steps)
    {
        m_steps = std::move(steps);
        m_waited = 0;
        m_timer.start();
        open(first);
        m_timer.stop();
        EXPECT_TRUE(m_steps.empty()) << m_steps.size() << " steps were not taken";
    }
    static void goNext(frmScreen &screen) { press(screen, "btnRight"); }
    static void goBack(frmScreen &screen) { press(screen, "btnLeft"); }
    static void cancel(frmScreen &screen) { press(screen, "cmdCancel"); }

    QStringList openedTexts;
    size_t mostAlive = 0;

private:
    void next()
    {
        auto *screen = qobject_cast<frmScreen *>(QApplication::activeModalWidget());
        if (screen && !m_steps.empty() && screen->objectName() == QString::fromUtf8(m_steps.front().screen)) {
            size_t alive = 0;
            for (QWidget *window : QApplication::topLevelWidgets())
                alive += qobject_cast<frmScreen *>(window) ? 1 : 0;
            mostAlive = qMax(mostAlive, alive);
            const Step step = m_steps.front();
            m_steps.pop_front();
            m_waited = 0;
            // Not from within the timer's call, during which it would not fire again.
            QMetaObject::invokeMethod(
                screen, [step, screen] { step.act(*screen); }, Qt::QueuedConnection);
        } else if (++m_waited > 200) {
            // A test that is stuck fails instead of hanging.
            ADD_FAILURE() << "stuck on " << (screen ? screen->objectName().toStdString() : "no screen");
            for (QWidget *window : QApplication::topLevelWidgets())
                if (auto *lost = qobject_cast<frmScreen *>(window))
                    lost->done(QDialog::Rejected);
        }
    }

    QString m_next;
    bool m_open = false;
    QTimer m_timer;
    std::deque<Step> m_steps;
    int m_waited = 0;
};

} // namespace

TEST_F(Navigation, NextStoresAndOpensTheNextAndCancelThereDropsOnlyItsOwn)
{
    walk(QStringLiteral("Client Details"),
        {{"frmClientDetails",
             [](frmScreen &screen) {
                 type(screen.Box("txtSurname"), QStringLiteral("Hartwell"));
                 goNext(screen);
             }},
            {"frmSolicitorDetails", [](frmScreen &screen) {
                 EXPECT_EQ(QStringLiteral("Hartwell"), Form->ClientDetails.Surname());
                 type(screen.Box("txtNameOfFirm"), QStringLiteral("Oak"));
                 cancel(screen);
             }}});
    EXPECT_EQ(QStringLiteral("Hartwell"), Form->ClientDetails.Surname());
    EXPECT_EQ(QString(), Form->SolicitorDetails.NameOfFirm());
    EXPECT_EQ(QStringList({QStringLiteral("Client Details"), QStringLiteral("Solicitor Details")}), openedTexts);
}

TEST_F(Navigation, PrevStoresToo)
{
    walk(QStringLiteral("Solicitor Details"),
        {{"frmSolicitorDetails",
             [](frmScreen &screen) {
                 type(screen.Box("txtNameOfFirm"), QStringLiteral("Oak"));
                 goBack(screen);
             }},
            {"frmClientDetails", cancel}});
    EXPECT_EQ(QStringLiteral("Oak"), Form->SolicitorDetails.NameOfFirm());
}

TEST_F(Navigation, AClaim1APassesCaseInformationBy)
{
    Form->FormType = QStringLiteral("Claim1A");
    walk(QStringLiteral("Previous Advice"),
        {{"frmPreviousAdvice", goNext}, {"frmOutcomeOfCase", goNext}, {"frmNatureOfProceedings", cancel}});
    EXPECT_EQ(QStringList({QStringLiteral("Previous Advice"), QStringLiteral("Outcome of Case"),
                  QStringLiteral("Nature of Proceedings")}),
        openedTexts);
    openedTexts.clear();
    Form->FormType = QStringLiteral("Claim1");
    walk(QStringLiteral("Previous Advice"), {{"frmPreviousAdvice", goNext}, {"frmCaseInformation", cancel}});
    EXPECT_EQ(QStringList({QStringLiteral("Previous Advice"), QStringLiteral("Case Information")}), openedTexts);
}

TEST_F(Navigation, WhereTheTypesDifferAFormOfNeitherStaysWhereItIs)
{
    Form->FormType = QStringLiteral("Claim2");
    walk(QStringLiteral("Previous Advice"), {{"frmPreviousAdvice", [](frmScreen &screen) {
                                                  goNext(screen);
                                                  EXPECT_TRUE(screen.isVisible());
                                                  cancel(screen);
                                              }}});
    EXPECT_EQ(QStringList {QStringLiteral("Previous Advice")}, openedTexts);
}

TEST_F(Navigation, TheFirstScreenHasNoWayBack)
{
    const auto enabled = [](const char *section) {
        const auto screen = created(QString::fromUtf8(section));
        const auto *switcher = screen->findChild<oLeftRightButton *>(QStringLiteral("oFormSwitcher"));
        EXPECT_EQ(QStringLiteral("<< Prev"), switcher->LeftCaption());
        EXPECT_EQ(QStringLiteral("Next >>"), switcher->RightCaption());
        return std::pair(switcher->LeftEnabled(), switcher->RightEnabled());
    };
    EXPECT_EQ(std::pair(false, true), enabled("Client Details"));
    EXPECT_EQ(std::pair(true, true), enabled("Solicitor Details"));
    EXPECT_EQ(std::pair(true, true), enabled("Previous Advice"));
    EXPECT_EQ(std::pair(true, true), enabled("Case Information"));
}

TEST_F(Navigation, ALongWalkPilesNothingUp)
{
    std::deque<Step> steps;
    for (int i = 0; i < 60; ++i) {
        steps.push_back({"frmClientDetails", goNext});
        steps.push_back({"frmSolicitorDetails", goBack});
    }
    steps.push_back({"frmClientDetails", cancel});
    walk(QStringLiteral("Client Details"), steps);
    EXPECT_EQ(1u, mostAlive);
}

TEST_F(Navigation, AScreenThatIsNotShownModallyLeadsOnAtOnce)
{
    const auto screen = opened(QStringLiteral("Client Details"));
    QString target;
    SetOpenSection([&](const QString &text) {
        EXPECT_FALSE(screen->isVisible());
        target = text;
    });
    screen->Next();
    EXPECT_EQ(QStringLiteral("Solicitor Details"), target);
}

TEST_F(Navigation, WithoutAMainWindowNextOnlyStoresAndCloses)
{
    SetOpenSection(nullptr);
    const auto screen = opened(QStringLiteral("Client Details"));
    screen->Next();
    EXPECT_FALSE(screen->isVisible());
}

TEST_F(Navigation, AModalScreenStandsOverTheWindowBelowAndVeilsIt)
{
    QWidget below;
    below.setGeometry(100, 60, 600, 500);
    below.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&below));
    walk(QStringLiteral("Client Details"), {{"frmClientDetails", [&below](frmScreen &screen) {
                                                 EXPECT_TRUE(below.findChild<QWidget *>(QStringLiteral("oVeil")));
                                                 EXPECT_TRUE(screen.isModal());
                                                 const QRect room = screen.screen()->availableGeometry();
                                                 EXPECT_TRUE(room.contains(screen.geometry()));
                                                 EXPECT_LE(screen.height(), room.height() * 94 / 100 + 1);
                                                 cancel(screen);
                                             }}});
    EXPECT_FALSE(below.findChild<QWidget *>(QStringLiteral("oVeil")));
}

TEST_F(Navigation, AWindowBelowThatGoesTakesItsVeilAlong)
{
    auto below = std::make_unique<QWidget>();
    below->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(below.get()));
    walk(QStringLiteral("Client Details"), {{"frmClientDetails", [&below](frmScreen &screen) {
                                                 below.reset();
                                                 cancel(screen);
                                             }}});
}
