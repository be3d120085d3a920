// The table the distribution benchmarks print after their run: for each entry and
// basic generator our ns a variate (or a row), numpy's and GSL's from the same run, and
// the ratios peer / ours (above 1: faster than the peer).
#ifndef BRENN_BENCH_RNG_PEER_TABLE_H
#define BRENN_BENCH_RNG_PEER_TABLE_H

#include <cstdio>
#include <string>

#include "bench/stats/peer_timing.h"

namespace brenn::bench {

class PeerTable {
  public:
    // Prints the heading; `width` is the entry column's, `note` follows the heading.
    PeerTable(const Recorder& recorder, int width, const char* entry, const char* note = "")
        : recorder_(recorder), width_(width) {
        std::printf("\n%-*s %-8s %8s %8s %8s %10s %10s%s\n", width_, entry, "brng", "ns", "numpy",
                    "GSL", "numpy/us", "GSL/us", note);
    }

    // The best time of the benchmark `name` over `items` variates, in ns an item; 0 when
    // it did not run.
    double Nanos(const std::string& name, double items) const {
        auto at = recorder_.seconds.find(name);
        return at == recorder_.seconds.end() ? 0.0 : at->second * 1e9 / items;
    }

    // One line, left out when ours did not run; a peer that did not run shows 0.
    void Row(const char* entry, const char* brng, double ours, double numpy, double gsl) const {
        if (ours == 0) return;
        std::printf("%-*s %-8s %8.2f %8.2f %8.2f %10.2f %10.2f\n", width_, entry, brng, ours, numpy,
                    gsl, numpy / ours, gsl / ours);
    }

  private:
    const Recorder& recorder_;
    int width_;
};

} // namespace brenn::bench

#endif
