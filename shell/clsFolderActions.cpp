#include "shell/clsFolderActions.h"

#include "controls/mdShowModal.h"
#include "costing/comparing/mdChangesReport.h"
#include "shell/clsFolderModel.h"
#include "shell/frmCompare.h"
#include "shell/mdComparison.h"
#include "wordexport/mdExportWordCombineDocuments.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTemporaryDir>

#include <memory>

namespace {

using Result = clsFolderWork::clsResult;

/// The end of the command-line program's message about an existing document that it may not replace.
const QString HowToReplace = QStringLiteral(" Give --force to replace it.");

QString claimsInWords(qsizetype count)
{
    return count == 1 ? QStringLiteral("1 claim") : QStringLiteral("%1 claims").arg(count);
}

QString countInWords(qsizetype count, const char *one)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(QLatin1String(one), QLatin1String(count == 1 ? "" : "s"));
}

QString wordIn(const QJsonObject &object, const char *key)
{
    return object[QLatin1String(key)].toString();
}

std::vector<QJsonObject> linesOf(const Result &result)
{
    std::vector<QJsonObject> lines;
    for (const QByteArray &line : result.printed.split('\n'))
        if (const QJsonObject object = QJsonDocument::fromJson(line).object(); !object.isEmpty())
            lines.push_back(object);
    return lines;
}

bool haveNamesakes(const QStringList &paths)
{
    QSet<QString> names;
    for (const QString &path : paths)
        names << mdNameByFile(path);
    return names.size() < paths.size();
}

/// "Costs", or "Schedule of Time, item 4".
QString placeInWords(const QJsonObject &finding)
{
    const int item = finding[QLatin1String("Item")].toInt();
    const QString screen = wordIn(finding, "Screen");
    return item > 0 ? QStringLiteral("%1, item %2").arg(screen).arg(item) : screen;
}

/// A level with a capital letter, for the start of a cell.
QString levelInWords(const QJsonObject &finding)
{
    QString level = wordIn(finding, "Level");
    if (!level.isEmpty())
        level[0] = level[0].toUpper();
    return level;
}

} // namespace

clsFolderActions::clsFolderActions(clsFolderModel &model, QWidget *window)
    : QObject(window)
    , m_model(model)
    , m_window(window)
{ }

/// Reports a run that was cancelled or failed to finish. `isWhole` is false if it did not report all its claims.
bool clsFolderActions::stopped(const Result &result, const QString &what, bool isWhole)
{
    const bool isStopped = result.status < 0 || !isWhole;
    if (result.isCancelled)
        emit Told({what + QStringLiteral(" cancelled.")});
    else if (isStopped)
        emit Told({what + QStringLiteral(" stopped: ")
                + (result.trouble.isEmpty() ? QStringLiteral("zr3tool has ended before it was done.") : result.trouble),
            true});
    return result.isCancelled || isStopped;
}

void clsFolderActions::Check(const QStringList &paths)
{
    m_work.Start({QStringLiteral("Checking"),
        QStringList {QStringLiteral("check"), QStringLiteral("--full"), QStringLiteral("--jsonl")} + paths, paths,
        [this, paths](const Result &result) { checked(paths, result); }});
}

