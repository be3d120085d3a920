// What the integrators of a block of intervals share: the call's set-up (limits,
// integrand, layout, callbacks, the trees of the functions of the current turn), the
// integral of one function over one interval's span, and the plain integrator, which
// takes every part of an interval from the spline.
#ifndef BRENN_FITTING_INTEGRATE_BLOCK_H
#define BRENN_FITTING_INTEGRATE_BLOCK_H

#include <type_traits>

#include "fitting/integral_pieces.h"
#include "fitting/integral_sums.h"
#include "fitting/search_rules.h"

namespace brenn::fit {

constexpr int64_t kIntegrationBlock = 64;

struct CellGrid;

template <typename T>
using IntegCallback = int32_t (*)(const int64_t* count, T* result, const T* llim, const T* rlim,
                                  void* params, int64_t function);

// One array of limits: the caller's, or the ends of evenly spread ones.
template <typename T>
struct Limits {
    const T* v;
    bool uniform;
    double start, step;
    SearchSetup<T> search;
    int row;
    const CellGrid* grid; // null: the searcher alone
};

template <typename T>
struct Integ;

template <typename T>
using BlockIntegrator = int32_t (*)(const Integ<T>& in, int64_t begin, int64_t n, const T* a,
                                    const T* b, const int32_t* ca, const int32_t* cb);

template <typename T>
struct Integ {
    const FittingTask* task;
    Pieces<T> pieces;
    int64_t nf, nlim;
    Limits<T> lower, upper;
    BlockIntegrator<T> integrator;
    T* result;
    int64_t layout;
    IntegCallback<T> side[3]; // left, interior, right
    void* sideParams[3];
    // The functions of this turn, and their trees (null: sums on the spot), each
    // perFunction doubles: the tree, then when walks is set its walk tables.
    int64_t fBegin, fEnd;
    PairwiseShape shape;
    const double* trees;
    int64_t perFunction;
    bool walks;
};

template <typename T>
inline void Store(const Integ<T>& in, int64_t f, int64_t k, double v) {
    int64_t at =
        in.layout == FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES ? f * in.nlim + k : k * in.nf + f;
    in.result[at] = static_cast<T>(v);
}

// Whole pieces [i, j) of function f.
template <typename T, bool Uniform, int Form>
[[gnu::always_inline]] inline double Middle(const Integ<T>& in, int64_t f, const Integrand<T>& g,
                                            int64_t i, int64_t j) {
    if (i >= j) return 0.0;
    if (in.trees != nullptr) {
        const double* tree = in.trees + (f - in.fBegin) * in.perFunction;
        if (in.walks) {
            const double* left = tree + in.shape.total;
            return RangeSum(WalkNodes{left, left + WalkTableSize(in.shape), in.shape.size[0] + 1},
                            i, j);
        }
        return RangeSum(TreeNodes{&in.shape, tree}, i, j);
    }
    const Pieces<T>& p = in.pieces;
    auto leaf = [&p, &g](int64_t k) { return WholePiece<T, Uniform, Form>(p, g, k); };
    return RangeSum(SummedNodes<decltype(leaf)>{&in.shape, leaf}, i, j);
}

// The integral of function f's spline over one span.
template <typename T, bool Uniform, int Form>
[[gnu::always_inline]] inline double SpanIntegral(const Integ<T>& in, int64_t f,
                                                  const Integrand<T>& g, const Span& s) {
    const Pieces<T>& p = in.pieces;
    double v = s.wA * PartMean<T, Form>(p, g, s.first, s.qA, s.uA, s.vA);
    if (s.first == s.last) return v;
    double mid = Middle<T, Uniform, Form>(in, f, g, s.first + 1, s.last);
    return (v + mid) + s.vB * PartMean<T, Form>(p, g, s.last, s.qB, 0.0, s.vB);
}

// Calls body with the integrand form of kind as a compile-time constant.
template <typename Body>
inline decltype(auto) ByForm(int kind, Body&& body) {
    switch (kind) {
    case kEvalLinear:
        return body(std::integral_constant<int, kEvalLinear>{});
    case kEvalQuadratic:
        return body(std::integral_constant<int, kEvalQuadratic>{});
    case kEvalCubic:
        return body(std::integral_constant<int, kEvalCubic>{});
    case kEvalKnotQuadratic:
        return body(std::integral_constant<int, kEvalKnotQuadratic>{});
    case kEvalStepLeftContinuous:
        return body(std::integral_constant<int, kEvalStepLeftContinuous>{});
    case kEvalStepRightContinuous:
        return body(std::integral_constant<int, kEvalStepRightContinuous>{});
    default:
        return body(std::integral_constant<int, kEvalGeneric>{});
    }
}

// Limits in ascending order; an interval given the other way round is negated at
// the end, so that it is exactly minus the ascending one.
template <typename T>
inline bool Ascending(const T* a, const T* b, const int32_t* ca, const int32_t* cb, int64_t j,
                      double* lo, double* hi, int64_t* cl, int64_t* ch) {
    bool swap = b[j] < a[j];
    *lo = swap ? b[j] : a[j];
    *hi = swap ? a[j] : b[j];
    *cl = swap ? cb[j] : ca[j];
    *ch = swap ? ca[j] : cb[j];
    return swap;
}

template <typename T, bool Uniform, int Form>
void PlainForm(const Integ<T>& in, int64_t begin, int64_t n, const Span* spans,
               const bool* negate) {
    for (int64_t f = in.fBegin; f < in.fEnd; ++f) {
        Integrand<T> g = IntegrandOf(in.task, in.pieces, f);
        for (int64_t j = 0; j < n; ++j) {
            double v = SpanIntegral<T, Uniform, Form>(in, f, g, spans[j]);
            Store(in, f, begin + j, negate[j] ? -v : v);
        }
    }
}

template <typename T, bool Uniform>
int32_t PlainBlock(const Integ<T>& in, int64_t begin, int64_t n, const T* a, const T* b,
                   const int32_t* ca, const int32_t* cb) {
    Span spans[kIntegrationBlock];
    bool negate[kIntegrationBlock];
    for (int64_t j = 0; j < n; ++j) {
        double lo, hi;
        int64_t cl, ch;
        negate[j] = Ascending(a, b, ca, cb, j, &lo, &hi, &cl, &ch);
        MakeSpan<T, Uniform>(in.pieces, lo, hi, cl, ch, &spans[j]);
    }
    ByForm(in.pieces.kind, [&](auto form) {
        PlainForm<T, Uniform, decltype(form)::value>(in, begin, n, spans, negate);
    });
    return FIT_STATUS_OK;
}

} // namespace brenn::fit

#endif
