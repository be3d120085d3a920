// Four elements a turn for the statistics loops: a register group of four lanes in
// the element type (two SSE registers for double, one for float) and one of four
// double lanes that float data are widened into, with loads and stores that are
// aligned or not by a template argument, so that a loop is written once and chosen
// by the alignment of its result arrays.
#ifndef BRENN_STATS_FOUR_H
#define BRENN_STATS_FOUR_H

#include <emmintrin.h>
#include <stdint.h>

namespace brenn::stats {

struct FourD {
    __m128d lo, hi;
};
struct FourF {
    __m128 v;
};

inline FourD operator+(FourD a, FourD b) {
    return {_mm_add_pd(a.lo, b.lo), _mm_add_pd(a.hi, b.hi)};
}
inline FourD operator-(FourD a, FourD b) {
    return {_mm_sub_pd(a.lo, b.lo), _mm_sub_pd(a.hi, b.hi)};
}
inline FourD operator*(FourD a, FourD b) {
    return {_mm_mul_pd(a.lo, b.lo), _mm_mul_pd(a.hi, b.hi)};
}
inline FourF operator+(FourF a, FourF b) {
    return {_mm_add_ps(a.v, b.v)};
}
inline FourF operator-(FourF a, FourF b) {
    return {_mm_sub_ps(a.v, b.v)};
}
inline FourF operator*(FourF a, FourF b) {
    return {_mm_mul_ps(a.v, b.v)};
}

inline FourD operator/(FourD a, FourD b) {
    return {_mm_div_pd(a.lo, b.lo), _mm_div_pd(a.hi, b.hi)};
}
inline FourF operator/(FourF a, FourF b) {
    return {_mm_div_ps(a.v, b.v)};
}

// Lane masks (all bits set or none) and the selections by them.
inline FourD BothZero(FourD a, FourD b) {
    const __m128d z = _mm_setzero_pd();
    return {_mm_and_pd(_mm_cmpeq_pd(a.lo, z), _mm_cmpeq_pd(b.lo, z)),
            _mm_and_pd(_mm_cmpeq_pd(a.hi, z), _mm_cmpeq_pd(b.hi, z))};
}
inline FourF BothZero(FourF a, FourF b) {
    const __m128 z = _mm_setzero_ps();
    return {_mm_and_ps(_mm_cmpeq_ps(a.v, z), _mm_cmpeq_ps(b.v, z))};
}
// mask ? a : b, lane by lane.
inline FourD Select(FourD mask, FourD a, FourD b) {
    return {_mm_or_pd(_mm_and_pd(mask.lo, a.lo), _mm_andnot_pd(mask.lo, b.lo)),
            _mm_or_pd(_mm_and_pd(mask.hi, a.hi), _mm_andnot_pd(mask.hi, b.hi))};
}
inline FourF Select(FourF mask, FourF a, FourF b) {
    return {_mm_or_ps(_mm_and_ps(mask.v, a.v), _mm_andnot_ps(mask.v, b.v))};
}

template <typename T>
struct Four;

template <>
struct Four<double> {
    using V = FourD;
    static V Splat(double v) { return {_mm_set1_pd(v), _mm_set1_pd(v)}; }
    template <bool kAligned>
    static V Load(const double* p) {
        if (kAligned) return {_mm_load_pd(p), _mm_load_pd(p + 2)};
        return {_mm_loadu_pd(p), _mm_loadu_pd(p + 2)};
    }
    template <bool kAligned>
    static void Store(double* p, V v) {
        if (kAligned) {
            _mm_store_pd(p, v.lo);
            _mm_store_pd(p + 2, v.hi);
        } else {
            _mm_storeu_pd(p, v.lo);
            _mm_storeu_pd(p + 2, v.hi);
        }
    }
    // p[0], p[s], p[2s], p[3s].
    static V Strided(const double* p, int64_t s) {
        return {_mm_set_pd(p[s], p[0]), _mm_set_pd(p[3 * s], p[2 * s])};
    }
    // Four elements widened to double lanes (here they are double already).
    static FourD Wide(const double* p) { return {_mm_loadu_pd(p), _mm_loadu_pd(p + 2)}; }
};

template <>
struct Four<float> {
    using V = FourF;
    static V Splat(float v) { return {_mm_set1_ps(v)}; }
    template <bool kAligned>
    static V Load(const float* p) {
        return {kAligned ? _mm_load_ps(p) : _mm_loadu_ps(p)};
    }
    template <bool kAligned>
    static void Store(float* p, V v) {
        if (kAligned)
            _mm_store_ps(p, v.v);
        else
            _mm_storeu_ps(p, v.v);
    }
    static V Strided(const float* p, int64_t s) {
        return {_mm_set_ps(p[3 * s], p[2 * s], p[s], p[0])};
    }
    static FourD Wide(const float* p) {
        __m128 v = _mm_loadu_ps(p);
        return {_mm_cvtps_pd(v), _mm_cvtps_pd(_mm_movehl_ps(v, v))};
    }
};

inline FourD SplatD(double v) {
    return {_mm_set1_pd(v), _mm_set1_pd(v)};
}

// (l0 + l1) + (l2 + l3), the order the scalar tails of the loops keep as well.
inline double SumLanes(FourD v) {
    __m128d a = _mm_add_sd(v.lo, _mm_unpackhi_pd(v.lo, v.lo));
    __m128d b = _mm_add_sd(v.hi, _mm_unpackhi_pd(v.hi, v.hi));
    return _mm_cvtsd_f64(_mm_add_sd(a, b));
}

// Elements of padding that put every array of a state on a 64-byte boundary.
inline int64_t PadTo64Bytes(int64_t count) {
    return (count + 15) & ~int64_t(15);
}

inline bool On64Bytes(const void* p) {
    return (reinterpret_cast<uintptr_t>(p) & 63) == 0;
}

} // namespace brenn::stats

#endif
