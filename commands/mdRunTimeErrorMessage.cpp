#include "commands/mdRunTimeErrorMessage.h"

namespace {

const QString Paragraph = QStringLiteral("\r\n\r\n");

QString whereItIs(clsLossCause cause)
{
    switch (cause) {
    case clsLossCause::None: break;
    case clsLossCause::UnsavedChanges: return QStringLiteral("A copy of your claim with its unsaved changes is in:");
    case clsLossCause::SaveFailed: return QStringLiteral("A copy of your claim, whose last save failed, is in:");
    case clsLossCause::FileChanged:
        return QStringLiteral("A copy of your claim, whose file another program has changed, is in:");
    case clsLossCause::FileMissing:
        return QStringLiteral("A copy of your claim, whose file is no longer in its place, is in:");
    case clsLossCause::FileUnreadable:
        return QStringLiteral("A copy of your claim, whose file can't be read any more, is in:");
    }
    return {};
}

QString nothingWritten(const QStringList &tried)
{
    return QStringLiteral("No copy of your claim could be written. The program tried these folders:") + Paragraph
        + tried.join(QStringLiteral("\r\n"));
}

} // namespace

QString mdRecoveredCopyMessage(const clsRecoveredCopy &copy)
{
    if (copy.cause == clsLossCause::None)
        return {};
    return copy.path.isEmpty() ? nothingWritten(copy.tried) : whereItIs(copy.cause) + Paragraph + copy.path;
}

QString mdRunTimeErrorMessage(const clsRunTimeError &error, const clsRecoveredCopy &copy)
{
    QString text = QStringLiteral("Run-time error '%1':").arg(error.number()) + Paragraph + error.description();
    if (!error.cause().isEmpty())
        text += Paragraph + error.cause();
    const QString aboutCopy = mdRecoveredCopyMessage(copy);
    return aboutCopy.isEmpty() ? text : text + Paragraph + aboutCopy;
}
