#pragma once

#include <QString>

/// Why a run-time error that has ended the program is no mistake of it, by what the claim says; empty where nothing
/// explains it. The few that there are stand in one table, each with its reason.
QString mdWhyAllowed(const QString &message);
