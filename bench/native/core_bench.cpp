// The pure functions that run over every line of a full list.

#include <benchmark/benchmark.h>
#include <memory>

#include "common/numbers.h"
#include "selection/document_search.h"
#include "worklist/list_display.h"
#include "worklist/list_file.h"

namespace {

std::wstring samplePath(std::int64_t i) {
    return L"C:\\plans\\moteur\\ensemble " + decimal(i / 100) + L"\\sous-ensemble " +
           decimal(i / 10) + L"\\piece " + decimal(i) + L".SLDPRT";
}

std::string sampleFile(std::int64_t count) {
    std::string text;
    for (std::int64_t i = 0; i < count; ++i) appendFreshLine(text, samplePath(i));
    return text;
}

void displayLines(benchmark::State& state) {
    const std::wstring path = samplePath(4321);
    const int depth = static_cast<int>(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(displayLine(4321, label::kDone, path, depth));
}
BENCHMARK(displayLines)->Arg(0)->Arg(3);

void parsing(benchmark::State& state) {
    const std::string text = sampleFile(state.range(0));
    for (auto _ : state) parseListFile(text, *std::make_unique<WorkList>());
    state.SetComplexityN(state.range(0));
}
BENCHMARK(parsing)->Arg(1000)->Arg(2000)->Arg(4000)->Arg(8001)->Complexity(benchmark::oN);

void formatting(benchmark::State& state) {
    WorkList list;
    parseListFile(sampleFile(state.range(0)), list);
    for (auto _ : state) {
        formatListFile(list, static_cast<int>(state.range(0)),
                       [](std::string_view piece) { benchmark::DoNotOptimize(piece.data()); });
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(formatting)->Arg(1000)->Arg(2000)->Arg(4000)->Arg(8001)->Complexity(benchmark::oN);

void storingBareNames(benchmark::State& state) {
    FoundDocuments found;
    for (auto _ : state) {
        found.restart(false);
        found.beginPass(false);
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            found.store(L"c:\\plans", L"piece" + decimal(i));
        }
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(storingBareNames)->Arg(1000)->Arg(2000)->Arg(4000)->Arg(8000)->Complexity(benchmark::oN);

}  // namespace
