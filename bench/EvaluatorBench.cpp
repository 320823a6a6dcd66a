#include "lib/expression/ExpressionEvaluator.h"

#include <benchmark/benchmark.h>

namespace {

void Evaluate(benchmark::State& state, const char* pszExpression)
{
    CExpressionEvaluator evaluator;
    for (auto _ : state) {
        benchmark::DoNotOptimize(evaluator.Evaluate(pszExpression));
    }
    if (evaluator.GetError() != 0) {
        state.SkipWithError(evaluator.GetErrorText());
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK_CAPTURE(Evaluate, Arithmetic, "1+2*3-4/5^2");
BENCHMARK_CAPTURE(Evaluate, NestedFunctions,
                  "sqrt(abs(sin(pi/4)*cos(max(1,min(2,3)))))+log10(exp(pow(2,3)))");
BENCHMARK_CAPTURE(Evaluate, YearOfDate, "year(date(24.12.2004))");

} // namespace

BENCHMARK_MAIN();
