/* Cosh and Sinh, single and double, three levels each (dSinh one kernel for LA and EP).
 *
 * Single LA and EP: one body with both exponentials in it. a = |x|, n = rint(a*log2e) by
 * the shifter, r = a - n*ln2 (two parts); the scales e1 = 2^(n-1) and e2 = 2^(-n-1) made
 * by integer addition on the exponent field of 0.5; S(r) ~ sinh r and C(r) ~ cosh r - 1;
 * with P = e1 + e2 and M = e1 - e2, cosh = P + (C*P + M*S) and sinh = M + (C*M + P*S),
 * x's sign OR-ed back. LA has the longer pair, EP the shorter one.
 * Single HA: the same body in double on widened lanes (hyper_core.h), with longer pairs.
 * Double: the halves of e^a from the exponential's table of 64 (hyper_core.h); HA sums the
 * heads exactly.
 * Range test on |x|: from 87.3365 (single) or 708 (double) up, and infinities and NaN, to
 * the scalar routine (hyper_scalar.h), which settles overflow with status 3.
 *
 * Measured (brenn_accuracy): see the rows' lines in docs/accuracy.md. */
#include "frame/kernels.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/hyper/hyper_core.h"
#include "vecmath/hyper/hyper_scalar.h"

namespace brenn::vm {
namespace {

template <class T>
struct CoshWindow;
template <>
struct CoshWindow<float> {
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x42AEAC4Du}; // |x| >= 87.3365326
    // The same and |x| below the normals: the single HA Sinh, which runs in double, leaves
    // denormals to the scalar routine for their underflow flag.
    static constexpr Range32 kWithDenormals = {0x7FFFFFFFu, 0x7F800000u, 0xC22EAC4Du};
};
template <>
struct CoshWindow<double> {
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x40861FFFu}; // |x| >= 708, high word
};

// The single both-exponentials body's constants: log2(e), ln 2 in two parts.
constexpr float kLog2eS = 0x1.715476p+0f;  // 1.44269502
constexpr float kLn2HiS = 0x1.62ep-1f;     // 0.693115234
constexpr float kLn2LoS = 0x1.0bfbe8p-15f; // 3.19461833e-05
// S(r) = r + r*r2*Horner(r2, kS), C(r) = r2*Horner(r2, kC).
// LA: the set of the both-exponentials body.
constexpr float kSinhLA[] = {0.16666542f, 0.00836667512f};
constexpr float kCoshLA[] = {0.5f, 0.0416664556f, 0.00139357557f};
// EP: fitted by tools/hyper/cosh_sinh_single.sollya.
constexpr float kSinhEP[] = {0x1.565bbp-3f};
constexpr float kCoshEP[] = {0.5f, 0x1.56044ap-5f};

enum class Fn { Cosh, Sinh };

// The single both-exponentials body on a = |x| (special lanes zero).
template <Fn F, Level L>
inline __m128 BothExps(__m128 a) {
    const __m128 shifter = Set<float>(Format<float>::kShifter);
    __m128 t = Add(Mul(a, Set<float>(kLog2eS)), shifter);
    __m128 n = Sub(t, shifter);
    __m128 r = Sub(Sub(a, Mul(n, Set<float>(kLn2HiS))), Mul(n, Set<float>(kLn2LoS)));
    // The shifter's low bits hold n; shifted into the exponent field, the shifter's own
    // bits leave the word.
    I32x4 nf = ShiftLeft<Format<float>::kMantBits>(AsInt(t));
    const I32x4 half = Set<uint32_t>(0x3F000000u);
    __m128 e1 = AsFloat(Add(half, nf));
    __m128 e2 = AsFloat(Sub(half, nf));
    __m128 r2 = Mul(r, r);
    __m128 s, c;
    if constexpr (L == Level::EP) {
        s = Add(r, Mul(Mul(r, r2), Horner(r2, kSinhEP)));
        c = Mul(r2, Horner(r2, kCoshEP));
    } else {
        s = Add(r, Mul(Mul(r, r2), Horner(r2, kSinhLA)));
        c = Mul(r2, Horner(r2, kCoshLA));
    }
    __m128 p = Add(e1, e2), m = Sub(e1, e2);
    if constexpr (F == Fn::Cosh)
        return Add(p, Add(Mul(c, p), Mul(m, s)));
    else
        return Add(m, Add(Mul(c, m), Mul(p, s)));
}

