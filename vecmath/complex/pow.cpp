/* Pow and Powx of single (c) and double (z) complex vectors, x^y = exp(y ln x), element
 * by element, one kernel for every level; Powx takes one y for the whole vector.
 *
 * The error of the result is the absolute error of w = y ln x: its real part scales the
 * modulus, its imaginary part turns the phase, and a part of the result near zero (phase
 * near an axis) takes the phase error relative to itself. So w is formed in one of two
 * ways:
 *   - in 80-bit extended precision (ln x from ext_elem.h), when its error bound
 *     2^-61 (|L| + |arg x| + 1/4)(|Re y| + |Im y|) + 2^-61 is below 2^-57 (double) or
 *     2^-30 (single) times the smaller of |cos Im w|, |sin Im w|: both parts of the result
 *     are then within a sixteenth of an ulp of the rounding of the exact value;
 *   - otherwise in binary128: ln|x| (by log1p of x^2 + w^2 - 1, exact squares, near
 *     |x| = 1) and arg x to 113 bits, w in that precision and its imaginary part reduced
 *     by 2 pi, the rest carried into extended precision as two words each. The phase is
 *     then good to 2^-100 or so while |w| stays below 2^10, and the parts of the result
 *     to half an ulp and a little.
 * On an axis arg x is 0, +-pi/2 or +-pi exactly: Re y times it is reduced in half-turns
 * exactly (remainder by 2), so that (-1)^1e300 is 1 and (-4)^0.5 is 2i, with the exact
 * zero part when y is real and the phase a multiple of pi/2.
 *
 * A zero or a non-finite part anywhere takes the C library's way, exp of y ln x with
 * Annex G's product (G.5.1) and the special values of exp and ln, so that those cells
 * are the C library's cpow's. A zero x with Re y < 0 is a pole (status 2), as the real
 * Pow's; nothing else is reported. */
#include <math.h>
#include <quadmath.h>

#include "vecmath/complex/ext_elem.h"
#include "vecmath/complex/extended.h"

