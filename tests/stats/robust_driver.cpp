// Driver of the sklearn and numpy comparison of the robust estimates (robust_check.py):
// reads cases from a file, runs the robust covariance or the outlier detection on each
// with the pool threader, and writes status and results for the script to check.
//
// A case: int64 kind (0 robust covariance, 1 outlier detection), single, p, n, layout,
// hasIndices, count; then float64 params[count], x[p * n] in the layout, and int64
// indices[p] when present. Its answer: int64 status; float64 mean[p], cov[p * p] (full)
// and weights[n].
#include <cstdio>
#include <vector>

#include "brenn_stats.h"
#include "platform/threader.h"
#include "tests/stats/driver_files.h"

namespace {

using brenn::test::ReadArray;

template <typename T>
int64_t Run(const int64_t* h, const std::vector<double>& ps, const std::vector<double>& xs,
            const std::vector<int64_t>& ind, std::vector<double>* out) {
    const int64_t kind = h[0], p = h[2], n = h[3], layout = h[4], count = h[6];
    const int64_t full = BRENN_SS_MATRIX_STORAGE_FULL;
    std::vector<T> x(xs.begin(), xs.end()), params(ps.begin(), ps.end());
    std::vector<T> mean(p, T(0)), cov(p * p, T(0)), w(n, T(-1));
    params.reserve(1);
    void* task = nullptr;
    int64_t status;
    const int64_t* idx = h[5] ? ind.data() : nullptr;
    if constexpr (sizeof(T) == 8)
        status = _qesdSSNewTask(&task, &p, &n, &layout, x.data(), nullptr, idx, 1);
    else
        status = _qessSSNewTask(&task, &p, &n, &layout, x.data(), nullptr, idx, 1);
    if (status != 0) return status;
    const threader* pool = brenn_serv_pool_threader();
    if constexpr (sizeof(T) == 8) {
        __qesdSSEditRCov(task, (void*)&full, (void*)&count, params.data(), mean.data(), cov.data());
        __qesdSSEditOutDetect(task, (void*)&count, params.data(), w.data());
        status = kind == 0 ? _qesdSSRobustCovariance(task, BRENN_SS_ROBUST_COV, 1, pool)
                           : _qesdSSOutliersDetection(task, BRENN_SS_OUTLIERS, 1, pool);
    } else {
        __qessSSEditRCov(task, (void*)&full, (void*)&count, params.data(), mean.data(), cov.data());
        __qessSSEditOutDetect(task, (void*)&count, params.data(), w.data());
        status = kind == 0 ? _qessSSRobustCovariance(task, BRENN_SS_ROBUST_COV, 1, pool)
                           : _qessSSOutliersDetection(task, BRENN_SS_OUTLIERS, 1, pool);
    }
    _qesSSDeleteTask(&task);
    out->assign(mean.begin(), mean.end());
    out->insert(out->end(), cov.begin(), cov.end());
    out->insert(out->end(), w.begin(), w.end());
    return status;
}

} // namespace

int main(int argc, char** argv) {
    brenn::test::DriverFiles files(argc, argv);
    if (!files.ok()) return 2;
    int64_t h[7];
    while (std::fread(h, 8, 7, files.in) == 7) {
        const int64_t p = h[2], n = h[3];
        std::vector<double> params(h[6]), x(p * n), result;
        std::vector<int64_t> ind(h[5] ? p : 0);
        if (!ReadArray(files.in, params.data(), params.size()) ||
            !ReadArray(files.in, x.data(), x.size()) ||
            !ReadArray(files.in, ind.data(), ind.size()))
            return 3;
        const int64_t status =
            h[1] ? Run<float>(h, params, x, ind, &result) : Run<double>(h, params, x, ind, &result);
        std::fwrite(&status, 8, 1, files.out);
        std::fwrite(result.data(), 8, result.size(), files.out);
    }
    return 0;
}
