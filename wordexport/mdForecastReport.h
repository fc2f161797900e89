#pragma once

#include "wordexport/clsForecast.h"

#include <QByteArray>
#include <QString>

/// "smaller", "runs on" or "cut".
QString mdStateInWords(clsForecast::Box::clsState state);

/// A forecast as JSON.
QByteArray mdForecastAsJson(const clsForecast &forecast);
/// The same as a short table for the user, with the line ends of messages.
QString mdForecastAsTable(const clsForecast &forecast);
