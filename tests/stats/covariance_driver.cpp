// Driver of the numpy/scipy comparison of the partial, pooled and parametrized
// covariance and the Mahalanobis distances (covariance_numpy_check.py): reads one case
// from a file, runs the entry and writes status and results.
//
// A case: int64 kind (0 partial, 1 pooled, 2 parametrization, 3 Mahalanobis), single,
// p, n, layout, g (pooled: groups; parametrization: 1 if weights follow), hasIndices,
// form (storage word of the matrix results and inputs); then by kind:
//   0: float64 x[p * n] in the layout, int64 partial[p]
//   1: float64 x[p * n], int64 labels[n]
//   2: float64 a[p * p] (full), float64 tolerance, limit, [float64 weights[p]]
//   3: float64 x[p * n], mean[p], cov[p * p] (full)
// then int64 indices[p] when present. Its answer: int64 status, then float64 arrays in
// their storage forms:
//   0: covariance (p x p), partial covariance, partial correlation (ny x ny)
//   1: group means (g x p), group covariances (g matrices), pooled mean, pooled cov
//   2: the parametrized correlation
//   3: n distances
#include <cstdio>
#include <vector>

#include "brenn_stats.h"
#include "platform/threader.h"
#include "tests/stats/covariance_api.h"
#include "tests/stats/driver_files.h"

