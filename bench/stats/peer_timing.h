// What the statistics benchmarks share to run beside numpy: the times of a timing
// script run by /usr/bin/python3 in the same run, entered into the table as manual
// timings, and a reporter that keeps each benchmark's best real time for the ratios
// printed after the table.
#ifndef BRENN_BENCH_STATS_PEER_TIMING_H
#define BRENN_BENCH_STATS_PEER_TIMING_H

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace brenn::bench {

// Runs the script and registers each `name seconds` line it prints as a benchmark of
// one manual iteration.
inline void RegisterPeerTimes(const char* script) {
    std::string command = std::string("/usr/bin/python3 ") + script;
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) return;
    char name[128];
    double seconds;
    while (std::fscanf(pipe, "%127s %lf", name, &seconds) == 2)
        benchmark::RegisterBenchmark(name,
                                     [seconds](benchmark::State& state) {
                                         for (auto _ : state)
                                             state.SetIterationTime(seconds);
                                     })
            ->UseManualTime()
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
    pclose(pipe);
}

class Recorder : public benchmark::ConsoleReporter {
  public:
    std::map<std::string, double> seconds;
    std::map<std::string, double> wall; // the best wall-clock times, whatever cpuTime says
    // CPU time instead of the wall clock for the benchmarks of this process (the peers'
    // manual times are kept as they came): on a loaded machine the wall clock mostly
    // measures the wait for a core.
    bool cpuTime = false;
    void ReportRuns(const std::vector<Run>& runs) override {
        // With repetitions the best run counts, as the peers' best of several runs does.
        for (const Run& r : runs) {
            if (r.run_type != Run::RT_Iteration) continue;
            const bool manual = r.run_name.str().find("manual_time") != std::string::npos;
            const double unit = benchmark::GetTimeUnitMultiplier(r.time_unit);
            const double real = r.GetAdjustedRealTime() / unit;
            const double t = cpuTime && !manual ? r.GetAdjustedCPUTime() / unit : real;
            // Found by the full name and by the registered name alone.
            for (const std::string& name : {r.benchmark_name(), r.run_name.function_name}) {
                Keep(seconds, name, t);
                Keep(wall, name, real);
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }
    // Prints a / b when both ran (from `times`: seconds, or wall); returns the ratio, or 0.
    double Ratio(const std::string& a, const std::string& b) const { return Ratio(seconds, a, b); }
    double Ratio(const std::map<std::string, double>& times, const std::string& a,
                 const std::string& b) const {
        auto x = times.find(a), y = times.find(b);
        if (x == times.end() || y == times.end()) return 0;
        double r = x->second / y->second;
        std::printf("%-36s / %-44s = %.2f\n", a.c_str(), b.c_str(), r);
        return r;
    }

  private:
    static void Keep(std::map<std::string, double>& times, const std::string& name, double t) {
        auto [at, fresh] = times.emplace(name, t);
        if (!fresh && t < at->second) at->second = t;
    }
};

} // namespace brenn::bench

#endif
