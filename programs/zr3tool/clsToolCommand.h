#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The exit statuses of the tool.
enum class clsExitStatus {
    Done = 0,
    WrongUsage = 1,
    NoClaim = 2,
    BlankItems = 3,
    Failed = 4,
    DocumentExists = 5,
};

/// A command line, read.
struct clsToolCommand {
    enum Verb { Totals, Export, Check, Save, Forecast, Help, Version };

    Verb verb = Help;
    QString claim;
    QString target; ///< the folder of an export, the new file of a save
    bool force = false;
    bool keepSheets = false;
    bool quiet = false;
    bool json = false;
    bool pdf = false;
    bool nameByFile = false;
    QString templates;

    /// The command that the arguments (without the program's name) ask for; nothing where they are wrong.
    static std::optional<clsToolCommand> read(const QStringList &arguments);
    static QString usage();
};
