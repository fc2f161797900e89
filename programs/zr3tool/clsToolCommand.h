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
    BlankItems = 3, ///< also for other findings of a check
    Differs = 3,
    WrongRows = 3,
    Failed = 4,
    DocumentExists = 5,
};

/// A parsed command line.
struct clsToolCommand {
    enum Verb { Totals, Export, Check, CheckFull, List, Save, Forecast, Why, Diff, Table, Import, Help, Version };

    Verb verb = Help;
    QString claim;
    QStringList claims; ///< claims and folders, for a command that takes several
    QString kind; ///< the kind of the requested figure
    QString which; ///< which figure of that kind; for a table, its list
    QString items; ///< the table of an import
    std::vector<std::pair<QString, QString>> columns; ///< the table's column names and their meaning
    bool doubles = false;
    QDate today; ///< replaces today's date, if given
    bool json = false;
    bool words = false; ///< names in place of stored values, also in JSON
    bool csv = false;
    bool jsonLines = false;
    bool follow = false; ///< a list keeps running and reports changes
    std::optional<int> jobs {}; ///< how many claims are processed at a time, if given
    QString target; ///< the folder of an export, the new file of a save
    bool force = false;
    bool keepSheets = false;
    bool quiet = false;
    bool pdf = false;
    bool nameByFile = false;
    bool newer = false;
    QString templates;

    QDate dayOfCheck() const;

    /// Parses the arguments, without the program's name; nothing if they are invalid.
    static std::optional<clsToolCommand> read(const QStringList &arguments);
    static QString usage();
};
