// How soon the totals below the preview and below a list are up to date after a change.

#include "benchmarks/mdMakeClaim.h"
#include "controls/oTotalsStrip.h"
#include "editors/mdListTotals.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdClaimState.h"
#include "formdata/mdGlobals.h"
#include "shell/clsStripFiller.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

namespace {

void makeClaim(benchmark::State &state)
{
    Form = std::make_unique<clsZR3Form>();
    mdMakeClaim(*Form, int(state.range(0)));
}

void strip(benchmark::State &state)
{
    makeClaim(state);
    oTotalsStrip strip;
    clsStripFiller filler(strip);
    bool renewed = false;
    QObject::connect(&filler, &clsStripFiller::Renewed, [&renewed] { renewed = true; });
    strip.resize(1366, 38);
    strip.show();
    bool longer = false;
    for (auto _ : state) {
        Form->ScheduleOfTimeItem(2)->TTime = (longer = !longer) ? QStringLiteral("00:06") : QStringLiteral("00:12");
        renewed = false;
        filler.Renew();
        while (!renewed)
            QCoreApplication::processEvents();
        benchmark::DoNotOptimize(strip.grab());
    }
    Form.reset();
}

void listTotal(benchmark::State &state)
{
    makeClaim(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(mdScheduleListTotal());
    Form.reset();
}

void claimState(benchmark::State &state)
{
    makeClaim(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(mdClaimState(*Form));
    Form.reset();
}

BENCHMARK(strip)->Arg(200)->Arg(2000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(listTotal)->Arg(2000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(claimState)->Arg(2000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
