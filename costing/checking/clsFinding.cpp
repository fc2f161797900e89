#include "costing/checking/clsFinding.h"

QString mdLevelInWords(clsFindingLevel level)
{
    switch (level) {
    case clsFindingLevel::Error: return QStringLiteral("error");
    case clsFindingLevel::Warning: return QStringLiteral("warning");
    case clsFindingLevel::Note: break;
    }
    return QStringLiteral("note");
}
