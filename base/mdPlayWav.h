#pragma once

#include <QString>

#include <functional>

/// Plays a wave file in the background, if sound is on; a failure is silent.
void PlayWav(const QString &path);

/// Where the switch is read, asked at each sound. The preferences set it when they are complete and take it back with
/// an empty one when they go: until then there is no sound.
void SetSoundSwitch(std::function<bool()> isOn);
