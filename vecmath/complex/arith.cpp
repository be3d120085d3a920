/* Complex arithmetic, single (c) and double (z): Add, Sub, Conj, Mul, MulByConj, Div.
 *
 * Add and Sub are the real Add and Sub over the 2n parts. Conj turns the sign of every
 * imaginary part and nothing else (no flag, a signalling NaN stays as it is); in double,
 * element by element, streaming long results past the cache.
 *
 * Double Mul and MulByConj, LA and HA: a lane whose four parts all lie in the window of
 * exact.h has its products formed exactly and each part's sum of two products rounded
 * once; every other lane (zeros, denormals, huge parts, infinities, NaNs) goes to the
 * scaled scalar routine. EP: the plain products, and the lane goes to the scalar
 * routine when a sum or difference cancelled by 20 bits or more or came out non-finite.
 * Double Div, LA and HA: the same window; the plain quotient cut to 26 bits and
 * corrected by the quotient of its exact residual (DivZ), or, for a group with a lane
 * whose parts lie 2^16 apart or more, the divisor c^2 + d^2 and both numerators carried
 * in two parts, each quotient from the reciprocal with one correction by the exact
 * residual. EP: the plain formula with one shared reciprocal; its lanes outside the
 * window go to the scalar routine too, since c*c overflows or underflows there.
 *
 * Single: products of singles are exact in double, so LA and HA (and Div's EP) form the
 * formulas in double and round once to single (division by the double reciprocal); a
 * lane whose result is not finite goes to the scalar routine (Annex G recovery, overflow
 * status). Single Mul EP is the plain formula in single with the double EP's test at
 * 2^-10. */
#include "vecmath/complex/arith_scalar.h"
#include "vecmath/complex/cframe.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/stream_frame.h"