void clsFolderActions::checked(const QStringList &paths, const Result &result)
{
    clsFolderResults details {.caption = QStringLiteral("Check"),
        .subCaption = QStringLiteral("What is found in the chosen claims"),
        .headings = {QStringLiteral("Claim"), QStringLiteral("Level"), QStringLiteral("Where"), QStringLiteral("What")},
        .rows = {}};
    int errors = 0;
    int warnings = 0;
    int unread = 0;
    const std::vector<QJsonObject> lines = linesOf(result);
    for (const QJsonObject &line : lines) {
        const QString path = wordIn(line, "Path");
        const QString name = mdNameOfClaim(path);
        if (line.contains(QLatin1String("Error"))) {
            ++unread;
            details.rows.push_back({name, QStringLiteral("Can't be read"), {}, wordIn(line, "Error")});
            continue;
        }
        int ofClaim[2] = {};
        for (const auto &value : line[QLatin1String("Findings")].toArray()) {
            const QJsonObject finding = value.toObject();
            const QString level = wordIn(finding, "Level");
            ofClaim[0] += level == QLatin1String("error");
            ofClaim[1] += level == QLatin1String("warning");
            details.rows.push_back({name, levelInWords(finding), placeInWords(finding), wordIn(finding, "Text")});
        }
        m_model.TakeCounts(path, ofClaim[0], ofClaim[1]);
        errors += ofClaim[0];
        warnings += ofClaim[1];
    }
    if (stopped(result, QStringLiteral("Check"), qsizetype(lines.size()) >= paths.size()))
        return;
    clsFolderOutcome outcome {
        QStringLiteral("%1 checked: %2, %3")
            .arg(claimsInWords(paths.size()), countInWords(errors, "error"), countInWords(warnings, "warning")),
        unread > 0};
    if (unread > 0)
        outcome.text += QStringLiteral(", %1 can't be read").arg(unread);
    if (!details.rows.empty())
        outcome.details = details;
    emit Told(outcome);
}

void clsFolderActions::Export(const QStringList &paths, const QString &target, bool pdf, bool replaces)
{
    QStringList arguments {QStringLiteral("export"), QStringLiteral("--jsonl"), QStringLiteral("--name-by-file")};
    if (pdf)
        arguments << QStringLiteral("--pdf");
    if (replaces)
        arguments << QStringLiteral("--force");
    m_work.Start({pdf ? QStringLiteral("Exporting as PDF") : QStringLiteral("Exporting"),
        arguments + paths + QStringList(target), paths,
        [this, paths, target, pdf](const Result &result) { exported(paths, target, pdf, result); }});
}

void clsFolderActions::exported(const QStringList &paths, const QString &target, bool pdf, const Result &result)
{
    clsFolderResults details {.caption = QStringLiteral("Export"),
        .subCaption = QStringLiteral("Claims whose documents were not made"),
        .headings = {QStringLiteral("Claim"), QStringLiteral("Why")},
        .rows = {}};
    QStringList there;
    const std::vector<QJsonObject> lines = linesOf(result);
    for (const QJsonObject &line : lines) {
        QString error = wordIn(line, "Error");
        if (error.isEmpty())
            continue;
        if (error.endsWith(HowToReplace)) {
            there << wordIn(line, "Path");
            error.chop(HowToReplace.size());
        }
        details.rows.push_back({mdNameOfClaim(wordIn(line, "Path")), error});
    }
    if (stopped(result, QStringLiteral("Export"), qsizetype(lines.size()) >= paths.size()))
        return;
    const qsizetype failed = qsizetype(details.rows.size());
    clsFolderOutcome outcome {QStringLiteral("%1 of %2 exported to %3")
                                  .arg(paths.size() - failed)
                                  .arg(claimsInWords(paths.size()), QDir::toNativeSeparators(target)),
        failed > 0};
    if (failed > 0)
        outcome.details = details;
    if (!there.isEmpty()) {
        outcome.text += QStringLiteral("; %1 already there").arg(countInWords(there.size(), "document"));
        // Documents of claims of one name are numbered in the order of all claims of the run.
        const QStringList again = haveNamesakes(paths) ? paths : there;
        outcome.replace = [this, again, target, pdf] { Export(again, target, pdf, true); };
    }
    emit Told(outcome);
}

void clsFolderActions::CompareTwo(const QString &before, const QString &now)
{
    m_work.Start({QStringLiteral("Comparing %1 with %2").arg(mdNameOfClaim(now), mdNameOfClaim(before)),
        {QStringLiteral("diff"), QStringLiteral("--json"), QStringLiteral("--words"), before, now}, {},
        [this, before, now](const Result &result) { compared(result, before, now); }});
}

