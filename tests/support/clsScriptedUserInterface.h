#pragma once

#include "base/clsUserInterface.h"

#include <QStringList>

#include <deque>
#include <vector>

/// The tests' user interface: answers are set in advance, and all messages are recorded. A question without a prepared
/// answer gets the last button of its set, as if the user closed the box.
class clsScriptedUserInterface final : public clsUserInterface {
public:
    struct Message {
        QString title;
        QString text;
        Buttons buttons;
        int icon;
        int timeout;
        bool system;
    };
    struct Progress {
        int value;
        int maximum;
        QString text;
    };

    std::deque<Answer> answers;
    std::deque<QString> folders;
    std::deque<QString> files;

    std::vector<Message> messages;
    std::vector<Progress> progress;
    int progressCleared = 0;
    QStringList lines; ///< texts shown without a message box
    QStringList prompts;
    QStringList starts; ///< the start folder of each folder choice
    QStringList proposed; ///< for each file to export to
    QStringList sounds;
    QStringList opened;
    bool opens = true; ///< whether a program is found for the opened target

    Answer customMessage(const QString &message, const QString &title, Buttons buttons, int icon, int timeout) override
    {
        messages.push_back({title, message, buttons, icon, timeout, false});
        return answer(buttons);
    }
    Answer systemMessage(const QString &message, const QString &title, SystemIcon icon, Buttons buttons) override
    {
        messages.push_back({title, message, buttons, int(icon), 0, true});
        return answer(buttons);
    }
    void tellLine(const QString &line) override { lines << line; }
    void showProgress(int value, int maximum, const QString &text) override
    {
        progress.push_back({value, maximum, text});
    }
    void clearProgress() override { ++progressCleared; }
    QString chooseFolder(const QString &prompt, const QString &start) override
    {
        prompts << prompt;
        starts << start;
        return next(folders);
    }
    QString chooseFileToOpen(const QString &) override { return next(files); }
    QString chooseFileToSave(const QString &, const QString &) override { return next(files); }
    QString chooseFileToExport(const QString &, const QString &, const QString &path) override
    {
        proposed << path;
        return next(files);
    }
    void playSound(const QString &path) override { sounds << path; }
    bool openTarget(const QString &target) override
    {
        opened << target;
        return opens;
    }

private:
    Answer answer(Buttons buttons)
    {
        if (!answers.empty()) {
            const Answer given = answers.front();
            answers.pop_front();
            return given;
        }
        return answerThatChangesNothing(buttons);
    }
    static QString next(std::deque<QString> &prepared)
    {
        if (prepared.empty())
            return {};
        const QString given = prepared.front();
        prepared.pop_front();
        return given;
    }
};
