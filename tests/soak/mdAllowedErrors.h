#pragma once

#include <QString>

/// The reason why a run-time error that ended the program was correct, according to the claim's figures; empty if there
/// is none. The few cases are in one table, each with its reason.
QString mdWhyAllowed(const QString &message);
