#pragma once

#include <QString>

/// The folder in which the running program lies, without a slash at its end. Links to the program are resolved: its
/// templates and sounds lie beside the program and not beside the link.
QString ProgramFolder();

/// A path under the program folder, such as "Sounds/Alert.wav".
QString ProgramPath(const QString &relative);

/// Takes another folder for the program folder, for tests; an empty one puts the real one back.
void SetProgramFolder(const QString &folder);

/// The folders beside the program.
QString LogsFolder();
QString TemplatesFolder();
