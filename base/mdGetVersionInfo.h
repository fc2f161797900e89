#pragma once

#include <QString>

/// The running program's version: major, minor and revision separated by points, without leading zeros.
QString GetVersionInfo();
