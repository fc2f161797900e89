#pragma once

#include "wordexport/clsForecast.h"

class clsZR3Form;
struct clsExport;

/// What an export of the claim would give, from the export's own steps on a copy of it, in memory: the claim stays as
/// it is, nothing is told, logged or written.
clsForecast mdForecast(const clsZR3Form &form, const QString &templatesFolder);

/// What an export has given that came to its end.
clsForecast mdForecastOf(const clsExport &run);

/// Tells the user what the export would, and raises the error in which it would end.
void mdTellAsTheExport(const clsForecast &forecast);
