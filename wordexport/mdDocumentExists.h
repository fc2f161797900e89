#pragma once

#include <QDir>
#include <QString>

// What the headless program tells of a document that is there and may not be replaced, and how a window that runs it
// knows this from other failures.

inline QString mdHowToReplace()
{
    return QStringLiteral(" Give --force to replace it.");
}

inline QString mdDocumentExistsMessage(const QString &document)
{
    return QStringLiteral("The document %1 exists already.").arg(QDir::toNativeSeparators(document)) + mdHowToReplace();
}

inline bool mdIsDocumentExistsMessage(const QString &message)
{
    return message.endsWith(mdHowToReplace());
}
