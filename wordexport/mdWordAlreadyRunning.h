#pragma once

#include <QStringList>

#include <functional>

/// True when a separate copy of a word processor is open on this machine. Unguarded: a process list that can't
/// be read throws clsRunTimeError.
bool mdWordAlreadyRunning();

/// Where the names of the running processes come from; the platform's own list unless a scope sets another.
using clsProcessList = std::function<QStringList()>;

/// The names of the processes running on this machine, as the platform gives them, without those that this program has
/// started.
QStringList mdProcessNames();

/// Puts another process list in force for as long as this object lives.
class clsProcessListScope {
public:
    explicit clsProcessListScope(clsProcessList list);
    ~clsProcessListScope();
    clsProcessListScope(const clsProcessListScope &) = delete;
    clsProcessListScope &operator=(const clsProcessListScope &) = delete;

private:
    clsProcessList m_previous;
};