namespace {

template <typename V>
bool Read(FILE* in, std::vector<V>* v, size_t n) {
    v->resize(n);
    return n == 0 || std::fread(v->data(), sizeof(V), n, in) == n;
}

using brenn::test::covariance::Api;
constexpr uint64_t kFast = BRENN_SS_METHOD_FAST;

int64_t FormSize(int64_t form, int64_t p) {
    return form == 0 ? p * p : p * (p + 1) / 2;
}

template <typename T>
std::vector<T> Cast(const std::vector<double>& v) {
    return std::vector<T>(v.begin(), v.end());
}

template <typename T>
void Put(std::vector<double>* out, const std::vector<T>& v) {
    out->insert(out->end(), v.begin(), v.end());
}

template <typename T>
int64_t Run(FILE* in, const int64_t* h, std::vector<double>* out) {
    const int64_t kind = h[0], p = h[2], n = h[3], layout = h[4], g = h[5], form = h[7];
    std::vector<double> xs, extra, weights;
    std::vector<int64_t> words, indices;
    bool ok = true;
    if (kind == 2) {
        ok = Read(in, &xs, p * p) && Read(in, &extra, 2) && (g == 0 || Read(in, &weights, p));
    } else {
        ok = Read(in, &xs, p * n);
        if (kind == 0) ok = ok && Read(in, &words, p);
        if (kind == 1) ok = ok && Read(in, &words, n);
        if (kind == 3) ok = ok && Read(in, &extra, p + p * p);
    }
    if (h[6] != 0) ok = ok && Read(in, &indices, p);
    if (!ok) return -1;
    std::vector<T> x = Cast<T>(xs), e = Cast<T>(extra), w = Cast<T>(weights);
    void* task = nullptr;
    int64_t status = Api<T>::New(&task, &p, &n, &layout, kind == 2 ? nullptr : x.data(),
                                 indices.empty() ? nullptr : indices.data());
    if (status != 0) return status;
    _qesiSSEditTask(task, BRENN_SS_ED_COV_STORAGE, &form);
    _qesiSSEditTask(task, BRENN_SS_ED_COR_STORAGE, &form);
    if (kind == 0) {
        int64_t ny = 0;
        for (int64_t j = 0; j < p; ++j)
            ny += words[j] == 1 && (indices.empty() || indices[j] != 0);
        std::vector<T> mean(p), cov(p * p), pc(FormSize(form, ny) + 1), pr(pc.size());
        Api<T>::Edit(task, BRENN_SS_ED_MEAN, mean.data());
        Api<T>::Edit(task, BRENN_SS_ED_COV, cov.data());
        Api<T>::Edit(task, BRENN_SS_ED_PARTIAL_COV, pc.data());
        Api<T>::Edit(task, BRENN_SS_ED_PARTIAL_COR, pr.data());
        _qesiSSEditTask(task, BRENN_SS_ED_PARTIAL_COV_IDX, words.data());
        _qesiSSEditTask(task, BRENN_SS_ED_PARTIAL_COV_STORAGE, &form);
        _qesiSSEditTask(task, BRENN_SS_ED_PARTIAL_COR_STORAGE, &form);
        int64_t s = 0;
        _qesiSSEditTask(task, BRENN_SS_ED_COV_STORAGE, &s); // the covariance made full
        status = Api<T>::Partial(
            task, BRENN_SS_MEAN | BRENN_SS_COV | BRENN_SS_PARTIAL_COV | BRENN_SS_PARTIAL_COR, kFast,
            brenn_serv_pool_threader());
        pc.pop_back();
        pr.pop_back();
        Put(out, cov);
        Put(out, pc);
        Put(out, pr);
    } else if (kind == 1) {
        std::vector<T> gm(g * p), gc(g * FormSize(form, p)), pm(p), pcov(FormSize(form, p));
        _qesiSSEditTask(task, BRENN_SS_ED_POOLED_GROUP_N, &g);
        _qesiSSEditTask(task, BRENN_SS_ED_POOLED_STORAGE, words.data());
        _qesiSSEditTask(task, BRENN_SS_ED_GROUP_COV_STORAGE, &form);
        _qesiSSEditTask(task, BRENN_SS_ED_POOLED_COV_STORAGE, &form);
        Api<T>::Edit(task, BRENN_SS_ED_GROUP_MEAN, gm.data());
        Api<T>::Edit(task, BRENN_SS_ED_GROUP_COV, gc.data());
        Api<T>::Edit(task, BRENN_SS_ED_POOLED_MEAN, pm.data());
        Api<T>::Edit(task, BRENN_SS_ED_POOLED_COV, pcov.data());
        status = Api<T>::Pooled(task, BRENN_SS_POOLED_COV | BRENN_SS_GROUP_COV, kFast,
                                brenn_serv_pool_threader());
        Put(out, gm);
        Put(out, gc);
        Put(out, pm);
        Put(out, pcov);
    } else if (kind == 2) {
        // The input in the form too: the full matrix's triangle packed when asked.
        std::vector<T> a(FormSize(form, p)), r(FormSize(form, p));
        for (int64_t j = 0, k = 0; j < p; ++j)
            for (int64_t l = 0; l < p; ++l)
                if (form == 0 || (form == 1 && l >= j) || (form == 2 && l <= j))
                    a[k++] = x[j * p + l];
        Api<T>::Edit(task, BRENN_SS_ED_COR, a.data());
        Api<T>::Edit(task, BRENN_SS_ED_PARAMTR_COR, r.data());
        _qesiSSEditTask(task, BRENN_SS_ED_PARAMTR_COR_STORAGE, &form);
        if (g != 0) Api<T>::Edit(task, BRENN_SS_ED_MULTIPLIER_A, w.data());
        Api<T>::Edit(task, BRENN_SS_ED_MULTIPLIER_B, e.data());
        status = Api<T>::Param(task, BRENN_SS_PARAMTR_COR, kFast);
        Put(out, r);
    } else {
        std::vector<T> d(n);
        int64_t s = 0;
        _qesiSSEditTask(task, BRENN_SS_ED_COV_STORAGE, &s);
        Api<T>::Edit(task, BRENN_SS_ED_MEAN, e.data());
        Api<T>::Edit(task, BRENN_SS_ED_COV, e.data() + p);
        status = Api<T>::Mah(task, BRENN_SS_MAH_DIST, kFast, d.data(), brenn_serv_pool_threader());
        Put(out, d);
    }
    _qesSSDeleteTask(&task);
    return status;
}

} // namespace

int main(int argc, char** argv) {
    brenn::test::DriverFiles files(argc, argv);
    if (!files.ok()) return 2;
    FILE* in = files.in;
    FILE* out = files.out;
    int64_t h[8];
    while (std::fread(h, 8, 8, in) == 8) {
        std::vector<double> res;
        int64_t status = h[1] != 0 ? Run<float>(in, h, &res) : Run<double>(in, h, &res);
        if (status == -1) return 3;
        std::fwrite(&status, 8, 1, out);
        if (!res.empty()) std::fwrite(res.data(), 8, res.size(), out);
    }
    return 0;
}
