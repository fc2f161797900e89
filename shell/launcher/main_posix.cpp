#include "shell/mdOwnDatabasePath.h"
#include "shell/mdProgramFolder.h"

#include <QFile>

#include <cstdio>

#include <unistd.h>

/// Gives a user who starts the program for the first time a database folder, and becomes the program.
int main(int, char **argv)
{
    GiveOwnDatabasePath();
    // The folder of what runs now is that of the commands.
    QByteArray program = QFile::encodeName(ProgramPath(QStringLiteral(ZR3_FROM_COMMANDS_TO_PROGRAM "/velmor-zr3")));
    argv[0] = program.data();
    ::execv(program.constData(), argv);
    std::perror(program.constData());
    return 127;
}
