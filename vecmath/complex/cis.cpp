/* CIS of single (c) and double (z) vectors: a real x gives cos x + i sin x, three
 * kernels in each type.
 *
 * Double: the table method of the trigonometric kernels (trig/reduce.h): |x| reduced at
 * pi/64 into the index J and r = rh + rl, |r| <= pi/128, by the short reduction below 2^24
 * and by the vector reduction with the bits of 2/pi above; sine and cosine from one row
 * and one series.
 *   HA: the rows' products with rh exact where sine or cosine is near a zero.
 *   LA: plain products (about an ulp).
 *   EP: the rows' high parts and two terms of each series on rh alone (2^-40).
 * Single:
 *   HA and LA (one arithmetic, two kernels): the double table with two-term series on
 *       widened lanes, rounded once to single (2^-40 before the rounding).
 *   EP: reduction at pi/2 in double, n = round(|x| 2/pi) and r = |x| - n pi/2 with pi/2
 *       in two parts (exact below 2^24), sine and cosine of r by short series on
 *       [-pi/4, pi/4], swapped and signed by the quadrant n mod 4. Lanes from 2^24 go to
 *       the scalar routine.
 * The sign of x turns the sine's, so that cis(-0) = 1 - 0i.
 *
 * The scalar routine: an infinite x is a domain error (NaN + i NaN, invalid raised,
 * status 1), a NaN gives NaN + i NaN, and finite x (single EP from 2^24) cos and sin in
 * extended precision, rounded once. A status is reported with the real input and the
 * two parts of the result as the two results, as SinCos reports. */
#include <bit>
#include <math.h>

#include "vecmath/complex/cframe.h"
#include "vecmath/frame/level.h"
#include "vecmath/trig/reduce.h"

