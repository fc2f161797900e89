#pragma once

#include <QString>

/// The section that Prev leads to from a section, for a form type; empty if there is none. If the form types have
/// different routes, a type other than "Claim1" and "Claim1A" leads nowhere.
QString mdPrevSection(const QString &section, const QString &formType);
/// The same for Next.
QString mdNextSection(const QString &section, const QString &formType);
