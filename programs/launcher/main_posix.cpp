#include "base/mdEndSignals.h"
#include "base/mdOwnDatabasePath.h"
#include "base/mdProgramFolder.h"

#include <QDir>

#include <cstdio>

#include <unistd.h>

/// Creates a database folder for a user who starts the program for the first time, then replaces itself with the
/// program.
int main(int, char **argv)
{
    MakeSizeLimitAnError();
    // This executable is in the folder of commands, not in the program folder.
    SetProgramFolder(QDir::cleanPath(ProgramPath(QStringLiteral(ZR3_FROM_COMMANDS_TO_PROGRAM))));
    GiveOwnDatabasePath();
    QByteArray program = QFile::encodeName(ProgramPath(QStringLiteral("velmor-zr3")));
    argv[0] = program.data();
    ::execv(program.constData(), argv);
    std::perror(program.constData());
    return 127;
}
