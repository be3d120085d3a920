/* Tanh, single and double, three levels each (dTanh one kernel for LA and EP).
 *
 * Single LA and EP: no exponential. The lanes are widened to double and each looks up its
 * interval: the row from the input's bits, (bits & 0x7FF80000) - 0x3CF80000 clamped to
 * [0, the last row], sixteen intervals a binade from 2^-5 on (hyper_tables.h, generated
 * by tools/hyper/gen_hyper_tables); a = |x|. The last row, from 10.0 exactly on, is the
 * constant 1 with zeros above it, so a finite a there gives 1 as it stands (setting it
 * to 0 first would change nothing). LA evaluates the row's cubic,
 * ((c3*a + c2)*a + c1)*a + c0 (row 0 has c0 = 0 and c1 = 1, so small arguments keep
 * their leading term exactly); EP the row's line c1*a + c0. x's sign is OR-ed back
 * after the narrowing.
 * Single HA, in single arithmetic: a held at 10 picks one of 32 rows a binade, {c, H, K}
 * with c a single near the row's midpoint whose tanh is a single H to 2^-12 ulp (such
 * points are dense enough up to 8.75; above, the rows are constants) and K ~ 1 - H^2,
 * and by the addition theorem tanh(c + t) = H + K*s/(1 + H*s), s = tanh(t) for t = a - c
 * (exact: a and c share their exponent) by a short odd polynomial. The part after H is
 * under 1/64 of the result, so that its few roundings cost about a tenth of an ulp.
 * Row 0 (below 2^-8) has c = H = 0 and K = 1 and gives s itself.
 * Double, the same theorem on rows of doubles, one body for every level: a held at 19.5
 * (tanh is 1 to the last bit from 19.06 on) picks one of 32 rows a binade from the high
 * word, {c, H, K} with c a double near the row's midpoint whose tanh is a double H to
 * 2^-12 ulp (on [19, 19.5), where tanh crosses no double, the point of the row below) and
 * K ~ 1 - H^2; the result is H + K*s/(1 + H*s), s = tanh(a - c) by an odd polynomial of
 * degree 9 (HA) or 7 (LA, EP).
 * Only exponents of all ones go to the scalar routine (1 with x's sign, or the NaN);
 * nothing is reported. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/hyper/quiet_body.h"
#include "vecmath/hyper/hyper_scalar.h"
#include "vecmath/hyper/hyper_tables.h"

namespace brenn::vm {
namespace {

// The interval index: 16 rows a binade, row 0 below 2^-5, the last row from 10 on.
constexpr uint32_t kRowBits = 0x7FF80000u, kRowBase = 0x3CF80000u;
constexpr int kRowShift = 19, kLastRow = 133;

// y = row's polynomial at a, two lanes, from the rows' byte offsets o0 and o1 (unsigned:
// the move that extracts an offset widens it to an address, no sign extension after it).
template <Level L>
inline __m128d RowPoly(__m128d a, uint32_t o0, uint32_t o1) {
    const char* base = L == Level::EP ? reinterpret_cast<const char*>(tanhRowsEP)
                                      : reinterpret_cast<const char*>(tanhRowsLA);
    const double* r0 = reinterpret_cast<const double*>(base + o0);
    const double* r1 = reinterpret_cast<const double*>(base + o1);
    __m128d c0, c1;
    LoadTransposed(r0, r1, c0, c1);
    if constexpr (L == Level::EP) return Add(Mul(c1, a), c0);
    __m128d c2, c3;
    LoadTransposed(r0 + 2, r1 + 2, c2, c3);
    return Add(Mul(Add(Mul(Add(Mul(c3, a), c2), a), c1), a), c0);
}

// The HA rows: 32 a binade, row 1 from 2^-8 (0x3B800000) on, row 361 the argument 10.
constexpr uint32_t kRowBaseHA = 0x3B7C0000u;
constexpr int kRowShiftHA = 18;
// s(t) = t + t*u*q ~ tanh(t), u = t^2, q = -1/3 (tools/hyper/tanh_single_ha.sollya:
// relative error 2^-35 below 2^-8, 2^-22.9 to 1/32, 2^-18.9 to 1/16, 2^-10.9 to 1/4, where
// the part after H is under 2^-8.8, 2^-13.6 and 2^-23 of the result).
constexpr float kTanhQ = -0x1.555556p-2f;
// Below this u is taken as 0 (s = t), so that t*t cannot underflow.
constexpr float kTanhTinyHA = 0x1p-40f;

inline __m128 TanhHA(__m128 x) {
    __m128 a = Min(Abs(x), Set<float>(10.0f));
    // The bits held at row 0's, cut to the row and shifted to a byte offset (rows of 16
    // bytes) counted from row 0's bits: the scalar unit takes that origin off.
    I32x4 bits = Max(AsInt(a), Set<int32_t>(int32_t(kRowBaseHA)));
    Indices o = IndicesOf(ShiftRight<kRowShiftHA - 4>(And(bits, Set<uint32_t>(0x7FFC0000u))));
    const char* base = reinterpret_cast<const char*>(tanhRowsHA);
    constexpr int32_t origin = int32_t(kRowBaseHA >> (kRowShiftHA - 4));
    auto rowAt = [base](int32_t off) {
        return reinterpret_cast<const float*>(base + (off - origin));
    };
    __m128 c, h, k, pad;
    LoadTransposed(rowAt(o.at[0]), rowAt(o.at[1]), rowAt(o.at[2]), rowAt(o.at[3]), c, h, k, pad);
    __m128 t = Sub(a, c);
    __m128 tq = And(t, Ge(a, Set<float>(kTanhTinyHA)));
    __m128 u = Mul(tq, tq);
    __m128 s = Add(t, Mul(Mul(t, u), Set<float>(kTanhQ)));
    __m128 rest = Div(Mul(k, s), Add(Set<float>(1.0f), Mul(h, s)));
    return Or(Add(h, rest), SignBit(x));
}

template <Level L>
inline __m128 TanhOf(__m128 x) {
    if constexpr (L == Level::HA) return TanhHA(x);
    __m128 a = Abs(x);
    I32x4 row = Sub(And(AsInt(x), Set<uint32_t>(kRowBits)), Set<uint32_t>(kRowBase));
    row = Min(Max(row, Set<int32_t>(0)), Set<int32_t>(kLastRow << kRowShift));
    // The byte offset of a row of 32 bytes (LA) or 16 (EP).
    constexpr int shift = L == Level::EP ? kRowShift - 4 : kRowShift - 5;
    Indices o = IndicesOf(ShiftRight<shift>(row));
    __m128d lo = RowPoly<L>(WidenLower(a), uint32_t(o.at[0]), uint32_t(o.at[1]));
    __m128d hi = RowPoly<L>(WidenUpper(a), uint32_t(o.at[2]), uint32_t(o.at[3]));
    return Or(Narrow(lo, hi), SignBit(x));
}

// The double rows: 32 a binade from 2^-8 (high word 0x3F700000) on, a held at 19.5.
constexpr uint32_t kRowBaseD = 0x3F6F8000u;
constexpr int kRowShiftD = 15;
constexpr double kTanhHoldD = 19.5;
// s(t) = t + t*u*Q(u) ~ tanh(t), u = t^2 (tools/hyper/tanh_double.sollya: relative error
// 2^-63.7 to 2^-5, 2^-47.5 to 1/16, 2^-37 to 1/8, 2^-26.9 to 1/4, where the part
// after H is under 2^-13.6, 2^-24 and 2^-46 of the result).
constexpr double kTanhQD[] = {-0x1.5555555555554p-2, 0x1.11111110fe215p-3, -0x1.ba1b9bf56e7dfp-5,
                              0x1.6606423dcfd1fp-6};
// LA and EP: Q of degree 2 (tools/hyper/tanh_double_la.sollya: 2^-54 below 2^-8, 0.6 ulp
// of the result there, and 1.5 ulp at most through the rows, on [4, 8)).
constexpr double kTanhQDLow[] = {-0x1.555555553ef73p-2, 0x1.11110ac6846f4p-3,
                                 -0x1.b995629f9ef3cp-5};

// By the rows: tanh(c + t) = H + K*s/(1 + H*s), every level; LA and EP with s of degree 7.
template <Level L>
BRENN_VEC __m128d TanhOf(__m128d x) {
    __m128d a = Min(Abs(x), Set<double>(kTanhHoldD));
    // The high words held at row 0's, cut to the row and shifted to a byte offset (rows
    // of 32 bytes) counted from row 0's word.
    I32x4 hi = Max(BitCast<I32x4>(AsInt(a)), Set<int32_t>(int32_t(kRowBaseD)));
    I32x4 off = ShiftRight<kRowShiftD - 5>(And(hi, Set<uint32_t>(0x7FFF8000u)));
    const char* base = reinterpret_cast<const char*>(tanhRowsD);
    constexpr int32_t origin = int32_t(kRowBaseD >> (kRowShiftD - 5));
    const double* r0 = reinterpret_cast<const double*>(base + (ExtractLane<1>(off) - origin));
    const double* r1 = reinterpret_cast<const double*>(base + (ExtractLane<3>(off) - origin));
    __m128d c, h, k, pad;
    LoadTransposed(r0, r1, c, h);
    LoadTransposed(r0 + 2, r1 + 2, k, pad);
    __m128d t = Sub(a, c);
    __m128d u = Mul(t, t);
    __m128d q = L == Level::HA ? Horner(u, kTanhQD) : Horner(u, kTanhQDLow);
    __m128d s = Add(t, Mul(Mul(t, u), q));
    __m128d rest = Div(Mul(k, s), Add(Set<double>(1.0), Mul(h, s)));
    return Or(Add(h, rest), SignBit(x));
}

// A double round of sixteen: each register through the rows, the compiler interleaving
// the eight (the special lanes already 0, the range tested once for the round).
template <Level L>
BRENN_VEC void TanhRound(const __m128d* x, __m128d* y) {
#pragma GCC unroll 8
    for (int k = 0; k < 8; ++k)
        y[k] = TanhOf<L>(x[k]);
}

struct TanhOp {
    template <Level L, class V>
    static V Of(V x) {
        return TanhOf<L>(x);
    }
    template <Level L>
    static void Round(const __m128d* x, __m128d* y) {
        TanhRound<L>(x, y);
    }
    template <class T>
    static int Scalar(const T* a, T* y) {
        return TanhScalar(a, y);
    }
};
// Single LA and EP take rounds of sixteen with the range tested once a round
// (EvalTestOnce: a round with an infinity or NaN runs those lanes on 0, as Eval does).
template <class Tp, Level L>
struct TanhBody : QuietBody<TanhOp, Tp, L> {
    using Base = QuietBody<TanhOp, Tp, L>;
    using T = Tp;
    using V = Vec<T>;
    static constexpr bool kTestOnce = sizeof(T) == 4 && L != Level::HA;
    static constexpr int kRound = kTestOnce ? 16 : Base::kRound;
    static constexpr Range32 kWindow = InfNaNWindow<T>::kWindow;
    static BRENN_VEC V Value(V x) { return TanhOf<L>(x); }
    static int EvalWide(const V* x, V* y) {
        if constexpr (kTestOnce)
            return EvalTestOnce<TanhBody>(x, y);
        else
            return Base::EvalWide(x, y);
    }
};

} // namespace
} // namespace brenn::vm

extern "C" {
// Single LA and EP flattened: their rounds of sixteen stay in the kernel's loop with the
// constants in registers.
BRENN_FLAT ZAR_KERNEL_OF(s, Tanh, EP, Unary, brenn::vm::TanhBody<float, brenn::vm::Level::EP>)
BRENN_FLAT ZAR_KERNEL_OF(s, Tanh, LA, Unary, brenn::vm::TanhBody<float, brenn::vm::Level::LA>)
ZAR_KERNEL_OF(s, Tanh, HA, Unary, brenn::vm::TanhBody<float, brenn::vm::Level::HA>)
ZAR_KERNEL_OF(d, Tanh, LaEp, Unary, brenn::vm::TanhBody<double, brenn::vm::Level::LA>)
ZAR_KERNEL_OF(d, Tanh, HA, Unary, brenn::vm::TanhBody<double, brenn::vm::Level::HA>)
}
