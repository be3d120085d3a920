// The multivariate normal model of the missing-value estimates: the observations of
// the active variables as a compact double matrix (each variable scaled by a power of
// two, so that squares neither overflow nor underflow), the rows with missing entries
// grouped by their pattern, and the steps that EM and data augmentation share: filling
// the missing entries from their conditional normal given the observed ones, and the
// completed data's means and scatter matrix.
#ifndef BRENN_STATS_MISSING_MODEL_H
#define BRENN_STATS_MISSING_MODEL_H

#include <stdint.h>

#include "stats/chunk_loop.h"
#include "stats/dense.h"

namespace brenn::stats::missing {

// Rows and patterns are cut into at most this many chunks, by their counts alone.
constexpr int64_t kChunks = 16;
// Rows a chunk takes at least.
constexpr int64_t kChunkRows = 2048;
// Rows a cross-product update takes at a time.
constexpr int64_t kSubRows = 256;

struct Model {
    int64_t n, q;
    double* y;             // n x q, variable c at y + c n, times scale[c]
    uint8_t* miss;         // n x q, row i at miss + i q: 1 where the entry is missing
    double* scale;         // q powers of two
    int64_t* order;        // the rows with a missing entry, sorted by pattern
    int64_t* patternStart; // patterns + 1 offsets into order
    int64_t* drawStart;    // patterns + 1 offsets into the Gaussians of an imputation step
    int64_t patterns;
    int64_t missing; // missing entries in all

    double* mean;      // q: the current mean
    double* cov;       // q x q, both triangles: the current covariance
    double* condSum;   // q x q: conditional covariances summed over the rows (EM)
    double* chunkSums; // kChunks blocks of q + q * q

    ChunkScratch scratch;
};

// Bytes of the model's arrays for n rows, q variables; false when they overflow.
bool ModelBytes(int64_t n, int64_t q, size_t* bytes);
// Bytes of a thread's scratch slot.
size_t SlotBytes(int64_t q);
// Lays the model's arrays out in `block` (ModelBytes long). y, miss and scale are
// filled by the caller.
void PlaceModel(Model* m, int64_t n, int64_t q, char* block);

// Groups the rows with missing entries by pattern (rows in order within a pattern) and
// counts the missing entries.
void GroupPatterns(Model* m);

// Replaces each missing entry by its conditional mean given the row's observed entries
// under (mean, cov), plus, with `z` (m->missing standard Gaussians, a row's
// consecutive), the Cholesky factor of the conditional covariance times its slice of z.
// Without z the conditional covariances summed over the rows go to condSum.
// BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE when a covariance to factor is not.
int32_t FillMissing(Model* m, const double* z);

// The completed data's means into `mean` and its scatter sum (y - mean)(y - mean)'
// into `scatter` (q x q, both triangles), in chunks of rows merged in order.
int32_t CompletedSums(Model* m, double* mean, double* scatter);

// The observed entries' means and variances (divisor the count) as the start of EM:
// covariance diagonal. BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE for a variable without two
// distinct observed values.
int32_t StartingValues(Model* m);

// EM from the current estimate: at most `limit` iterations, stopping when no mean moves
// by more than tol sqrt(c_jj) and no covariance by more than tol sqrt(c_jj c_ll). The
// last iterate stays in mean and cov. Returns 0, BRENN_SS_ERROR_NO_CONVERGENCE or
// BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE.
int32_t RunEm(Model* m, int64_t limit, double tol, double* oldMean, double* oldCov);

// out += alpha X'X on the lower triangle of the columns x columns matrix out, X of
// `rows` rows, column-major. Plain loops in a fixed order, as SolveLower.
void AddGram(const double* x, int64_t rows, int64_t columns, double alpha, double* out);

// Solves L X = B (or L' X = B when transposed) in place of the q x columns matrix B,
// L lower triangular q x q. Plain loops: the BLAS runs solves this small on its own
// threads, whose wake-ups cost far more than the arithmetic.
void SolveLower(const double* l, int64_t q, double* b, int64_t columns, bool transposed);

} // namespace brenn::stats::missing

#endif