namespace brenn::vm::cx {
namespace {

// Lanes whose single result part is an infinity or a NaN.
inline int NonFiniteBits(__m128 re, __m128 im) {
    const I32x4 inf = Set<int32_t>(0x7F800000);
    I32x4 r = Eq(And(AsInt(re), inf), inf), i = Eq(And(AsInt(im), inf), inf);
    return MaskBits(Or(r, i));
}

// Lanes whose part re kept its bits: |re| above 2^-20 |q| (double) or 2^-10 |q| (single),
// q the product it was made from, and finite; by integer compares of magnitudes, so that
// NaNs raise no flag. The others cancelled by 20 (10) bits or more, or are not finite.
inline I64x2 Kept(__m128d re, __m128d q) {
    const I64x2 inf = Set<int64_t>(0x7FF0000000000000);
    I64x2 r = AsInt(Abs(re)), t = AsInt(Mul(Abs(q), Set<double>(0x1p-20)));
    return And(Gt(r, t), Gt(inf, r));
}
inline I32x4 Kept(__m128 re, __m128 q) {
    const I32x4 inf = Set<int32_t>(0x7F800000);
    I32x4 r = AsInt(Abs(re)), t = AsInt(Mul(Abs(q), Set<float>(0x1p-10f)));
    return And(Gt(r, t), Gt(inf, r));
}

// EP: the plain products, (a + bi)(c + di) or, with Conj, (a + bi)(c - di) with the sign
// taken by the operations; the lanes that did not keep their bits go to the scalar routine
// (exact). Single EP keeps at least 13 of its 24 bits.
template <bool Conj, class V>
BRENN_VEC int PlainProducts(V a, V b, V c, V d, V& re, V& im) {
    V p = Mul(a, c), q = Mul(b, d), s = Mul(a, d), t = Mul(b, c);
    re = Conj ? Add(p, q) : Sub(p, q);
    im = Conj ? Sub(t, s) : Add(s, t);
    return MaskBits(Not(And(Kept(re, q), Kept(im, s))));
}

template <bool Conj>
constexpr const char* MulName() {
    return Conj ? "vzMulByConj" : "vzMul";
}
template <bool Conj>
constexpr const char* MulNameC() {
    return Conj ? "vcMulByConj" : "vcMul";
}

template <bool Conj, Level L>
struct MulZ {
    using T = double;
    using In = BrennComplex16;
    using Out = BrennComplex16;
    using V = __m128d;
    static constexpr const char* kName = MulName<Conj>();
    static constexpr bool kOneGroup = L != Level::EP;
    BRENN_VEC static int Eval(const Cx<double>* x, const Cx<double>* w, Cx<double>& y) {
        if constexpr (L != Level::EP) {
            // the four rounded products first, then the splits (a and b rounded, c and d
            // by the mask), each factor split once for its two products, so that few
            // values are live at once; MulByConj's sign of d is taken by the operations:
            // ac + bd, bc - ad
            V a = x->re, b = x->im, c = w->re, d = w->im;
            int bits = OutsideWindowBits<kMulWindowTop>(a, b, c, d);
            V ac = Mul(a, c), bd = Mul(b, d), bc = Mul(b, c), ad = Mul(a, d);
            auto ha = SplitRounded(a), hb = SplitRounded(b), hc = SplitByMask(c),
                 hd = SplitByMask(d);
            y.re = RoundedSumOfProducts<!Conj>(ac, ProductError(ha, hc, ac), bd,
                                               ProductError(hb, hd, bd));
            V bcl = ProductError(hb, hc, bc), adl = ProductError(ha, hd, ad);
            y.im = Conj ? RoundedSumOfProducts<true>(bc, bcl, ad, adl)
                        : RoundedSumOfProducts<false>(ad, adl, bc, bcl);
            return bits;
        } else {
            return PlainProducts<Conj>(x->re, x->im, w->re, w->im, y.re, y.im);
        }
    }
    static int Scalar(const In* x, const In* w, Out* y) { return MulScalar(x, w, y, Conj); }
};

// Single EP: the plain products in single.
template <bool Conj>
struct MulCLight {
    using T = float;
    using In = BrennComplex8;
    using Out = BrennComplex8;
    static constexpr const char* kName = MulNameC<Conj>();
    static int Eval(const Cx<float>* x, const Cx<float>* w, Cx<float>& y) {
        return PlainProducts<Conj>(x->re, x->im, w->re, w->im, y.re, y.im);
    }
    static int Scalar(const In* x, const In* w, Out* y) { return MulScalar(x, w, y, Conj); }
};

template <bool Conj>
struct MulC {
    using T = float;
    using In = BrennComplex8;
    using Out = BrennComplex8;
    static constexpr const char* kName = MulNameC<Conj>();
    static __m128d Re(__m128d a, __m128d b, __m128d c, __m128d d) {
        return Sub(Mul(a, c), Mul(b, d));
    }
    static __m128d Im(__m128d a, __m128d b, __m128d c, __m128d d) {
        return Add(Mul(a, d), Mul(b, c));
    }
    static int Eval(const Cx<float>* x, const Cx<float>* w, Cx<float>& y) {
        __m128 wd = Conj ? Neg(w->im) : w->im;
        __m128d a0 = WidenLower(x->re), b0 = WidenLower(x->im);
        __m128d c0 = WidenLower(w->re), d0 = WidenLower(wd);
        __m128d a1 = WidenUpper(x->re), b1 = WidenUpper(x->im);
        __m128d c1 = WidenUpper(w->re), d1 = WidenUpper(wd);
        y.re = Narrow(Re(a0, b0, c0, d0), Re(a1, b1, c1, d1));
        y.im = Narrow(Im(a0, b0, c0, d0), Im(a1, b1, c1, d1));
        return NonFiniteBits(y.re, y.im);
    }
    static int Scalar(const In* x, const In* w, Out* y) { return MulScalar(x, w, y, Conj); }
};

using V2 = __m128d;

// The quotient hi + lo over the divisor dh + dl (dh split), from its reciprocal estimate
// inv, with one correction by the exact residual.
template <class V>
BRENN_VEC V QuotientOf(V nh, V nl, const Halves<V>& dh, V dl, V inv) {
    V q = Mul(nh, inv), ph, pl;
    ExactProduct(SplitRounded(q), dh, ph, pl);
    V r = Add(Sub(Sub(nh, ph), pl), Sub(nl, Mul(q, dl)));
    return Add(q, Mul(r, inv));
}

// The exact quotient of one group: each factor split once for its three products, the
// divisor's head for two; the numerators and the divisor in two parts, each quotient from
// the reciprocal with one correction by the exact residual. For the groups with a lane
// the short form below does not serve.
BRENN_VEC void ExactQuotient(V2 a, V2 b, V2 c, V2 d, Cx<double>& y) {
    auto ha = SplitRounded(a), hb = SplitRounded(b), hc = SplitRounded(c), hd = SplitRounded(d);
    V2 dh, dl, nh, nl;
    SumOfProducts(hc, hc, hd, hd, dh, dl);
    auto hdh = SplitRounded(dh);
    V2 inv = Div(Set<double>(1), dh);
    SumOfProducts(ha, hc, hb, hd, nh, nl);
    y.re = QuotientOf(nh, nl, hdh, dl, inv);
    SumOfProducts<true>(hb, hc, ha, hd, nh, nl);
    y.im = QuotientOf(nh, nl, hdh, dl, inv);
}

// Lanes where one part of q is below 2^-16 of the other (or zero), by the bits.
BRENN_VEC int LopsidedBits(V2 qr, V2 qi) {
    const I64x2 k = Set<int64_t>(int64_t(16) << 52);
    I64x2 r = AsInt(Abs(qr)), i = AsInt(Abs(qi));
    return MaskBits(Not(And(Gt(Add(r, k), i), Gt(Add(i, k), r))));
}

template <Level L>
struct DivZ {
    using T = double;
    using In = BrennComplex16;
    using Out = BrennComplex16;
    static constexpr const char* kName = "vzDiv";
    // LA and HA: the plain quotient q0 = (ac + bd, bc - ad) / (c^2 + d^2), within 6 units of
    // the last place of |q|, its parts cut to 26 bits (h, within 2^-25 of each part), the
    // residual x - h w formed exactly but for the last roundings of its small parts (h
    // times a half of c or d is exact; the two large products go through TwoSum with the
    // error kept), and its quotient added in plain arithmetic: q = h + (x - h w) / w. That
    // quotient is at most 2^-25 |q| and within a few roundings of itself, so each part is
    // the rounding of h + r to within 2^-76 |q|: about 2^-23 ulp of a part that is at least
    // 2^-16 of the other. Groups with a lane whose parts are further apart (the plain
    // formula cancelled there, or the result is lopsided) take the exact quotient.
    BRENN_VEC static int Eval(const Cx<double>* x, const Cx<double>* w, Cx<double>& y) {
        V2 a = x->re, b = x->im, c = w->re, d = w->im;
        int bits = OutsideWindowBits<kDivWindowTop>(a, b, c, d);
        V2 r = Div(Set<double>(1), Add(Mul(c, c), Mul(d, d)));
        V2 qr = Mul(Add(Mul(a, c), Mul(b, d)), r);
        V2 qi = Mul(Sub(Mul(b, c), Mul(a, d)), r);
        if constexpr (L == Level::EP) {
            y.re = qr, y.im = qi;
            return bits;
        } else {
            if (__builtin_expect((LopsidedBits(qr, qi) & ~bits) != 0, 0)) {
                ExactQuotient(a, b, c, d, y);
                return bits;
            }
            const V2 cut = AsFloat(Set<int64_t>(int64_t(0xFFFFFFFFF8000000ull)));
            qr = And(qr, cut), qi = And(qi, cut);
            auto hc = SplitByMask(c), hd = SplitByMask(d);
            V2 s, e;
            TwoDiff(Mul(qr, hc.hi), Mul(qi, hd.hi), s, e); // a - (qr c - qi d)
            V2 rr = Add(Sub(Sub(a, s), e), Sub(Mul(qi, hd.lo), Mul(qr, hc.lo)));
            TwoSum(Mul(qr, hd.hi), Mul(qi, hc.hi), s, e); // b - (qr d + qi c)
            V2 ri = Sub(Sub(Sub(b, s), e), Add(Mul(qr, hd.lo), Mul(qi, hc.lo)));
            y.re = Add(qr, Mul(Add(Mul(rr, c), Mul(ri, d)), r));
            y.im = Add(qi, Mul(Sub(Mul(ri, c), Mul(rr, d)), r));
            return bits;
        }
    }
    static int Scalar(const In* x, const In* w, Out* y) { return DivScalar(x, w, y); }
};

struct DivC {
    using T = float;
    using In = BrennComplex8;
    using Out = BrennComplex8;
    static constexpr const char* kName = "vcDiv";
    static void Half(__m128d a, __m128d b, __m128d c, __m128d d, __m128d& re, __m128d& im) {
        __m128d r = Div(Set<double>(1), Add(Mul(c, c), Mul(d, d)));
        re = Mul(Add(Mul(a, c), Mul(b, d)), r);
        im = Mul(Sub(Mul(b, c), Mul(a, d)), r);
    }
    static int Eval(const Cx<float>* x, const Cx<float>* w, Cx<float>& y) {
        __m128d r0, i0, r1, i1;
        Half(WidenLower(x->re), WidenLower(x->im), WidenLower(w->re), WidenLower(w->im), r0, i0);
        Half(WidenUpper(x->re), WidenUpper(x->im), WidenUpper(w->re), WidenUpper(w->im), r1, i1);
        y.re = Narrow(r0, r1);
        y.im = Narrow(i0, i1);
        return NonFiniteBits(y.re, y.im);
    }
    static int Scalar(const In* x, const In* w, Out* y) { return DivScalar(x, w, y); }
};

template <class Tp>
struct ConjBody {
    using T = Tp;
    using In = ComplexOf<Tp>;
    using Out = In;
    static int Eval(const Cx<Tp>* x, const Cx<Tp>*, Cx<Tp>& y) {
        y.re = x->re;
        y.im = Neg(x->im);
        return 0;
    }
};

// Double Conj: an element is one register, its imaginary part's sign turned by one
// exclusive or, with no separation into parts. A long call that does not work in place
// writes y with non-temporal stores, as the streaming frame does from kStreamBytes: the
// read for ownership of y would otherwise be a third stream beside a's read and y's
// write. Those stores need y on a 16-byte boundary; a y aligned only to 8 bytes (or a
// call in place) keeps the ordinary stores.
template <bool NonTemporal>
BRENN_VEC int ConjRounds(int n, const BrennComplex16* a, BrennComplex16* y, __m128d flip) {
    const double* pa = &a->re;
    double* py = &y->re;
    int i = 0;
    for (; i + 4 <= n; i += 4) {
        __m128d r0 = Xor(Load(pa + 2 * i), flip), r1 = Xor(Load(pa + 2 * i + 2), flip);
        __m128d r2 = Xor(Load(pa + 2 * i + 4), flip), r3 = Xor(Load(pa + 2 * i + 6), flip);
        if constexpr (NonTemporal) {
            StoreStream(py + 2 * i, r0);
            StoreStream(py + 2 * i + 2, r1);
            StoreStream(py + 2 * i + 4, r2);
            StoreStream(py + 2 * i + 6, r3);
        } else {
            Store(py + 2 * i, r0);
            Store(py + 2 * i + 2, r1);
            Store(py + 2 * i + 4, r2);
            Store(py + 2 * i + 6, r3);
        }
    }
    if constexpr (NonTemporal) StreamFence();
    return i;
}

inline void ConjZ(int n, const BrennComplex16* a, BrennComplex16* y) {
    const __m128d flip = SetLanes(0.0, -0.0);
    int i = 0;
    if (uintptr_t(n) * sizeof(BrennComplex16) >= kStreamBytes && y != a &&
        (reinterpret_cast<uintptr_t>(y) & 15) == 0)
        i = ConjRounds<true>(n, a, y, flip);
    else if (n > 0)
        i = ConjRounds<false>(n, a, y, flip);
    for (; i < n; ++i)
        Store(&y[i].re, Xor(Load(&a[i].re), flip));
}

// The real kernel K over the parts of n complex elements, in pieces whose part count
// fits its 32-bit count.
template <class R, class E>
inline void OverParts(void (*k)(int, const R*, const R*, R*), int n, const E* a, const E* b, E* y) {
    constexpr int kPiece = 1 << 29;
    for (int i = 0; i < n; i += kPiece) {
        int m = n - i < kPiece ? n - i : kPiece;
        k(2 * m, &a[i].re, &b[i].re, &y[i].re);
    }
}

} // namespace
} // namespace brenn::vm::cx