namespace brenn::vm::cx {
namespace {

using Q = __float128;

constexpr LD kPi = 3.14159265358979323846264338327950288L;
// pi to 128 bits as the sum of kPi and the extended rounding of pi - kPi.
const Q kPiQ = Q(kPi) + Q(-5.016557612668332023451758e-20L);

// x^y where a part is zero or not finite. A zero x gives 1 for y = 0 and +0 for Re y > 0
// (the limits along the reals, as the real Pow); elsewhere exp of y ln x with Annex G's
// product (G.5.1) and the special values of exp and ln, as the C library's cpow. A zero
// x with Re y < 0 is a pole (status 2).
int PlainPow(LD a, LD b, LD c, LD d, LD& re, LD& im) {
    if (a == 0 && b == 0 && __builtin_isfinite(c) && __builtin_isfinite(d)) {
        if (c == 0 && d == 0) {
            re = 1;
            im = 0;
            return status::kNone;
        }
        if (c > 0) {
            re = im = 0;
            return status::kNone;
        }
    }
    LD lr, li;
    int st = CLogX(a, b, lr, li);
    _Complex long double l, y, w;
    __real__ l = lr, __imag__ l = li;
    __real__ y = c, __imag__ y = d;
    w = l * y;
    CExpX(__real__ w, __imag__ w, re, im);
    return st == status::kSingularity && c < 0 ? st : status::kNone;
}

// arg x = k pi/2 + delta with |delta| <= pi/4: x turned by -k quarter turns (exact) is
// (ra, rb) with ra > 0, and delta = atan2(rb, ra) keeps its relative accuracy beside the
// axes.
int QuarterTurns(LD a, LD b, LD& ra, LD& rb) {
    if (fabsl(b) <= fabsl(a)) {
        ra = fabsl(a);
        rb = a > 0 ? b : -b;
        return a > 0 ? 0 : (__builtin_signbit(b) ? -2 : 2);
    }
    ra = fabsl(b);
    rb = b > 0 ? -a : a;
    return b > 0 ? 1 : -1;
}

// The result from exp(wr + wrLo) and the phase pi j/2 + v, from v's sine s and cosine c:
// those turned by j quarter turns, exactly.
void Finish(LD wr, LD wrLo, int j, LD s, LD c, LD& re, LD& im) {
    LD e = expl(wr);
    if (wrLo != 0 && __builtin_isfinite(e)) e += e * wrLo;
    // an exact zero of the turned sine or cosine stays zero beside an infinite modulus
    auto times = [e](LD t) { return t == 0 ? t : e * t; };
    switch (j & 3) {
    case 0:
        re = times(c), im = times(s);
        break;
    case 1:
        re = times(-s), im = times(c);
        break;
    case 2:
        re = times(-c), im = times(-s);
        break;
    default:
        re = times(s), im = times(-c);
        break;
    }
}

// The phase of x^y is pi t + u, with t = Re y k/2 reduced by 2 exactly (Re y times 1/2 or
// 1 is exact) and u = Re y delta + Im y ln|x|; pi t + u = pi j/2 + (pi t' + u) with j an
// integer and |t'| <= 1/4. On a diagonal delta is +-pi/4 exactly and goes into t as well
// (Re y times 3/4 is exact in extended precision), so that (1 + i)^2 is 2i.
struct Phase {
    int k, j;
    LD ra, rb, t1, eighths; // arg x = eighths pi/4 + atan2(rb, ra)
};
Phase PhaseOf(LD a, LD b, LD c) {
    Phase p;
    p.k = QuarterTurns(a, b, p.ra, p.rb);
    p.eighths = 2 * p.k;
    if (p.ra == fabsl(p.rb)) {
        p.eighths += p.rb > 0 ? 1 : -1;
        p.rb = 0;
    }
    const LD t = remainderl(c * (p.eighths * 0.25L), 2);
    const LD j = rintl(2 * t);
    p.j = int(j);
    p.t1 = t - 0.5L * j;
    return p;
}

// The binary128 route, for finite x != 0 and finite y.
void WidePow(LD a, LD b, LD c, LD d, const Phase& p, LD& re, LD& im) {
    const Q qa = Q(a), qb = Q(b), qc = Q(c), qd = Q(d);
    const Q aa = qa * qa, bb = qb * qb, h = aa + bb; // squares exact
    Q l;
    if (h >= Q(0.5) && h <= Q(2))
        l = Q(0.5) * log1pq(aa >= bb ? (aa - 1) + bb : (bb - 1) + aa); // the difference exact
    else
        l = Q(0.5) * logq(h); // no overflow or underflow in binary128
    const Q delta = atan2q(Q(p.rb), Q(p.ra));
    const Q wr = qc * l - qd * (kPiQ * Q(0.25) * Q(p.eighths) + delta);
    Q v = kPiQ * Q(p.t1) + qc * delta + qd * l;
    const Q turns = rintq(v / (2 * kPiQ));
    v -= 2 * kPiQ * turns;
    const LD wrHi = LD(wr), vHi = LD(v), vLo = LD(v - Q(vHi));
    LD s, co;
    sincosl(vHi, &s, &co);
    if (vLo != 0) { // sin and cos of vHi + vLo, |vLo| below an ulp of vHi
        const LD s1 = s + co * vLo;
        co -= s * vLo;
        s = s1;
    }
    Finish(wrHi, LD(wr - Q(wrHi)), p.j, s, co, re, im);
}

// x^y for one element. kTolExp: the fast route's bound on the relative error of a part,
// 2^kTolExp, below the rounding of the element's type.
template <int kTolExp>
int PowOf(LD a, LD b, LD c, LD d, LD& re, LD& im) {
    const bool finite = __builtin_isfinite(a) && __builtin_isfinite(b) && __builtin_isfinite(c) &&
                        __builtin_isfinite(d);
    if (!finite || (a == 0 && b == 0)) return PlainPow(a, b, c, d, re, im);
    const Phase p = PhaseOf(a, b, c);
    const LD lr = LogAbsX(a, b), delta = atan2l(p.rb, p.ra);
    const LD th = p.eighths * (kPi / 4) + delta; // arg x
    const LD cd = c * delta, dl = d * lr, cl = c * lr, dth = d * th;
    const LD v = kPi * p.t1 + cd + dl;
    // error bounds of the phase v and of wr, a few roundings each of the extended terms
    const LD ev = 0x1p-61L * (fabsl(p.t1) * 4 + fabsl(cd) + fabsl(dl));
    const LD er = 0x1p-61L * (fabsl(cl) + fabsl(dth) + 1);
    const LD tol = ldexpl(1, kTolExp);
    LD s, co;
    sincosl(v, &s, &co);
    if (er <= tol && ev <= tol * fminl(fabsl(s), fabsl(co))) {
        Finish(cl - dth, 0, p.j, s, co, re, im);
        return status::kNone;
    }
    WidePow(a, b, c, d, p, re, im);
    return status::kNone;
}

template <class E>
struct Pow {
    static constexpr bool kOverflow = false;
    static constexpr const char* kName = std::is_same_v<E, BrennComplex8> ? "vcPow" : "vzPow";
    static int Eval(LD a, LD b, LD c, LD d, LD& re, LD& im) {
        return PowOf < std::is_same_v<E, BrennComplex8> ? -30 : -57 > (a, b, c, d, re, im);
    }
};
template <class E>
struct Powx : Pow<E> {
    static constexpr const char* kName = std::is_same_v<E, BrennComplex8> ? "vcPowx" : "vzPowx";
};

} // namespace
} // namespace brenn::vm::cx

using brenn::vm::cx::Pow;
using brenn::vm::cx::Powx;

extern "C" {
void ZAR_KERNEL(cPow, All) BRENN_SIG(c, Binary) {
    brenn::vm::cx::RunExtended<Pow<BrennComplex8>>(n, a, b, y);
}
void ZAR_KERNEL(zPow, All) BRENN_SIG(z, Binary) {
    brenn::vm::cx::RunExtended<Pow<BrennComplex16>>(n, a, b, y);
}
void ZAR_KERNEL(cPowx, All) BRENN_SIG(c, Powx) {
    brenn::vm::cx::RunExtendedScalar<Powx<BrennComplex8>>(n, a, b, y);
}
void ZAR_KERNEL(zPowx, All) BRENN_SIG(z, Powx) {
    brenn::vm::cx::RunExtendedScalar<Powx<BrennComplex16>>(n, a, b, y);
}
}
