#include "shell/frmSplash.h"

#include "base/mdClock.h"
#include "base/mdDatabasePath.h"
#include "base/mdGetVersionInfo.h"
#include "base/mdLog.h"
#include "commands/mdDatabaseCreation.h"
#include "controls/mdPointerScreen.h"
#include "controls/mdTheme.h"
#include "shell/mdPaintSplash.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

namespace {

struct clsSplashKey {
    char16_t character;
    void (*command)();
};

constexpr clsSplashKey SplashKeys[] = {
    {u'p', SelectDatabasePath},
    {u'r', ResetDatabasePath},
    {u'd', CreateDatabases},
};

QLabel *label(const char *name, const QString &text, const QFont &font, QWidget *parent)
{
    auto *result = new QLabel(text, parent);
    result->setObjectName(QString::fromLatin1(name));
    result->setFont(font);
    QPalette palette = result->palette();
    palette.setColor(QPalette::WindowText, Theme::Paper);
    result->setPalette(palette);
    return result;
}

QFont nameFont(QFont::Weight weight)
{
    QFont font = Theme::font();
    font.setPointSizeF(3 * font.pointSizeF());
    font.setWeight(weight);
    return font;
}

} // namespace

frmSplash::frmSplash(QWidget *parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , tmrInit(new QTimer(this))
{
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QStringLiteral("Velmor ZR3"));
    // Has no effect, because without preferences nothing is logged; kept as in every other window.
    WriteLog(objectName() + QStringLiteral(" Opened"));
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(Theme::scaled(SplashWidth), Theme::scaled(SplashHeight));
    build();

    tmrInit->setObjectName(QStringLiteral("tmrInit"));
    tmrInit->setTimerType(Qt::PreciseTimer); // other timer types may take five per cent longer
    tmrInit->setInterval(750);
    connect(tmrInit, &QTimer::timeout, this, &frmSplash::tmrInit_Timer);
    tmrInit->start();
}

void frmSplash::build()
{
    auto *names = new QHBoxLayout;
    names->setSpacing(Theme::scaled(Theme::Space12));
    names->addWidget(label("lblMaker", QStringLiteral("Velmor"), nameFont(QFont::Bold), this));
    names->addWidget(label("lblProgram", QStringLiteral("ZR3"), nameFont(QFont::Light), this));
    names->addStretch();

    const QString notice = QStringLiteral("Copyright %1 Velmor | Version %2")
                               .arg(QString::number(Now().date().year()), GetVersionInfo());
    QLabel *lblVersion = label("lblVersion", notice, Theme::font(-1), this);
    lblVersion->setFixedHeight(Theme::scaled(SplashStripHeight));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::scaled(38), 0, Theme::scaled(38), 0);
    layout->setSpacing(Theme::scaled(Theme::Space8));
    layout->addStretch(10);
    layout->addLayout(names);
    layout->addWidget(label("lblLoading", QStringLiteral("Loading, please wait"), Theme::font(), this));
    layout->addStretch(12);
    layout->addWidget(lblVersion);
}

void frmSplash::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    QRect frame = rect();
    frame.moveCenter(mdPointerScreen()->availableGeometry().center());
    move(frame.topLeft());
    // The keys must work from the first moment.
    raise();
    activateWindow();
    setFocus();
}

void frmSplash::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    mdPaintSplash(painter, size());
}

void frmSplash::keyPressEvent(QKeyEvent *event)
{
    // The main window may show boxes while it is created; a key pressed then must not start it again.
    if (m_initialised)
        return;
    tmrInit->stop();
    const QString text = event->text();
    for (const clsSplashKey &key : SplashKeys)
        if (text == QStringView(&key.character, 1)) {
            key.command();
            break;
        }
    tmrInit->start();
}

void frmSplash::tmrInit_Timer()
{
    tmrInit->stop();
    m_initialised = true;
    emit Initialised();
}

void frmSplash::StepAside()
{
    move(x(), screen()->geometry().bottom() + 1);
    hide();
}
