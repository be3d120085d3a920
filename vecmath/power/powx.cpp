/* Powx, single and double, three levels: x^b with one exponent b for the whole vector.
 *
 * The bit pattern of b picks the cheaper form, tested in this order:
 *   +-0              every result 1.0, a plain fill (NaN inputs too)
 *   1.0              a copy of a
 *   2.0 to 9.0       a fixed chain of products, sixteen bytes a register, four a round
 *   -1.0             the row's Inv slot
 *   -2.0 to -4.0     the positive power into y, then the Inv slot on y (elements whose
 *                    power left the normal range done again by the scalar routine)
 *   0.5, -0.5        the Sqrt and InvSqrt slots
 *   1/3, -1/3, 2/3   (their rounded bit patterns) the Cbrt, InvCbrt and Pow2o3 slots
 *   1.5              the Pow3o2 slot
 *   otherwise        the general body of Pow (pow_body.h) with b in every lane (x that
 *                    are not positive normals, negative x among them, go to the scalar
 *                    routine).
 * The slots are those of the kernel's own level. At HA only -1, 0.5, -0.5 and 1.5 are
 * taken apart; every other b, 2 included, runs the general body, which is within an ulp
 * where the chains are not. A dispatched kernel reports under its own name ("vsInv", ...),
 * and a slot without a kernel leaves b to the general body. */
#include <string.h>

#include <limits>

#include "frame/dispatch.h"
#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/power/pow_body.h"
#include "vecmath/power/pow_scalar.h"

