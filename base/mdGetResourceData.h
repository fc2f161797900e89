#pragma once

#include <QString>

/// A text that is compiled into the program, by its name and group; kept after its first use, since every new item of
/// a claim asks for its template. Error 326 where there is none of that name.
QString GetResourceData(const QString &name, const QString &group);