using namespace brenn::vm;
using namespace brenn::vm::cx;

#define BRENN_COMPLEX_ADDSUB(t, r, level)                                                          \
    void ZAR_KERNEL(t##Add, level) BRENN_SIG(t, Binary) {                                          \
        OverParts(ZAR_KERNEL(r##Add, All), n, a, b, y);                                            \
    }                                                                                              \
    void ZAR_KERNEL(t##Sub, level) BRENN_SIG(t, Binary) {                                          \
        OverParts(ZAR_KERNEL(r##Sub, All), n, a, b, y);                                            \
    }

extern "C" {
BRENN_COMPLEX_ADDSUB(c, s, LaHa)
BRENN_COMPLEX_ADDSUB(c, s, EP)
BRENN_COMPLEX_ADDSUB(z, d, LaHa)
BRENN_COMPLEX_ADDSUB(z, d, EP)

ZAR_COMPLEX_KERNEL(c, Conj, All, Unary, ConjBody<float>)
void ZAR_KERNEL(zConj, All) BRENN_SIG(z, Unary) {
    ConjZ(n, a, y);
}

ZAR_COMPLEX_KERNEL(z, Mul, LaHa, Binary, MulZ<false, Level::HA>)
ZAR_COMPLEX_KERNEL(z, Mul, EP, Binary, MulZ<false, Level::EP>)
ZAR_COMPLEX_KERNEL(z, MulByConj, LaHa, Binary, MulZ<true, Level::HA>)
ZAR_COMPLEX_KERNEL(z, MulByConj, EP, Binary, MulZ<true, Level::EP>)
ZAR_COMPLEX_KERNEL(c, Mul, LaHa, Binary, MulC<false>)
ZAR_COMPLEX_KERNEL(c, Mul, EP, Binary, MulCLight<false>)
ZAR_COMPLEX_KERNEL(c, MulByConj, LaHa, Binary, MulC<true>)
ZAR_COMPLEX_KERNEL(c, MulByConj, EP, Binary, MulCLight<true>)

ZAR_COMPLEX_KERNEL(z, Div, LaHa, Binary, DivZ<Level::HA>)
ZAR_COMPLEX_KERNEL(z, Div, EP, Binary, DivZ<Level::EP>)
ZAR_COMPLEX_KERNEL(c, Div, LaHa, Binary, DivC)
ZAR_COMPLEX_KERNEL(c, Div, EP, Binary, DivC)
}
