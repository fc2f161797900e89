#pragma once

#include "programs/zr3tool/clsToolCommand.h"

#include <QByteArray>
#include <QString>

class clsConsoleUserInterface;

/// One of the claims of a command.
struct clsClaimJob {
    QString path;
    /// Why it, or the folder of that path, can't be looked into: title and text of a message; empty where it can.
    QString errorTitle {};
    QString error {};
    int number = 1; ///< of several whose documents would have one name
};

/// What a command came to on one of its claims.
struct clsClaimResult {
    clsExitStatus status = clsExitStatus::Done;
    QByteArray
        printed {}; ///< its part of the result: text whose lines end in CR LF, CSV, or JSON without the last line end
    QString messages {}; ///< their lines end in CR LF

    QByteArray packed() const;
    static clsClaimResult unpacked(const QByteArray &bytes);
};

/// What the results of a command are printed as.
enum class clsResultForm { Nothing, Text, Csv, Json, JsonLines };

clsResultForm mdResultForm(const clsToolCommand &command);

/// Works on claims for a command, one after the other.
class clsClaimWork {
public:
    /// `isList` where each message begins with the path of its claim, whose longest has so many characters.
    clsClaimWork(clsConsoleUserInterface &console, const clsToolCommand &command, bool isList, qsizetype longestPath);

    clsClaimResult on(const clsClaimJob &job);
    /// The result where something else than the claim has failed.
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
