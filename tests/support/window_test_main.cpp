#include "controls/mdApplyTheme.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

/// A Qt warning is an error in our code.
void failOnWarning(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // Except these: the offscreen platform reports everything that needs a window manager, such as raising a menu.
    if (message.startsWith(QLatin1String("This plugin does not support ")))
        return;
    if (type == QtWarningMsg || type == QtCriticalMsg)
        ADD_FAILURE() << "The toolkit warns: " << message.toStdString();
    else if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    // Keeps the tester's own settings and the tests apart.
    const QTemporaryDir home;
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(name, home.path().toLocal8Bit());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPointSize(10);
    QApplication::setFont(font);
    mdApplyTheme(application);
    qInstallMessageHandler(failOnWarning);
    return RUN_ALL_TESTS();
}
