#pragma once

#include <QString>

/// A text compiled into the program, by name and group; cached, since every new item of a claim needs its template.
/// Error 326 if there is none of that name.
QString GetResourceData(const QString &name, const QString &group);
