#pragma once

#include "commands/clsTypedTexts.h"

#include <QJsonObject>

/// What is typed in a screen, as it is kept in the files of the state folder.
QJsonObject TypedTextsObject(const clsTypedTexts &texts);
clsTypedTexts TypedTextsOf(const QJsonObject &object);
