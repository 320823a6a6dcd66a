// A sweep of designs: rows a second on one thread and on two, beside the plain loop, which makes a new record
// for each design and keeps the whole table, and beside one process of the companion per design (ORREVA_CLI
// names it). All give the same rows, or the run says so and fails.

#include "document/OrrevaDoc.h"
#include "lib/text/LogSink.h"
#include "report/SweepTable.h"
#include "support/SilentHost.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr std::int64_t kRows = 200'000;
constexpr double kFrom = 40;
constexpr double kTo = 80;
constexpr const char* kKey = "secondary/diameter";
constexpr const char* kShown[] = {"full_field", "linear_obstruction", "tube_length", "focal_plane_height"};

/// The telescope of the quick New dialog, as the verb starts with it.
TelescopeFields Base()
{
    SilentHost host;
    COrrevaDoc document(host);
    document.main_record.Reset();
    document.main_record.SetMirrorDiameter(250);
    document.main_record.SetFocalLength(1500);
    document.Recalculate();
    return document.main_record;
}

std::vector<const DesignValue*> Shown()
{
    std::vector<const DesignValue*> shown;
    for (const char* const name : kShown) {
        shown.push_back(FindDesignValue(name));
    }
    return shown;
}

Variation Sweep(std::int64_t rows) { return {Base(), {{FindRecordField(kKey), kFrom, kTo, rows}}, Shown()}; }

TableLayout Layout(TableFormat format = TableFormat::kText)
{
    return {format, {kKey, kShown[0], kShown[1], kShown[2], kShown[3]}, true};
}

std::string Swept(std::int64_t rows, int jobs)
{
    std::string table;
    WriteSweep(Sweep(rows), Layout(), jobs, [&](std::string_view bytes) {
        table += bytes;
        return true;
    });
    return table;
}

/// A document per design, as the companion's other verbs make it.
std::string Looped(std::int64_t rows)
{
    const TelescopeFields base = Base();
    const VariedField varied{FindRecordField(kKey), kFrom, kTo, rows};
    const TableLayout layout = Layout();
    std::string table;
    layout.AppendHead(table);
    for (std::int64_t i = 0; i < rows; ++i) {
        SilentHost host;
        COrrevaDoc document(host);
        static_cast<TelescopeFields&>(document.main_record) = base;
        document.main_record.SetSecondaryDiameter(varied.Point(i));
        document.Recalculate();
        document.Recalculate();
        const DesignState design{document.main_record,
                                 {document.field_diameter_100, document.field_angle_100}};
        const std::vector<double> all = ReadDesignValues(design);
        std::vector<TableCell> cells{varied.Point(i)};
        for (const DesignValue* const value : Shown()) {
            cells.emplace_back(all[static_cast<std::size_t>(value - DesignValues().data())]);
        }
        layout.AppendRow(table, cells, i == 0);
    }
    return table;
}

void CountRows(benchmark::State& state, std::int64_t rows)
{
    state.counters["designs"] =
        benchmark::Counter(static_cast<double>(rows), benchmark::Counter::kIsIterationInvariantRate);
}

void OurWay(benchmark::State& state)
{
    const Variation variation = Sweep(kRows);
    const TableLayout layout = Layout();
    for (auto _ : state) {
        WriteSweep(variation, layout, static_cast<int>(state.range(0)), [](std::string_view bytes) {
            benchmark::DoNotOptimize(bytes.data());
            return true;
        });
    }
    CountRows(state, kRows);
}
BENCHMARK(OurWay)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

void PlainLoop(benchmark::State& state)
{
    constexpr std::int64_t kFew = 2000;
    for (auto _ : state) {
        benchmark::DoNotOptimize(Looped(kFew));
    }
    CountRows(state, kFew);
}
BENCHMARK(PlainLoop)->Unit(benchmark::kMillisecond)->UseRealTime();

void ProcessPerDesign(benchmark::State& state)
{
    const char* const companion = std::getenv("ORREVA_CLI");
    if (companion == nullptr) {
        state.SkipWithError("ORREVA_CLI names no companion");
        return;
    }
    std::string words = std::string(companion) + " values --set secondary/diameter=60";
    for (const char* const name : kShown) {
        words += std::string(" --only ") + name;
    }
    words += " >/dev/null";
    for (auto _ : state) {
        if (std::system(words.c_str()) != 0) {
            state.SkipWithError("the companion failed");
            return;
        }
    }
    CountRows(state, 1);
}
BENCHMARK(ProcessPerDesign)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    SetLogSink(nullptr);
    const std::string expected = Looped(3000);
    for (const int jobs : {1, 2}) {
        if (Swept(3000, jobs) != expected) {
            std::fprintf(stderr, "the sweep and the plain loop disagree\n");
            return 1;
        }
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
