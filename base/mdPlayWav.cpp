#include "base/mdPlayWav.h"

#include "base/clsUserInterface.h"

namespace {

// All floors play sounds, and the preferences that switch it on are above this floor. Never destroyed: the preferences
// may reset it at the very end of the program.
std::function<bool()> &soundSwitch = *new std::function<bool()>;

} // namespace

void PlayWav(const QString &path)
{
    if (soundSwitch && soundSwitch())
        UserInterface().playSound(path);
}

void SetSoundSwitch(std::function<bool()> isOn)
{
    soundSwitch = std::move(isOn);
}
