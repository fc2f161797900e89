#pragma once

#include "base/clsUserInterface.h"

#include <QElapsedTimer>

#include <functional>
#include <memory>

class QSoundEffect;
class QWidget;

/// The windows' side of the one door to the user: message boxes, the footer's progress, the desktop's file dialogs,
/// sounds and opener. Boxes belong to the window that is active when they come.
class clsWindowUserInterface final : public clsUserInterface {
public:
    /// Where progress shows, and lines that go by themselves; all may be empty, as before there is a main window.
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
    /// Long work hands the thread to the windows here now and then, so that they can repaint. The user's own input
    /// waits until the work has ended.
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
    /// The folder in which a dialog begins: the wanted one, where it is there.
    QString startFolder(const QString &wanted = {}) const;
    QString chosen(const QString &path);

    clsProgressDisplay m_display;
    QElapsedTimer m_repainted;
    bool m_repainting = false;
    QString m_lastFolder;
    std::unique_ptr<QSoundEffect> m_sound;
    /// A sound that is still to come asks whether this object is there yet.
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};
