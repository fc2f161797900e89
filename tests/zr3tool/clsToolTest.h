#pragma once

#include "formdata/clsZR3Form.h"
#include "tests/support/clsFolderTest.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdOrdinaryUser.h"
#include "tests/support/mdTestPaths.h"
#include "tests/support/mdTestPrinting.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <optional>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

inline QString operator""_q(const char *text, size_t size)
{
    return QString::fromUtf8(text, qsizetype(size));
}

/// The result of running the tool.
struct clsToolResult {
    int status = -1; ///< -1 if it crashed or did not end
    QByteArray out;
    QByteArray err;
};

/// Base of tests that run the tool with a temporary folder and configuration, and without a display.
class clsToolTest : public clsFolderTest {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        // The library's application object is needed to wait for processes.
        static int count = 1;
        static char name[] = "zr3tool_test";
        static char *arguments[] = {name, nullptr};
        static QCoreApplication application(count, arguments);
    }

    clsToolResult run(const QStringList &arguments, const QString &standardOutput = {},
        const std::function<void()> &inTheChild = {}) const
    {
        return runProgram(QStringLiteral(ZR3_TOOL), arguments, standardOutput, inTheChild);
    }
    clsToolResult runProgram(const QString &program, const QStringList &arguments, const QString &standardOutput = {},
        const std::function<void()> &inTheChild = {}) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME"_q, path("config"));
        environment.insert("XDG_CONFIG_DIRS"_q, path("config"));
        environment.remove("DISPLAY"_q);
        environment.remove("WAYLAND_DISPLAY"_q);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        if (!standardOutput.isEmpty())
            process.setStandardOutputFile(standardOutput);
        if (inTheChild)
            process.setChildProcessModifier(inTheChild);
        process.start(program, arguments, QIODevice::ReadOnly);
        constexpr int LongestRun = 120'000;
        if (!process.waitForFinished(LongestRun) || process.exitStatus() != QProcess::NormalExit)
            return {
                -1, process.readAllStandardOutput(), process.readAllStandardError() + process.errorString().toUtf8()};
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

    /// Setup that makes a run one of an ordinary user; empty if the tests' own user is one. Nothing if no other user
    /// can run the program from its folder.
    std::optional<std::function<void()>> asOrdinaryUser() const
    {
        if (geteuid() != 0)
            return std::function<void()>();
        EXPECT_EQ(0, chmod(QFile::encodeName(folder.path()).constData(), 0755));
        const auto change = [] {
            if (setuid(OrdinaryUser) != 0)
                _exit(1);
        };
        if (run({"--version"_q}, {}, change).status != 0)
            return std::nullopt;
        return change;
    }
    /// Setup that makes a run one on a full disk: files can't grow beyond this size.
    static std::function<void()> withFilesOfAtMost(rlim_t bytes)
    {
        return [bytes] {
            const rlimit limit {bytes, bytes};
            std::signal(SIGXFSZ, SIG_IGN);
            if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
                _exit(1);
        };
    }

    /// Writes a claim to a file in the folder.
    QString putClaim(const clsZR3Form &form, const char *name = "claim.zr3") const
    {
        return put(name, form.XMLOutput().toLatin1());
    }
    QStringList filesOf(const QString &of) const
    {
        return QDir(of).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    static QStringList sampleNames()
    {
        QStringList names;
        for (const QString &file : QDir(mdSampleFolder()).entryList({"*.zr3"_q}, QDir::Files, QDir::Name))
            names << file.chopped(4);
        return names;
    }

    /// A priced claim: a group at 40.00, a fee earner and an item of one hour.
    static void fill(clsZR3Form &form)
    {
        const auto group = form.AddFeeEarnerGroup();
        group->HourlyRate = "40.00"_q;
        group->AdvocacyRate = "50.00"_q;
        group->CallsRate = "4.00"_q;
        const auto feeEarner = form.AddFeeEarner();
        feeEarner->GroupUniqueID = group->UniqueID();
        feeEarner->Reference = "AB"_q;
        addItem(form, "01:00");
    }
    static std::shared_ptr<clsZR3ScheduleOfTimeItem> addItem(clsZR3Form &form, const char *time)
    {
        const auto item = form.AddScheduleOfTimeItem();
        item->FeeEarnerUniqueID = form.FeeEarner(1)->UniqueID();
        item->TTime = QString::fromLatin1(time);
        item->Code = "ACT"_q;
        return item;
    }
};
