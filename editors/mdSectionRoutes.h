#pragma once

#include <QString>

/// The section that the Prev button leads to from a section, for a form type; empty where there is none. Where the two
/// form types differ, a type that is neither "Claim1" nor "Claim1A" leads nowhere.
QString mdPrevSection(const QString &section, const QString &formType);
/// The same for the Next button.
QString mdNextSection(const QString &section, const QString &formType);
