// mt2203_temper: tempering masks for MT2203 members.
//
//   mt2203_temper [-j THREADS] [-w BEAM] [-r RETRIES] [-k] [FILE]
//
// Reads lines "member a" (a in hex; blank lines and lines starting with '#' are
// skipped) from FILE or standard input and writes "member a b c totaldefect" in
// the input order, each line as soon as it and all before it are done. -k appends
// the 32 values k(1..32); -w and -r set the beam width and the number of whole
// searches repeated while the total defect stays high (0 halves the time). Work is shared by
// THREADS threads (default 2). A twist constant whose recurrence is degenerate is reported on
// standard error and makes the exit status 1; its line is left out.
#include <atomic>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <thread>
#include <vector>

#include "tools/mt/temper_search.h"

namespace {

using brenn::mt::TemperMasks;

struct Job {
    long member;
    uint32_t a;
    TemperMasks result;
    bool done = false;
};

int Usage() {
    std::fprintf(stderr, "usage: mt2203_temper [-j THREADS] [-w BEAM] [-r RETRIES] [-k] [FILE]\n");
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    int threads = 2;
    bool profile = false;
    brenn::mt::TemperSearchOptions options;
    const char* path = nullptr;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "-j") && i + 1 < argc)
            threads = std::atoi(argv[++i]);
        else if (!std::strcmp(argv[i], "-w") && i + 1 < argc)
            options.beamWidth = std::atoi(argv[++i]);
        else if (!std::strcmp(argv[i], "-r") && i + 1 < argc)
            options.retries = std::atoi(argv[++i]);
        else if (!std::strcmp(argv[i], "-k"))
            profile = true;
        else if (argv[i][0] == '-' || path)
            return Usage();
        else
            path = argv[i];
    }
    if (threads < 1 || options.beamWidth < 1 || options.retries < 0) return Usage();
    FILE* in = path ? std::fopen(path, "r") : stdin;
    if (!in) {
        std::fprintf(stderr, "mt2203_temper: cannot open %s\n", path);
        return 2;
    }
    std::vector<Job> jobs;
    char line[256];
    int lineNo = 0;
    while (std::fgets(line, sizeof line, in)) {
        ++lineNo;
        char* p = line;
        while (*p == ' ' || *p == '\t')
            ++p;
        if (*p == '#' || *p == '\n' || *p == '\0') continue;
        long member;
        unsigned long a;
        if (std::sscanf(p, "%ld %lx", &member, &a) != 2 || a > 0xFFFFFFFFul) {
            std::fprintf(stderr, "mt2203_temper: line %d: expected \"member a\"\n", lineNo);
            return 2;
        }
        jobs.push_back(Job{member, static_cast<uint32_t>(a), {}, false});
    }
    if (path) std::fclose(in);

    std::atomic<size_t> nextJob{0};
    std::mutex outLock;
    size_t nextOut = 0;
    bool failed = false;
    auto flush = [&] { // with outLock held: print every finished job in order
        for (; nextOut < jobs.size() && jobs[nextOut].done; ++nextOut) {
            const Job& j = jobs[nextOut];
            if (!j.result.ok) {
                std::fprintf(stderr,
                             "mt2203_temper: member %ld: a = %08" PRIX32
                             " gives a degenerate recurrence\n",
                             j.member, j.a);
                failed = true;
                continue;
            }
            std::printf("%ld %08" PRIX32 " %08" PRIX32 " %08" PRIX32 " %d", j.member, j.a,
                        j.result.b, j.result.c, j.result.totalDefect);
            if (profile)
                for (int k : j.result.k)
                    std::printf(" %d", k);
            std::printf("\n");
        }
        std::fflush(stdout);
    };
    auto worker = [&] {
        for (size_t i; (i = nextJob.fetch_add(1)) < jobs.size();) {
            TemperMasks r = brenn::mt::SearchTempering(jobs[i].a, options);
            std::lock_guard<std::mutex> hold(outLock);
            jobs[i].result = r;
            jobs[i].done = true;
            flush();
        }
    };
    std::vector<std::thread> pool;
    for (int t = 1; t < threads; ++t)
        pool.emplace_back(worker);
    worker();
    for (std::thread& t : pool)
        t.join();
    return failed ? 1 : 0;
}
