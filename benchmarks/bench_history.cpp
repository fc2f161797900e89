// The history of a claim: the cost of taking and of undoing a step.

#include "benchmarks/mdMakeClaim.h"
#include "formdata/clsHistory.h"
#include "formdata/clsZR3Form.h"

#include <benchmark/benchmark.h>

namespace {

/// A claim with this many items and its history.
struct clsKnownClaim {
    explicit clsKnownClaim(int items)
    {
        mdMakeClaim(*form, items);
        history.join();
    }
    void edit(int step)
    {
        history.run([&] {
            const auto &items = form->ScheduleOfTimeItemsCollection();
            items[size_t(step * 7) % items.size()]->Description = QStringLiteral("Step %1 of the afternoon").arg(step);
            return QStringLiteral("Edit");
        });
    }
    /// Deletes the first item, which renumbers all others.
    void deleteFirst()
    {
        history.run([&] {
            form->DeleteScheduleOfTimeItem(form->ScheduleOfTimeItemByOrderID(1)->Index);
            for (const auto &item : form->ScheduleOfTimeItemsCollection())
                item->OrderID = item->OrderID() - 1;
            form->RenderScheduleOfTimeItemsForExport();
            return QStringLiteral("Delete");
        });
    }

    std::unique_ptr<clsZR3Form> form = std::make_unique<clsZR3Form>();
    clsHistory history {form};
};

void takeStep(benchmark::State &state)
{
    clsKnownClaim claim(int(state.range(0)));
    int step = 0;
    for (auto _ : state)
        claim.edit(++step);
}

void undoDelete(benchmark::State &state)
{
    clsKnownClaim claim(int(state.range(0)));
    claim.deleteFirst();
    for (auto _ : state) {
        claim.history.undo();
        state.PauseTiming();
        if (claim.form->ScheduleOfTimeItemsCollection().size() != size_t(state.range(0)))
            state.SkipWithError("The item did not come back.");
        claim.history.redo();
        state.ResumeTiming();
    }
    state.counters["bytes"] = double(claim.history.bytes());
}

/// The memory of two hundred steps, every tenth of which renumbers the list.
void steps(benchmark::State &state)
{
    constexpr int Steps = 200;
    constexpr int Edits = 9; ///< between two deletes
    double bytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        clsKnownClaim claim(int(state.range(0)));
        state.ResumeTiming();
        for (int step = 1; step <= Steps; ++step)
            step % (Edits + 1) == 0 ? claim.deleteFirst() : claim.edit(step);
        bytes = double(claim.history.bytes());
        if (claim.history.steps() != Steps)
            state.SkipWithError("A step is missing.");
    }
    state.counters["bytes"] = bytes;
}

BENCHMARK(takeStep)->Arg(2000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(undoDelete)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(steps)->Arg(2000)->Unit(benchmark::kMillisecond);

} // namespace
