#pragma once

#include <QString>

/// A caption as it reads on the screen: without the ampersands that mark its mnemonic.
QString mdPlainCaption(const QString &caption);

/// A caption, without marks, as a screen reader says it: without colon and asterisk, so "Surname" of "Surname:*".
QString mdSpokenCaption(const QString &caption);
