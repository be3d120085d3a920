// Missing values (BRENN_SS_MISSING_VALS): NaN marks a missing entry of the variables
// that the indices keep. EM for the multivariate normal gives the maximum-likelihood
// mean and covariance (divisor n); data augmentation from there (Schafer 1997, normal
// model, Jeffreys prior) gives `missingSimCount` imputations, each after a fixed number
// of imputation/posterior steps of one chain. Both precisions compute in double on a
// compact copy of the active variables (missing_model.h); the caller's x is only read.
#include <math.h>
#include <string.h>

#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/threader.h"
#include "stats/missing_draws.h"
#include "stats/missing_model.h"
#include "stats/variable_loop.h"

namespace brenn::stats {
namespace {

using missing::Model;

// missingParams, in order, with their defaults.
struct Settings {
    int64_t limit = 1000; // EM iterations at most
    double tol = 1e-6;    // EM's relative tolerance
    int64_t steps = 10;   // augmentation steps between two imputations
    uint32_t seed = 1;    // of the MT19937 stream
};
constexpr int64_t kParamCount = 4;

bool WholeIn(double v, double low, double high) {
    return v >= low && v <= high && v == floor(v);
}

template <typename T>
int32_t ReadSettings(const SSTask* task, Settings* s) {
    int64_t count = 0;
    if (task->missingParamCount != nullptr) count = ReadIndexWord(task, task->missingParamCount);
    if (count < 0 || count > kParamCount) return BRENN_SS_ERROR_MISSING_PARAM_COUNT;
    if (count == 0) return 0;
    if (task->missingParams == nullptr) return BRENN_SS_ERROR_MISSING_PARAMS_MISSING;
    const T* v = static_cast<const T*>(task->missingParams);
    double w[kParamCount];
    for (int64_t k = 0; k < count; ++k)
        w[k] = static_cast<double>(v[k]);
    if (count > 0 && !WholeIn(w[0], 1.0, 0x1p53)) return BRENN_SS_ERROR_MISSING_PARAMS_MISSING;
    if (count > 1 && !(w[1] > 0.0 && w[1] < INFINITY)) return BRENN_SS_ERROR_MISSING_PARAMS_MISSING;
    if (count > 2 && !WholeIn(w[2], 1.0, 0x1p53)) return BRENN_SS_ERROR_MISSING_PARAMS_MISSING;
    if (count > 3 && !WholeIn(w[3], 0.0, 4294967295.0))
        return BRENN_SS_ERROR_MISSING_PARAMS_MISSING;
    if (count > 0) s->limit = static_cast<int64_t>(w[0]);
    if (count > 1) s->tol = w[1];
    if (count > 2) s->steps = static_cast<int64_t>(w[2]);
    if (count > 3) s->seed = static_cast<uint32_t>(w[3]);
    return 0;
}

// NaN by its bits, so that a signalling NaN is found without raising a flag.
inline bool IsMissing(double v) {
    uint64_t b;
    memcpy(&b, &v, 8);
    return (b & 0x7fffffffffffffffULL) > 0x7ff0000000000000ULL;
}
inline bool IsMissing(float v) {
    uint32_t b;
    memcpy(&b, &v, 4);
    return (b & 0x7fffffffu) > 0x7f800000u;
}

template <typename T>
T At(const Observations<T>& o, int64_t i, int64_t j) {
    return o.variableRows ? o.x[j * o.n + i] : o.x[i * o.p + j];
}

bool Active(const SSTask* task, int64_t j) {
    return task->indices == nullptr || ReadIndexWord(task, task->indices, j) != 0;
}

// Missing entries of the active variables.
template <typename T>
int64_t CountMissing(const SSTask* task, const Observations<T>& o) {
    int64_t k = 0;
    for (int64_t j = 0; j < o.p; ++j)
        if (Active(task, j))
            for (int64_t i = 0; i < o.n; ++i)
                k += IsMissing(At(o, i, j));
    return k;
}

// The active variables into the model, each scaled by the power of two that brings its
// largest observed magnitude into [1, 2).
template <typename T>
void LoadModel(const Observations<T>& o, const int64_t* act, Model* m) {
    const int64_t n = m->n, q = m->q;
    for (int64_t c = 0; c < q; ++c) {
        double* y = m->y + c * n;
        double top = 0.0;
        for (int64_t i = 0; i < n; ++i) {
            const T v = At(o, i, act[c]);
            const bool gone = IsMissing(v);
            m->miss[i * q + c] = gone;
            y[i] = gone ? 0.0 : static_cast<double>(v);
            if (!gone && fabs(y[i]) > top) top = fabs(y[i]);
        }
        m->scale[c] = top > 0.0 && top < INFINITY ? ldexp(1.0, -ilogb(top)) : 1.0;
        for (int64_t i = 0; i < n; ++i)
            y[i] *= m->scale[c];
    }
}

template <typename T>
void StoreEstimates(const SSTask* task, int64_t p, const int64_t* act, const Model& m) {
    T* mean = static_cast<T*>(task->missingMeans);
    T* cov = static_cast<T*>(task->missingCovs);
    const int64_t q = m.q;
    for (int64_t c = 0; c < q; ++c) {
        mean[act[c]] = static_cast<T>(m.mean[c] / m.scale[c]);
        for (int64_t d = 0; d < q; ++d)
            cov[act[c] * p + act[d]] = static_cast<T>(m.cov[c + d * q] / m.scale[c] / m.scale[d]);
    }
}

// Imputation `k`: its missing entries in the order of x's memory, and its means.
template <typename T>
void StoreImputation(const SSTask* task, const Observations<T>& o, const int64_t* act,
                     const Model& m, const double* completedMean, int64_t k) {
    const int64_t n = m.n, q = m.q;
    T* out = static_cast<T*>(task->missingPatterns) + k * m.missing;
    if (o.variableRows) {
        for (int64_t c = 0; c < q; ++c)
            for (int64_t i = 0; i < n; ++i)
                if (m.miss[i * q + c]) *out++ = static_cast<T>(m.y[i + c * n] / m.scale[c]);
    } else {
        for (int64_t i = 0; i < n; ++i)
            for (int64_t c = 0; c < q; ++c)
                if (m.miss[i * q + c]) *out++ = static_cast<T>(m.y[i + c * n] / m.scale[c]);
    }
    T* means = static_cast<T*>(task->missingSimMeans) + k * o.p;
    for (int64_t c = 0; c < q; ++c)
        means[act[c]] = static_cast<T>(completedMean[c] / m.scale[c]);
}

// What a call owns; everything is freed by Release on every path.
struct Owned {
    char* model = nullptr;
    char* extra = nullptr;
    void* stream = nullptr;
    Model m{};
};

void Release(Owned* w) {
    missing::CloseStream(&w->stream);
    FreeChunkScratch(&w->m.scratch);
    if (w->extra != nullptr) brenn_serv_deallocate(w->extra);
    if (w->model != nullptr) brenn_serv_deallocate(w->model);
}

template <typename T>
int32_t Run(const SSTask* task, const Observations<T>& o, const Settings& st, int64_t sims,
            const threader* thr, Owned* w) {
    const int64_t p = o.p, n = o.n;
    int64_t* act = nullptr;
    size_t modelBytes = 0, actBytes = 0;
    if (!BytesFor(p, sizeof(int64_t), &actBytes) || !missing::ModelBytes(n, p, &modelBytes) ||
        !AddBytes(&modelBytes, (actBytes + 127) & ~size_t(127)))
        return BRENN_SS_ERROR_ALLOC;
    if ((w->model = static_cast<char*>(brenn_serv_allocate(modelBytes, 128))) == nullptr)
        return BRENN_SS_ERROR_ALLOC;
    act = reinterpret_cast<int64_t*>(w->model);
    int64_t q = 0;
    for (int64_t j = 0; j < p; ++j)
        if (Active(task, j)) act[q++] = j;
    if (q == 0) return 0;
    if (n <= q) return BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
    Model& m = w->m;
    missing::PlaceModel(&m, n, q, w->model + ((actBytes + 127) & ~size_t(127)));
    LoadModel(o, act, &m);
    missing::GroupPatterns(&m);
    // Beside the model: EM's previous iterate, then the augmentation's Gaussians, the
    // completed means and the posterior step's work.
    size_t extra = 0;
    if (!AddBytesFor(&extra, q * q + q, sizeof(double)) ||
        (sims > 0 && (!AddBytesFor(&extra, m.missing, sizeof(double)) ||
                      !AddBytesFor(&extra, 3 * q * q + 2 * q, sizeof(double)))))
        return BRENN_SS_ERROR_ALLOC;
    if ((w->extra = static_cast<char*>(brenn_serv_allocate(extra, 128))) == nullptr)
        return BRENN_SS_ERROR_ALLOC;
    double* oldCov = reinterpret_cast<double*>(w->extra);
    double* oldMean = oldCov + q * q;
    double* z = oldMean + q;
    double* completedMean = z + (sims > 0 ? m.missing : 0);
    double* work = completedMean + q;
    if (int32_t s = MakeChunkScratch(thr, missing::SlotBytes(q), &m.scratch)) return s;
    if (int32_t s = missing::StartingValues(&m)) return s;
    int32_t status = missing::RunEm(&m, st.limit, st.tol, oldMean, oldCov);
    if (status == BRENN_SS_ERROR_NO_CONVERGENCE || status == 0) StoreEstimates<T>(task, p, act, m);
    if (status != 0 || sims == 0) return status;
    // A covariance that EM reached without factoring it (nothing missing) is checked here.
    memcpy(oldCov, m.cov, q * q * sizeof(double));
    if (!CholeskyLower(static_cast<int>(q), oldCov)) return BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
    if ((status = missing::OpenStream(st.seed, &w->stream)) != 0) return status;
    for (int64_t k = 0; k < sims; ++k) {
        for (int64_t s = 0; s < st.steps; ++s) {
            if ((status = missing::Gaussians(w->stream, m.missing, z)) != 0 ||
                (status = missing::FillMissing(&m, z)) != 0 ||
                (status = missing::DrawParameters(&m, w->stream, completedMean, work)) != 0)
                return status;
        }
        StoreImputation(task, o, act, m, completedMean, k);
    }
    return 0;
}

template <typename T>
int32_t MissingValues(void* handle, uint64_t estimates, uint64_t method, const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    const SSTask* task = static_cast<const SSTask*>(handle);
    if ((estimates & BRENN_SS_MISSING_VALS) == 0) return BRENN_SS_OK;
    Observations<T> o{};
    if (int32_t s = CheckObservations(task, &o)) return s;
    if (!KnownLayout(ReadIndexWord(task, task->observationStorage))) return BRENN_SS_ERROR_STORAGE;
    Settings st;
    if (int32_t s = ReadSettings<T>(task, &st)) return s;
    if (task->missingMeans == nullptr) return BRENN_SS_ERROR_MISSING_MEANS_MISSING;
    if (task->missingMeanCount == nullptr || ReadIndexWord(task, task->missingMeanCount) < o.p)
        return BRENN_SS_ERROR_MISSING_MEAN_COUNT;
    if (task->missingCovs == nullptr) return BRENN_SS_ERROR_MISSING_COVS_MISSING;
    // p * p words, and p no larger than the matrix could ever be made for.
    if (o.p > (int64_t(1) << 24)) return BRENN_SS_ERROR_ALLOC;
    if (task->missingCovCount == nullptr || ReadIndexWord(task, task->missingCovCount) < o.p * o.p)
        return BRENN_SS_ERROR_MISSING_COV_COUNT;
    int64_t sims = 0;
    if (task->missingSimCount != nullptr) sims = ReadIndexWord(task, task->missingSimCount);
    if (sims < 0) return BRENN_SS_ERROR_MISSING_SIM_COUNT;
    if (sims > 0) {
        if (task->missingSimMeans == nullptr) return BRENN_SS_ERROR_MISSING_SIM_MEANS_MISSING;
        if (task->missingPatterns == nullptr) return BRENN_SS_ERROR_MISSING_PATTERNS_MISSING;
        const int64_t k = CountMissing(task, o);
        int64_t words;
        if (task->missingPatternCount == nullptr || __builtin_mul_overflow(sims, k, &words) ||
            ReadIndexWord(task, task->missingPatternCount) < words)
            return BRENN_SS_ERROR_MISSING_PATTERN_COUNT;
    }
    if (method != BRENN_SS_METHOD_FAST) return BRENN_SS_ERROR_METHOD;
    Owned w;
    int32_t status = Run<T>(task, o, st, sims, thr, &w);
    Release(&w);
    return status;
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSMissingValues(void* task, uint64_t estimates, uint64_t method,
                                          const threader* thr) {
    return brenn::stats::MissingValues<double>(task, estimates, method, thr);
}

BRENN_EXPORT int32_t _qessSSMissingValues(void* task, uint64_t estimates, uint64_t method,
                                          const threader* thr) {
    return brenn::stats::MissingValues<float>(task, estimates, method, thr);
}
