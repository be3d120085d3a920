// Driver of the numpy comparison of the missing-value estimates (missing_numpy_check.py):
// reads cases from a file, runs _qes{d,s}SSMissingValues on the pool threader, and
// writes status and results for the script to check.
//
// A case: int64 single, p, n, layout, sims, paramCount; then float64 x[p * n] in the
// layout (NaN missing) and params[paramCount]. Its answer: int64 status, int64 K (the
// missing entries); float64 means[p], covs[p * p], patterns[sims * K], simMeans[sims * p].
#include <cmath>
#include <cstdio>
#include <vector>

#include "brenn_stats.h"
#include "platform/threader.h"
#include "tests/stats/driver_files.h"

namespace {

template <typename T>
int64_t Run(const int64_t* h, const std::vector<double>& xs, const std::vector<double>& ps,
            int64_t* k, std::vector<double>* out) {
    int64_t p = h[1], n = h[2], layout = h[3], sims = h[4], paramCount = h[5];
    std::vector<T> x(xs.begin(), xs.end()), params(ps.begin(), ps.end());
    params.reserve(1);
    *k = 0;
    for (T v : x)
        *k += std::isnan(double(v));
    int64_t patternCount = sims * *k, meanCount = p, covCount = p * p;
    std::vector<T> means(p), covs(p * p), patterns(patternCount + 1), simMeans(sims * p + 1);
    void* task = nullptr;
    int64_t status;
    const threader* pool = brenn_serv_pool_threader();
    if constexpr (sizeof(T) == 8) {
        status = _qesdSSNewTask(&task, &p, &n, &layout, x.data(), nullptr, nullptr, 1);
        __qesdSSEditMissingVals(task, &paramCount, params.data(), &patternCount, patterns.data(),
                                &sims, simMeans.data(), &meanCount, means.data(), &covCount,
                                covs.data());
        if (status == 0) status = _qesdSSMissingValues(task, BRENN_SS_MISSING_VALS, 1, pool);
    } else {
        status = _qessSSNewTask(&task, &p, &n, &layout, x.data(), nullptr, nullptr, 1);
        __qessSSEditMissingVals(task, &paramCount, params.data(), &patternCount, patterns.data(),
                                &sims, simMeans.data(), &meanCount, means.data(), &covCount,
                                covs.data());
        if (status == 0) status = _qessSSMissingValues(task, BRENN_SS_MISSING_VALS, 1, pool);
    }
    _qesSSDeleteTask(&task);
    out->assign(means.begin(), means.end());
    out->insert(out->end(), covs.begin(), covs.end());
    out->insert(out->end(), patterns.begin(), patterns.begin() + patternCount);
    out->insert(out->end(), simMeans.begin(), simMeans.begin() + sims * p);
    return status;
}

} // namespace

int main(int argc, char** argv) {
    brenn::test::DriverFiles files(argc, argv);
    if (!files.ok()) return 2;
    FILE* in = files.in;
    FILE* out = files.out;
    int64_t h[6];
    while (std::fread(h, 8, 6, in) == 6) {
        std::vector<double> x(h[1] * h[2]), params(h[5]);
        if (std::fread(x.data(), 8, x.size(), in) != x.size()) return 2;
        if (!params.empty() && std::fread(params.data(), 8, params.size(), in) != params.size())
            return 2;
        int64_t k;
        std::vector<double> r;
        int64_t status =
            h[0] ? Run<float>(h, x, params, &k, &r) : Run<double>(h, x, params, &k, &r);
        std::fwrite(&status, 8, 1, out);
        std::fwrite(&k, 8, 1, out);
        std::fwrite(r.data(), 8, r.size(), out);
    }
    return 0;
}
