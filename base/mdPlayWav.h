#pragma once

#include <QString>

#include <functional>

/// Plays a wave file in the background, if sound is on; a failure is silent.
void PlayWav(const QString &path);

/// Sets the function that reads the switch, called for each sound. The preferences set it once complete and reset it
/// with an empty one when destroyed; without it there is no sound.
void SetSoundSwitch(std::function<bool()> isOn);
