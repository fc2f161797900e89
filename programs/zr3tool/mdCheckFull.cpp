#include "programs/zr3tool/mdCheckFull.h"

#include "base/clsConsoleUserInterface.h"
#include "base/clsJsonWriter.h"
#include "base/mdClock.h"
#include "base/mdPrint.h"
#include "base/mdProgramFolder.h"
#include "costing/checking/mdCheckClaim.h"
#include "costing/checking/mdWhy.h"
#include "formdata/clsZR3Form.h"
#include "programs/zr3tool/mdClaimPaths.h"
#include "wordexport/clsForecast.h"
#include "wordexport/mdBoxesToCheck.h"
#include "wordexport/mdForecast.h"

#include <QFileInfo>

#include <algorithm>

namespace {

using Status = clsExitStatus;

/// What the look through a claim came to.
struct clsCheckedClaim {
    QString path;
    Status status = Status::Done;
    QString error {}; ///< why it can't be read
    clsFindings findings {};
};

clsCheckedClaim checked(const QString &path, const clsToolCommand &command, const clsConsoleUserInterface &console,
    const clsClaimReader &read)
{
    clsCheckedClaim claim {.path = path};
    clsZR3Form form;
    claim.status = read(form, path);
    if (claim.status != Status::Done) {
        claim.error = console.firstMessage();
        return claim;
    }
    clsCheckFacts facts {.Today = command.today.isValid() ? command.today : Now().date()};
    facts.CostsLimit = mdStoredCostsLimit(form);
    facts.Boxes = mdBoxesToCheck(mdForecast(form, TemplatesFolder()));
    claim.findings = mdCheckClaim(form, facts);
    if (std::any_of(claim.findings.begin(), claim.findings.end(),
            [](const clsFinding &finding) { return finding.Level != clsFindingLevel::Note; }))
        claim.status = Status::BlankItems;
    return claim;
}

void writeClaim(clsJsonWriter &json, const clsCheckedClaim &claim)
{
    json.beginObject();
    json.text("Path", claim.path);
    if (claim.status == Status::NoClaim) {
        json.text("Error", claim.error);
    } else {
        json.beginArray("Findings");
        for (const clsFinding &finding : claim.findings) {
            json.beginObject();
            json.text("Rule", finding.Rule);
            json.text("Level", mdLevelInWords(finding.Level));
            json.text("Screen", finding.Screen);
            json.text("List", finding.List);
            json.number("Item", finding.Item);
            json.text("Property", finding.Property);
            json.text("Text", finding.Text);
            json.endObject();
        }
        json.endArray();
    }
    json.endObject();
}

/// One line for each finding; a line feed of a name is none here.
void printLines(const clsCheckedClaim &claim, const QString &before)
{
    for (const clsFinding &finding : claim.findings) {
        const QString line = QStringLiteral("%1%2, %3, %4, %5")
                                 .arg(before, mdLevelInWords(finding.Level), finding.Screen,
                                     QString::number(finding.Item), finding.Text);
        mdPrint(stdout, QString(line).replace(u'\r', u' ').replace(u'\n', u' ') + QStringLiteral("\r\n"));
    }
}

} // namespace

Status mdCheckFull(clsConsoleUserInterface &console, const clsToolCommand &command, const clsClaimReader &read)
{
    const bool isSingle = command.claims.size() == 1 && !QFileInfo(command.claims.front()).isDir();
    Status status = Status::Done;
    clsJsonWriter json;
    if (!isSingle) {
        json.beginObject();
        json.beginArray("Claims");
    }
    for (const QString &argument : command.claims)
        for (const QString &path : mdClaimPaths(argument)) {
            const QString before = isSingle ? QString() : path + QStringLiteral(": ");
            console.beginSubject(before);
            const clsCheckedClaim claim = checked(path, command, console, read);
            status = std::max(status, claim.status);
            if (command.json && !(isSingle && claim.status == Status::NoClaim))
                writeClaim(json, claim);
            else
                printLines(claim, before);
        }
    if (!isSingle) {
        json.endArray();
        json.endObject();
    }
    if (command.json)
        mdPrintBytes(json.bytes());
    return status;
}

Status mdWhyFigure(const clsZR3Form &form, const clsToolCommand &command)
{
    const clsBill bill(form);
    const auto why = mdWhy(bill, command.kind, command.which);
    if (!why) {
        std::fputs(clsToolCommand::usage().toUtf8().constData(), stderr);
        return Status::WrongUsage;
    }
    clsJsonWriter json;
    json.beginObject();
    json.text("Figure", why->figure());
    json.beginArray("Steps");
    for (const clsWhyStep &step : why->steps()) {
        json.beginObject();
        json.text("Text", step.sentence());
        json.text("Value", step.Value);
        json.endObject();
    }
    json.endArray();
    json.endObject();
    mdPrintBytes(json.bytes());
    return why->hasFailed() ? Status::Failed : Status::Done;
}
