/* The scalar routines of complex Mul, MulByConj and Div: one element each, given
 * pointers to the two inputs and the result, returning the status.
 *
 * Double: finite parts are brought to exponent 0 (denormals first renormalised), the
 * products and quotients are formed exactly on those (exact.h), and the power of two is
 * restored in the last step, so that overflow and underflow happen only there and only
 * when the true result lies beyond the range. Single: every product of two singles is
 * exact in double, so the same formulas in double, rounded once to single, are enough.
 *
 * Infinities and NaNs follow the recovery rules of C99 Annex G (an infinite operand
 * gives an infinite result even when the plain formula makes NaN from inf*0 or
 * inf - inf; a finite numerator over an infinite divisor gives zeros; a non-zero over
 * zero gives infinities).
 *
 * Statuses: a finite element whose result has an infinite part is an overflow (3);
 * a non-zero finite dividend over zero is a singularity (2), zero over zero a domain
 * error (1). */
#ifndef BRENN_VECMATH_COMPLEX_ARITH_SCALAR_H
#define BRENN_VECMATH_COMPLEX_ARITH_SCALAR_H

#include <math.h>

#include "brenn_types.h"
#include "vecmath/complex/exact.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/frame/status.h"

namespace brenn::vm::cx {

template <class T>
inline T Boxed(T x) { // +-1 for an infinity, +-0 otherwise, with x's sign
    return __builtin_copysign(__builtin_isinf(x) ? T(1) : T(0), x);
}
template <class T>
inline T ZeroIfNaN(T x) {
    return __builtin_isnan(x) ? __builtin_copysign(T(0), x) : x;
}

// (a + bi)(c + di) by the plain formula, with the infinities recovered.
template <class T>
inline void MulNonFinite(T a, T b, T c, T d, T& re, T& im) {
    T ac = a * c, bd = b * d, ad = a * d, bc = b * c;
    re = ac - bd;
    im = ad + bc;
    if (!(__builtin_isnan(re) && __builtin_isnan(im))) return;
    bool again = false;
    if (__builtin_isinf(a) || __builtin_isinf(b)) {
        a = Boxed(a), b = Boxed(b), c = ZeroIfNaN(c), d = ZeroIfNaN(d);
        again = true;
    }
    if (__builtin_isinf(c) || __builtin_isinf(d)) {
        c = Boxed(c), d = Boxed(d), a = ZeroIfNaN(a), b = ZeroIfNaN(b);
        again = true;
    }
    if (!again && (__builtin_isinf(ac) || __builtin_isinf(bd) || __builtin_isinf(ad) ||
                   __builtin_isinf(bc))) {
        a = ZeroIfNaN(a), b = ZeroIfNaN(b), c = ZeroIfNaN(c), d = ZeroIfNaN(d);
        again = true;
    }
    if (again) {
        const T inf = __builtin_inf();
        re = inf * (a * c - b * d);
        im = inf * (a * d + b * c);
    }
}

// (a + bi)/(c + di) by the scaled plain formula, with the infinities recovered.
template <class T>
inline void DivNonFinite(T a, T b, T c, T d, T& re, T& im) {
    T logbw = logb(fmax(fabs(c), fabs(d)));
    int k = 0;
    if (__builtin_isfinite(logbw)) {
        k = int(logbw);
        c = scalbn(c, -k);
        d = scalbn(d, -k);
    }
    T denom = c * c + d * d;
    re = scalbn((a * c + b * d) / denom, -k);
    im = scalbn((b * c - a * d) / denom, -k);
    if (!(__builtin_isnan(re) && __builtin_isnan(im))) return;
    const T inf = __builtin_inf();
    if (denom == 0 && (!__builtin_isnan(a) || !__builtin_isnan(b))) {
        re = __builtin_copysign(inf, c) * a;
        im = __builtin_copysign(inf, c) * b;
    } else if ((__builtin_isinf(a) || __builtin_isinf(b)) && __builtin_isfinite(c) &&
               __builtin_isfinite(d)) {
        a = Boxed(a), b = Boxed(b);
        re = inf * (a * c + b * d);
        im = inf * (b * c - a * d);
    } else if (__builtin_isinf(logbw) && logbw > 0 && __builtin_isfinite(a) &&
               __builtin_isfinite(b)) {
        c = Boxed(c), d = Boxed(d);
        re = T(0) * (a * c + b * d);
        im = T(0) * (b * c - a * d);
    }
}

inline bool AllFinite(double a, double b, double c, double d) {
    return __builtin_isfinite(a) && __builtin_isfinite(b) && __builtin_isfinite(c) &&
           __builtin_isfinite(d);
}

// a*c + b*d for finite parts given as m * 2^e, rounded once in the scaled domain and
// scaled back in the last step. A product far below the other is cut to 2^-300 of it:
// it then still breaks a tie the right way, and changes nothing else.
inline double ScaledSumOfProducts(double ma, int ea, double mc, int ec, double mb, int eb,
                                  double md, int ed) {
    const bool p0 = ma == 0 || mc == 0, q0 = mb == 0 || md == 0;
    if (p0 && q0) return ma * mc + mb * md; // exact zeros, signed as IEEE sums them
    int e1 = ea + ec, e2 = eb + ed;
    int e = p0 ? e2 : q0 ? e1 : (e1 > e2 ? e1 : e2);
    int s1 = e1 - e < -300 ? -300 : e1 - e, s2 = e2 - e < -300 ? -300 : e2 - e;
    double hi, lo;
    SumOfProducts(p0 ? 0.0 : ldexp(ma, s1), mc, q0 ? 0.0 : ldexp(mb, s2), md, hi, lo);
    return ldexp(hi, e);
}

// Mul (with d's sign turned: MulByConj) of double elements.
inline int MulScalar(const BrennComplex16* x, const BrennComplex16* w, BrennComplex16* y,
                     bool conj) {
    double a = x->re, b = x->im, c = w->re, d = conj ? -w->im : w->im;
    if (!AllFinite(a, b, c, d)) {
        MulNonFinite(a, b, c, d, y->re, y->im);
        return status::kNone;
    }
    int ea, eb, ec, ed;
    double ma = Normalized(a, ea), mb = Normalized(b, eb);
    double mc = Normalized(c, ec), md = Normalized(d, ed);
    y->re = ScaledSumOfProducts(ma, ea, mc, ec, -mb, eb, md, ed);
    y->im = ScaledSumOfProducts(ma, ea, md, ed, mb, eb, mc, ec);
    return __builtin_isinf(y->re) || __builtin_isinf(y->im) ? status::kOverflow : status::kNone;
}

// Single elements: the products in double are exact.
inline int MulScalar(const BrennComplex8* x, const BrennComplex8* w, BrennComplex8* y, bool conj) {
    double a = x->re, b = x->im, c = w->re, d = conj ? -double(w->im) : double(w->im);
    double re, im;
    if (!AllFinite(a, b, c, d)) {
        MulNonFinite(a, b, c, d, re, im);
        y->re = float(re), y->im = float(im);
        return status::kNone;
    }
    y->re = float(a * c - b * d);
    y->im = float(a * d + b * c);
    return __builtin_isinf(y->re) || __builtin_isinf(y->im) ? status::kOverflow : status::kNone;
}

// The status of a division by zero: a pole, or no value for zero over zero.
inline int ZeroDivisorStatus(double a, double b) {
    if (__builtin_isnan(a) || __builtin_isnan(b)) return status::kNone;
    return a == 0 && b == 0 ? status::kDomain : status::kSingularity;
}

// The quotient of n (hi + lo) by the divisor dv (hi + lo), from the rounded reciprocal
// estimate q and one correction by the exact residual.
inline double Quotient(double nh, double nl, double dh, double dl) {
    double q = nh / dh, ph, pl;
    ExactProduct(q, dh, ph, pl);
    double r = ((nh - ph) - pl) + (nl - q * dl);
    return q + r / dh;
}

inline int DivScalar(const BrennComplex16* x, const BrennComplex16* w, BrennComplex16* y) {
    double a = x->re, b = x->im, c = w->re, d = w->im;
    if (!AllFinite(a, b, c, d) || (c == 0 && d == 0)) {
        DivNonFinite(a, b, c, d, y->re, y->im);
        return c == 0 && d == 0 && AllFinite(a, b, c, d) ? ZeroDivisorStatus(a, b) : status::kNone;
    }
    // divisor and dividend each scaled so that its larger part has exponent 0
    int kc, ka;
    Normalized(fabs(c) > fabs(d) ? c : d, kc);
    c = ldexp(c, -kc), d = ldexp(d, -kc);
    double dh, dl;
    SumOfProducts(c, c, d, d, dh, dl);
    if (a == 0 && b == 0) { // zeros signed as the formula signs them
        y->re = (a * c + b * d) / dh;
        y->im = (b * c - a * d) / dh;
        return status::kNone;
    }
    Normalized(fabs(a) > fabs(b) ? a : b, ka);
    a = ldexp(a, -ka), b = ldexp(b, -ka);
    double nh, nl;
    SumOfProducts(a, c, b, d, nh, nl);
    y->re = ldexp(Quotient(nh, nl, dh, dl), ka - kc);
    SumOfProducts(b, c, -a, d, nh, nl);
    y->im = ldexp(Quotient(nh, nl, dh, dl), ka - kc);
    return __builtin_isinf(y->re) || __builtin_isinf(y->im) ? status::kOverflow : status::kNone;
}

// Single elements: products exact in double, one rounding of each sum, the quotient
// rounded once more in double and once to single.
inline int DivScalar(const BrennComplex8* x, const BrennComplex8* w, BrennComplex8* y) {
    double a = x->re, b = x->im, c = w->re, d = w->im, re, im;
    if (!AllFinite(a, b, c, d) || (c == 0 && d == 0)) {
        DivNonFinite(a, b, c, d, re, im);
        y->re = float(re), y->im = float(im);
        return c == 0 && d == 0 && AllFinite(a, b, c, d) ? ZeroDivisorStatus(a, b) : status::kNone;
    }
    double dv = c * c + d * d;
    y->re = float((a * c + b * d) / dv);
    y->im = float((b * c - a * d) / dv);
    return __builtin_isinf(y->re) || __builtin_isinf(y->im) ? status::kOverflow : status::kNone;
}

} // namespace brenn::vm::cx

#endif
