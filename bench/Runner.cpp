#include "Runner.h"

#include "Summary.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <regex>
#include <vector>

namespace
{

constexpr int kLeastRounds = 5;
constexpr int kExitBadOptions = 2;

struct Options
{
    int rounds = kLeastRounds;
    bool table = false;
};

std::vector<CaseTimes>& Cases()
{
    static std::vector<CaseTimes> cases;
    return cases;
}

/** Gives the times of one case to its record, and shows nothing. */
class Collector : public benchmark::BenchmarkReporter
{
  public:
    explicit Collector(CaseTimes& times) : m_times(times) {}

    bool ReportContext(const Context& /*context*/) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
                m_failed = true;
            } else if (run.run_type == Run::RT_Iteration) {
                const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
                m_failed = !m_times.Add(run.run_name.function_name, seconds) || m_failed;
            }
        }
    }

    bool HasFailed() const { return m_failed; }

  private:
    CaseTimes& m_times;
    bool m_failed = false;
};

/** Names of cases hold no other character that means something to a regular expression. */
std::string BothSidesOf(const CaseTimes& times)
{
    return "^" + times.Name() + "/(ours|stock)(/.*)?$";
}

bool MeasureRound(CaseTimes& times)
{
    Collector collector(times);
    return benchmark::RunSpecifiedBenchmarks(&collector, BothSidesOf(times)) > 0 && !collector.HasFailed();
}

bool Measure(CaseTimes& times, int rounds)
{
    CaseTimes warmUp(times);
    if (!MeasureRound(warmUp)) {
        return false;
    }
    for (int round = 0; round < rounds; ++round) {
        if (!MeasureRound(times)) {
            return false;
        }
    }
    return true;
}

/** Takes the options that the benchmark library does not know out of the list. */
Options TakeOptions(std::vector<char*>& arguments)
{
    static const std::string kRounds = "--rounds=";
    Options options;
    std::erase_if(arguments, [&options](const char* argument) {
        const std::string text(argument);
        if (text == "--table") {
            options.table = true;
            return true;
        }
        if (text.compare(0, kRounds.size(), kRounds) == 0) {
            options.rounds = (std::max)(1, std::atoi(text.c_str() + kRounds.size()));
            return true;
        }
        return false;
    });
    return options;
}

} // namespace

void AddCase(const std::string& name, int parts)
{
    Cases().emplace_back(name, parts);
}

int RunBenchmarks(int argc, char** argv)
{
    static std::string leastTime = "--benchmark_min_time=0.2"; // seconds a side and round
    std::vector<char*> arguments(argv, argv + argc);
    const Options options = TakeOptions(arguments);
    arguments.insert(arguments.begin() + 1, leastTime.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return kExitBadOptions;
    }
    if (!options.table) {
        std::printf("%s\n", TextHeading().c_str());
    }
    const std::regex filter(benchmark::GetBenchmarkFilter());
    bool failed = false;
    for (CaseTimes& times : Cases()) {
        if (!std::regex_search(times.Name(), filter)) {
            continue;
        }
        if (!Measure(times, options.rounds)) {
            failed = true;
            continue;
        }
        std::printf("%s\n", (options.table ? MarkdownRow(times) : TextRow(times)).c_str());
        std::fflush(stdout);
    }
    benchmark::Shutdown();
    return failed ? 1 : 0;
}
