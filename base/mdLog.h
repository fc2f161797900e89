#pragma once

#include <QString>

#include <functional>

/// Appends a line to the day's file, if logging is on: date and time, " : ", the message, a line end. The file is read
/// and written whole for each line, through the two routines that everything passes; a diagnostic mode may cost that.
/// The first line of a day therefore meets a missing file and shows the box "File Not Read", and a missing folder
/// shows both boxes for each line. Both are meant: the folder is expected to be there.
void WriteLog(const QString &message);

/// Nothing is logged while this object lives.
class clsNoLogScope {
public:
    clsNoLogScope();
    ~clsNoLogScope();
    clsNoLogScope(const clsNoLogScope &) = delete;
    clsNoLogScope &operator=(const clsNoLogScope &) = delete;

private:
    std::function<bool()> m_previous;
};

/// The path of the day's file: 15-11-2026.txt in the folder "Logs" beside the program; where this user can't write it
/// there, in a folder below "Logs" that bears the user's name. Where that can't be made either, the same in the
/// database folder, and at last in the user's own folder for the state of programs.
QString LogPath();

/// Where the switch is read, asked at each line. The preferences set it when they are complete and take it back with
/// an empty one when they go: until then nothing is logged and no folder touched.
void SetLogSwitch(std::function<bool()> isOn);
