#include "base/mdShellExecute.h"

#include "base/clsUserInterface.h"
#include "base/mdCustomMessages.h"

bool ShellOpen(const QString &target)
{
    const bool opened = UserInterface().openTarget(target);
    if (!opened)
        TellNotOpened(target);
    return opened;
}

void TellNotOpened(const QString &target)
{
    mdCustomMessages(QStringLiteral("Velmor ZR3 could not open the following:\r\n\r\n") + target
            + QStringLiteral(
                "\r\n\r\nPlease check that it exists and that this computer has a program to open it with."),
        QStringLiteral("Open Error"), clsUserInterface::OKOnly, 0);
}