// The double path on a = |x| in [0, 708]: HA exact sums, HA and LA the degree-5 tail
// (its 2^-51.25 relative to e^r - 1 is below 2^-58 of e^r), EP the degree 4 (Sinh's EP
// is its LA kernel).
template <Fn F, Level L>
inline __m128d HalvesPath(__m128d a) {
    constexpr ExpDegree D = L == Level::EP ? ExpDegree::Four : ExpDegree::Five;
    ExpHalves h = HalvesOf<D>(a);
    if constexpr (F == Fn::Cosh)
        return Sum(CoshOf<L == Level::HA>(h));
    else if constexpr (L == Level::HA)
        return Sum(SinhOf<true, SinhSeriesHA>(a, h));
    else
        return Sum(SinhOf<false, SinhSeriesLA>(a, h));
}

template <Fn F, Level L>
inline __m128 HyperOf(__m128 a) {
    if constexpr (L == Level::HA) {
        __m128d s0, c0, s1, c1;
        SinhCoshWide(WidenLower(a), s0, c0);
        SinhCoshWide(WidenUpper(a), s1, c1);
        return F == Fn::Cosh ? Narrow(c0, c1) : Narrow(s0, s1);
    } else
        return BothExps<F, L>(a);
}
template <Fn F, Level L>
inline __m128d HyperOf(__m128d a) {
    return HalvesPath<F, L>(a);
}

template <Fn F, class Tp, Level L>
struct HyperBody {
    using T = Tp;
    using V = Vec<T>;
    static BRENN_VEC V Eval(V x, V& special) {
        constexpr bool denormals = F == Fn::Sinh && L == Level::HA && sizeof(T) == 4;
        if constexpr (denormals)
            special = RangeTest(x, CoshWindow<float>::kWithDenormals);
        else
            special = RangeTest(x, CoshWindow<T>::kWindow);
        V a = IfThenElse(special, Zero<T>(), Abs(x)); // special lanes run on 0
        V y = HyperOf<F, L>(a);
        if constexpr (F == Fn::Sinh) y = Or(y, SignBit(x));
        return y;
    }
    // Double rounds of sixteen: the compiler interleaves the round's eight chains.
    static constexpr int kRound = sizeof(T) == 8 ? 16 : 8;
};

template <class Tp, Level L>
struct CoshBody : HyperBody<Fn::Cosh, Tp, L> {
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(Tp, Cosh);
    static int Scalar(const Tp* a, Tp* y) { return CoshScalar(a, y); }
    static int EvalWide(const Vec<Tp>* x, Vec<Tp>* y) { return EvalByRegister<CoshBody>(x, y); }
};
template <class Tp, Level L>
struct SinhBody : HyperBody<Fn::Sinh, Tp, L> {
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(Tp, Sinh);
    static int Scalar(const Tp* a, Tp* y) { return SinhScalar(a, y); }
    static int EvalWide(const Vec<Tp>* x, Vec<Tp>* y) { return EvalByRegister<SinhBody>(x, y); }
};

} // namespace
} // namespace brenn::vm

extern "C" {
ZAR_ROW_KERNELS(Cosh, Unary, brenn::vm::CoshBody)
ZAR_LEVEL_KERNELS(s, Sinh, Unary, brenn::vm::SinhBody)
ZAR_KERNEL_OF(d, Sinh, LaEp, Unary, brenn::vm::SinhBody<double, brenn::vm::Level::LA>)
ZAR_KERNEL_OF(d, Sinh, HA, Unary, brenn::vm::SinhBody<double, brenn::vm::Level::HA>)
}