namespace brenn::vm::cx {
namespace {

constexpr double kLimit = 0x1p24; // short reductions below
constexpr uint64_t kLimitD = std::bit_cast<uint64_t>(kLimit);

template <class R>
int CisScalar(const R* a, const R*, ComplexOf<R>* y) {
    const R x = *a;
    if (__builtin_isinf(x)) {
        y->re = y->im = Keep(x) * R(0); // NaN, raising invalid
        return status::kDomain;
    }
    if (__builtin_isnan(x)) {
        y->re = y->im = x + x;
        return status::kNone;
    }
    long double s, c;
    sincosl(x, &s, &c);
    y->re = R(c);
    y->im = R(s);
    return status::kNone;
}

// |x| = J pi/64 + rh + rl for finite magnitudes a; infinite and NaN lanes give junk.
BRENN_VEC void Reduce(__m128d a, int32_t J[2], __m128d& rh, __m128d& rl) {
    trig::ShortD(Min(a, Set<double>(kLimit)), J, rh, rl, 0);
    int big = trig::LargeLanes(a, kLimitD);
    if (__builtin_expect(big != 0, 0)) {
        alignas(16) int32_t K[2];
        __m128d bh, bl;
        trig::LargeD(a, K, bh, bl);
        trig::PickD(big, K, bh, bl, J, rh, rl);
    }
}

// cos |x| and sin |x| of two double lanes by the table, at the level.
template <Level L>
BRENN_VEC void TableCis(__m128d a, __m128d& c, __m128d& s) {
    alignas(16) int32_t J[2], K[2];
    __m128d rh, rl;
    Reduce(a, J, rh, rl);
    if constexpr (L == Level::EP) {
        K[0] = J[0] + 32;
        K[1] = J[1] + 32;
        s = trig::TableSinS(J, rh);
        c = trig::TableSinS(K, rh);
    } else {
        trig::TableSinCos(J, rh, rl, L == Level::HA, s, c);
    }
}

template <Level L>
struct CisZ : ExtendedScalarBody<double, double, BrennComplex16, CisScalar> {
    static constexpr const char* kName = "vzCIS";
    static int Eval(const Cx<double>* x, const Cx<double>*, Cx<double>& y) {
        __m128d a = Abs(x->re);
        TableCis<L>(a, y.re, y.im);
        y.im = Xor(y.im, SignBit(x->re));
        return MaskBits(trig::InfNan(a));
    }
};

// Single EP: sin r ~ r + r^3 P(r^2), cos r ~ 1 + r^2 Q(r^2) on [-pi/4, pi/4]
// (tools/complex/cis_single_ep.sollya: relative errors 1.9e-6 and 3.8e-8).
constexpr double kSinP[] = {-0x1.554427f8e034ep-3, 0x1.0b7e92706c9a3p-7};
constexpr double kCosQ[] = {-0x1.ffffb2a77e809p-2, 0x1.553e7f02b36f1p-5, -0x1.644d62994b83dp-10};
constexpr double kTwoOverPi = 0x1.45f306dc9c883p-1;
constexpr double kPiOver2Hi = 0x1.921fb54p0; // 27 significant bits: n times it is exact
constexpr double kPiOver2Lo = 0x1.10b4611a62633p-30;

// cos |x| and sin |x| of two double lanes below 2^24 by the pi/2 reduction.
BRENN_VEC void QuadrantCis(__m128d a, __m128d& c, __m128d& s) {
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    __m128d t = Add(Mul(a, Set<double>(kTwoOverPi)), shifter);
    __m128d n = Sub(t, shifter);
    __m128d r = Sub(Sub(a, Mul(n, Set<double>(kPiOver2Hi))), Mul(n, Set<double>(kPiOver2Lo)));
    __m128d u = Mul(r, r);
    __m128d sr = Add(r, Mul(Mul(r, u), Horner(u, kSinP)));
    __m128d cr = Add(Set<double>(1), Mul(u, Horner(u, kCosQ)));
    // quadrant q = n mod 4: (cos, sin) = (c, s), (-s, c), (-c, -s), (s, -c)
    I64x2 q = AsInt(t);
    __m128d odd = AsFloat(ShiftLeft<63>(q));
    __m128d sinSign = And(AsFloat(ShiftLeft<62>(q)), SignMask<double>());
    __m128d cosSign = And(AsFloat(ShiftLeft<62>(Add(q, Set<int64_t>(1)))), SignMask<double>());
    s = Xor(IfThenElse(odd, cr, sr), sinSign);
    c = Xor(IfThenElse(odd, sr, cr), cosSign);
}

template <Level L>
struct CisC : ExtendedScalarBody<float, float, BrennComplex8, CisScalar> {
    static constexpr const char* kName = "vcCIS";
    static void Half(__m128d a, __m128d& c, __m128d& s) {
        if constexpr (L == Level::EP)
            QuadrantCis(Min(a, Set<double>(kLimit)), c, s);
        else
            TableCis<Level::EP>(a, c, s); // two-term series: enough before the rounding
    }
    static int Eval(const Cx<float>* x, const Cx<float>*, Cx<float>& y) {
        __m128 a = Abs(x->re);
        __m128d c0, s0, c1, s1;
        Half(WidenLower(a), c0, s0);
        Half(WidenUpper(a), c1, s1);
        y.re = Narrow(c0, c1);
        y.im = Xor(Narrow(s0, s1), SignBit(x->re));
        if constexpr (L == Level::EP)
            return MaskBits(Gt(AsInt(a), Set<int32_t>(0x4B7FFFFF))); // from 2^24, inf, NaN
        else
            return MaskBits(trig::InfNan(a));
    }
};

} // namespace
} // namespace brenn::vm::cx

using namespace brenn::vm;
using namespace brenn::vm::cx;

extern "C" {
ZAR_COMPLEX_KERNEL(z, CIS, LA, Cis, CisZ<Level::LA>)
ZAR_COMPLEX_KERNEL(z, CIS, HA, Cis, CisZ<Level::HA>)
ZAR_COMPLEX_KERNEL(z, CIS, EP, Cis, CisZ<Level::EP>)
ZAR_COMPLEX_KERNEL(c, CIS, LA, Cis, CisC<Level::LA>)
ZAR_COMPLEX_KERNEL(c, CIS, HA, Cis, CisC<Level::HA>)
ZAR_COMPLEX_KERNEL(c, CIS, EP, Cis, CisC<Level::EP>)
}
