#pragma once

#include "programs/zr3tool/clsToolCommand.h"

#include <QByteArray>
#include <QString>

class clsConsoleUserInterface;

/// A claim to process.
struct clsClaimJob {
    QString path;
    /// Title and text of the message if the path or its folder can't be read; empty otherwise.
    QString errorTitle {};
    QString error {};
    int number = 1; ///< counts claims whose documents would have the same name
};

/// A command's result for one claim.
struct clsClaimResult {
    clsExitStatus status = clsExitStatus::Done;
    QByteArray
        printed {}; ///< its part of the result: text with CR LF line ends, CSV, or JSON without the last line end
    QString messages {}; ///< lines end in CR LF

    QByteArray packed() const;
    static clsClaimResult unpacked(const QByteArray &bytes);
};

/// The output format of a command's results.
enum class clsResultForm { Nothing, Text, Csv, Json, JsonLines };

clsResultForm mdResultForm(const clsToolCommand &command);

/// Runs a command on claims, one after the other.
class clsClaimWork {
public:
    /// With `isList` each message begins with its claim's path; `longestPath` is the length of the longest, in
    /// characters.
    clsClaimWork(clsConsoleUserInterface &console, const clsToolCommand &command, bool isList, qsizetype longestPath);

    clsClaimResult on(const clsClaimJob &job);
    /// The result after a failure outside the claim itself.
    clsClaimResult failed(const clsClaimJob &job, clsExitStatus status, const QString &title, const QString &text);

private:
    template <class Work> clsClaimResult collected(const clsClaimJob &job, Work work);
    QByteArray failure(const clsClaimJob &job, clsExitStatus status) const;
    clsExitStatus workOn(const clsClaimJob &job, QByteArray &printed);
    clsExitStatus totals(const clsClaimJob &job, QByteArray &printed);
    clsExitStatus check(const clsClaimJob &job, QByteArray &printed);
    clsExitStatus checkFull(const clsClaimJob &job, QByteArray &printed);
    clsExitStatus list(const clsClaimJob &job, QByteArray &printed);
    clsExitStatus exportDocument(const clsClaimJob &job, QByteArray &printed);
    template <class Write> QByteArray json(Write write) const;
    template <class Write> QByteArray jsonOf(const clsClaimJob &job, Write write) const;

    clsConsoleUserInterface &m_console;
    const clsToolCommand &m_command;
    clsResultForm m_form;
    bool m_isList;
    qsizetype m_longestPath;
};
