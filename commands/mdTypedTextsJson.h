#pragma once

#include "commands/clsTypedTexts.h"

#include <QJsonObject>

/// The text typed in a screen, in the format of the files in the state folder.
QJsonObject TypedTextsObject(const clsTypedTexts &texts);
clsTypedTexts TypedTextsOf(const QJsonObject &object);
