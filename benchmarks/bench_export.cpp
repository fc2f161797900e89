// The export of a claim of many sheets, and the least that any program would have to do for it.

#include "benchmarks/mdZipFloor.h"
#include "formdata/clsZR3Form.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportWordClaim1.h"
#include "wordexport/mdExportWordCombineDocuments.h"

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr char Sample[] = ZR3_SAMPLES "/many-sheets";

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s could not be read.", qPrintable(path));
    return file.readAll();
}

/// The templates of the sample's sheets, each as often as a sheet is made from it.
QList<QByteArray> templatesInUse()
{
    const QJsonObject account = QJsonDocument::fromJson(bytesOf(QLatin1String(Sample) + ".sheets.json")).object();
    QHash<QString, QString> templateOf;
    for (const QJsonValue sheet : account["Sheets"].toArray())
        templateOf[sheet["Name"].toString()] = sheet["Template"].toString();
    QList<QByteArray> templates;
    for (const QJsonValue name : account["Order"].toArray())
        templates << bytesOf(QStringLiteral(ZR3_TEMPLATES "/%1.doc").arg(templateOf.value(name.toString())));
    return templates;
}

/// Exports the sample once; false when it did not come to its end.
bool exportSample(clsZR3Form &form, int &sheets)
{
    clsExport run {.form = form, .templatesFolder = QStringLiteral(ZR3_TEMPLATES)};
    run.stopsAtLostSheet = true;
    const bool done = mdExportWordClaim1(run);
    sheets = int(run.ExportFileCollection.size());
    return done;
}

void exportClaim(benchmark::State &state)
{
    const QTemporaryDir folder;
    clsZR3Form form;
    form.LoadXML(QLatin1String(Sample) + ".zr3");
    form.ExportPath = folder.path();
    int sheets = 0;
    for (auto _ : state)
        if (!exportSample(form, sheets)) {
            state.SkipWithError("The export failed.");
            break;
        }
    state.counters["sheets"] = sheets;
}

void exportFloor(benchmark::State &state)
{
    const QTemporaryDir folder;
    clsZR3Form form;
    form.LoadXML(QLatin1String(Sample) + ".zr3");
    form.ExportPath = folder.path();
    int sheets = 0;
    if (!exportSample(form, sheets))
        return state.SkipWithError("The export failed.");
    const clsUnpackedFiles finished = mdUnpack(bytesOf(mdFinishedDocumentPath(form.ExportPath(), form.FormType())));
    const QList<QByteArray> templates = templatesInUse();
    for (auto _ : state) {
        for (const QByteArray &package : templates)
            benchmark::DoNotOptimize(mdUnpack(package));
        benchmark::DoNotOptimize(mdPack(finished));
    }
    state.counters["sheets"] = double(templates.size());
}

BENCHMARK(exportFloor)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(exportClaim)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
