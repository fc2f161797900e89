#pragma once

#include "base/clsUserInterface.h"

/// A user interface that shows nothing and answers so that nothing changes: the default until a program sets one. Tests
/// that need only a few functions override those.
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