/// The object printed by a comparison; nothing, after a message, if there is none.
std::optional<QJsonObject> clsFolderActions::readComparison(const Result &result)
{
    if (stopped(result, QStringLiteral("Compare")))
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(result.printed);
    if (document.isObject())
        return document.object();
    emit Told({QStringLiteral("They cannot be compared: ") + result.trouble, true});
    return {};
}

void clsFolderActions::compared(const Result &result, const QString &before, const QString &now)
{
    const std::optional<QJsonObject> comparison = readComparison(result);
    if (!comparison)
        return;
    emit Told({});
    show({mdNameOfClaim(before), mdNameOfClaim(now), {}, mdReadChanges(*comparison)}, m_window);
}

void clsFolderActions::show(const clsComparison &comparison, QWidget *parent) const
{
    frmCompare window(comparison, parent);
    mdShowModal(window);
}

void clsFolderActions::CompareWith(const QStringList &paths, const QString &folder, const QString &other)
{
    // A folder of links to the chosen claims only, each at its path below the folder. It exists as long as its run,
    // since others may wait behind that.
    const auto links = std::make_shared<QTemporaryDir>();
    const QString start = folder.endsWith(u'/') ? folder : folder + u'/';
    for (const QString &path : paths) {
        const QString link
            = links->filePath(path.startsWith(start) ? path.mid(start.size()) : QFileInfo(path).fileName());
        QDir().mkpath(QFileInfo(link).path());
        QFile::link(path, link);
    }
    m_work.Start({QStringLiteral("Comparing %1 with those of %2")
                      .arg(claimsInWords(paths.size()), QDir::toNativeSeparators(other)),
        {QStringLiteral("diff"), QStringLiteral("--json"), QStringLiteral("--words"), other, links->path()}, {},
        [this, other, links](const Result &result) { comparedAll(result, other); }});
}

void clsFolderActions::comparedAll(const Result &result, const QString &other)
{
    const std::optional<QJsonObject> printed = readComparison(result);
    if (!printed)
        return;
    clsFolderResults results {.caption = QStringLiteral("Compare"),
        .subCaption
        = QStringLiteral("The chosen claims and those of the same name in %1").arg(QDir::toNativeSeparators(other)),
        .headings = {QStringLiteral("Claim"), QStringLiteral("What differs")},
        .rows = {}};
    std::vector<clsComparison> comparisons;
    bool isPaired = false;
    for (const auto &value : (*printed)[QLatin1String("Claims")].toArray()) {
        const QJsonObject pair = value.toObject();
        const QString only = wordIn(pair, "Only");
        if (only == QLatin1String("old"))
            continue;
        clsComparison comparison {
            QStringLiteral("Other folder"), QStringLiteral("This folder"), wordIn(pair, "Error"), mdReadChanges(pair)};
        if (only == QLatin1String("new"))
            comparison.trouble = QStringLiteral("There is none of this name in the other folder.");
        const clsClaimChanges &changes = comparison.changes;
        const size_t count = changes.Fields.size() + changes.Items.size() + changes.Totals.size();
        const QString what = !comparison.trouble.isEmpty() ? comparison.trouble
            : count == 0                                   ? QStringLiteral("Nothing differs.")
                                                           : countInWords(qsizetype(count), "difference");
        isPaired |= only.isEmpty();
        results.rows.push_back({mdNameOfClaim(wordIn(pair, "Name")), what});
        comparisons.push_back(std::move(comparison));
    }
    // The other folder can't be read, so that nothing is known of what it holds.
    if (!isPaired && !result.trouble.isEmpty()) {
        emit Told({QStringLiteral("They cannot be compared: ") + result.trouble, true});
        return;
    }
    results.openCaption = QStringLiteral("&Show");
    results.open = [this, comparisons](int row, QWidget *parent) { show(comparisons[size_t(row)], parent); };
    emit Told({});
    frmFolderResults window(results, m_window);
    mdShowModal(window);
}
