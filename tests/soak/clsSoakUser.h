#pragma once

#include "shell/clsWindowUserInterface.h"

#include <QStringList>

#include <functional>
#include <map>
#include <optional>

class clsDice;

/// The user interface of the soak: boxes are shown as usual, and answered by keys and clicks like any other window.
/// Only files and folders are chosen at random, and nothing outside the soak's folder is touched.
class clsSoakUser final : public clsUserInterface {
public:
    clsSoakUser(clsDice &dice, const QString &folder);

    void setProgressDisplay(clsWindowUserInterface::clsProgressDisplay display)
    {
        m_windows.setProgressDisplay(std::move(display));
    }

    /// The claims that can be opened.
    QStringList claims;
    /// The number of boxes shown, by title.
    std::map<QString, int> boxes;
    /// Called before each of the program's own messages is shown.
    std::function<void(const QString &title)> onMessage;
    /// Called for an uncaught run-time error; its box is not shown.
    std::function<void(const QString &text)> onRunTimeError;

    Answer customMessage(const QString &message, const QString &title, Buttons buttons, int icon, int timeout) override;
    Answer systemMessage(const QString &message, const QString &title, SystemIcon icon, Buttons buttons) override;
    void showProgress(int value, int maximum, const QString &text) override
    {
        m_windows.showProgress(value, maximum, text);
    }
    void clearProgress() override { m_windows.clearProgress(); }
    QString chooseFolder(const QString &prompt, const QString &start) override;
    QString chooseFileToOpen(const QString &filter) override;
    QString chooseFileToSave(const QString &filter, const QString &defaultExtension) override;
    QString chooseFileToExport(const QString &filter, const QString &extension, const QString &proposed) override;
    void playSound(const QString &) override { }
    bool openTarget(const QString &target) override;

private:
    clsDice &m_dice;
    QString m_folder;
    clsWindowUserInterface m_windows;
};
