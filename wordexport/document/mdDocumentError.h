#pragma once

#include "base/clsRunTimeError.h"

/// The error for an existing but unusable document: one number, one clear sentence.
inline clsRunTimeError mdDocumentError(const QString &description)
{
    return clsRunTimeError(clsRunTimeError::InvalidFileFormat, description);
}

inline clsRunTimeError mdDocumentDamaged(const QString &shownName)
{
    return mdDocumentError(QStringLiteral("The document %1 is damaged.").arg(shownName));
}

inline clsRunTimeError mdPartDamaged(const QString &shownName, const QString &part)
{
    return mdDocumentError(
        QStringLiteral("The document %1 is damaged: its part %2 can't be read.").arg(shownName, part));
}

inline clsRunTimeError mdDocumentTooLarge(const QString &shownName)
{
    return mdDocumentError(QStringLiteral("The document %1 is too large.").arg(shownName));
}
