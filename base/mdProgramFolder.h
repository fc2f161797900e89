#pragma once

#include <QString>

/// The folder of the running program, without a trailing slash. Links to the program are resolved: its templates and
/// sounds are beside the program, not beside the link.
QString ProgramFolder();

/// A path under the program folder, such as "Sounds/Alert.wav".
QString ProgramPath(const QString &relative);

/// Replaces the program folder, for tests; an empty text restores the real one.
void SetProgramFolder(const QString &folder);

/// The folders beside the program.
QString LogsFolder();
QString TemplatesFolder();
