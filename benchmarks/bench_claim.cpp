// The claim itself: opening, writing and pricing it.

#include "benchmarks/mdMakeClaim.h"
#include "costing/mdTotalsReport.h"
#include "formdata/clsZR3Form.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace {

/// A claim in a file that exists as long as this program.
struct ClaimFile {
    QString path;
    QByteArray bytes;
};

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The claim could not be written.");
}

const ClaimFile &claimFile(int items, bool older)
{
    static const QTemporaryDir folder;
    static std::map<std::pair<int, bool>, ClaimFile> files;
    ClaimFile &claim = files[{items, older}];
    if (claim.path.isEmpty()) {
        clsZR3Form form;
        mdMakeClaim(form, items);
        claim.bytes = form.XMLOutput().toUtf8();
        if (older) // from before items could have a listed enhancement
            for (const char *missing :
                {"<includeinenhancements>False</includeinenhancements>", "<enhancementuniqueid/>"})
                claim.bytes.replace(missing, "");
        claim.path = folder.filePath(QStringLiteral("claim%1%2.zr3").arg(items).arg(int(older)));
        write(claim.path, claim.bytes);
    }
    return claim;
}

class TextWriter final : public pugi::xml_writer {
public:
    std::string text;
    void write(const void *data, size_t size) override { text.append(static_cast<const char *>(data), size); }
};

void parseAndSerialise(benchmark::State &state, bool older)
{
    const ClaimFile &claim = claimFile(int(state.range(0)), older);
    for (auto _ : state) {
        pugi::xml_document document;
        if (!document.load_buffer(claim.bytes.constData(), size_t(claim.bytes.size())))
            state.SkipWithError("The claim could not be parsed.");
        TextWriter writer;
        document.print(writer, "", pugi::format_raw | pugi::format_no_declaration);
        benchmark::DoNotOptimize(writer.text.data());
    }
}

void openAndSerialise(benchmark::State &state, bool older)
{
    const ClaimFile &claim = claimFile(int(state.range(0)), older);
    for (auto _ : state) {
        clsZR3Form form;
        if (!form.LoadXML(claim.path) || form.ScheduleOfTimeItemsCollection().size() != size_t(state.range(0)))
            state.SkipWithError("The claim could not be opened.");
        QString text = form.XMLOutput();
        benchmark::DoNotOptimize(text.data());
    }
    state.counters["file"] = double(claim.bytes.size());
}

void totalsAndLists(benchmark::State &state)
{
    clsZR3Form form;
    form.LoadXML(claimFile(int(state.range(0)), false).path);
    for (auto _ : state) {
        form.RenderScheduleOfTimeItemsForExport();
        form.RenderAdditionalInformationItems();
        const clsTotalsReport report = mdTotalsReport(form);
        if (report.hasFailures)
            state.SkipWithError("A total could not be computed.");
    }
}

BENCHMARK_CAPTURE(parseAndSerialise, current, false)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openAndSerialise, current, false)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(parseAndSerialise, older, true)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openAndSerialise, older, true)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(totalsAndLists)->Arg(10000)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace
