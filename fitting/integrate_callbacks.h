// The callback integrator: the parts of the intervals that lie on a side with a
// callback go to it, a block's parts of one side in one call a function, and the rest
// comes from the spline.
#ifndef BRENN_FITTING_INTEGRATE_CALLBACKS_H
#define BRENN_FITTING_INTEGRATE_CALLBACKS_H

#include "fitting/integrate_block.h"

namespace brenn::fit {

// With callbacks an interval is cut at the two ends of the partition into at most
// three parts, left of x[0], inside, right of x[nx-1]. A part whose side has a
// callback is the callback's; neighbouring parts that have none are one span of the
// spline, so that an interval that meets no callback's side gets the plain
// integrator's bits.
constexpr int kPoly = 3;

struct Part {
    int source; // 0 left, 1 interior, 2 right: that side's callback; kPoly: the spline
    double lo, hi;
    int64_t cellLo, cellHi;
    Span span;
};

inline Part MakePart(int source, double lo, double hi, int64_t cellLo, int64_t cellHi) {
    Part p{};
    p.source = source;
    p.lo = lo;
    p.hi = hi;
    p.cellLo = cellLo;
    p.cellHi = cellHi;
    return p;
}

template <typename T, bool Uniform>
int32_t CallbackBlock(const Integ<T>& in, int64_t begin, int64_t n, const T* a, const T* b,
                      const int32_t* ca, const int32_t* cb) {
    const Pieces<T>& p = in.pieces;
    int64_t nx = p.nx;
    double x0 = p.x.x[0], xr = Uniform ? p.x.x[1] : p.x.x[nx - 1];
    Part parts[kIntegrationBlock][3];
    int count[kIntegrationBlock];
    bool negate[kIntegrationBlock];
    double nan[kIntegrationBlock];
    // Each side's parts for its callback: the limits and where the answers go.
    T sideLo[3][kIntegrationBlock], sideHi[3][kIntegrationBlock], sideValue[kIntegrationBlock];
    int64_t sideCount[3] = {0, 0, 0};
    int sideOwner[3][kIntegrationBlock]; // interval * 3 + part
    for (int64_t j = 0; j < n; ++j) {
        double lo, hi;
        int64_t cl, ch;
        negate[j] = Ascending(a, b, ca, cb, j, &lo, &hi, &cl, &ch);
        count[j] = 0;
        nan[j] = 0;
        if (lo != lo || hi != hi) {
            nan[j] = lo + hi;
            continue;
        }
        Part cut[3];
        int m = 0;
        bool left = lo<x0, right = hi> xr;
        if (left) cut[m++] = MakePart(0, lo, hi < x0 ? hi : x0, cl, hi < x0 ? ch : 1);
        double mlo = lo < x0 ? x0 : lo, mhi = hi > xr ? xr : hi;
        if (mlo < mhi || (!left && !right))
            cut[m++] = MakePart(1, mlo, mhi, lo < x0 ? 1 : cl, hi > xr ? nx - 1 : ch);
        if (right) cut[m++] = MakePart(2, lo > xr ? lo : xr, hi, lo > xr ? cl : nx - 1, ch);
        Part* out = parts[j];
        int k = 0;
        for (int i = 0; i < m; ++i) {
            Part c = cut[i];
            if (in.side[c.source] != nullptr) {
                out[k++] = c;
                continue;
            }
            c.source = kPoly;
            if (k > 0 && out[k - 1].source == kPoly) {
                out[k - 1].hi = c.hi;
                out[k - 1].cellHi = c.cellHi;
            } else {
                out[k++] = c;
            }
        }
        for (int i = 0; i < k; ++i) {
            Part& c = out[i];
            if (c.source == kPoly) {
                MakeSpan<T, Uniform>(p, c.lo, c.hi, c.cellLo, c.cellHi, &c.span);
            } else {
                int64_t& s = sideCount[c.source];
                sideLo[c.source][s] = static_cast<T>(c.lo);
                sideHi[c.source][s] = static_cast<T>(c.hi);
                sideOwner[c.source][s++] = static_cast<int>(j * 3 + i);
            }
        }
        count[j] = k;
    }
    double values[kIntegrationBlock][3];
    for (int64_t f = in.fBegin; f < in.fEnd; ++f) {
        for (int side = 0; side < 3; ++side) {
            if (sideCount[side] == 0) continue;
            int32_t status = in.side[side](&sideCount[side], sideValue, sideLo[side], sideHi[side],
                                           in.sideParams[side], f);
            if (status < 0) return status;
            for (int64_t s = 0; s < sideCount[side]; ++s) {
                int owner = sideOwner[side][s];
                values[owner / 3][owner % 3] = static_cast<double>(sideValue[s]);
            }
        }
        Integrand<T> g{};
        bool spline = in.pieces.order > 0 || in.pieces.kind != kEvalGeneric;
        if (spline) g = IntegrandOf(in.task, p, f);
        for (int64_t j = 0; j < n; ++j) {
            double v = nan[j];
            for (int i = 0; i < count[j]; ++i) {
                const Part& c = parts[j][i];
                double part =
                    c.source == kPoly
                        ? ByForm(in.pieces.kind,
                                 [&](auto form) {
                                     return SpanIntegral<T, Uniform, decltype(form)::value>(
                                         in, f, g, c.span);
                                 })
                        : values[j][i];
                v = i == 0 ? part : v + part;
            }
            Store(in, f, begin + j, negate[j] ? -v : v);
        }
    }
    return FIT_STATUS_OK;
}

} // namespace brenn::fit

#endif
