/* The vector double core that Exp2, Exp10 and Expm1 share (and the single forms of those
 * rows, which run in double): n = x*64/ln2 rounded by the shifter, j = n & 63,
 * m = n >> 6, r the reduced argument in base e (|r| <= ln2/128), p(r) ~ e^r - 1 fitted
 * for relative error (tools/explog/expm1_double.sollya) so that p is expm1 itself for
 * small arguments, and T = 2^(j/64) in two parts from expTable64.
 * The caller forms n and r for its base; this header supplies the polynomial, the
 * table rows and the assembly e^x = 2^m*(Thi + (Thi*p + Tlo)). */
#ifndef BRENN_VECMATH_EXPLOG_EXP_CORE_H
#define BRENN_VECMATH_EXPLOG_EXP_CORE_H

#include "vecmath/explog/explog_tables.h"
#include "vecmath/frame/simd.h"

namespace brenn::vm {

constexpr double kExpShifterD = 6755399441055744.0; // 1.5 * 2^52

enum class ExpDegree { Four = 4, Five = 5, Six = 6 };

// The part of the polynomial beyond r: p(r) = r + ExpPolyTail(r).
template <ExpDegree D>
inline __m128d ExpPolyTail(__m128d r) {
    __m128d q;
    if constexpr (D == ExpDegree::Six) {
        q = _mm_add_pd(
            _mm_set1_pd(8.33334143449560027505640391609631478786468505859375e-3),
            _mm_mul_pd(
                r, _mm_set1_pd(1.3888896963737515539982769752214153413660824298858642578125e-3)));
        q = _mm_add_pd(_mm_set1_pd(4.1666666666663722262686775366091751493513584136962890625e-2),
                       _mm_mul_pd(r, q));
        q = _mm_add_pd(_mm_set1_pd(0.1666666666665931606505779427607194520533084869384765625),
                       _mm_mul_pd(r, q));
        q = _mm_add_pd(_mm_set1_pd(0.5), _mm_mul_pd(r, q));
    } else if constexpr (D == ExpDegree::Five) {
        q = _mm_add_pd(
            _mm_set1_pd(4.1666717567098825181215460133898886851966381072998046875e-2),
            _mm_mul_pd(r,
                       _mm_set1_pd(8.3333347179956988870497269772386061958968639373779296875e-3)));
        q = _mm_add_pd(_mm_set1_pd(0.16666666666675933328178871306590735912322998046875),
                       _mm_mul_pd(r, q));
        q = _mm_add_pd(_mm_set1_pd(0.499999999999627020574877178660244680941104888916015625),
                       _mm_mul_pd(r, q));
    } else {
        q = _mm_add_pd(
            _mm_set1_pd(0.166666869110288884403558995472849346697330474853515625),
            _mm_mul_pd(r, _mm_set1_pd(4.16666526906418199782677902476279996335506439208984375e-2)));
        q = _mm_add_pd(_mm_set1_pd(0.5000000000009894307595459395088255405426025390625),
                       _mm_mul_pd(r, q));
    }
    return _mm_mul_pd(_mm_mul_pd(r, r), q);
}

template <ExpDegree D>
inline __m128d ExpPolyD(__m128d r) {
    return _mm_add_pd(r, ExpPolyTail<D>(r));
}

// Table rows of the two lanes of t (x*64/ln2 + shifter): Thi and Tlo.
inline void ExpRows64(__m128d t, __m128d& th, __m128d& tl) {
    __m128i v = _mm_castpd_si128(t);
    __m128d a = _mm_load_pd(expTable64[_mm_cvtsi128_si32(v) & 63]);
    __m128d b = _mm_load_pd(expTable64[_mm_extract_epi32(v, 2) & 63]);
    th = _mm_unpacklo_pd(a, b);
    tl = _mm_unpackhi_pd(a, b);
}

// 2^m as a double for m = (low word of t) >> 6, |m| <= 1022.
inline __m128d ExpScale64(__m128d t, int bias = 1023) {
    __m128i m = _mm_srai_epi32(_mm_castpd_si128(t), 6);
    m = _mm_add_epi32(m, _mm_set1_epi32(bias));
    return _mm_castsi128_pd(_mm_slli_epi64(m, 52));
}

// 2^(-m) for the same m.
inline __m128d ExpInvScale64(__m128d t) {
    __m128i m = _mm_srai_epi32(_mm_castpd_si128(t), 6);
    m = _mm_sub_epi32(_mm_set1_epi32(1023), m);
    return _mm_castsi128_pd(_mm_slli_epi64(m, 52));
}

// e^x from the shifted t and the reduced r: 2^m*(Thi + (Thi*p + Tlo)), |m| <= 1022.
template <ExpDegree D>
inline __m128d ExpAssemble64(__m128d t, __m128d r) {
    __m128d th, tl;
    ExpRows64(t, th, tl);
    __m128d p = ExpPolyD<D>(r);
    __m128d y = _mm_add_pd(th, _mm_add_pd(_mm_mul_pd(th, p), tl));
    return _mm_mul_pd(y, ExpScale64(t));
}

// Exact product a*b = hi + lo, two lanes (Dekker), for |a|, |b| well inside the range.
inline void TwoProductV(__m128d a, __m128d b, __m128d& hi, __m128d& lo) {
    const __m128d split = _mm_set1_pd(134217729.0);
    __m128d ta = _mm_mul_pd(a, split), tb = _mm_mul_pd(b, split);
    __m128d ah = _mm_sub_pd(ta, _mm_sub_pd(ta, a)), al = _mm_sub_pd(a, ah);
    __m128d bh = _mm_sub_pd(tb, _mm_sub_pd(tb, b)), bl = _mm_sub_pd(b, bh);
    hi = _mm_mul_pd(a, b);
    lo = _mm_add_pd(_mm_add_pd(_mm_sub_pd(_mm_mul_pd(ah, bh), hi),
                               _mm_add_pd(_mm_mul_pd(ah, bl), _mm_mul_pd(al, bh))),
                    _mm_mul_pd(al, bl));
}

// Exact product a*b = hi + lo of two scalars (Dekker), for |a*b| well inside the range.
inline void TwoProduct(double a, double b, double& hi, double& lo) {
    constexpr double kSplit = 134217729.0;
    double ta = a * kSplit, tb = b * kSplit;
    double ah = ta - (ta - a), al = a - ah, bh = tb - (tb - b), bl = b - bh;
    hi = a * b;
    lo = ((ah * bh - hi) + ah * bl + al * bh) + al * bl;
}

} // namespace brenn::vm

#endif
