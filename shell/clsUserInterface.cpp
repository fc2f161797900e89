#include "shell/clsUserInterface.h"

namespace {

class clsSilentUserInterface final : public clsUserInterface {
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
    QString chooseFolder(const QString &) override { return {}; }
    QString chooseFileToOpen(const QString &) override { return {}; }
    QString chooseFileToSave(const QString &, const QString &) override { return {}; }
    void playSound(const QString &) override { }
    bool openTarget(const QString &) override { return false; }
};

clsSilentUserInterface silentUserInterface;
clsUserInterface *current = &silentUserInterface;

} // namespace

clsUserInterface::Answer clsUserInterface::answerThatChangesNothing(Buttons buttons)
{
    switch (buttons) {
    case OKOnly: return OK;
    case YesNo: return No;
    case OKCancel:
    case YesNoCancel: return Cancel;
    }
    return Cancel;
}

clsUserInterface &UserInterface()
{
    return *current;
}

clsUserInterfaceScope::clsUserInterfaceScope(clsUserInterface &userInterface)
    : m_previous(current)
{
    current = &userInterface;
}

clsUserInterfaceScope::~clsUserInterfaceScope()
{
    current = m_previous;
}
