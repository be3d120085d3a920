// The steps of the normal model of missing values that EM and data augmentation share:
// the grouping of rows by pattern, the conditional fill of a pattern's rows, the
// completed data's sums, the starting values and the EM loop (missing_model.h).
#include "stats/missing_model.h"

#include <algorithm>
#include <math.h>
#include <string.h>

#include "brenn_stats.h"

namespace brenn::stats::missing {
namespace {

size_t Align(size_t b) {
    return (b + 127) & ~size_t(127);
}

// The chunk's first item is c * count / chunks.
int64_t ChunkBegin(int64_t c, int64_t count, int64_t chunks) {
    return static_cast<int64_t>((static_cast<unsigned __int128>(c) * count) / chunks);
}

// Chunks of work: at most kChunks, each of at least kChunkRows rows, so that small
// data sets stay on the calling thread.
int64_t Chunks(int64_t rows, int64_t most) {
    int64_t c = (rows + kChunkRows - 1) / kChunkRows;
    if (c > most) c = most;
    return c < 1 ? 1 : c;
}

struct FillJob {
    Model* m;
    const double* z;
    int64_t chunks;
};

// The pattern's conditional regression: with Soo = L L' the Cholesky factor of the
// observed block, V = L^-1 Som, the conditional covariance is Smm - V'V (formed
// symmetric, so that it factors when it should) and the coefficients B = L'^-1 V =
// Soo^-1 Som.
int32_t FillPatterns(void* context, int64_t chunk, void* scratch) {
    const FillJob& job = *static_cast<const FillJob*>(context);
    Model& m = *job.m;
    const int64_t n = m.n, q = m.q;
    int64_t* obs = static_cast<int64_t*>(scratch);
    int64_t* mis = obs + q;
    double* soo = reinterpret_cast<double*>(mis + q);
    double* b = soo + q * q;
    double* cc = b + q * q;
    double* r = cc + q * q;
    double* acc = nullptr;
    if (job.z == nullptr) {
        acc = m.chunkSums + chunk * (q + q * q) + q;
        memset(acc, 0, q * q * sizeof(double));
    }
    const int64_t p0 = ChunkBegin(chunk, m.patterns, job.chunks);
    const int64_t p1 = ChunkBegin(chunk + 1, m.patterns, job.chunks);
    for (int64_t pt = p0; pt < p1; ++pt) {
        const uint8_t* mask = m.miss + m.order[m.patternStart[pt]] * q;
        int qo = 0, qm = 0;
        for (int64_t c = 0; c < q; ++c) {
            if (mask[c])
                mis[qm++] = c;
            else
                obs[qo++] = c;
        }
        for (int a = 0; a < qm; ++a)
            for (int c = 0; c < qm; ++c)
                cc[a + c * qm] = m.cov[mis[a] + mis[c] * q];
        if (qo > 0) {
            for (int a = 0; a < qo; ++a)
                for (int c = 0; c < qo; ++c)
                    soo[a + c * qo] = m.cov[obs[a] + obs[c] * q];
            for (int a = 0; a < qo; ++a)
                for (int c = 0; c < qm; ++c)
                    b[a + c * qo] = m.cov[obs[a] + mis[c] * q];
            if (!CholeskyLower(qo, soo)) return BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
            SolveLower(soo, qo, b, qm, false);
            AddGram(b, qo, qm, -1.0, cc);
            SolveLower(soo, qo, b, qm, true);
        }
        const int64_t first = m.patternStart[pt], rows = m.patternStart[pt + 1] - first;
        if (acc != nullptr) {
            const double weight = static_cast<double>(rows);
            for (int c = 0; c < qm; ++c)
                for (int a = c; a < qm; ++a)
                    acc[mis[a] + mis[c] * q] += weight * cc[a + c * qm];
        } else {
            if (!CholeskyLower(qm, cc)) return BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
        }
        for (int64_t k = 0; k < rows; ++k) {
            const int64_t i = m.order[first + k];
            for (int a = 0; a < qo; ++a)
                r[a] = m.y[i + obs[a] * n] - m.mean[obs[a]];
            const double* z = job.z == nullptr ? nullptr : job.z + m.drawStart[pt] + k * qm;
            for (int c = 0; c < qm; ++c) {
                double v = 0.0;
                for (int a = 0; a < qo; ++a)
                    v += b[a + c * qo] * r[a];
                if (z != nullptr)
                    for (int a = 0; a <= c; ++a)
                        v += cc[c + a * qm] * z[a];
                m.y[i + mis[c] * n] = m.mean[mis[c]] + v;
            }
        }
    }
    return 0;
}

struct SumJob {
    Model* m;
    const double* mean; // null: the column sums pass
    int64_t chunks;
};

int32_t SumRows(void* context, int64_t chunk, void* scratch) {
    const SumJob& job = *static_cast<const SumJob*>(context);
    Model& m = *job.m;
    const int64_t n = m.n, q = m.q;
    const int64_t i0 = ChunkBegin(chunk, n, job.chunks), i1 = ChunkBegin(chunk + 1, n, job.chunks);
    double* out = m.chunkSums + chunk * (q + q * q);
    if (job.mean == nullptr) {
        for (int64_t c = 0; c < q; ++c) {
            const double* v = m.y + c * n;
            double s = 0.0;
            for (int64_t i = i0; i < i1; ++i)
                s += v[i];
            out[c] = s;
        }
        return 0;
    }
    double* cp = out + q;
    memset(cp, 0, q * q * sizeof(double));
    double* d = static_cast<double*>(scratch);
    for (int64_t s = i0; s < i1; s += kSubRows) {
        const int64_t rows = std::min(kSubRows, i1 - s);
        for (int64_t c = 0; c < q; ++c) {
            const double* v = m.y + c * n + s;
            const double mu = job.mean[c];
            for (int64_t k = 0; k < rows; ++k)
                d[k + c * rows] = v[k] - mu;
        }
        AddGram(d, rows, q, 1.0, cp);
    }
    return 0;
}

bool Converged(const Model& m, const double* oldMean, const double* oldCov, double tol) {
    const int64_t q = m.q;
    for (int64_t a = 0; a < q; ++a) {
        const double sa = sqrt(m.cov[a + a * q]);
        if (!(fabs(m.mean[a] - oldMean[a]) <= tol * sa)) return false;
        for (int64_t b = 0; b <= a; ++b) {
            const double bound = tol * sa * sqrt(m.cov[b + b * q]);
            if (!(fabs(m.cov[a + b * q] - oldCov[a + b * q]) <= bound)) return false;
        }
    }
    return true;
}

} // namespace

bool ModelBytes(int64_t n, int64_t q, size_t* bytes) {
    size_t nq;
    if (!BytesFor(n, 1, &nq) || __builtin_mul_overflow(nq, static_cast<size_t>(q), &nq))
        return false;
    const size_t sizes[] = {nq * sizeof(double),
                            nq,
                            static_cast<size_t>(q) * sizeof(double),
                            static_cast<size_t>(n) * sizeof(int64_t),
                            static_cast<size_t>(n + 1) * sizeof(int64_t),
                            static_cast<size_t>(n + 1) * sizeof(int64_t),
                            static_cast<size_t>(q) * sizeof(double),
                            static_cast<size_t>(q * q) * sizeof(double),
                            static_cast<size_t>(q * q) * sizeof(double),
                            static_cast<size_t>(kChunks * (q + q * q)) * sizeof(double)};
    if (nq > kBytesCeiling / sizeof(double)) return false;
    *bytes = 0;
    for (size_t s : sizes)
        if (!AddBytes(bytes, Align(s))) return false;
    return true;
}

size_t SlotBytes(int64_t q) {
    const size_t pattern = 2 * q * sizeof(int64_t) + (3 * q * q + q) * sizeof(double);
    const size_t rows = kSubRows * q * sizeof(double);
    return pattern > rows ? pattern : rows;
}

void PlaceModel(Model* m, int64_t n, int64_t q, char* block) {
    m->n = n;
    m->q = q;
    const size_t nq = static_cast<size_t>(n) * q;
    char* at = block;
    auto take = [&at](size_t bytes) {
        char* p = at;
        at += Align(bytes);
        return p;
    };
    m->y = reinterpret_cast<double*>(take(nq * sizeof(double)));
    m->miss = reinterpret_cast<uint8_t*>(take(nq));
    m->scale = reinterpret_cast<double*>(take(q * sizeof(double)));
    m->order = reinterpret_cast<int64_t*>(take(n * sizeof(int64_t)));
    m->patternStart = reinterpret_cast<int64_t*>(take((n + 1) * sizeof(int64_t)));
    m->drawStart = reinterpret_cast<int64_t*>(take((n + 1) * sizeof(int64_t)));
    m->mean = reinterpret_cast<double*>(take(q * sizeof(double)));
    m->cov = reinterpret_cast<double*>(take(q * q * sizeof(double)));
    m->condSum = reinterpret_cast<double*>(take(q * q * sizeof(double)));
    m->chunkSums = reinterpret_cast<double*>(take(kChunks * (q + q * q) * sizeof(double)));
    m->patterns = 0;
    m->missing = 0;
}

void GroupPatterns(Model* m) {
    const int64_t n = m->n, q = m->q;
    int64_t rows = 0, missing = 0;
    for (int64_t i = 0; i < n; ++i) {
        int64_t k = 0;
        for (int64_t c = 0; c < q; ++c)
            k += m->miss[i * q + c];
        if (k > 0) m->order[rows++] = i;
        missing += k;
    }
    m->missing = missing;
    const uint8_t* miss = m->miss;
    std::sort(m->order, m->order + rows, [miss, q](int64_t a, int64_t b) {
        int c = memcmp(miss + a * q, miss + b * q, q);
        return c != 0 ? c < 0 : a < b;
    });
    int64_t patterns = 0, draws = 0;
    for (int64_t k = 0; k < rows; ++k) {
        const int64_t i = m->order[k];
        if (k == 0 || memcmp(miss + i * q, miss + m->order[k - 1] * q, q) != 0) {
            m->patternStart[patterns] = k;
            m->drawStart[patterns] = draws;
            ++patterns;
        }
        for (int64_t c = 0; c < q; ++c)
            draws += miss[i * q + c];
    }
    m->patternStart[patterns] = rows;
    m->drawStart[patterns] = draws;
    m->patterns = patterns;
}

int32_t FillMissing(Model* m, const double* z) {
    const int64_t q = m->q;
    if (m->patterns == 0) {
        memset(m->condSum, 0, q * q * sizeof(double));
        return 0;
    }
    const int64_t most = m->patterns < kChunks ? m->patterns : kChunks;
    FillJob job{m, z, Chunks(m->patternStart[m->patterns], most)};
    int32_t status = ForEachChunk(&m->scratch, job.chunks, FillPatterns, &job);
    if (status != 0 || z != nullptr) return status;
    memset(m->condSum, 0, q * q * sizeof(double));
    for (int64_t c = 0; c < job.chunks; ++c) {
        const double* acc = m->chunkSums + c * (q + q * q) + q;
        for (int64_t k = 0; k < q * q; ++k)
            m->condSum[k] += acc[k];
    }
    return 0;
}

int32_t CompletedSums(Model* m, double* mean, double* scatter) {
    const int64_t q = m->q;
    SumJob job{m, nullptr, Chunks(m->n, kChunks)};
    int32_t status = ForEachChunk(&m->scratch, job.chunks, SumRows, &job);
    if (status != 0) return status;
    for (int64_t c = 0; c < q; ++c) {
        double s = 0.0;
        for (int64_t k = 0; k < job.chunks; ++k)
            s += m->chunkSums[k * (q + q * q) + c];
        mean[c] = s / static_cast<double>(m->n);
    }
    job.mean = mean;
    status = ForEachChunk(&m->scratch, job.chunks, SumRows, &job);
    if (status != 0) return status;
    memset(scatter, 0, q * q * sizeof(double));
    for (int64_t k = 0; k < job.chunks; ++k) {
        const double* cp = m->chunkSums + k * (q + q * q) + q;
        for (int64_t b = 0; b < q; ++b)
            for (int64_t a = b; a < q; ++a)
                scatter[a + b * q] += cp[a + b * q];
    }
    MirrorLower(q, scatter);
    return 0;
}

int32_t StartingValues(Model* m) {
    const int64_t n = m->n, q = m->q;
    memset(m->cov, 0, q * q * sizeof(double));
    for (int64_t c = 0; c < q; ++c) {
        const double* v = m->y + c * n;
        double s = 0.0;
        int64_t count = 0;
        for (int64_t i = 0; i < n; ++i)
            if (!m->miss[i * q + c]) {
                s += v[i];
                ++count;
            }
        if (count == 0) return BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
        const double mu = s / static_cast<double>(count);
        double ss = 0.0;
        for (int64_t i = 0; i < n; ++i)
            if (!m->miss[i * q + c]) ss += (v[i] - mu) * (v[i] - mu);
        const double var = ss / static_cast<double>(count);
        if (!(var > 0.0) || !(var < INFINITY)) return BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
        m->mean[c] = mu;
        m->cov[c + c * q] = var;
    }
    return 0;
}

int32_t RunEm(Model* m, int64_t limit, double tol, double* oldMean, double* oldCov) {
    const int64_t q = m->q;
    const double invN = 1.0 / static_cast<double>(m->n);
    for (int64_t it = 0; it < limit; ++it) {
        memcpy(oldMean, m->mean, q * sizeof(double));
        memcpy(oldCov, m->cov, q * q * sizeof(double));
        int32_t status = FillMissing(m, nullptr);
        if (status == 0) status = CompletedSums(m, m->mean, m->cov);
        if (status != 0) return status;
        for (int64_t k = 0; k < q * q; ++k)
            m->cov[k] = (m->cov[k] + m->condSum[k]) * invN;
        MirrorLower(q, m->cov);
        for (int64_t c = 0; c < q; ++c) {
            const double v = m->cov[c + c * q];
            if (!(v > 0.0) || !(v < INFINITY)) return BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
        }
        if (Converged(*m, oldMean, oldCov, tol)) return 0;
    }
    return BRENN_SS_ERROR_NO_CONVERGENCE;
}

void AddGram(const double* x, int64_t rows, int64_t columns, double alpha, double* out) {
    for (int64_t b = 0; b < columns; ++b) {
        const double* xb = x + b * rows;
        for (int64_t a = b; a < columns; ++a) {
            const double* xa = x + a * rows;
            double t0 = 0.0, t1 = 0.0, t2 = 0.0, t3 = 0.0;
            int64_t k = 0;
            for (; k + 4 <= rows; k += 4) {
                t0 += xa[k] * xb[k];
                t1 += xa[k + 1] * xb[k + 1];
                t2 += xa[k + 2] * xb[k + 2];
                t3 += xa[k + 3] * xb[k + 3];
            }
            for (; k < rows; ++k)
                t0 += xa[k] * xb[k];
            out[a + b * columns] += alpha * ((t0 + t1) + (t2 + t3));
        }
    }
}

void SolveLower(const double* l, int64_t q, double* b, int64_t columns, bool transposed) {
    for (int64_t c = 0; c < columns; ++c) {
        double* x = b + c * q;
        if (!transposed) {
            for (int64_t i = 0; i < q; ++i) {
                double t = x[i];
                for (int64_t k = 0; k < i; ++k)
                    t -= l[i + k * q] * x[k];
                x[i] = t / l[i + i * q];
            }
        } else {
            for (int64_t i = q - 1; i >= 0; --i) {
                double t = x[i];
                for (int64_t k = i + 1; k < q; ++k)
                    t -= l[k + i * q] * x[k];
                x[i] = t / l[i + i * q];
            }
        }
    }
}

} // namespace brenn::stats::missing
