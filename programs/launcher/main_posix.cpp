#include "base/mdEndSignals.h"
#include "base/mdOwnDatabasePath.h"
#include "base/mdProgramFolder.h"

#include <QDir>

#include <cstdio>

#include <unistd.h>

/// Gives a user who starts the program for the first time a database folder, and becomes the program.
int main(int, char **argv)
{
    MakeSizeLimitAnError();
    // The folder of what runs now is that of the commands.
    SetProgramFolder(QDir::cleanPath(ProgramPath(QStringLiteral(ZR3_FROM_COMMANDS_TO_PROGRAM))));
    GiveOwnDatabasePath();
    QByteArray program = QFile::encodeName(ProgramPath(QStringLiteral("velmor-zr3")));
    argv[0] = program.data();
    ::execv(program.constData(), argv);
    std::perror(program.constData());
    return 127;
}
