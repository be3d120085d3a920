/* The vector double core that Exp2, Exp10 and Expm1 share (and the single forms of those
 * rows, which run in double): n = x*64/ln2 rounded by the shifter, j = n & 63,
 * m = n >> 6, r the reduced argument in base e (|r| <= ln2/128), p(r) ~ e^r - 1 fitted
 * for relative error (tools/explog/expm1_double.sollya) so that p is expm1 itself for
 * small arguments, and T = 2^(j/64) in two parts from expTable64.
 * The caller forms n and r for its base; this header supplies the reduction constants,
 * the polynomial, the table rows and the assembly e^x = 2^m*(Thi + (Thi*p + Tlo)).
 * The scalar exponential (exp_scalar.h) runs the same reduction and polynomial. */
#ifndef BRENN_VECMATH_EXPLOG_EXP_CORE_H
#define BRENN_VECMATH_EXPLOG_EXP_CORE_H

#include "vecmath/explog/explog_tables.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

// The reduction by ln2/64 that goes with the table of 64: n = x*kInvStep rounded and
// r = (x - n*kStepHi) - n*kStepLo. The head ends in 17 zero bits, so n*kStepHi is exact
// for every n the double range gives.
struct ExpStep64 {
    static constexpr double kInvStep = 0x1.71547652b82fep+6; // 64/ln2
    static constexpr double kStepHi = 0x1.62e42fefa0000p-7;  // ln2/64, head
    static constexpr double kStepLo = 0x1.cf79abc9e3b3ap-46; // and the rest
};

enum class ExpDegree { Four = 4, Five = 5, Six = 6 };

// p(r) = r + r^2*(c2 + r*(c3 + ...)), the coefficients c2 up to the degree, by
// tools/explog/expm1_double.sollya (relative error on |r| <= ln2/128: degree 6 2^-62.25,
// degree 5 2^-51.25, degree 4 2^-39.5).
template <ExpDegree D>
struct ExpTail;
template <>
struct ExpTail<ExpDegree::Six> {
    static constexpr double kC[] = {0x1p-1, 0x1.5555555554afdp-3, 0x1.55555555553adp-5,
                                    0x1.11112276ba4cp-7, 0x1.6c16cf4b71e32p-10};
};
template <>
struct ExpTail<ExpDegree::Five> {
    static constexpr double kC[] = {0x1.fffffffffe5c1p-2, 0x1.555555555626p-3, 0x1.555570a90913fp-5,
                                    0x1.1111140a4af86p-7};
};
template <>
struct ExpTail<ExpDegree::Four> {
    static constexpr double kC[] = {0x1.00000000022dp-1, 0x1.555570813e442p-3,
                                    0x1.55554dd47baccp-5};
};

// The part of the polynomial beyond r: p(r) = r + ExpPolyTail(r).
template <ExpDegree D>
inline __m128d ExpPolyTail(__m128d r) {
    return Mul(Mul(r, r), Horner(r, ExpTail<D>::kC));
}

template <ExpDegree D>
inline __m128d ExpPolyD(__m128d r) {
    return Add(r, ExpPolyTail<D>(r));
}

// Table rows of the two lanes of t (x*64/ln2 + shifter): Thi and Tlo.
// Each row loaded as soon as its index is read, in lane order: the schedule these
// kernels were tuned with (GatherPairs forms both addresses first, lane 1's first).
inline void ExpRows64(__m128d t, __m128d& th, __m128d& tl) {
    __m128d row0 = LoadAligned(expTable64[LowWord<0>(AsInt(t)) & 63]);
    __m128d row1 = LoadAligned(expTable64[LowWord<1>(AsInt(t)) & 63]);
    th = InterleaveLower(row0, row1);
    tl = InterleaveUpper(row0, row1);
}

// m = (low word of t) >> 6 in the low word of each lane.
inline I32x4 ExpPower64(__m128d t) {
    return ShiftRightSigned<6>(BitCast<I32x4>(t));
}
// 2^m as a double, |m| <= 1022: the biased exponent moved into the field.
inline __m128d ExpScale64(__m128d t) {
    I32x4 e = Add(ExpPower64(t), Set<int32_t>(Format<double>::kBias));
    return AsFloat(ShiftLeft<Format<double>::kMantBits>(BitCast<I64x2>(e)));
}

// 2^(-m) for the same m.
inline __m128d ExpInvScale64(__m128d t) {
    I32x4 e = Sub(Set<int32_t>(Format<double>::kBias), ExpPower64(t));
    return AsFloat(ShiftLeft<Format<double>::kMantBits>(BitCast<I64x2>(e)));
}

// y*2^m for the integer in the low 32 bits of each double lane of t - shifter, after
// the index bits (log2 N of them) are dropped: m added to y's exponent field, which is
// the product when y*2^m is normal (the range windows of the kernels that use it).
template <int Log2N>
inline __m128d ScaleByLowWord(__m128d y, __m128d t) {
    I32x4 m = BitCast<I32x4>(t);
    if constexpr (Log2N > 0) m = ShiftRightSigned<Log2N>(m);
    return AsFloat(Add(AsInt(y), ShiftLeft<Format<double>::kMantBits>(BitCast<I64x2>(m))));
}
// The same in single, for t - shifter in the word: the shifter's bits above the index
// leave the word in the shift to the exponent field.
template <int Log2N>
inline __m128 ScaleByLowWord(__m128 y, __m128 t) {
    I32x4 m = AsInt(t);
    if constexpr (Log2N > 0) m = ShiftRight<Log2N>(m);
    return AsFloat(Add(AsInt(y), ShiftLeft<Format<float>::kMantBits>(m)));
}

// e^x from the shifted t and the reduced r: 2^m*(Thi + (Thi*p + Tlo)), |m| <= 1022.
template <ExpDegree D>
inline __m128d ExpAssemble64(__m128d t, __m128d r) {
    __m128d th, tl;
    ExpRows64(t, th, tl);
    __m128d p = ExpPolyD<D>(r);
    __m128d y = Add(th, Add(Mul(th, p), tl));
    return Mul(y, ExpScale64(t));
}

// Exact product a*b = hi + lo of two scalars (Dekker), for |a*b| well inside the range.
inline void TwoProduct(double a, double b, double& hi, double& lo) {
    constexpr double kSplit = Format<double>::kSplitter;
    double ta = a * kSplit, tb = b * kSplit;
    double ah = ta - (ta - a), al = a - ah, bh = tb - (tb - b), bl = b - bh;
    hi = a * b;
    lo = ((ah * bh - hi) + ah * bl + al * bh) + al * bl;
}

} // namespace brenn::vm

#endif
