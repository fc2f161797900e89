#pragma once

#include <QString>

#include <functional>

/// If logging is on, appends a line to the day's file: date and time, " : ", the message, a line end. The whole file is
/// read and written for each line, through the two common routines; acceptable for a diagnostic mode. So the first line
/// of a day finds no file and shows the box "File Not Read", and a missing folder shows both boxes for each line.
/// Required behaviour; do not fix.
void WriteLog(const QString &message);

/// Turns logging off while this object lives.
class clsNoLogScope {
public:
    clsNoLogScope();
    ~clsNoLogScope();
    clsNoLogScope(const clsNoLogScope &) = delete;
    clsNoLogScope &operator=(const clsNoLogScope &) = delete;

private:
    std::function<bool()> m_previous;
};

/// The path of the day's file: 15-11-2026.txt in the folder "Logs" beside the program. If this user can't write it
/// there: in a subfolder of "Logs" named after the user; otherwise the same in the database folder, and last in the
/// user's state folder.
QString LogPath();

/// Sets the function that reads the switch, called for each line. The preferences set it once complete and reset it
/// with an empty one when destroyed; without it nothing is logged and no folder touched.
void SetLogSwitch(std::function<bool()> isOn);
