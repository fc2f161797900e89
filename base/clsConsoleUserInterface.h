#pragma once

#include "base/clsUserInterface.h"

/// The interface of the headless tool: messages go to standard error, one block each, questions are answered with
/// what changes nothing, and progress is one line that renews itself on a terminal.
class clsConsoleUserInterface final : public clsUserInterface {
public:
    /// Progress is shown only where this is set and standard error is a terminal.
    bool showsProgress = true;
    /// Where one failure draws several messages after it, only the first tells anything.
    bool showsOnlyFirstMessage = false;
    /// Where this is set, messages are added to it, their lines ending in CR LF, and not written.
    QString *collectsIn = nullptr;

    /// From here on messages are about something else, with which they begin.
    void beginSubject(const QString &before);
    /// The text of the last message about it that was told, without its title.
    const QString &lastText() const { return m_lastText; }
    /// How many of the messages told of a failure.
    int failureCount() const { return m_failureCount; }
    /// Writes a block: the title, a colon, the text.
    void tell(const QString &title, const QString &text);

    Answer customMessage(const QString &message, const QString &title, Buttons buttons, int icon, int timeout) override;
    Answer systemMessage(const QString &message, const QString &title, SystemIcon icon, Buttons buttons) override;
    void showProgress(int value, int maximum, const QString &text) override;
    void clearProgress() override;
    QString chooseFolder(const QString &, const QString &) override { return {}; }
    QString chooseFileToOpen(const QString &) override { return {}; }
    QString chooseFileToSave(const QString &, const QString &) override { return {}; }
    QString chooseFileToExport(const QString &, const QString &, const QString &) override { return {}; }
    void playSound(const QString &) override { }
    bool openTarget(const QString &) override { return false; }

private:
    QString m_before;
    QString m_lastText;
    int m_messageCount = 0; ///< shown or not
    int m_failureCount = 0;
    bool m_progressStands = false;
};
