#include "Ratio.h"

#include <cstdio>
#include <map>
#include <string>

namespace
{

class RatioReporter : public benchmark::ConsoleReporter
{
  public:
    RatioReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            m_failed = m_failed || run.error_occurred;
            if (!run.error_occurred && run.run_type == Run::RT_Iteration) {
                m_times[run.benchmark_name()] = run.GetAdjustedRealTime();
            }
        }
    }

    void Finalize() override
    {
        static const std::string suffix = "/ours";
        std::printf("\n%-40s %8s\n", "Case", "Ratio");
        for (const auto& [name, time] : m_times) {
            if (name.size() <= suffix.size() || name.compare(name.size() - suffix.size(), suffix.size(), suffix) != 0) {
                continue;
            }
            const std::string stem = name.substr(0, name.size() - suffix.size());
            const auto stock = m_times.find(stem + "/stock");
            if (stock != m_times.end() && stock->second > 0) {
                std::printf("%-40s %8.2f\n", stem.c_str(), time / stock->second);
            }
        }
    }

    /** Whether a case ended with an error. */
    bool HasFailed() const { return m_failed; }

  private:
    std::map<std::string, double> m_times;
    bool m_failed = false;
};

} // namespace

int RunBenchmarks(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    RatioReporter reporter;
    const size_t run = benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return run > 0 && !reporter.HasFailed() ? 0 : 1;
}
