// The 64 accumulation kernels of the basic compute in both precisions; the layout of
// the tables is told in basic_kernels.h.
#include "stats/basic_kernels.h"
#include "stats/four.h"
#include "stats/onepass_lanes.h"

#include <utility>

namespace brenn::stats {
namespace {

template <typename T, bool kVarRows>
inline T At(const T* x, int64_t ld, int64_t i, int64_t j) {
    return kVarRows ? x[j * ld + i] : x[i * ld + j];
}

// One observation at a time: t = 1 / (W + w) gives the old and the new share, means
// and raw moments are blended by them, central sums and the matrix take the deviation
// from the mean before this observation.
template <typename T, bool kCov, int kO, bool kW, bool kVarRows>
void OnePass(const T* x, int64_t ld, int64_t i0, int64_t i1, int64_t j0, int64_t j1, const T* w,
             MomentState<T>* s, T* work) {
    T* __restrict mean = s->mean;
    T* __restrict r2 = s->raw[0];
    T* __restrict r3 = s->raw[1];
    T* __restrict r4 = s->raw[2];
    T* __restrict m2 = s->cen[0];
    T* __restrict m3 = s->cen[1];
    T* __restrict m4 = s->cen[2];
    T* __restrict d = work;
    T total = s->weight[0], total2 = s->weight[1];
    // Leading observations of weight 0 on an empty state would divide 0 by 0.
    if (kW)
        while (i0 < i1 && total == 0 && w[i0] == 0)
            ++i0;
    for (int64_t i = i0; i < i1; ++i) {
        T wi = kW ? w[i] : T(1);
        T t = T(1) / (total + wi);
        T oldShare = total * t, newShare = wi * t;
        T nab = wi * oldShare;
        for (int64_t j = j0; j < j1; ++j) {
            T xj = At<T, kVarRows>(x, ld, i, j);
            T dj = xj - mean[j];
            if (kCov) d[j] = dj;
            if (kO >= 3) {
                T d2 = dj * dj;
                m4[j] += d2 * d2 * nab *
                             (oldShare * oldShare - oldShare * newShare + newShare * newShare) +
                         T(6) * d2 * newShare * newShare * m2[j] - T(4) * dj * newShare * m3[j];
            }
            if (kO >= 2)
                m3[j] += dj * dj * dj * nab * (oldShare - newShare) - T(3) * dj * newShare * m2[j];
            if (kO >= 1) {
                m2[j] += dj * dj * nab;
                r2[j] = r2[j] * oldShare + xj * xj * newShare;
            }
            if (kO >= 2) r3[j] = r3[j] * oldShare + xj * xj * xj * newShare;
            if (kO >= 3) r4[j] = r4[j] * oldShare + (xj * xj) * (xj * xj) * newShare;
            mean[j] += dj * newShare;
        }
        if (kCov) {
            T* __restrict c = s->cross;
            for (int64_t l = j0; l < j1; ++l) {
                T a = nab * d[l];
                T* __restrict col = c + l * j1;
                for (int64_t j = l; j < j1; ++j)
                    col[j] += a * d[j];
            }
        }
        total += wi;
        total2 += wi * wi;
    }
    s->weight[0] = total;
    s->weight[1] = total2;
}

// Means and moments without the matrix: through the lanes where one variable's
// observations are contiguous, or where there are too few variables for the plain
// loop to run four of them a turn; the last few observations take the plain update.
template <typename T, int kO, bool kW, bool kVarRows>
void OnePassMoments(const T* x, int64_t ld, int64_t i0, int64_t i1, int64_t j0, int64_t j1,
                    const T* w, MomentState<T>* s, T* work) {
    if (kVarRows || j1 - j0 < 4)
        i0 = OnePassLanes<T, kO, kW, kVarRows>(x, ld, i0, i1, j0, j1, w, s);
    OnePass<T, false, kO, kW, kVarRows>(x, ld, i0, i1, j0, j1, w, s, work);
}

// Sums of powers 1 to kM + 1 of (x - centre), four observations a turn, for the
// layout with one variable's observations contiguous. The four running sums are kept
// in double for both precisions: a float sum over a block of tens of thousands of
// terms would lose the digits that single precision results still show.
template <typename T, int kM, bool kW>
inline void SumsAlong(const T* __restrict xj, const T* __restrict w, int64_t i0, int64_t i1,
                      T centre, T* out) {
    const FourD c = SplatD(centre);
    FourD acc[4];
    for (int k = 0; k < 4; ++k)
        acc[k] = SplatD(0);
    int64_t i = i0;
    for (; i + 4 <= i1; i += 4) {
        FourD dv = Four<T>::Wide(xj + i) - c;
        FourD p = kW ? Four<T>::Wide(w + i) * dv : dv;
        acc[0] = acc[0] + p;
        if (kM >= 1) acc[1] = acc[1] + (p = p * dv);
        if (kM >= 2) acc[2] = acc[2] + (p = p * dv);
        if (kM >= 3) acc[3] = acc[3] + (p = p * dv);
    }
    double tail[4] = {0, 0, 0, 0};
    for (; i < i1; ++i) {
        double dv = double(xj[i]) - double(centre);
        double p = kW ? w[i] * dv : dv;
        tail[0] += p;
        if (kM >= 1) tail[1] += (p *= dv);
        if (kM >= 2) tail[2] += (p *= dv);
        if (kM >= 3) tail[3] += (p *= dv);
    }
    for (int k = 0; k <= kM; ++k)
        out[k] = static_cast<T>(SumLanes(acc[k]) + tail[k]);
}

// The same for the layout with one observation contiguous: the variables are the
// inner loop, four a turn, on result arrays (and centre) on a 64-byte boundary or not.
template <typename T, int kM, bool kW, bool kC, bool kAligned>
inline void SumsAcross(const T* x, int64_t ld, const T* w, int64_t i0, int64_t i1, int64_t j0,
                       int64_t j1, const T* centre, T* const out[4]) {
    using F = Four<T>;
    T* __restrict o0 = out[0];
    T* __restrict o1 = out[1];
    T* __restrict o2 = out[2];
    T* __restrict o3 = out[3];
    for (int64_t j = j0; j < j1; ++j) {
        o0[j] = 0;
        if (kM >= 1) o1[j] = 0;
        if (kM >= 2) o2[j] = 0;
        if (kM >= 3) o3[j] = 0;
    }
    const typename F::V zero = F::Splat(T(0));
    for (int64_t i = i0; i < i1; ++i) {
        const T* __restrict row = x + i * ld;
        T wi = kW ? w[i] : T(1);
        const typename F::V wv = F::Splat(wi);
        int64_t j = j0;
        for (; j + 4 <= j1; j += 4) {
            typename F::V dv = F::template Load<false>(row + j) -
                               (kC ? F::template Load<kAligned>(centre + j) : zero);
            typename F::V p = kW ? wv * dv : dv;
            F::template Store<kAligned>(o0 + j, F::template Load<kAligned>(o0 + j) + p);
            if (kM >= 1)
                F::template Store<kAligned>(o1 + j,
                                            F::template Load<kAligned>(o1 + j) + (p = p * dv));
            if (kM >= 2)
                F::template Store<kAligned>(o2 + j,
                                            F::template Load<kAligned>(o2 + j) + (p = p * dv));
            if (kM >= 3)
                F::template Store<kAligned>(o3 + j,
                                            F::template Load<kAligned>(o3 + j) + (p = p * dv));
        }
        for (; j < j1; ++j) {
            T dv = row[j] - (kC ? centre[j] : T(0));
            T p = kW ? wi * dv : dv;
            o0[j] += p;
            if (kM >= 1) o1[j] += (p *= dv);
            if (kM >= 2) o2[j] += (p *= dv);
            if (kM >= 3) o3[j] += (p *= dv);
        }
    }
}

template <typename T, int kM, bool kW, bool kVarRows, bool kC>
void BlockSums(const T* x, int64_t ld, int64_t i0, int64_t i1, int64_t j0, int64_t j1, const T* w,
               const T* centre, T* const out[4]) {
    if (kVarRows) {
        T sums[4];
        for (int64_t j = j0; j < j1; ++j) {
            SumsAlong<T, kM, kW>(x + j * ld, w, i0, i1, kC ? centre[j] : T(0), sums);
            for (int k = 0; k <= kM; ++k)
                out[k][j] = sums[k];
        }
    } else {
        // The result arrays of the library's own states start on 64-byte boundaries;
        // the other version serves any other caller.
        bool aligned = j0 == 0 && (!kC || On64Bytes(centre));
        for (int k = 0; k <= kM; ++k)
            aligned = aligned && On64Bytes(out[k]);
        if (aligned)
            SumsAcross<T, kM, kW, kC, true>(x, ld, w, i0, i1, j0, j1, centre, out);
        else
            SumsAcross<T, kM, kW, kC, false>(x, ld, w, i0, i1, j0, j1, centre, out);
    }
}

template <typename T, int kM, bool kW, bool kVarRows>
void BlockCentral(const T* x, int64_t ld, int64_t i0, int64_t i1, int64_t j0, int64_t j1,
                  const T* w, MomentState<T>* s, T* work) {
    T* const out[4] = {s->mean, s->cen[0], s->cen[1], s->cen[2]};
    BlockSums<T, kM, kW, kVarRows, true>(x, ld, i0, i1, j0, j1, w, work, out);
}

template <typename T, int kM, bool kW, bool kVarRows>
void BlockRaw(const T* x, int64_t ld, int64_t i0, int64_t i1, int64_t j0, int64_t j1, const T* w,
              MomentState<T>* s, T*) {
    T* const out[4] = {s->mean, s->raw[0], s->raw[1], s->raw[2]};
    BlockSums<T, kM, kW, kVarRows, false>(x, ld, i0, i1, j0, j1, w, nullptr, out);
    if (kW) {
        T a[4] = {}, b[4] = {};
        int64_t i = i0;
        for (; i + 4 <= i1; i += 4)
            for (int u = 0; u < 4; ++u) {
                a[u] += w[i + u];
                b[u] += w[i + u] * w[i + u];
            }
        for (; i < i1; ++i) {
            a[0] += w[i];
            b[0] += w[i] * w[i];
        }
        s->weight[0] = (a[0] + a[1]) + (a[2] + a[3]);
        s->weight[1] = (b[0] + b[1]) + (b[2] + b[3]);
    } else {
        s->weight[0] = s->weight[1] = T(i1 - i0);
    }
}

// Table builders: the index bits become template arguments.
template <typename T, int kIndex>
constexpr BasicKernel<T> Entry() {
    if constexpr (kIndex < 32) {
        if constexpr ((kIndex & 1) != 0)
            return OnePass<T, true, (kIndex >> 1) & 3, (kIndex & 8) != 0, (kIndex & 16) != 0>;
        else
            return OnePassMoments<T, (kIndex >> 1) & 3, (kIndex & 8) != 0, (kIndex & 16) != 0>;
    } else {
        constexpr int e = kIndex - 32;
        if constexpr ((e & 16) == 0)
            return BlockCentral<T, e & 3, (e & 4) != 0, (e & 8) != 0>;
        else
            return BlockRaw<T, e & 3, (e & 4) != 0, (e & 8) != 0>;
    }
}

template <typename T, int... kI>
struct Table {
    static constexpr BasicKernel<T> entries[sizeof...(kI)] = {Entry<T, kI>()...};
};

template <typename T, typename Seq>
struct MakeTable;
template <typename T, int... kI>
struct MakeTable<T, std::integer_sequence<int, kI...>> {
    using type = Table<T, kI...>;
};

using TableD = MakeTable<double, std::make_integer_sequence<int, 64>>::type;
using TableS = MakeTable<float, std::make_integer_sequence<int, 64>>::type;

} // namespace

#define BRENN_COPY64(src)                                                                          \
    src[0], src[1], src[2], src[3], src[4], src[5], src[6], src[7], src[8], src[9], src[10],       \
        src[11], src[12], src[13], src[14], src[15], src[16], src[17], src[18], src[19], src[20],  \
        src[21], src[22], src[23], src[24], src[25], src[26], src[27], src[28], src[29], src[30],  \
        src[31], src[32], src[33], src[34], src[35], src[36], src[37], src[38], src[39], src[40],  \
        src[41], src[42], src[43], src[44], src[45], src[46], src[47], src[48], src[49], src[50],  \
        src[51], src[52], src[53], src[54], src[55], src[56], src[57], src[58], src[59], src[60],  \
        src[61], src[62], src[63]

const BasicKernel<double> kBasicKernelsD[64] = {BRENN_COPY64(TableD::entries)};
const BasicKernel<float> kBasicKernelsS[64] = {BRENN_COPY64(TableS::entries)};

} // namespace brenn::stats
