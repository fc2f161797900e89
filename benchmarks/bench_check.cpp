// How soon the check beside the preview is up to date after a change.

#include "benchmarks/mdMakeClaim.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "shell/clsCheckState.h"
#include "shell/oCheckPanel.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

namespace {

/// The panel on a claim with this many items, a quarter of which have no time.
class CheckBench {
public:
    explicit CheckBench(int items)
    {
        Form = std::make_unique<clsZR3Form>();
        mdMakeClaim(*Form, items);
        for (int i = 1; i <= items; i += 4)
            Form->ScheduleOfTimeItem(i)->TTime = QStringLiteral("00:00");
        m_panel.resize(360, 600);
        m_panel.show();
        m_state.RenewPrint(false);
        m_state.LookAtPrint();
        show();
    }
    ~CheckBench() { Form.reset(); }

    /// One change of one item.
    void change()
    {
        m_longer = !m_longer;
        const auto item = Form->ScheduleOfTimeItem(2);
        item->TTime = m_longer ? QStringLiteral("00:06") : QStringLiteral("00:00");
        item->Description = m_longer ? QStringLiteral("Longer") : QStringLiteral("Shorter");
    }
    void renew() { m_state.Renew(); }
    void renewPrint() { m_state.LookAtPrint(); }
    void show()
    {
        QCoreApplication::processEvents();
        benchmark::DoNotOptimize(m_panel.grab());
    }
    int findings() const { return int(m_state.Findings().size()); }

private:
    clsCheckState m_state;
    oCheckPanel m_panel {m_state};
    bool m_longer = false;
};

void check(benchmark::State &state, bool print)
{
    CheckBench bench(int(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        bench.change();
        if (print)
            bench.renew();
        state.ResumeTiming();
        if (print)
            bench.renewPrint();
        else
            bench.renew();
        bench.show();
    }
    state.counters["findings"] = bench.findings();
}

// Until the panel is painted. The second measures the findings about printing, which follow when the program is idle.
BENCHMARK_CAPTURE(check, renew, false)->Arg(200)->Arg(2000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(check, print, true)->Arg(200)->Arg(2000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
