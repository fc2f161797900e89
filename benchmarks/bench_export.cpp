// The export of a claim with many sheets, for each form, and the minimum work that any program would have to do for it.

#include "benchmarks/mdMakeClaim.h"
#include "benchmarks/mdZipFloor.h"
#include "formdata/clsZR3Form.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportDriver.h"
#include "wordexport/mdExportWordCombineDocuments.h"
#include "wordexport/mdForecast.h"

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

/// The samples with many sheets, without the extensions of their files.
QString sampleOf(const char *name)
{
    return QStringLiteral(ZR3_SAMPLES "/%1").arg(QLatin1String(name));
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s could not be read.", qPrintable(path));
    return file.readAll();
}

/// The templates of a sample's sheets, each as often as a sheet is made from it.
QList<QByteArray> templatesInUse(const QString &sample)
{
    const QJsonObject account = QJsonDocument::fromJson(bytesOf(sample + ".sheets.json")).object();
    QHash<QString, QString> templateOf;
    for (const QJsonValue sheet : account["Sheets"].toArray())
        templateOf[sheet["Name"].toString()] = sheet["Template"].toString();
    QList<QByteArray> templates;
    for (const QJsonValue name : account["Order"].toArray())
        templates << bytesOf(QStringLiteral(ZR3_TEMPLATES "/%1.doc").arg(templateOf.value(name.toString())));
    return templates;
}

/// Exports a claim once; false if it fails.
bool exportOnce(clsZR3Form &form, int &sheets)
{
    clsExport run {.form = form, .templatesFolder = QStringLiteral(ZR3_TEMPLATES)};
    run.stopsAtLostSheet = true;
    const bool done = mdExportDriver(form.FormType())(run);
    sheets = int(run.ExportFileCollection.size());
    return done;
}

void exportClaim(benchmark::State &state, const char *name)
{
    const QTemporaryDir folder;
    clsZR3Form form;
    form.LoadXML(sampleOf(name) + ".zr3");
    form.ExportPath = folder.path();
    int sheets = 0;
    for (auto _ : state)
        if (!exportOnce(form, sheets)) {
            state.SkipWithError("The export failed.");
            break;
        }
    state.counters["sheets"] = sheets;
}

void exportFloor(benchmark::State &state, const char *name)
{
    const QTemporaryDir folder;
    clsZR3Form form;
    form.LoadXML(sampleOf(name) + ".zr3");
    form.ExportPath = folder.path();
    int sheets = 0;
    if (!exportOnce(form, sheets))
        return state.SkipWithError("The export failed.");
    const clsUnpackedFiles finished = mdUnpack(bytesOf(mdFinishedDocumentPath(form.ExportPath(), form.FormType())));
    const QList<QByteArray> templates = templatesInUse(sampleOf(name));
    for (auto _ : state) {
        for (const QByteArray &package : templates)
            benchmark::DoNotOptimize(mdUnpack(package));
        benchmark::DoNotOptimize(mdPack(finished));
    }
    state.counters["sheets"] = double(templates.size());
}

/// Exports only the sheets of a generated claim that grow with its number of items: the schedule and the notes. This
/// makes the sheets of claims of different sizes comparable.
void exportSchedule(benchmark::State &state)
{
    const QTemporaryDir folder;
    clsZR3Form form;
    mdMakeClaim(form, int(state.range(0)));
    for (int page = 1; page <= 13; ++page)
        form.field(QStringLiteral("IncludePage%1").arg(page))->writeBoolean(page == 1 || page == 5 || page == 6);
    form.ExportPath = folder.path();
    int sheets = 0;
    for (auto _ : state)
        if (!exportOnce(form, sheets)) {
            state.SkipWithError("The export failed.");
            break;
        }
    state.counters["sheets"] = sheets;
}

/// The forecast for a generated claim with this many items and all pages.
void forecastClaim(benchmark::State &state)
{
    clsZR3Form form;
    mdMakeClaim(form, int(state.range(0)));
    int sheets = 0;
    for (auto _ : state) {
        const clsForecast forecast = mdForecast(form, QStringLiteral(ZR3_TEMPLATES));
        if (forecast.Fails) {
            state.SkipWithError("The forecast failed.");
            break;
        }
        sheets = forecast.SheetCount();
    }
    state.counters["sheets"] = sheets;
}

// clang-format off
BENCHMARK_CAPTURE(exportFloor, Claim1,  "many-sheets")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(exportClaim, Claim1,  "many-sheets")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(exportFloor, Claim1A, "many-sheets-1a")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(exportClaim, Claim1A, "many-sheets-1a")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(forecastClaim)->Arg(2000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(exportSchedule)->Arg(500)->Arg(17000)->Unit(benchmark::kMillisecond)->UseRealTime();
// clang-format on

} // namespace
