#include "shell/mdPlayWav.h"

#include "shell/clsUserInterface.h"

namespace {

std::function<bool()> soundSwitch;

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
