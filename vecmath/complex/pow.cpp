/* Pow and Powx of single (c) and double (z) complex vectors, x^y = exp(y ln x), element
 * by element, one kernel for every level; Powx takes one y for the whole vector.
 *
 * The error of the result is the absolute error of w = y ln x: its real part scales the
 * modulus, its imaginary part turns the phase, and a part of the result near zero (phase
 * near an axis) takes the phase error relative to itself. arg x is split as k pi/4 (the
 * eighth turns of x, exact on the axes and diagonals) plus delta = atan2 of x turned back
 * by those turns, so that Re y k/4 is reduced by 2 exactly and the phase is pi j/2 (an
 * exact turn of the result) plus a rest v = pi t' + Re y delta + Im y ln|x|. Then:
 *   - in 80-bit extended precision, when the bounds of the errors of Re w and of v (a few
 *     extended roundings of each term) are below 2^-57 (double) or 2^-30 (single), the
 *     latter times the smaller of |cos v|, |sin v|: both parts of the result are then
 *     within a sixteenth of an ulp of the rounding of the exact value;
 *   - otherwise ln|x| (by log1p of x^2 + w^2 - 1 near |x| = 1, with exact squares) or
 *     delta, whichever takes more than half of a bound, again in binary128, w in that
 *     precision and v reduced by 2 pi there, the rest carried into extended precision as
 *     two words each. The phase is then good to about 2^-112 |Im w|: the parts of the
 *     result to half an ulp and a little while |Im w| stays below 2^45 or so (beyond
 *     2^53 one ulp of y turns the result by a radian).
 * So (-1)^1e300 is 1, (-4)^0.5 is 2i and (1 + i)^2 is 2i, with exact zero parts.
 *
 * A zero x gives 1 for y = 0 and +0 for Re y > 0, as the real Pow, and is a pole for
 * Re y < 0 (status 2, the only one reported). The other zero x and non-finite parts take
 * the C library's way, exp of y ln x with Annex G's product (G.5.1) and the special values
 * of exp and ln, so that those cells are the C library's cpow's. */
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
// ln|x| and delta are taken again in binary128 where wideL and wideD say so, and otherwise
// from the extended route (lr, dx).
void WidePow(LD a, LD b, LD c, LD d, const Phase& p, LD lr, LD dx, bool wideL, bool wideD, LD& re,
             LD& im) {
    const Q qa = Q(a), qb = Q(b), qc = Q(c), qd = Q(d);
    Q l = Q(lr);
    if (wideL) {
        const Q aa = qa * qa, bb = qb * qb, h = aa + bb; // squares exact
        if (h >= Q(0.5) && h <= Q(2))
            l = Q(0.5) * log1pq(aa >= bb ? (aa - 1) + bb : (bb - 1) + aa); // difference exact
        else
            l = Q(0.5) * logq(h); // no overflow or underflow in binary128
    }
    const Q delta = wideD ? atan2q(Q(p.rb), Q(p.ra)) : Q(dx);
    const Q wr = qc * l - qd * (kPiQ * Q(0.25) * Q(p.eighths) + delta);
    Q v = kPiQ * Q(p.t1) + qc * delta + qd * l;
    const Q turns = rintq(v / (kPiQ / 2)); // whole quarter turns
    v -= kPiQ / 2 * turns;
    const int j = p.j + int(fmodq(turns, 4));
    const LD wrHi = LD(wr), vHi = LD(v), vLo = LD(v - Q(vHi));
    LD s, co;
    sincosl(vHi, &s, &co);
    if (vLo != 0) { // sin and cos of vHi + vLo, |vLo| below an ulp of vHi
        const LD s1 = s + co * vLo;
        co -= s * vLo;
        s = s1;
    }
    Finish(wrHi, LD(wr - Q(wrHi)), j, s, co, re, im);
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
    // error bounds of the phase v and of wr, a few roundings each of the extended terms,
    // from ln|x| (L) and from delta and the rest (D)
    // (ln|x| has an absolute error of a few 2^-64 near |x| = 1, where it is small)
    const LD lb = 0x1p-61L * (fabsl(lr) + 0.25L);
    const LD evL = fabsl(d) * lb, evD = 0x1p-61L * (fabsl(p.t1) * 4 + fabsl(cd));
    const LD erL = fabsl(c) * lb, erD = 0x1p-61L * (fabsl(dth) + 1);
    int j = p.j;
    LD s, co;
    sincosl(QuarterReduced(v, j), &s, &co);
    const LD tol = ldexpl(1, kTolExp), tm = tol * fminl(fabsl(s), fabsl(co));
    if (erL + erD <= tol && evL + evD <= tm) {
        Finish(cl - dth, 0, j, s, co, re, im);
        return status::kNone;
    }
    // the part whose share of the bounds is within half of them stays as it is
    WidePow(a, b, c, d, p, lr, delta, erL > tol / 2 || evL > tm / 2, erD > tol / 2 || evD > tm / 2,
            re, im);
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
