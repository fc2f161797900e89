#pragma once

#include <QStringList>

#include <functional>

/// True if a separate word processor is running on this machine. Unguarded: throws clsRunTimeError if the process list
/// can't be read.
bool mdWordAlreadyRunning();

/// Returns the names of the running processes; the platform's list unless a scope sets another.
using clsProcessList = std::function<QStringList()>;

/// The names of the processes running on this machine, except those started by this program.
QStringList mdProcessNames();

/// Replaces the process list while this object lives.
class clsProcessListScope {
public:
    explicit clsProcessListScope(clsProcessList list);
    ~clsProcessListScope();
    clsProcessListScope(const clsProcessListScope &) = delete;
    clsProcessListScope &operator=(const clsProcessListScope &) = delete;

private:
    clsProcessList m_previous;
};
