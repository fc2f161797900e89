#pragma once

#include <QString>

/// All messages and questions from the core to the user. The core opens no box, moves no bar and plays no sound itself:
/// the windows, the console and the tests each implement this interface.
class clsUserInterface {
public:
    /// Answers of a message box.
    enum Answer { OK = 0, Cancel = 1, Yes = 2, No = 3 };
    /// Button sets of a message box.
    enum Buttons { OKOnly = 0, OKCancel = 1, YesNo = 2, YesNoCancel = 3 };
    /// Icons of the plain system box.
    enum SystemIcon { Critical, Question, Information };

    virtual ~clsUserInterface() = default;

    /// The answer that changes nothing, for implementations that can't ask: OK, No or Cancel depending on the buttons.
    static Answer answerThatChangesNothing(Buttons buttons);

    /// The system's message box; `icon` is 0, 1 or 2, `timeout` is in seconds, 0 means no countdown.
    virtual Answer customMessage(const QString &message, const QString &title, Buttons buttons, int icon, int timeout)
        = 0;
    /// The plain system box, for failures below the level of the program's windows: silent, without a countdown.
    virtual Answer systemMessage(const QString &message, const QString &title, SystemIcon icon, Buttons buttons) = 0;

    /// A line that reports what was done in addition to the request; it disappears after a while.
    virtual void tellLine(const QString &) { }

    /// Shows the progress of long work: `value` of `maximum`, with a text.
    virtual void showProgress(int value, int maximum, const QString &text) = 0;
    virtual void clearProgress() = 0;

    /// Asks for a folder, starting at `start` if that is a folder; empty if the user cancels.
    virtual QString chooseFolder(const QString &prompt, const QString &start) = 0;
    /// Asks for a file to open or to save; empty if the user cancels.
    virtual QString chooseFileToOpen(const QString &filter) = 0;
    /// The result always ends in the extension, in upper or lower case.
    virtual QString chooseFileToSave(const QString &filter, const QString &defaultExtension) = 0;
    /// Asks for a file to export to, proposing one; the user has confirmed the replacement of an existing file. Empty
    /// if the user cancels.
    virtual QString chooseFileToExport(const QString &filter, const QString &extension, const QString &proposed) = 0;

    /// Plays a wave file in the background; a failure is silent.
    virtual void playSound(const QString &path) = 0;
    /// Opens a document or address with the desktop's handler; true on success.
    virtual bool openTarget(const QString &target) = 0;
};

/// The current user interface. Never null: until a program sets one, a silent one answers OK, Cancel or No, so that
/// core routines can be called early.
clsUserInterface &UserInterface();

/// Sets the current user interface while this object lives, then restores the previous one.
class clsUserInterfaceScope {
public:
    explicit clsUserInterfaceScope(clsUserInterface &userInterface);
    ~clsUserInterfaceScope();
    clsUserInterfaceScope(const clsUserInterfaceScope &) = delete;
    clsUserInterfaceScope &operator=(const clsUserInterfaceScope &) = delete;

private:
    clsUserInterface *m_previous;
};
