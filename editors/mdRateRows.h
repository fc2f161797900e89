#pragma once

#include "editors/clsScreenTable.h"

#include <initializer_list>

// The seven rates of a fee earner group, which a rate set has too: both editors show them as the same rows.

/// The rows of the rates; `besideHourly` stand behind the hourly one.
std::vector<clsScreenRow> mdRateRows(const std::vector<clsScreenRow> &besideHourly = {});

/// The rows of several tables, one table behind the other.
std::vector<clsScreenRow> mdJoinedRows(std::initializer_list<std::vector<clsScreenRow>> tables);
