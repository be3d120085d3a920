// The one-pass update of means and moments (no cross-product) run as four interleaved
// streams of observations. In the plain loop every observation waits for the mean left
// by the one before it, so the loop runs at the latency of that chain; here
// observation i of a variable goes to lane i mod 4 of a register group, each lane runs
// the same observation-by-observation update on its own quarter, and the four lanes
// are joined at the end by the pairwise rule that joins blocks and threads. The loop
// has no test in it: an empty lane meeting an observation of weight 0 (the leading
// zero weights that the update skips) is masked, not branched around.
#ifndef BRENN_STATS_ONEPASS_LANES_H
#define BRENN_STATS_ONEPASS_LANES_H

#include <stdint.h>

#include "stats/four.h"
#include "stats/moments.h"

namespace brenn::stats {

// Joins (b, bw) into (a, aw) for one variable, as MergeState does for a whole state.
template <typename T>
inline void JoinWeighted(Moments1<T>& a, T& aw, const Moments1<T>& b, T bw, int order) {
    if (bw == 0) return;
    T n = aw + bw;
    T fa = aw / n, fb = bw / n;
    JoinMoments(a, b, order, fa, fb, n * fa * fb);
    aw = n;
}

// Observations [0, n4) of one variable, element i at xj[i * stride] (stride 1 when
// kContig), n4 a multiple of four; weights w[0, n4) with kW. The lanes' joined moments
// go to m, their sums of weights and of squared weights to weights.
template <typename T, int kO, bool kW, bool kContig>
void LaneMoments(const T* xj, int64_t stride, const T* w, int64_t n4, Moments1<T>& m,
                 T weights[2]) {
    using F = Four<T>;
    using V = typename F::V;
    const V zero = F::Splat(T(0)), one = F::Splat(T(1));
    const V three = F::Splat(T(3)), four = F::Splat(T(4)), six = F::Splat(T(6));
    V mean = zero, r2 = zero, r3 = zero, r4 = zero, m2 = zero, m3 = zero, m4 = zero;
    V total = zero, total2 = zero;
    for (int64_t i = 0; i < n4; i += 4) {
        V x = kContig ? F::template Load<false>(xj + i) : F::Strided(xj + i * stride, stride);
        V oldShare, newShare, nab;
        if constexpr (kW) {
            V wi = F::template Load<false>(w + i);
            V skip = BothZero(total, wi);
            x = Select(skip, zero, x);
            V t = one / Select(skip, one, total + wi);
            oldShare = total * t;
            newShare = wi * t;
            nab = wi * oldShare;
            total = total + wi;
            total2 = total2 + wi * wi;
        } else {
            // Every lane has seen k observations of weight 1.
            T k = T(i / 4), t = T(1) / (k + T(1));
            oldShare = F::Splat(k * t);
            newShare = F::Splat(t);
            nab = oldShare;
        }
        V d = x - mean;
        if (kO >= 3) {
            V d2 = d * d;
            m4 = m4 + ((d2 * d2 * nab *
                            (oldShare * oldShare - oldShare * newShare + newShare * newShare) +
                        six * d2 * newShare * newShare * m2) -
                       four * d * newShare * m3);
        }
        if (kO >= 2)
            m3 = m3 + (d * d * d * nab * (oldShare - newShare) - three * d * newShare * m2);
        if (kO >= 1) {
            m2 = m2 + d * d * nab;
            r2 = r2 * oldShare + x * x * newShare;
        }
        if (kO >= 2) r3 = r3 * oldShare + x * x * x * newShare;
        if (kO >= 3) r4 = r4 * oldShare + (x * x) * (x * x) * newShare;
        mean = mean + d * newShare;
    }
    if (!kW) total = total2 = F::Splat(T(n4 / 4));
    alignas(16) T lane[9][4];
    const V all[9] = {mean, r2, r3, r4, m2, m3, m4, total, total2};
    for (int k = 0; k < 9; ++k)
        F::template Store<true>(lane[k], all[k]);
    Moments1<T> part[4];
    T w1[4];
    for (int l = 0; l < 4; ++l) {
        part[l] = {
            lane[0][l], {lane[1][l], lane[2][l], lane[3][l]}, {lane[4][l], lane[5][l], lane[6][l]}};
        w1[l] = lane[7][l];
    }
    const int order = kO + 1;
    JoinWeighted(part[0], w1[0], part[1], w1[1], order);
    JoinWeighted(part[2], w1[2], part[3], w1[3], order);
    JoinWeighted(part[0], w1[0], part[2], w1[2], order);
    m = part[0];
    weights[0] = w1[0];
    weights[1] = (lane[8][0] + lane[8][1]) + (lane[8][2] + lane[8][3]);
}

// The whole groups of four of [i0, i1) for variables [j0, j1) through the lanes, joined
// into s; returns the first observation left for the plain update.
template <typename T, int kO, bool kW, bool kVarRows>
int64_t OnePassLanes(const T* x, int64_t ld, int64_t i0, int64_t i1, int64_t j0, int64_t j1,
                     const T* w, MomentState<T>* s) {
    const T before = s->weight[0];
    if (kW)
        while (i0 < i1 && before == 0 && w[i0] == 0)
            ++i0;
    const int64_t n4 = (i1 - i0) & ~int64_t(3);
    if (n4 == 0) return i0;
    const bool contiguous = kVarRows || ld == 1;
    const T* wi = kW ? w + i0 : nullptr;
    T seen[2] = {0, 0};
    for (int64_t j = j0; j < j1; ++j) {
        const T* xj = kVarRows ? x + j * ld + i0 : x + i0 * ld + j;
        Moments1<T> part;
        if (contiguous)
            LaneMoments<T, kO, kW, true>(xj, 1, wi, n4, part, seen);
        else
            LaneMoments<T, kO, kW, false>(xj, ld, wi, n4, part, seen);
        Moments1<T> a = MomentsOf(*s, j, kO + 1);
        T aw = before;
        JoinWeighted(a, aw, part, seen[0], kO + 1);
        StoreMoments(*s, j, a, kO + 1);
    }
    s->weight[0] = before + seen[0];
    s->weight[1] += seen[1];
    return i0 + n4;
}

} // namespace brenn::stats

#endif
