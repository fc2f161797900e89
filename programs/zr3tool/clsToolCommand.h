#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

/// The exit statuses of the tool.
enum class clsExitStatus {
    Done = 0,
    WrongUsage = 1,
    NoClaim = 2,
    BlankItems = 3, ///< or something else that a check has found
    Differs = 3,
    WrongRows = 3,
    Failed = 4,
    DocumentExists = 5,
};

/// A command line, read.
struct clsToolCommand {
    enum Verb { Totals, Export, Check, CheckFull, List, Save, Forecast, Why, Diff, Table, Import, Help, Version };

    Verb verb = Help;
    QString claim;
    QStringList claims; ///< of a command that takes several: claims and folders
    QString kind; ///< of the figure that is asked for
    QString which; ///< and which of its kind; the list of a table
    QString items; ///< the table of an import
    std::vector<std::pair<QString, QString>> columns; ///< what its columns are called and mean
    bool doubles = false;
    QDate today; ///< stands in for the machine's day, where it is given
    bool json = false;
    bool words = false; ///< names in place of stored values, also in JSON
    bool csv = false;
    bool jsonLines = false;
    bool follow = false; ///< a list goes on with whatever changes
    std::optional<int> jobs {}; ///< how many claims are worked on at a time, where it is given
    QString target; ///< the folder of an export, the new file of a save
    bool force = false;
    bool keepSheets = false;
    bool quiet = false;
    bool pdf = false;
    bool nameByFile = false;
    bool newer = false;
    QString templates;

    QDate dayOfCheck() const;

    /// The command that the arguments (without the program's name) ask for; nothing where they are wrong.
    static std::optional<clsToolCommand> read(const QStringList &arguments);
    static QString usage();
};
