#include "controls/oTimeSpentBox.h"

#include "base/clsRunTimeError.h"
#include "base/mdTypedText.h"
#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"
#include "controls/oTimeBox.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QEvent>
#include <QHBoxLayout>

#include <chrono>

// The clock of the main window's footer, accessible to every routine by this name.
oTimeSpentBox *TimeSpentBox = nullptr;

namespace {

constexpr QLatin1String StartCaption("Start");
constexpr QLatin1String StopCaption("Stop");

} // namespace

oTimeSpentBox::oTimeSpentBox(QWidget *parent)
    : QWidget(parent)
    , txtTime(new oTimeBox(this))
    , cmdStartStop(new oCustomButton(this))
    , tmrTimer(this)
{
    txtTime->setObjectName(QStringLiteral("txtTime"));
    txtTime->setAccessibleName(QStringLiteral("Time spent"));
    txtTime->setToolTip(QStringLiteral("Time spent on this claim"));
    txtTime->setCompact();
    cmdStartStop->setObjectName(QStringLiteral("cmdStartStop"));
    tmrTimer.setObjectName(QStringLiteral("tmrTimer"));
    tmrTimer.setInterval(std::chrono::minutes(1));

    auto *row = new QHBoxLayout(this);
    // The button's ring extends beyond its visible edge, with which the layout aligns.
    row->setContentsMargins(0, Theme::RingRoom, Theme::RingRoom, Theme::RingRoom);
    row->setSpacing(Theme::Space8);
    row->addWidget(txtTime);
    row->addWidget(cmdStartStop);
    setFocusProxy(txtTime);

    connect(&tmrTimer, &QTimer::timeout, this, &oTimeSpentBox::tick);
    connect(txtTime, &oTimeBox::Left, this, &oTimeSpentBox::writeToForm);
    connect(cmdStartStop, &oCustomButton::Click, this, [this] { run(!tmrTimer.isActive()); });

    run(false);
    fitButton();
}

QString oTimeSpentBox::TimeSpent() const
{
    return txtTime->Text();
}

void oTimeSpentBox::setTimeSpent(const QString &time)
{
    if (!txtTime->isActive())
        txtTime->setText(time);
}

void oTimeSpentBox::StartTimer()
{
    run(true);
}

void oTimeSpentBox::StopTimer()
{
    run(false);
}

void oTimeSpentBox::run(bool runs)
{
    txtTime->setEnabled(!runs);
    if (!runs)
        tmrTimer.stop();
    else if (!tmrTimer.isActive()) // a second start doesn't restart the minute
        tmrTimer.start();
    cmdStartStop->setCaption(runs ? StopCaption : StartCaption);
}

void oTimeSpentBox::fitButton()
{
    cmdStartStop->setLook(oCustomButton::Look::Small); // measured in the desktop's present font
    const QString shown = cmdStartStop->text();
    int widest = 0;
    for (const QLatin1String caption : {StartCaption, StopCaption}) {
        cmdStartStop->setCaption(caption);
        widest = qMax(widest, cmdStartStop->sizeHint().width());
    }
    cmdStartStop->setCaption(shown);
    cmdStartStop->setMinimumWidth(widest);
}

bool oTimeSpentBox::event(QEvent *event)
{
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::ApplicationFontChange)
        fitButton();
    return done;
}

void oTimeSpentBox::tick()
{
    // A time that can't be increased is left unchanged: the clock must never end the program.
    try {
        txtTime->setText(TimeAfterOneMinute(txtTime->Text()));
        writeToForm();
    } catch (const clsRunTimeError &) { }
}

void oTimeSpentBox::writeToForm() const
{
    if (Form)
        Form->TimeSpent = txtTime->Text();
}
