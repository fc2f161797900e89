#pragma once

#include "wordexport/clsForecast.h"

class clsZR3Form;
struct clsExport;

/// The result of exporting the claim, computed in memory by the export's own steps on a copy: the claim is not changed,
/// and nothing is shown, logged or written.
clsForecast mdForecast(const clsZR3Form &form, const QString &templatesFolder);

/// The result of an export that has finished.
clsForecast mdForecastOf(const clsExport &run);

/// Shows the messages that the export would show, and raises the error that would end it.
void mdTellAsTheExport(const clsForecast &forecast);
