// Driver of the numpy/scipy comparison of the order-based estimates
// (order_numpy_check.py): reads cases from a file, runs quantiles with order statistics,
// the sort or the MAD on each, and writes status and results for the script to check.
//
// A case: int64 kind (0 quantiles and order statistics, 1 sort, 2 sort in place, 3 MAD,
// 4 weighted median with unit weights),
// single, p, n, layout, outLayout, m, hasIndices; then float64 x[p * n] in the layout,
// orders[m], and int64 indices[p] when present. Its answer: int64 status; float64
// quantiles[p * m] and results[p * n] (order statistics or sorted values, in outLayout;
// for the MAD and the weighted median p values, then untouched ones). Results of variables left out
// hold 12345.
#include <cstdio>
#include <vector>

#include "brenn_stats.h"
#include "platform/threader.h"
#include "tests/stats/driver_files.h"

namespace {

constexpr double kUntouched = 12345.0;

// Empty vectors may have no address: nothing is passed to the C library then.
void Write(FILE* out, const std::vector<double>& v) {
    if (!v.empty()) std::fwrite(v.data(), 8, v.size(), out);
}

template <typename T>
int64_t Run(const int64_t* h, const std::vector<double>& xs, const std::vector<double>& os,
            const std::vector<int64_t>& indices, std::vector<double>* quant,
            std::vector<double>* res) {
    const int64_t kind = h[0], p = h[2], n = h[3], layout = h[4], outLayout = h[5], m = h[6];
    // With m = 0 the arrays still need an address: an empty vector may have none.
    std::vector<T> x(xs.begin(), xs.end()), orders(os.begin(), os.end());
    orders.reserve(1);
    std::vector<T> q(p * m, T(kUntouched)), r(p * n, T(kUntouched));
    q.reserve(1);
    void* task = nullptr;
    int64_t status;
    const int64_t* idx = h[7] ? indices.data() : nullptr;
    if constexpr (sizeof(T) == 8)
        status = _qesdSSNewTask(&task, &p, &n, &layout, x.data(), nullptr, idx, 1);
    else
        status = _qessSSNewTask(&task, &p, &n, &layout, x.data(), nullptr, idx, 1);
    if (status != 0) return status;
    const threader* pool = brenn_serv_pool_threader();
    if (kind == 0) {
        if constexpr (sizeof(T) == 8)
            __qesdSSEditQuantiles(task, (void*)&m, orders.data(), q.data(), r.data(),
                                  (void*)&outLayout);
        else
            __qessSSEditQuantiles(task, (void*)&m, orders.data(), q.data(), r.data(),
                                  (void*)&outLayout);
        const uint64_t e = BRENN_SS_QUANTS | BRENN_SS_ORDER_STATS;
        status = sizeof(T) == 8 ? _qesdSSQuantiles(task, e, BRENN_SS_METHOD_FAST, pool)
                                : _qessSSQuantiles(task, e, BRENN_SS_METHOD_FAST, pool);
    } else if (kind == 1 || kind == 2) {
        T* out = kind == 2 ? x.data() : r.data();
        const int64_t* storage = kind == 2 ? &layout : &outLayout;
        status = _qesiSSEditTask(task, BRENN_SS_ED_SORTED_OBSERV_STORAGE, storage);
        if (status == 0) {
            if constexpr (sizeof(T) == 8)
                status = _qesdSSEditTask(task, BRENN_SS_ED_SORTED_OBSERV, out);
            else
                status = _qessSSEditTask(task, BRENN_SS_ED_SORTED_OBSERV, out);
        }
        if (status == 0) {
            if constexpr (sizeof(T) == 8)
                status = _qesdSSSort(task, BRENN_SS_SORTED_OBSERV, BRENN_SS_METHOD_FAST, pool);
            else
                status = _qessSSSort(task, BRENN_SS_SORTED_OBSERV, BRENN_SS_METHOD_FAST, pool);
        }
        if (kind == 2) r = x;
    } else if (kind == 4) {
        std::vector<T> ones(n, T(1));
        if constexpr (sizeof(T) == 8) {
            _qesdSSEditTask(task, BRENN_SS_ED_WEIGHTS, ones.data());
            _qesdSSEditTask(task, BRENN_SS_ED_QUANT_QUANTILES, r.data());
            status = _qesdSSWMedian(task);
        } else {
            _qessSSEditTask(task, BRENN_SS_ED_WEIGHTS, ones.data());
            _qessSSEditTask(task, BRENN_SS_ED_QUANT_QUANTILES, r.data());
            status = _qessSSWMedian(task);
        }
    } else {
        if constexpr (sizeof(T) == 8)
            status = _qesdSSMAD(task, BRENN_SS_MDAD, BRENN_SS_METHOD_FAST, r.data(), pool);
        else
            status = _qessSSMAD(task, BRENN_SS_MDAD, BRENN_SS_METHOD_FAST, r.data(), pool);
    }
    // Except for the sort in place, the observations must come back unchanged.
    for (int64_t i = 0; kind != 2 && i < p * n && status == 0; ++i)
        if (static_cast<double>(x[i]) != xs[i]) status = -1;
    _qesSSDeleteTask(&task);
    quant->assign(q.begin(), q.end());
    res->assign(r.begin(), r.end());
    return status;
}

} // namespace

int main(int argc, char** argv) {
    brenn::test::DriverFiles files(argc, argv);
    if (!files.ok()) return 2;
    FILE* in = files.in;
    FILE* out = files.out;
    int64_t h[8];
    while (brenn::test::ReadArray(in, h, 8)) {
        const int64_t p = h[2], n = h[3], m = h[6];
        std::vector<double> x(p * n), orders(m), quant, res;
        std::vector<int64_t> indices(p);
        if (!brenn::test::ReadArray(in, x.data(), x.size()) ||
            !brenn::test::ReadArray(in, orders.data(), orders.size()) ||
            (h[7] && !brenn::test::ReadArray(in, indices.data(), indices.size())))
            return 3;
        int64_t status = h[1] ? Run<float>(h, x, orders, indices, &quant, &res)
                              : Run<double>(h, x, orders, indices, &quant, &res);
        std::fwrite(&status, 8, 1, out);
        Write(out, quant);
        Write(out, res);
    }
    return 0;
}
