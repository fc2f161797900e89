#pragma once

#include "base/clsUserInterface.h"

#include <QElapsedTimer>

#include <functional>
#include <memory>

class QSoundEffect;
class QWidget;

/// The user interface of the windows: message boxes, progress in the footer, the desktop's file dialogs, sounds and
/// opener. A box belongs to the window that is active when it opens.
class clsWindowUserInterface final : public clsUserInterface {
public:
    /// Displays progress and short-lived lines; all may be empty, as before the main window exists.
    struct clsProgressDisplay {
        std::function<void(int value, int maximum, const QString &text)> show;
        std::function<void()> clear;
        std::function<void(const QString &line)> line {};
    };

    clsWindowUserInterface();
    ~clsWindowUserInterface() override;

    void setProgressDisplay(clsProgressDisplay display) { m_display = std::move(display); }

    Answer customMessage(const QString &message, const QString &title, Buttons buttons, int icon, int timeout) override;
    Answer systemMessage(const QString &message, const QString &title, SystemIcon icon, Buttons buttons) override;
    void tellLine(const QString &line) override;
    /// Also lets the windows repaint during long work. The user's input waits until the work has ended.
    void showProgress(int value, int maximum, const QString &text) override;
    void clearProgress() override;
    QString chooseFolder(const QString &prompt, const QString &start) override;
    QString chooseFileToOpen(const QString &filter) override;
    QString chooseFileToSave(const QString &filter, const QString &defaultExtension) override;
    QString chooseFileToExport(const QString &filter, const QString &extension, const QString &proposed) override;
    void playSound(const QString &path) override;
    bool openTarget(const QString &target) override;

private:
    void letWindowsRepaint();
    /// The start folder of a dialog: the wanted one if it exists.
    QString startFolder(const QString &wanted = {}) const;
    QString chosen(const QString &path);

    clsProgressDisplay m_display;
    QElapsedTimer m_repainted;
    bool m_repainting = false;
    QString m_lastFolder;
    std::unique_ptr<QSoundEffect> m_sound;
    /// Lets a delayed sound check whether this object still exists.
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};
