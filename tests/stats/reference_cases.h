// Reading the reference cases that make_reference.py writes (data drawn and estimates
// computed by numpy), and running the basic compute on one of them.
#ifndef BRENN_TESTS_STATS_REFERENCE_CASES_H
#define BRENN_TESTS_STATS_REFERENCE_CASES_H

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace brenn::test {

struct ReferenceCase {
    int64_t p = 0, n = 0, layout = 0;
    bool weighted = false, hasIndices = false;
    int64_t flags = 0; // 1: leading zero weights, 2: large common offset
    std::vector<double> x, w;
    std::vector<int64_t> indices;
    std::vector<double> vectors[17]; // mean, raw 2-4, central 2-4, kurtosis, skewness,
                                     // variation, sum, raw sums 2-4, central sums 2-4
    std::vector<double> cov, cor, cp;
};

inline std::vector<ReferenceCase> ReadReferenceCases(const char* path) {
    std::vector<ReferenceCase> cases;
    FILE* f = std::fopen(path, "rb");
    if (f == nullptr) return cases;
    auto read = [&](void* dst, size_t bytes) { return std::fread(dst, 1, bytes, f) == bytes; };
    for (;;) {
        int64_t head[6];
        if (!read(head, sizeof head)) break;
        ReferenceCase c;
        c.p = head[0];
        c.n = head[1];
        c.layout = head[2];
        c.weighted = head[3] != 0;
        c.hasIndices = head[4] != 0;
        c.flags = head[5];
        c.x.resize(c.p * c.n);
        read(c.x.data(), c.x.size() * 8);
        if (c.weighted) {
            c.w.resize(c.n);
            read(c.w.data(), c.n * 8);
        }
        if (c.hasIndices) {
            c.indices.resize(c.p);
            read(c.indices.data(), c.p * 8);
        }
        for (auto& v : c.vectors) {
            v.resize(c.p);
            read(v.data(), c.p * 8);
        }
        for (auto* m : {&c.cov, &c.cor, &c.cp}) {
            m->resize(c.p * c.p);
            read(m->data(), c.p * c.p * 8);
        }
        cases.push_back(std::move(c));
    }
    std::fclose(f);
    return cases;
}

} // namespace brenn::test

#endif
