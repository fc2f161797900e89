#include "base/mdPlayWav.h"

#include "base/clsUserInterface.h"

namespace {

// All floors play sounds, and the preferences that switch it on stand above this one. Never destroyed: they take it
// back when they go, which can be at the very end of the program.
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
