#pragma once

#include "editors/clsScreenTable.h"

#include <initializer_list>

// The seven rates of a fee earner group or rate set, for the editors of both.

/// The rows of the rates, with `besideHourly` after the hourly one.
std::vector<clsScreenRow> mdRateRows(const std::vector<clsScreenRow> &besideHourly = {});

/// Joins the rows of several tables.
std::vector<clsScreenRow> mdJoinedRows(std::initializer_list<std::vector<clsScreenRow>> tables);
