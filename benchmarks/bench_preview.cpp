// The preview: redrawing it, compared with filling the grid with the same texts prepared in advance.

#include "base/mdProgramFolder.h"
#include "benchmarks/mdMakeClaim.h"
#include "controls/mdApplyTheme.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "preview/mdExportPreview.h"
#include "preview/mdPreview.h"
#include "preview/oPreviewGrid.h"
#include "preview/oPreviewSheet.h"

#include <QApplication>

#include <benchmark/benchmark.h>

namespace {

/// The preview's window on a claim with this many items, and a copy of the texts it shows.
class PreviewBench {
public:
    PreviewBench(int items, clsPreviewKind kind)
        : m_kind(kind)
    {
        m_sheet.resize(1366, 600);
        m_sheet.show();
        PreviewGrid = m_sheet.Grid();
        Form = std::make_unique<clsZR3Form>();
        mdMakeClaim(*Form, items);
        Form->RenderScheduleOfTimeItemsForExport();
        Form->RenderAdditionalInformationItems();
        redraw();
        takeCells();
    }
    ~PreviewBench()
    {
        PreviewGrid = nullptr;
        Form.reset();
    }

    void redraw() const { mdDrawPreview(m_kind); }
    /// The same rows with the same functions, from prepared texts: the claim is neither read nor priced.
    void fill() const
    {
        oPreviewGrid &grid = *PreviewGrid;
        mdExportPreviewInit();
        for (const int width : m_widths)
            grid.AddColumn(QStringLiteral("Column %1").arg(grid.Columns()), width);
        for (const Row &row : m_rows) {
            grid.AddRow();
            if (row.look != clsPreviewRowLook::Ordinary)
                grid.setRowLook(grid.Rows(), row.look);
            for (const auto &[column, cell] : row.cells)
                mdExportPreviewSetText(
                    column, cell.text, cell.alignment, cell.bold, cell.underline, isMoney(column, cell));
        }
        mdExportPreviewDeInit();
    }
    /// Paints the visible part.
    void paint() { benchmark::DoNotOptimize(m_sheet.grab()); }

private:
    bool isMoney(int column, const clsPreviewCell &cell) const
    {
        return !cell.bold && m_kind == clsPreviewKind::ScheduleOfTime && (column == 10 || column == 11 || column == 13);
    }
    struct Row {
        clsPreviewRowLook look;
        std::vector<std::pair<int, clsPreviewCell>> cells;
    };

    void takeCells()
    {
        const auto *model = static_cast<const clsPreviewModel *>(PreviewGrid->model());
        for (int column = 1; column <= PreviewGrid->Columns(); ++column)
            m_widths.push_back(PreviewGrid->ColumnWidth(column));
        for (int row = 1; row <= PreviewGrid->Rows(); ++row) {
            m_rows.push_back({model->cells.RowLook(row), {}});
            for (int column = 1; column <= PreviewGrid->Columns(); ++column)
                if (const clsPreviewCell &cell = PreviewGrid->Cell(row, column); !cell.text.isEmpty())
                    m_rows.back().cells.emplace_back(column, cell);
        }
    }

    clsPreviewKind m_kind;
    oPreviewSheet m_sheet;
    std::vector<int> m_widths;
    std::vector<Row> m_rows;
};

void preview(benchmark::State &state, clsPreviewKind kind, void (PreviewBench::*work)() const, bool painted)
{
    PreviewBench bench(int(state.range(0)), kind);
    for (auto _ : state) {
        (bench.*work)();
        if (painted)
            bench.paint();
    }
    state.counters["rows"] = double(PreviewGrid->Rows());
}

constexpr auto Schedule = clsPreviewKind::ScheduleOfTime;
constexpr auto Notes = clsPreviewKind::AdditionalInformation;
constexpr auto Redraw = &PreviewBench::redraw;
constexpr auto Fill = &PreviewBench::fill;

// Until it is visible, and without painting the visible part.
BENCHMARK_CAPTURE(preview, redraw_seen, Schedule, Redraw, true)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(preview, fill_seen, Schedule, Fill, true)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(preview, redraw, Schedule, Redraw, false)->Arg(2000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(preview, fill, Schedule, Fill, false)->Arg(2000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(preview, redraw_notes, Notes, Redraw, false)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(preview, fill_notes, Notes, Fill, false)->Arg(2000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    mdApplyTheme(application);
    SetProgramFolder(QStringLiteral(ZR3_PROGRAM_FOLDER));
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
