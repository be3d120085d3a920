// Poisson variates, _qesiRngPoisson: the entry with its two-entry method table and
// the floating-point guard, the exact method's chunk (found, made or set up again
// when lambda changes) and its inversion below 27: the cumulative table from
// exp(-lambda) held in the chunk, one double uniform a variate in blocks of 2024,
// the search started at floor(lambda) and carried on by the recurrence past the
// table's end.
#include <math.h>

#include "frame/export.h"
#include "platform/serv.h"
#include "rng/core/stream.h"
#include "rng/dist/frame.h"
#include "rng/dist/poisson.h"

namespace brenn::rng {

namespace {

constexpr int32_t kInversionBlock = 2024;

// The exact method's own sentinel: a logarithm of 0 in its rejection batches reads
// the single-precision logarithm of the smallest positive float; other reports are
// left alone.
int PoissonCallback(ErrorRecord* record) {
    return LogZeroOnlyCallbackS(record);
}

// The first k with u < F(k): from `start` down or up the table, then on by the
// recurrence p(k) = p(k - 1) lambda / k until the sum passes u (or stops growing).
int32_t InvertOne(double u, const PoissonChunk& c, int32_t start) {
    const double* cdf = c.inversion.cdf;
    int32_t k = start;
    if (u < cdf[k]) {
        while (k > 0 && u < cdf[k - 1])
            --k;
        return k;
    }
    ++k;
    while (k < c.count && cdf[k] <= u)
        ++k;
    if (k < c.count) return k;
    double sum = cdf[c.count - 1], p = c.inversion.last;
    for (;; ++k) {
        p *= c.lambda / k;
        double next = sum + p;
        if (next > u || next == sum) return k;
        sum = next;
    }
}

bool HasRows(int32_t method) {
    if (method == 0)
        return ZAR_SLOT(dExp, frame::SlotHA) && ZAR_SLOT(sLn, frame::SlotLA) &&
               ZAR_SLOT(dLn, frame::SlotHA) && ZAR_SLOT(dInv, frame::SlotHA);
    return ZAR_SLOT(sErfInv, frame::SlotLA) != nullptr;
}

// Finds chunk 3 or makes it (lambda -1: no set-up yet); null with the status when a
// block or a cell cannot be had.
PoissonChunk* ChunkOf(void* stream, int32_t* status) {
    void* found = __qesSearchChunk(stream, kPoissonChunkId);
    if (found != nullptr) return static_cast<PoissonChunk*>(found);
    auto* c = static_cast<PoissonChunk*>(brenn_serv_allocate(sizeof(PoissonChunk), 128));
    if (c == nullptr) {
        *status = QES_ERROR_MEM_FAILURE;
        return nullptr;
    }
    c->lambda = -1.0;
    int32_t added = __qesAddChunk(stream, kPoissonChunkId, nullptr, c, sizeof(PoissonChunk));
    if (added < 0) {
        brenn_serv_deallocate(c);
        *status = added;
        return nullptr;
    }
    return c;
}

int32_t Exact(void* stream, int32_t n, int32_t* r, double lambda) {
    int32_t status = QES_STATUS_OK;
    PoissonChunk* c = ChunkOf(stream, &status);
    if (c == nullptr) return status;
    if (c->lambda != lambda) {
        if (lambda < kPoissonRejectionFrom)
            PoissonInversionSetUp(lambda, c);
        else
            PoissonPtpeSetUp(lambda, c);
    }
    return c->way == 0 ? PoissonInversion(stream, n, r, c) : PoissonPtpe(stream, n, r, c);
}

int32_t Transforming(void* stream, int32_t n, int32_t* r, double lambda) {
    return PoissonTransform(stream, n, r, lambda);
}

using PoissonMethod = int32_t (*)(void*, int32_t, int32_t*, double);
constexpr PoissonMethod kPoissonMethods[2] = {Exact, Transforming};

} // namespace

void PoissonInversionSetUp(double lambda, PoissonChunk* c) {
    double p = -lambda;
    {
        uint32_t saved = BracketEnter();
        ZAR_SLOT(dExp, frame::SlotHA)(1, &p, &p);
        BracketLeave(saved);
    }
    double* cdf = c->inversion.cdf;
    cdf[0] = p;
    for (int32_t k = 1; k < kPoissonInversionTable; ++k) {
        p *= lambda / k;
        cdf[k] = cdf[k - 1] + p;
    }
    c->inversion.last = p;
    c->count = kPoissonInversionTable;
    c->way = 0;
    c->lambda = lambda;
}

int32_t PoissonInversion(void* stream, int32_t n, int32_t* r, const PoissonChunk* c) {
    const int32_t start = static_cast<int32_t>(c->lambda);
    double u[kInversionBlock];
    int32_t status = QES_STATUS_OK;
    for (int32_t done = 0; done < n;) {
        int32_t block = n - done < kInversionBlock ? n - done : kInversionBlock;
        status = _qesdRngUniform(0, stream, block, u, 0.0, 1.0);
        if (status < 0) return status;
        for (int32_t i = 0; i < block; ++i)
            r[done + i] = InvertOne(u[i], *c, start);
        done += block;
    }
    return status;
}

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t _qesiRngPoisson(int32_t method, void* stream, int32_t n, int32_t* r,
                                     double lambda) {
    if (n <= 0) return QES_STATUS_OK;
    if ((method != 0 && method != 1) || !HasRows(method)) return QES_STATUS_BAD_METHOD;
    FpGuard guard = GuardEnter();
    int32_t status;
    if (method == 0) {
        ErrorFrame errors = ErrorModeEnter(PoissonCallback);
        status = kPoissonMethods[0](stream, n, r, lambda);
        ErrorModeLeave(errors);
    } else {
        status = kPoissonMethods[1](stream, n, r, lambda);
    }
    GuardLeave(guard);
    return status;
}
