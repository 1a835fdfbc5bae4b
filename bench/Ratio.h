#pragma once

#include <benchmark/benchmark.h>

/**
 * Runs the registered benchmarks and prints, for every case with a run named "<case>/ours" and one named
 * "<case>/stock", how long ours takes in relation to the stock control's.
 * @return exit status of the program.
 */
int RunBenchmarks(int argc, char** argv);

/** Registers the two runs of a case. Each function is called with the benchmark's state. */
template <class Ours, class Stock>
void ComparePair(const char* name, Ours ours, Stock stock)
{
    const std::string stem(name);
    benchmark::RegisterBenchmark((stem + "/ours").c_str(), ours)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark((stem + "/stock").c_str(), stock)->Unit(benchmark::kMicrosecond);
}
