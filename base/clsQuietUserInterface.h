#pragma once

#include "base/clsUserInterface.h"

/// An interface that shows nothing and answers so that nothing changes: the one in force until a program sets its own.
/// Whoever needs only a few of its functions, such as a test, overrides those.
class clsQuietUserInterface : public clsUserInterface {
public:
    Answer customMessage(const QString &, const QString &, Buttons buttons, int, int) override
    {
        return answerThatChangesNothing(buttons);
    }
    Answer systemMessage(const QString &, const QString &, SystemIcon, Buttons buttons) override
    {
        return answerThatChangesNothing(buttons);
    }
    void showProgress(int, int, const QString &) override { }
    void clearProgress() override { }
    QString chooseFolder(const QString &, const QString &) override { return {}; }
    QString chooseFileToOpen(const QString &) override { return {}; }
    QString chooseFileToSave(const QString &, const QString &) override { return {}; }
    QString chooseFileToExport(const QString &, const QString &, const QString &) override { return {}; }
    void playSound(const QString &) override { }
    bool openTarget(const QString &) override { return false; }
};
