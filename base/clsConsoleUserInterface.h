#pragma once

#include "base/clsUserInterface.h"

/// The user interface of the headless tool: messages go to standard error, one block each; questions get the answer
/// that changes nothing; progress is one line, rewritten in place on a terminal.
class clsConsoleUserInterface final : public clsUserInterface {
public:
    /// Progress is shown only if this is set and standard error is a terminal.
    bool showsProgress = true;
    /// Shows only the first message of a subject, for failures that cause further messages.
    bool showsOnlyFirstMessage = false;
    /// If set, messages are appended to it, with lines ending in CR LF, instead of being written.
    QString *collectsIn = nullptr;

    /// Starts a new subject; its messages begin with `before`.
    void beginSubject(const QString &before);
    /// The text of the last message about the current subject, without its title.
    const QString &lastText() const { return m_lastText; }
    /// The number of messages that reported a failure.
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
