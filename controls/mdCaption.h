#pragma once

#include <QString>

/// A caption as displayed: without the ampersands of its mnemonic.
QString mdPlainCaption(const QString &caption);

/// A displayed caption for screen readers: without colon and asterisk, so "Surname" for "Surname:*".
QString mdSpokenCaption(const QString &caption);
