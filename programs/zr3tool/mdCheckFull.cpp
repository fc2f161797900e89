#include "programs/zr3tool/mdCheckFull.h"

#include "base/clsConsoleUserInterface.h"
#include "base/clsJsonWriter.h"
#include "base/mdPrint.h"
#include "base/mdProgramFolder.h"
#include "costing/checking/mdCheckClaim.h"
#include "costing/checking/mdWhy.h"
#include "formdata/clsZR3Form.h"
#include "programs/zr3tool/mdClaimSteps.h"
#include "wordexport/clsForecast.h"
#include "wordexport/mdBoxesToCheck.h"
#include "wordexport/mdForecast.h"

#include <algorithm>

namespace {

using Status = clsExitStatus;

} // namespace

clsCheckedClaim mdCheckedClaim(clsConsoleUserInterface &console, const clsToolCommand &command, const QString &path)
{
    clsCheckedClaim claim;
    clsZR3Form form;
    claim.status = mdLoadClaim(console, form, path, clsSoundness::InSome);
    if (claim.status != Status::Done)
        return claim;
    clsCheckFacts facts {.Today = command.dayOfCheck()};
    facts.CostsLimit = mdStoredCostsLimit(form);
    facts.Boxes = mdBoxesToCheck(mdForecast(form, TemplatesFolder()));
    claim.findings = mdCheckClaim(form, facts);
    if (std::any_of(claim.findings.begin(), claim.findings.end(),
            [](const clsFinding &finding) { return finding.Level != clsFindingLevel::Note; }))
        claim.status = Status::BlankItems;
    return claim;
}

void mdWriteFindings(clsJsonWriter &json, const clsFindings &findings)
{
    json.beginArray("Findings");
    for (const clsFinding &finding : findings) {
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

QString mdFindingsInLines(const clsFindings &findings, const QString &before)
{
    QString lines;
    for (const clsFinding &finding : findings) {
        const QString line = QStringLiteral("%1%2, %3, %4, %5")
                                 .arg(before, mdLevelInWords(finding.Level), finding.Screen,
                                     QString::number(finding.Item), finding.Text);
        // A line break in a name must not start a new line.
        lines += QString(line).replace(u'\r', u' ').replace(u'\n', u' ') + QStringLiteral("\r\n");
    }
    return lines;
}

Status mdCheckFull(clsConsoleUserInterface &console, const clsToolCommand &command)
{
    const QString path = command.claims.front();
    const clsCheckedClaim claim = mdCheckedClaim(console, command, path);
    if (claim.status == Status::NoClaim)
        return claim.status;
    if (!command.json) {
        mdPrint(stdout, mdFindingsInLines(claim.findings));
        return claim.status;
    }
    clsJsonWriter json;
    json.beginObject();
    json.text("Path", path);
    mdWriteFindings(json, claim.findings);
    json.endObject();
    mdPrintBytes(json.bytes());
    return claim.status;
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
