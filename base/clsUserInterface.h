#pragma once

#include <QString>

/// Everything that the core tells or asks the user, in one small interface.
/// The core opens no box, moves no bar and plays no sound by itself: windows, the console and the tests each
/// stand behind this door with an implementation of their own.
class clsUserInterface {
public:
    /// Answers of a message box.
    enum Answer { OK = 0, Cancel = 1, Yes = 2, No = 3 };
    /// Button sets of a message box.
    enum Buttons { OKOnly = 0, OKCancel = 1, YesNo = 2, YesNoCancel = 3 };
    /// Icons of the plain system box.
    enum SystemIcon { Critical, Question, Information };

    virtual ~clsUserInterface() = default;

    /// The answer that changes nothing, for whoever can't ask: OK, No or Cancel by the set of buttons.
    static Answer answerThatChangesNothing(Buttons buttons);

    /// The system's own message box; `icon` is 0, 1 or 2, `timeout` is in seconds, 0 means no countdown.
    virtual Answer customMessage(const QString &message, const QString &title, Buttons buttons, int icon, int timeout)
        = 0;
    /// The plain box of the system, for failures that lie below the program's own windows: silent, without a countdown.
    virtual Answer systemMessage(const QString &message, const QString &title, SystemIcon icon, Buttons buttons) = 0;

    /// A line that tells what was done beside what was asked for, and goes by itself.
    virtual void tellLine(const QString &) { }

    /// Long work reports how far it is: `value` of `maximum`, with a text.
    virtual void showProgress(int value, int maximum, const QString &text) = 0;
    virtual void clearProgress() = 0;

    /// Asks for a folder, beginning at `start` where that is one; empty when the user gave none.
    virtual QString chooseFolder(const QString &prompt, const QString &start) = 0;
    /// Asks for a file to open or to save; empty when the user gave none.
    virtual QString chooseFileToOpen(const QString &filter) = 0;
    /// The file's name ends in the extension, in capitals or not, whatever was typed.
    virtual QString chooseFileToSave(const QString &filter, const QString &defaultExtension) = 0;
    /// Asks for a file to export to, and proposes one; the user has agreed to replace one that is there. Empty when the
    /// user gave none.
    virtual QString chooseFileToExport(const QString &filter, const QString &extension, const QString &proposed) = 0;

    /// Plays a wave file in the background; a failure is silent.
    virtual void playSound(const QString &path) = 0;
    /// Opens a document or address with the desktop's own handler; true on success.
    virtual bool openTarget(const QString &target) = 0;
};

/// The interface in force. There is always one: until a program sets its own, a silent one that answers
/// OK, Cancel or No, so that a core routine called early can't fail for want of a listener.
clsUserInterface &UserInterface();

/// Puts an interface in force for as long as this object lives, then the one before it again.
class clsUserInterfaceScope {
public:
    explicit clsUserInterfaceScope(clsUserInterface &userInterface);
    ~clsUserInterfaceScope();
    clsUserInterfaceScope(const clsUserInterfaceScope &) = delete;
    clsUserInterfaceScope &operator=(const clsUserInterfaceScope &) = delete;

private:
    clsUserInterface *m_previous;
};
