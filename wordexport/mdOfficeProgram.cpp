#include "wordexport/mdOfficeProgram.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <optional>

namespace {

constexpr int LongestMilliseconds = 60'000;

struct clsChosen {
    QString program;
    int longestMilliseconds;
};

std::optional<clsChosen> chosen;

const QString Names[] = {QStringLiteral("soffice"), QStringLiteral("libreoffice")};

/// Folders outside the path that distributions and the publisher's packages use.
QStringList usualFolders()
{
    QStringList folders = {QStringLiteral("/usr/bin"), QStringLiteral("/usr/local/bin"),
        QStringLiteral("/usr/lib/libreoffice/program"), QStringLiteral("/snap/bin")};
    const QDir opt(QStringLiteral("/opt"));
    const QStringList found = opt.entryList(
        {QStringLiteral("libreoffice*")}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed);
    for (const QString &folder : found)
        folders << opt.filePath(folder) + QStringLiteral("/program");
    return folders;
}

} // namespace

QString mdOfficeProgram()
{
    if (chosen)
        return chosen->program;
    for (const QStringList &folders : {QStringList(), usualFolders()})
        for (const QString &name : Names)
            if (const QString program = QStandardPaths::findExecutable(name, folders); !program.isEmpty())
                return program;
    return {};
}

QString mdNoOfficeProgramMessage()
{
    return QStringLiteral(
        "No office program was found that can make the PDF. Install LibreOffice Writer and try again.");
}

int mdOfficeProgramLongestMilliseconds()
{
    return chosen ? chosen->longestMilliseconds : LongestMilliseconds;
}

clsOfficeProgramScope::clsOfficeProgramScope(const QString &program, int longestMilliseconds)
{
    chosen = {program, longestMilliseconds};
}

clsOfficeProgramScope::~clsOfficeProgramScope()
{
    chosen.reset();
}