namespace brenn::vm {
namespace {

template <class T>
using UnaryKernel = void (*)(int, const T*, T*);

// The unary slots Powx calls, by type.
enum class PowxCall { Inv, Sqrt, InvSqrt, Cbrt, InvCbrt, Pow2o3, Pow3o2 };

template <class T>
UnaryKernel<T> SlotOf(PowxCall c, int slot);
#define BRENN_POWX_SLOTS(t)                                                                        \
    switch (c) {                                                                                   \
    case PowxCall::Inv:                                                                            \
        return ZAR_SLOT(t##Inv, slot);                                                             \
    case PowxCall::Sqrt:                                                                           \
        return ZAR_SLOT(t##Sqrt, slot);                                                            \
    case PowxCall::InvSqrt:                                                                        \
        return ZAR_SLOT(t##InvSqrt, slot);                                                         \
    case PowxCall::Cbrt:                                                                           \
        return ZAR_SLOT(t##Cbrt, slot);                                                            \
    case PowxCall::InvCbrt:                                                                        \
        return ZAR_SLOT(t##InvCbrt, slot);                                                         \
    case PowxCall::Pow2o3:                                                                         \
        return ZAR_SLOT(t##Pow2o3, slot);                                                          \
    case PowxCall::Pow3o2:                                                                         \
        return ZAR_SLOT(t##Pow3o2, slot);                                                          \
    }                                                                                              \
    return nullptr;
template <>
UnaryKernel<float> SlotOf<float>(PowxCall c, int slot) {
    BRENN_POWX_SLOTS(s)
}
template <>
UnaryKernel<double> SlotOf<double>(PowxCall c, int slot) {
    BRENN_POWX_SLOTS(d)
}
#undef BRENN_POWX_SLOTS

// The general body: Pow's, with b in every lane, the head taken to the output's 16-byte
// boundary (its input need not share the output's alignment: a is read, y written).
// What the Powx bodies share: the name, the layout and the general body's scalar routine.
template <class Tp>
struct PowxCommon {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Powx);
    static constexpr Layout kLayout = Layout::SplitOut;
    T b;
    int Scalar(const T* a, T* y) const { return PowScalar<PowDomain::Real>(*a, b, y); }
};

// `FiniteB` (b neither infinite nor NaN, every integer b among them): single LA and HA
// test x alone and keep b as it is in every lane.
template <class Tp, Level L, bool FiniteB = true>
struct PowxBody : PowxCommon<Tp> {
    using T = Tp;
    using V = Vec<T>;
    V bv;
    BRENN_VEC V Eval(V x, V& special) const {
        constexpr bool finite = FiniteB && sizeof(T) == 4;
        return PowOf<L, finite, true>(x, bv, special);
    }
    // Rounds of sixteen, each step over the round's eight double registers (PowRound) or
    // four single ones (PowSingleRound: their logarithms, then their exponentials).
    static constexpr int kRound = 16;
    BRENN_VEC int EvalWide(const V* x, V* y) const {
        if constexpr (sizeof(T) == 4) {
            const V bs[4] = {bv, bv, bv, bv};
            V special[4];
            PowSingleRound<L, 4, FiniteB, true>(x, bs, y, special);
            return RoundMaskBits(special);
        } else {
            V bs[8];
#pragma GCC unroll 8
            for (int k = 0; k < 8; ++k)
                bs[k] = bv;
            return PowWide<L>(x, bs, y);
        }
    }
};

// x^P by a fixed chain of products.
template <int P, class V>
BRENN_VEC V IntegerPower(V x) {
    V x2 = Mul(x, x);
    if constexpr (P == 2) return x2;
    if constexpr (P == 3) return Mul(x2, x);
    V x4 = Mul(x2, x2);
    if constexpr (P == 4) return x4;
    if constexpr (P == 5) return Mul(x4, x);
    if constexpr (P == 6) return Mul(x4, x2);
    if constexpr (P == 7) return Mul(x4, Mul(x2, x));
    V x8 = Mul(x4, x4);
    if constexpr (P == 8) return x8;
    return Mul(x8, x);
}

// y = a^P over the vector: four registers a round, the last elements through one padded
// register. The kernel's floating-point environment is set around it.
template <class T, Level L, int P>
void PowerChain(int n, const T* a, T* y) {
    using V = Vec<T>;
    constexpr int W = kLanes<T>;
    Env<PowxBody<T, L>> env = Enter<PowxBody<T, L>>();
    int i = 0;
    for (; i + 4 * W <= n; i += 4 * W) {
        V x0 = Load(a + i), x1 = Load(a + i + W), x2 = Load(a + i + 2 * W),
          x3 = Load(a + i + 3 * W);
        Store(y + i, IntegerPower<P>(x0));
        Store(y + i + W, IntegerPower<P>(x1));
        Store(y + i + 2 * W, IntegerPower<P>(x2));
        Store(y + i + 3 * W, IntegerPower<P>(x3));
    }
    for (; i < n; i += W) {
        const int m = n - i < W ? n - i : W;
        alignas(16) T buf[W];
        for (int k = 0; k < W; ++k)
            buf[k] = k < m ? a[i + k] : T(1);
        StoreAligned(buf, IntegerPower<P>(LoadAligned(buf)));
        for (int k = 0; k < m; ++k)
            y[i + k] = buf[k];
    }
    Leave(env);
}

template <class T, Level L>
void PowerChainOf(int p, int n, const T* a, T* y) {
    switch (p) {
    case 2:
        return PowerChain<T, L, 2>(n, a, y);
    case 3:
        return PowerChain<T, L, 3>(n, a, y);
    case 4:
        return PowerChain<T, L, 4>(n, a, y);
    case 5:
        return PowerChain<T, L, 5>(n, a, y);
    case 6:
        return PowerChain<T, L, 6>(n, a, y);
    case 7:
        return PowerChain<T, L, 7>(n, a, y);
    case 8:
        return PowerChain<T, L, 8>(n, a, y);
    default:
        return PowerChain<T, L, 9>(n, a, y);
    }
}

// a^(-q) as a^q by the chain, then the Inv slot on y, a block at a time: where a^q
// overflowed, was denormal or underflowed, the reciprocal is zero, a denormal or near the
// top of the range and has lost its bits; those elements (finite non-zero a only) are
// done again by the scalar routine, from the block's copy of a (y may be a).
template <class T, Level L>
void NegativePower(int q, int n, const T* a, T b, T* y, UnaryKernel<T> inv) {
    constexpr int kBlock = 512;
    constexpr T kLow = std::numeric_limits<T>::min();
    constexpr T kHigh = std::numeric_limits<T>::max() / T(8);
    alignas(16) T xs[kBlock];
    for (int i = 0; i < n; i += kBlock) {
        const int m = n - i < kBlock ? n - i : kBlock;
        memcpy(xs, a + i, size_t(m) * sizeof(T));
        PowerChainOf<T, L>(q, m, xs, y + i);
        inv(m, y + i, y + i);
        for (int k = 0; k < m; ++k) {
            const T v = __builtin_fabs(y[i + k]);
            if (v >= kLow && v <= kHigh) continue;
            const T x = xs[k];
            if (x == T(0) || !__builtin_isfinite(x)) continue;
            PowScalar<PowDomain::Real>(x, b, &y[i + k]);
        }
    }
}

template <Level L>
constexpr int kSlotOf = L == Level::LA   ? frame::SlotLA
                        : L == Level::HA ? frame::SlotHA
                                         : frame::SlotEP;

// The integer value of b when b is one of 2 to 9 (or, negated, 2 to 4), else 0.
template <class T>
int SmallInteger(T b, int lo, int hi) {
    for (int k = lo; k <= hi; ++k)
        if (BitsOf(b) == BitsOf(T(k))) return k;
    return 0;
}

template <class T, Level L>
void PowxRun(int n, const T* a, T b, T* y) {
    constexpr int slot = kSlotOf<L>;
    const UInt<T> bits = BitsOf(b);
    auto is = [bits](T v) { return bits == BitsOf(v); };
    PowxCall call = PowxCall::Inv;
    bool dispatched = true;
    if constexpr (L != Level::HA) {
        if ((bits & Format<T>::kAbs) == 0) {
            for (int i = 0; i < n; ++i)
                y[i] = T(1);
            return;
        }
        if (is(T(1))) {
            if (n > 0 && y != a) memmove(y, a, size_t(n) * sizeof(T));
            return;
        }
        if (int p = SmallInteger(b, 2, 9)) return PowerChainOf<T, L>(p, n, a, y);
        if (is(T(-1))) {
            call = PowxCall::Inv;
        } else if (int q = SmallInteger(T(-b), 2, 4)) {
            if (UnaryKernel<T> inv = SlotOf<T>(PowxCall::Inv, slot)) {
                return NegativePower<T, L>(q, n, a, b, y, inv);
            }
            dispatched = false;
        } else if (is(T(0.5))) {
            call = PowxCall::Sqrt;
        } else if (is(T(-0.5))) {
            call = PowxCall::InvSqrt;
        } else if (is(T(1) / T(3))) {
            call = PowxCall::Cbrt;
        } else if (is(T(-1) / T(3))) {
            call = PowxCall::InvCbrt;
        } else if (is(T(2) / T(3))) {
            call = PowxCall::Pow2o3;
        } else if (is(T(1.5))) {
            call = PowxCall::Pow3o2;
        } else {
            dispatched = false;
        }
    } else {
        if (is(T(-1)))
            call = PowxCall::Inv;
        else if (is(T(0.5)))
            call = PowxCall::Sqrt;
        else if (is(T(-0.5)))
            call = PowxCall::InvSqrt;
        else if (is(T(1.5)))
            call = PowxCall::Pow3o2;
        else
            dispatched = false;
    }
    if (dispatched)
        if (UnaryKernel<T> k = SlotOf<T>(call, slot)) return k(n, a, y);
    if (__builtin_isfinite(b))
        RunUnary(PowxBody<T, L>{{b}, Set<T>(b)}, n, a, y);
    else
        RunUnary(PowxBody<T, L, false>{{b}, Set<T>(b)}, n, a, y);
}

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

#define BRENN_POWX_KERNEL(t, level)                                                                \
    void ZAR_KERNEL(t##Powx, level) BRENN_SIG(t, Powx) {                                           \
        PowxRun<BRENN_ELEM_##t, Level::level>(n, a, b, y);                                         \
    }

extern "C" {
BRENN_POWX_KERNEL(s, EP)
BRENN_POWX_KERNEL(s, LA)
BRENN_POWX_KERNEL(s, HA)
BRENN_POWX_KERNEL(d, EP)
BRENN_POWX_KERNEL(d, LA)
BRENN_POWX_KERNEL(d, HA)
}
