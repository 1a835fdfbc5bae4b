#pragma once

#include <benchmark/benchmark.h>

#include <string>

/**
 * Measures the registered cases and prints, for each, the median of its rounds and how far they go, and how long ours
 * takes in relation to the stock control's.
 *
 * A round measures both sides, one after the other, so that what disturbs the machine disturbs both. The first round
 * only warms up.
 *
 * @param argc,argv the program's own options, besides those of the benchmark library: `--rounds=<number>`; `--table`
 * for the rows of a Markdown table.
 * @return exit status of the program.
 */
int RunBenchmarks(int argc, char** argv);

/** Makes a case known to RunBenchmarks. @param parts by how many its times are divided. */
void AddCase(const std::string& name, int parts);

/** Registers a case with its two sides. Each function is called with the benchmark's state. */
template <class Ours, class Stock>
void ComparePair(const std::string& name, Ours ours, Stock stock)
{
    AddCase(name, 1);
    benchmark::RegisterBenchmark((name + "/ours").c_str(), ours)->UseRealTime();
    benchmark::RegisterBenchmark((name + "/stock").c_str(), stock)->UseRealTime();
}

/**
 * Registers a case that has no stock neighbour, to see what one part of many takes.
 * @param parts how many there are: the time of one is told.
 */
template <class Ours>
void MeasureAlone(const std::string& name, int parts, Ours ours)
{
    AddCase(name, parts);
    benchmark::RegisterBenchmark((name + "/ours").c_str(), ours)->UseRealTime();
}
