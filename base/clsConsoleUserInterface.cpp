#include "base/clsConsoleUserInterface.h"

#include "base/mdPrint.h"

void clsConsoleUserInterface::tell(const QString &title, const QString &text)
{
    clearProgress();
    ++m_messageCount;
    const QString message = title + QStringLiteral(": ") + text;
    if (m_messageCount > 1 && showsOnlyFirstMessage)
        return;
    m_lastText = text;
    const QString block = m_before + message + QStringLiteral("\r\n");
    if (collectsIn)
        *collectsIn += block;
    else
        mdPrint(stderr, block);
}

void clsConsoleUserInterface::beginSubject(const QString &before)
{
    m_before = before;
    m_lastText.clear();
    m_messageCount = 0;
}

clsUserInterface::Answer clsConsoleUserInterface::customMessage(
    const QString &message, const QString &title, Buttons buttons, int, int)
{
    tell(title, message);
    return answerThatChangesNothing(buttons);
}

clsUserInterface::Answer clsConsoleUserInterface::systemMessage(
    const QString &message, const QString &title, SystemIcon icon, Buttons buttons)
{
    m_failureCount += icon == Critical;
    tell(title, message);
    return answerThatChangesNothing(buttons);
}

void clsConsoleUserInterface::showProgress(int value, int maximum, const QString &text)
{
    if (!showsProgress || !mdIsTerminal(stderr))
        return;
    std::fprintf(stderr, "\r\033[K%s (%d/%d)", mdWithoutControls(text).toUtf8().constData(), value, maximum);
    std::fflush(stderr);
    m_progressStands = true;
}

void clsConsoleUserInterface::clearProgress()
{
    if (m_progressStands)
        std::fputs("\r\033[K", stderr);
    m_progressStands = false;
}
