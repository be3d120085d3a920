// The measuring engine of the accuracy tool: inputs, references, calls of a slot at
// every length and alignment, and the error of each element against its reference.
// Real and complex rows of every argument list go through the same code; pack rows
// have their own bitwise check in pack.cpp.
#include "tools/accuracy/measure.h"

#include <math.h>
#include <stdio.h>
#include <string.h>

#include <algorithm>
#include <random>
#include <type_traits>
#include <vector>

#include "frame/dispatch.h"
#include "tools/accuracy/reference.h"

namespace brenn::tools {

namespace {

// Totals of inputs are whole multiples of this many elements (see MakeInputs).
constexpr long kRoundUp = 64;

// The short calls of the frame sweep start within the first kSweepSpan inputs, which a
// quick run has too (its fewest: a fifth of its random inputs, plus the specials).
constexpr long kSweepSpan = kQuickSamples / 5;

RowDesc gRows[] = {
#define ROW(t, Fn, Shape_, Thunk, Share, cLA, cHA, cEP, Reports)                                   \
    {#t #Fn, #t[0], Shape::Shape_, frame::Row_##t##Fn, nullptr},
#include "frame/rows.def"
#undef ROW
};

template <class R>
struct FT;
template <>
struct FT<float> {
    using U = uint32_t;
    using C = BrennComplex8;
    static constexpr int p = 24, emin = -125, emax = 128; // MPFR's exponent convention
    static float Get(mpfr_srcptr x) { return mpfr_get_flt(x, MPFR_RNDN); }
    static void Set(mpfr_ptr r, float x) { mpfr_set_flt(r, x, MPFR_RNDN); }
    static constexpr const char* fmt = "%.9g (%a)";
};
template <>
struct FT<double> {
    using U = uint64_t;
    using C = BrennComplex16;
    static constexpr int p = 53, emin = -1021, emax = 1024;
    static double Get(mpfr_srcptr x) { return mpfr_get_d(x, MPFR_RNDN); }
    static void Set(mpfr_ptr r, double x) { mpfr_set_d(r, x, MPFR_RNDN); }
    static constexpr const char* fmt = "%.17g (%a)";
};

template <class R>
typename FT<R>::U Bits(R x) {
    typename FT<R>::U u;
    memcpy(&u, &x, sizeof u);
    return u;
}
template <class R>
R FromBits(typename FT<R>::U u) {
    R x;
    memcpy(&x, &u, sizeof x);
    return x;
}
template <class R>
R Quiet(R x) {
    return FromBits<R>(Bits(x) | (typename FT<R>::U(1) << (FT<R>::p - 2)));
}

// Position of a value in the ordered sequence of its type's bit patterns.
template <class R>
double Ordinal(R x) {
    using U = typename FT<R>::U;
    U u = Bits(x), sign = U(1) << (sizeof(U) * 8 - 1);
    return (u & sign) ? -static_cast<double>(u & ~sign) : static_cast<double>(u);
}

template <class R>
std::string Show(R x) {
    char buf[64];
    snprintf(buf, sizeof buf, FT<R>::fmt, static_cast<double>(x), static_cast<double>(x));
    return buf;
}

std::string ShowRef(mpfr_srcptr x) {
    char buf[96];
    mpfr_snprintf(buf, sizeof buf, "%.20Rg", x);
    return buf;
}

// Owned array of MPFR numbers at the reference precision.
struct MpfrArray {
    std::vector<__mpfr_struct> v;
    explicit MpfrArray(size_t n) : v(n) {
        for (auto& x : v)
            mpfr_init2(&x, kRefPrec);
    }
    ~MpfrArray() {
        for (auto& x : v)
            mpfr_clear(&x);
    }
    mpfr_ptr operator[](size_t i) { return &v[i]; }
};

// ---- inputs ----------------------------------------------------------------------------

template <class R>
R SampleLog(std::mt19937_64& rng, Dom dom) {
    std::uniform_real_distribution<double> u01(0.0, 1.0);
    int eLo = FT<R>::emin - FT<R>::p, eHi = FT<R>::emax - 1;
    if (dom == Dom::Unit || dom == Dom::Prob) eHi = -1;
    if (dom == Dom::Two) eHi = 0;
    if (dom == Dom::GeOne) eLo = 0;
    int e = eLo + static_cast<int>(rng() % static_cast<uint64_t>(eHi - eLo + 1));
    R x = static_cast<R>(ldexp(1.0 + u01(rng), e));
    bool negative = (dom == Dom::Any || dom == Dom::Unit) && (rng() & 1);
    return negative ? -x : x;
}

template <class R>
R SampleReal(std::mt19937_64& rng, int kind, Dom dom, double lo, double hi) {
    if (kind == 0) return FromBits<R>(static_cast<typename FT<R>::U>(rng()));
    if (kind == 1 || lo == hi) return SampleLog<R>(rng, dom);
    std::uniform_real_distribution<double> u(lo, hi);
    return static_cast<R>(u(rng));
}

template <class R>
std::vector<R> Specials(double lo, double hi, bool small) {
    using L = std::numeric_limits<R>;
    using U = typename FT<R>::U;
    const R pi = static_cast<R>(M_PI);
    std::vector<R> s = {
        R(0),    -R(0),         R(1),           -R(1),          R(0.5),          -R(0.5),
        R(0.75), L::infinity(), -L::infinity(), L::quiet_NaN(), L::denorm_min(), L::max()};
    if (small) return s;
    U sign = U(1) << (sizeof(U) * 8 - 1);
    R snan = FromBits<R>(Bits(L::infinity()) | 1);
    R payload = FromBits<R>(Bits(L::quiet_NaN()) | 0x15);
    R more[] = {R(2),
                -R(2),
                R(1.5),
                -R(1.5),
                R(2.5),
                -R(2.5),
                R(3),
                R(10),
                -R(10),
                R(100),
                pi,
                -pi,
                pi / 2,
                R(1e-3),
                -L::denorm_min(),
                L::min(),
                -L::min(),
                FromBits<R>(Bits(L::min()) - 1),
                -L::max(),
                FromBits<R>(Bits(L::quiet_NaN()) | sign),
                snan,
                FromBits<R>(Bits(snan) | sign),
                payload,
                std::nextafter(R(1), R(0)),
                std::nextafter(R(1), R(2)),
                std::nextafter(R(0.5), R(0)),
                static_cast<R>(ldexp(1.0, FT<R>::p - 1)) + R(0.5),
                -(static_cast<R>(ldexp(1.0, FT<R>::p - 2)) + R(0.5)),
                static_cast<R>(ldexp(1.0, FT<R>::p)),
                static_cast<R>(ldexp(1.0, FT<R>::p)) - 1,
                static_cast<R>(lo),
                static_cast<R>(hi),
                std::nextafter(static_cast<R>(lo), R(0)),
                std::nextafter(static_cast<R>(hi), R(0)),
                static_cast<R>(ldexp(1.0, FT<R>::emax - 2))};
    s.insert(s.end(), std::begin(more), std::end(more));
    // The last ten-thousandth of the range inside each end, evenly: the ends are set just
    // beyond a row's limits (overflow, underflow), and a kernel that goes wrong short of
    // its limit does so here, in a stretch too narrow for the random inputs to meet.
    for (int i = 1; i <= 32; ++i) {
        double w = (hi - lo) * 1e-4 * i / 32;
        s.push_back(static_cast<R>(hi - w));
        s.push_back(static_cast<R>(lo + w));
    }
    return s;
}

// ---- errors ----------------------------------------------------------------------------

template <class R>
struct Tally {
    double maxUlp = 0, minBits = FT<R>::p;
    long checked = 0, mismatches = 0, zeroSign = 0;
    long worstIndex = -1;
    bool worstSet = false;
    std::string worstResult;
};

// Error of one real result against a reference, in ulps of the reference's binade
// (a result of infinity where a finite value is due counts as 2^emax).
template <class R>
double RealError(R y, mpfr_srcptr ref, double* bits, bool* zeroSign) {
    *bits = FT<R>::p;
    *zeroSign = false;
    if (mpfr_nan_p(ref)) return isnan(y) ? 0.0 : INFINITY;
    if (isnan(y)) return INFINITY;
    if (mpfr_inf_p(ref)) {
        bool same = isinf(y) && (signbit(y) != 0) == (mpfr_signbit(ref) != 0);
        return same ? 0.0 : INFINITY;
    }
    mpfr_t yv, d;
    mpfr_init2(yv, 64);
    mpfr_init2(d, kRefPrec + 64);
    if (isinf(y)) {
        R rounded = FT<R>::Get(ref);
        if (isinf(rounded) && signbit(rounded) == signbit(y)) {
            mpfr_clears(yv, d, (mpfr_ptr)0);
            return 0.0;
        }
        mpfr_set_si_2exp(yv, signbit(y) ? -1 : 1, FT<R>::emax, MPFR_RNDN);
    } else {
        FT<R>::Set(yv, y);
    }
    if (mpfr_zero_p(ref) && y == 0 && (signbit(y) != 0) != (mpfr_signbit(ref) != 0))
        *zeroSign = true;
    mpfr_sub(d, yv, ref, MPFR_RNDN);
    mpfr_abs(d, d, MPFR_RNDN);
    long e = mpfr_zero_p(ref) ? FT<R>::emin : std::max<long>(mpfr_get_exp(ref), FT<R>::emin);
    e = std::min<long>(e, FT<R>::emax);
    double err = 0;
    if (!mpfr_zero_p(d)) {
        mpfr_t q;
        mpfr_init2(q, 64);
        mpfr_mul_2si(q, d, FT<R>::p - e, MPFR_RNDN);
        err = mpfr_get_d(q, MPFR_RNDU);
        // relative error against the reference (denormal range: against the smallest normal)
        long re = mpfr_zero_p(ref) ? FT<R>::emin : std::max<long>(mpfr_get_exp(ref), FT<R>::emin);
        mpfr_abs(q, ref, MPFR_RNDN);
        if (mpfr_get_exp(ref) < FT<R>::emin || mpfr_zero_p(ref))
            mpfr_set_si_2exp(q, 1, re - 1, MPFR_RNDN);
        mpfr_div(q, d, q, MPFR_RNDN);
        *bits = std::min<double>(FT<R>::p, -log2(mpfr_get_d(q, MPFR_RNDN)));
        mpfr_clear(q);
    }
    mpfr_clears(yv, d, (mpfr_ptr)0);
    return err;
}

// Error of a complex result: the larger component difference over the ulp of the
// larger reference component (a normwise measure, everywhere), and each component that
// is not tiny beside the other (at least 2^-(p/2) of it) also over its own ulp
// (component-wise): a tiny component of a large result is held to the norm only.
// Non-finite reference components are checked alone.
template <class R>
double ComplexError(const R* y, mpfr_srcptr re, mpfr_srcptr im, double* bits, bool* zeroSign) {
    mpfr_srcptr ref[2] = {re, im};
    double worst = 0, b = FT<R>::p;
    bool finite[2];
    *zeroSign = false;
    for (int c = 0; c < 2; ++c) {
        finite[c] = mpfr_number_p(ref[c]);
        if (!finite[c]) {
            double cb;
            bool zs;
            worst = std::max(worst, RealError(y[c], ref[c], &cb, &zs));
        } else if (!isfinite(y[c])) {
            if (isinf(y[c]) && isinf(FT<R>::Get(ref[c])) &&
                signbit(y[c]) == signbit(FT<R>::Get(ref[c])))
                continue;
            worst = INFINITY;
        }
    }
    if (finite[0] && finite[1] && isfinite(y[0]) && isfinite(y[1])) {
        // measure against the larger component: scale both into its binade
        mpfr_srcptr big = mpfr_cmpabs(re, im) >= 0 ? re : im;
        for (int c = 0; c < 2; ++c) {
            mpfr_t d, yv;
            mpfr_init2(d, kRefPrec + 64);
            mpfr_init2(yv, 64);
            FT<R>::Set(yv, y[c]);
            mpfr_sub(d, yv, ref[c], MPFR_RNDN);
            mpfr_abs(d, d, MPFR_RNDN);
            if (!mpfr_zero_p(d) && !mpfr_zero_p(ref[c]) &&
                mpfr_get_exp(ref[c]) >= mpfr_get_exp(big) - FT<R>::p / 2) {
                // component-wise, in the component's own binade
                long e = std::min<long>(std::max<long>(mpfr_get_exp(ref[c]), FT<R>::emin),
                                        FT<R>::emax);
                mpfr_t own;
                mpfr_init2(own, kRefPrec + 64);
                mpfr_mul_2si(own, d, FT<R>::p - e, MPFR_RNDN);
                double err = mpfr_get_d(own, MPFR_RNDU);
                worst = std::max(worst, err);
                b = std::min(b, FT<R>::p - 1 - log2(std::max(err, 0.5)));
                mpfr_clear(own);
            }
            if (!mpfr_zero_p(d)) {
                long e =
                    mpfr_zero_p(big) ? FT<R>::emin : std::max<long>(mpfr_get_exp(big), FT<R>::emin);
                e = std::min<long>(e, FT<R>::emax);
                mpfr_mul_2si(d, d, FT<R>::p - e, MPFR_RNDN);
                double err = mpfr_get_d(d, MPFR_RNDU);
                worst = std::max(worst, err);
                b = std::min(b, FT<R>::p - 1 - log2(std::max(err, 0.5)));
            }
            if (mpfr_zero_p(ref[c]) && y[c] == 0 &&
                (signbit(y[c]) != 0) != (mpfr_signbit(ref[c]) != 0))
                *zeroSign = true;
            mpfr_clears(d, yv, (mpfr_ptr)0);
        }
    }
    *bits = isinf(worst) ? 0 : b;
    return worst;
}

// ---- native references of exact rows ---------------------------------------------------

// Fmax and Fmin by C99's rule: a NaN operand, signalling or quiet, is missing data and
// the other operand is the result; two NaNs give a NaN. (The C library's fmax and fmin
// return a quiet NaN for a signalling operand, as the 2008 maxNum did.) Of two ordered
// operands the larger (smaller), and of equal ones, +0 and -0 among them, b, as the C
// library's functions give it; written out, since a compiler may swap the operands of a
// call to them.
template <class R>
R MissingData(R a, R b, bool larger) {
    if (isnan(a)) return isnan(b) ? a + b : b;
    if (isnan(b)) return a;
    return (larger ? a > b : a < b) ? a : b;
}
template <class R>
R Fmax(R a, R b) {
    return MissingData(a, b, true);
}
template <class R>
R Fmin(R a, R b) {
    return MissingData(a, b, false);
}
template <class R>
R MaxMag(R a, R b) {
    if (fabs(a) > fabs(b)) return a;
    if (fabs(b) > fabs(a)) return b;
    return Fmax(a, b);
}
template <class R>
R MinMag(R a, R b) {
    if (fabs(a) < fabs(b)) return a;
    if (fabs(b) < fabs(a)) return b;
    return Fmin(a, b);
}

template <class R>
R ZeroWithSignOf(R r, R a) {
    return r == 0 ? copysign(R(0), a) : r;
}

// Exact reference of one element; second receives Modf's fraction. With nanBits (rule
// ExactNaN) a NaN input must come out as itself, quieted.
template <class R>
R NativeExact(Ref ref, bool nanBits, R a, R b, R* second) {
    if (nanBits) {
        // NaN in, the first NaN operand out, quieted: what the arithmetic gives
        if (isnan(a)) return *second = Quiet(a), Quiet(a);
        if ((ref == Ref::Add || ref == Ref::Sub || ref == Ref::Mul) && isnan(b)) return Quiet(b);
    }
    switch (ref) {
    case Ref::Ceil:
        return ceil(a);
    case Ref::Floor:
        return floor(a);
    case Ref::Trunc:
        return trunc(a);
    case Ref::NearbyInt:
    case Ref::Rint:
        return nearbyint(a);
    case Ref::Round:
        return round(a);
    case Ref::Frac:
        // the fraction of an infinity is a zero of its sign, as modf's is
        return isinf(a) ? copysign(R(0), a) : copysign(a - trunc(a), a);
    case Ref::Abs:
        return fabs(a);
    case Ref::Sqr:
        return a * a;
    case Ref::Add:
        return a + b;
    case Ref::Sub:
        return a - b;
    case Ref::Mul:
        return a * b;
    case Ref::CopySign:
        return copysign(a, b);
    case Ref::NextAfter:
        return nextafter(a, b);
    case Ref::Fdim:
        return fdim(a, b);
    case Ref::Fmax:
        return Fmax(a, b);
    case Ref::Fmin:
        return Fmin(a, b);
    case Ref::MaxMag:
        return MaxMag(a, b);
    case Ref::MinMag:
        return MinMag(a, b);
    case Ref::Remainder:
        // a zero remainder has the sign of a (IEEE 754); glibc loses it for some
        // denormal divisors
        return ZeroWithSignOf(remainder(a, b), a);
    case Ref::Fmod:
        return ZeroWithSignOf(fmod(a, b), a);
    case Ref::Modf: {
        R ip;
        *second = modf(a, &ip);
        return ip;
    }
    default:
        return std::numeric_limits<R>::quiet_NaN();
    }
}

template <class R>
bool ExactMatch(bool nanBits, R y, R want, bool nanIn) {
    if (Bits(y) == Bits(want)) return true;
    if (!isnan(want)) return false;
    if (nanIn && nanBits) return false;
    return isnan(y);
}

// ---- calling a slot --------------------------------------------------------------------

template <class R, bool Cx>
struct Caller {
    using E = std::conditional_t<Cx, typename FT<R>::C, R>;
    static void Run(Shape shape, BrennKernel fn, int n, const void* a, const void* b,
                    const R* scalars, void* y, void* z) {
        switch (shape) {
        case Shape::Unary:
            reinterpret_cast<void (*)(int, const E*, E*)>(fn)(n, (const E*)a, (E*)y);
            break;
        case Shape::AbsArg:
            reinterpret_cast<void (*)(int, const E*, R*)>(fn)(n, (const E*)a, (R*)y);
            break;
        case Shape::Cis:
            reinterpret_cast<void (*)(int, const R*, E*)>(fn)(n, (const R*)a, (E*)y);
            break;
        case Shape::Binary:
            reinterpret_cast<void (*)(int, const E*, const E*, E*)>(fn)(n, (const E*)a, (const E*)b,
                                                                        (E*)y);
            break;
        case Shape::Powx: {
            E s;
            memcpy(&s, scalars, sizeof s);
            reinterpret_cast<void (*)(int, const E*, E, E*)>(fn)(n, (const E*)a, s, (E*)y);
            break;
        }
        case Shape::TwoRes:
            reinterpret_cast<void (*)(int, const E*, E*, E*)>(fn)(n, (const E*)a, (E*)y, (E*)z);
            break;
        case Shape::LinFrac:
            if constexpr (!Cx)
                reinterpret_cast<void (*)(int, const E*, const E*, E, E, E, E, E*)>(fn)(
                    n, (const E*)a, (const E*)b, scalars[0], scalars[1], scalars[2], scalars[3],
                    (E*)y);
            break;
        default:
            break;
        }
    }
};

// ---- one row ---------------------------------------------------------------------------

template <class R, bool Cx>
struct RowRun {
    const RowDesc& row;
    const RowFacts& f;
    Shape shape;
    bool exact, nanBits;
    int ka, kb, ky, outs, K; // components of a, b, y; outputs; reference words an element
    int group;               // elements sharing one set of scalars (Powx, LinFrac)
    long n = 0;
    std::vector<R> A, B, S; // inputs; S the scalars of each group
    std::vector<R> eref;    // exact references
    MpfrArray* refs = nullptr;
    // Real Powx below HA: the references with the exponents that those slots hand to
    // Cbrt, InvCbrt and Pow2o3 (the bit patterns of 1/3, -1/3 and 2/3) taken as those
    // functions, which is what the row defines for them; null when no group has one.
    MpfrArray* rootRefs = nullptr;

    RowRun(const RowDesc& r)
        : row(r), f(*r.facts), shape(r.shape), exact(IsExact(*r.facts)),
          nanBits(r.facts->rule == Rule::ExactNaN) {
        ka = (shape == Shape::Cis || !Cx) ? 1 : 2;
        kb = Cx ? 2 : 1;
        ky = (shape == Shape::AbsArg || !Cx) ? 1 : 2;
        outs = shape == Shape::TwoRes ? 2 : 1;
        K = ky * outs;
        group = (shape == Shape::Powx || shape == Shape::LinFrac) ? 512 : 1 << 30;
    }
    ~RowRun() {
        delete refs;
        delete rootRefs;
    }

    // The references of real Powx's slots below HA (see rootRefs).
    void MakeRootReferences() {
        if (shape != Shape::Powx || Cx) return;
        const R third = R(1) / R(3), twoThirds = R(2) / R(3);
        for (long i = 0; i < n; ++i) {
            const R b = Scalars(i)[0];
            const bool root = b == third || b == -third || b == twoThirds;
            if (root && !rootRefs) {
                rootRefs = new MpfrArray(n);
                for (long k = 0; k < n; ++k)
                    mpfr_set((*rootRefs)[k], (*refs)[k], MPFR_RNDN);
            }
            if (!root) continue;
            mpfr_t a;
            mpfr_init2(a, kRefPrec);
            FT<R>::Set(a, A[i]);
            mpfr_ptr r = (*rootRefs)[i];
            mpfr_cbrt(r, a, MPFR_RNDN);
            if (b == -third) mpfr_ui_div(r, 1, r, MPFR_RNDN);
            if (b == twoThirds) mpfr_sqr(r, r, MPFR_RNDN);
            mpfr_clear(a);
        }
    }

    bool HasB() const { return shape == Shape::Binary || shape == Shape::LinFrac; }
    int ScalarCount() const { return shape == Shape::Powx ? kb : shape == Shape::LinFrac ? 4 : 0; }

    // The inputs of a run with fewer samples are the first inputs of a run with more
    // (same seed): the random draws come one element after another from one stream,
    // the scalars of group g from a stream of their own, and the count is padded to
    // whole rounds (kRoundUp), so that a short run calls its kernels on the same
    // elements in the same rounds as a long one and cannot see a larger error.
    void MakeInputs(const Options& o) {
        std::mt19937_64 rng(o.seed ^ (uint64_t(row.index) * 0x9E3779B97F4A7C15ull));
        std::mt19937_64 scalarRng(o.seed ^ (uint64_t(row.index) * 0xC2B2AE3D27D4EB4Full));
        long random =
            f.rule == Rule::UlpSlow ? std::max(o.randomSamples / 5, 600L) : o.randomSamples;
        // special inputs first, so the short calls of the frame sweep meet them at every lane
        bool pairs = HasB() || Cx;
        std::vector<R> sp = Specials<R>(f.lo, f.hi, pairs);
        std::vector<R> sa, sb;
        int ca = ka, cb = HasB() ? kb : 0;
        if (ca == 2 || cb > 0) {
            // pairs of specials: (re, im) for complex, (a, b) for binary; both for complex binary
            for (R x : sp)
                for (R w : sp) {
                    if (ca == 2) {
                        sa.push_back(x);
                        sa.push_back(w);
                    } else
                        sa.push_back(x);
                    if (cb == 2) {
                        sb.push_back(w);
                        sb.push_back(x);
                    } else if (cb == 1)
                        sb.push_back(w);
                }
        } else {
            sa = Specials<R>(f.lo, f.hi, false);
        }
        n = static_cast<long>(sa.size() / ka) + random;
        n = (n + kRoundUp - 1) / kRoundUp * kRoundUp;
        A = sa;
        B = sb;
        for (long i = static_cast<long>(sa.size() / ka); i < n; ++i) {
            int kind = static_cast<int>(i % 3);
            for (int c = 0; c < ka; ++c)
                A.push_back(SampleReal<R>(rng, kind, f.dom, f.lo, f.hi));
            // the branch cuts of the complex functions lie on the axes: one element in
            // eight has a signed zero part, both signs, so that both sides are measured
            if (ka == 2 && i % 8 == 7) A[A.size() - 2 + (i / 8) % 2] = (i / 16) % 2 ? R(-0.0) : R(0);
            if (HasB())
                for (int c = 0; c < kb; ++c)
                    B.push_back(SampleReal<R>(rng, (kind + c + 1) % 3, Dom::Any, f.blo, f.bhi));
        }
        // scalars a group: special exponents and shifts first, then random ones
        long groups = (n + group - 1) / group;
        const R fixed[] = {R(2),
                           R(0.5),
                           R(-1),
                           R(1),
                           R(0),
                           R(3),
                           R(-0.5),
                           R(1.5),
                           static_cast<R>(2.0 / 3.0),
                           static_cast<R>(1.0 / 3.0),
                           R(-2),
                           std::numeric_limits<R>::infinity(),
                           std::numeric_limits<R>::quiet_NaN()};
        for (long g = 0; g < groups; ++g) {
            if (shape == Shape::Powx) {
                for (int c = 0; c < kb; ++c) {
                    R v = g < 13 ? (c == 0 ? fixed[g] : R(0))
                                 : SampleReal<R>(scalarRng, 2, Dom::Any, f.blo, f.bhi);
                    if (c == 1 && g >= 13 && (g & 1)) v = R(0);
                    S.push_back(v);
                }
            } else if (shape == Shape::LinFrac) {
                for (int c = 0; c < 4; ++c) {
                    R v = SampleReal<R>(scalarRng, 2, Dom::Any, -4, 4);
                    if ((g % 4 == 1 && c == 0) || (g % 4 == 2 && c == 2)) v = 0; // constant loops
                    S.push_back(v);
                }
            }
        }
    }

    const R* Scalars(long i) const {
        int k = ScalarCount();
        return k ? &S[(i / group) * k] : nullptr;
    }

    bool NanIn(long i) const {
        for (int c = 0; c < ka; ++c)
            if (isnan(A[i * ka + c])) return true;
        if (HasB())
            for (int c = 0; c < kb; ++c)
                if (isnan(B[i * kb + c])) return true;
        return false;
    }

    bool NonFiniteIn(long i) const {
        for (int c = 0; c < ka; ++c)
            if (!isfinite(A[i * ka + c])) return true;
        if (HasB())
            for (int c = 0; c < kb; ++c)
                if (!isfinite(B[i * kb + c])) return true;
        return false;
    }

    // Pow's phase Im(y ln x) at 2^p or beyond: one ulp of y turns the result by a radian
    // or more, so its direction is not a function of the element at the type's
    // resolution, and a kernel would need ln x to as many bits as the phase's exponent
    // and p more (a thousand for the largest) to follow the exact value. Such inputs are
    // not judged (mostly exponents from the bit-pattern third).
    bool WildPhase(long i) const {
        if (f.ref != Ref::CPow) return false;
        const R* y = shape == Shape::Powx ? Scalars(i) : &B[i * kb];
        const long double a = A[i * ka], b = A[i * ka + 1];
        const long double phase = y[0] * atan2l(b, a) + y[1] * logl(hypotl(a, b));
        return fabsl(phase) >= ldexpl(1, FT<R>::p);
    }

    void MakeReferences() {
        if (exact) {
            eref.resize(n * K);
            for (long i = 0; i < n; ++i) {
                if (Cx) { // Conj
                    eref[i * 2] = A[i * 2];
                    eref[i * 2 + 1] = -A[i * 2 + 1];
                    continue;
                }
                R second = 0;
                R b = HasB() ? B[i] : R(0);
                eref[i * K] = NativeExact<R>(f.ref, nanBits, A[i], b, &second);
                if (outs == 2) eref[i * K + 1] = second;
            }
            return;
        }
        refs = new MpfrArray(n * K);
        MpfrArray& r = *refs;
        mpfr_t a, b;
        mpfr_inits2(kRefPrec, a, b, (mpfr_ptr)0);
        mpc_t ca, cb, cr;
        mpc_init2(ca, kRefPrec);
        mpc_init2(cb, kRefPrec);
        mpc_init2(cr, kRefPrec);
        for (long i = 0; i < n; ++i) {
            if (Cx || shape == Shape::Cis) {
                FT<R>::Set(mpc_realref(ca), A[i * ka]);
                if (ka == 2)
                    FT<R>::Set(mpc_imagref(ca), A[i * ka + 1]);
                else
                    mpfr_set_zero(mpc_imagref(ca), 1);
                const R* bp = shape == Shape::Powx ? Scalars(i) : HasB() ? &B[i * kb] : nullptr;
                if (bp) {
                    FT<R>::Set(mpc_realref(cb), bp[0]);
                    FT<R>::Set(mpc_imagref(cb), bp[1]);
                }
                RefComplex(f.ref, cr, ca, cb);
                mpfr_set(r[i * K], mpc_realref(cr), MPFR_RNDN);
                if (ky == 2) mpfr_set(r[i * K + 1], mpc_imagref(cr), MPFR_RNDN);
            } else if (shape == Shape::LinFrac) {
                // the composition as written, rounded at each step: the kernel's contract;
                // a zero scale makes its part a constant, whatever the vector holds there
                const R* s = Scalars(i);
                volatile R num = s[0] * A[i];
                num = s[0] == 0 ? s[1] : num + s[1];
                volatile R den = s[2] * B[i];
                den = s[2] == 0 ? s[3] : den + s[3];
                FT<R>::Set(r[i], num / den);
            } else if (shape == Shape::Binary || shape == Shape::Powx) {
                FT<R>::Set(a, A[i]);
                FT<R>::Set(b, shape == Shape::Powx ? Scalars(i)[0] : B[i]);
                RefBinary(f.ref, r[i], a, b);
            } else {
                FT<R>::Set(a, A[i]);
                RefUnary(f.ref, r[i * K], outs == 2 ? r[i * K + 1] : b, a);
            }
        }
        mpfr_clears(a, b, (mpfr_ptr)0);
        mpc_clear(ca);
        mpc_clear(cb);
        mpc_clear(cr);
    }

    // Error of the element of sample i, with its outputs at y (and z).
    void Check(long i, const R* y, const R* z, Tally<R>& t) {
        const R* out[2] = {y, z};
        for (int o = 0; o < outs; ++o) {
            double err = 0, bits = FT<R>::p;
            bool zs = false;
            if (exact) {
                bool nanIn = NanIn(i);
                for (int c = 0; c < ky; ++c) {
                    R want = eref[i * K + o * ky + c], got = out[o][c];
                    if (!ExactMatch(nanBits, got, want, nanIn)) {
                        ++t.mismatches;
                        double d = (isnan(got) || isnan(want)) ? INFINITY
                                                               : fabs(Ordinal(got) - Ordinal(want));
                        err = std::max(err, d == 0 ? 1.0 : d); // -0 vs +0 counts as one step
                        bits = 0;
                    }
                }
            } else if (Cx && NonFiniteIn(i)) {
                // infinite and NaN parts follow C99 Annex G, not the reference's own
                // conventions: the special-value tests of the rows judge them
            } else if (Cx && WildPhase(i)) {
                // see WildPhase
            } else if (Cx && ky == 2 &&
                       (mpfr_inf_p((*refs)[i * K + o * 2]) ||
                        mpfr_inf_p((*refs)[i * K + o * 2 + 1]))) {
                // beyond MPFR's exponent range (Pow's e^(y ln x) with Re(y ln x) above
                // 2^30 ln 2): MPC's overflow gives the parts' signs without the phase, and
                // any finite type overflows; the row's own tests judge these
            } else if (ky == 2) {
                err = ComplexError<R>(out[o], (*refs)[i * K + o * 2], (*refs)[i * K + o * 2 + 1],
                                      &bits, &zs);
            } else {
                err = RealError<R>(out[o][0], (*refs)[i * K + o], &bits, &zs);
            }
            ++t.checked;
            if (zs) ++t.zeroSign;
            t.minBits = std::min(t.minBits, bits);
            if (err > t.maxUlp || (!t.worstSet && err > 0)) {
                t.maxUlp = std::max(t.maxUlp, err);
                t.worstSet = true;
                t.worstIndex = i;
                t.worstResult.clear();
                for (int c = 0; c < ky; ++c)
                    t.worstResult += (c ? ", " : "") + Show(out[o][c]);
                if (outs == 2) t.worstResult += o == 0 ? " (first result)" : " (second result)";
            }
        }
    }

    std::string Describe(long i, const Tally<R>& t) {
        std::string s = "a = ";
        for (int c = 0; c < ka; ++c)
            s += (c ? ", " : "") + Show(A[i * ka + c]);
        if (HasB()) {
            s += "; b = ";
            for (int c = 0; c < kb; ++c)
                s += (c ? ", " : "") + Show(B[i * kb + c]);
        }
        if (int k = ScalarCount()) {
            s += "; scalars = ";
            for (int c = 0; c < k; ++c)
                s += (c ? ", " : "") + Show(Scalars(i)[c]);
        }
        s += "; got " + t.worstResult + "; want ";
        for (int c = 0; c < K; ++c) {
            if (exact)
                s += (c ? ", " : "") + Show(eref[i * K + c]);
            else
                s += (c ? ", " : "") + ShowRef((*refs)[i * K + c]);
        }
        return s;
    }

    // Calls the kernel on samples [start, start + len) with a and y at the given
    // element offsets from 16-byte-aligned buffers, or in place, and checks guard words
    // around the output.
    long CallAndCheck(BrennKernel fn, long start, int len, int aoff, int yoff, bool inPlace,
                      Tally<R>& t) {
        constexpr int kGuard = 16; // reals a side
        const size_t inBytes = sizeof(R) * ka, outBytes = sizeof(R) * ky;
        auto aligned = [](std::vector<unsigned char>& v) {
            uintptr_t p = reinterpret_cast<uintptr_t>(v.data());
            return v.data() + ((16 - (p & 15)) & 15);
        };
        std::vector<unsigned char> abuf((len + 8) * inBytes + 64),
            bbuf((len + 8) * sizeof(R) * kb + 64);
        std::vector<unsigned char> ybuf[2];
        unsigned char* ya[2];
        unsigned char* a = aligned(abuf) + aoff * inBytes;
        unsigned char* b = aligned(bbuf) + aoff * sizeof(R) * kb;
        memcpy(a, &A[start * ka], len * inBytes);
        if (HasB()) memcpy(b, &B[start * kb], len * sizeof(R) * kb);
        long faults = 0;
        for (int o = 0; o < outs; ++o) {
            ybuf[o].assign((len + 8) * outBytes + 2 * kGuard * sizeof(R) + 64, 0xA5);
            ya[o] = aligned(ybuf[o]) + kGuard * sizeof(R) + yoff * outBytes;
        }
        const void* ain = a;
        if (inPlace) { // in and out have the same element here
            memcpy(ya[0], a, len * inBytes);
            ain = ya[0];
        }
        Caller<R, Cx>::Run(shape, fn, len, ain, b, Scalars(start), ya[0],
                           outs == 2 ? ya[1] : nullptr);
        for (int o = 0; o < outs; ++o) {
            unsigned char* lo = aligned(ybuf[o]);
            for (unsigned char* p = lo; p < ya[o]; ++p)
                faults += *p != 0xA5;
            unsigned char* end = ybuf[o].data() + ybuf[o].size();
            for (unsigned char* p = ya[o] + len * outBytes; p < end; ++p)
                faults += *p != 0xA5;
        }
        std::vector<R> y(len * ky), z(len * ky);
        memcpy(y.data(), ya[0], len * outBytes);
        if (outs == 2) memcpy(z.data(), ya[1], len * outBytes);
        for (int j = 0; j < len; ++j)
            Check(start + j, &y[j * ky], outs == 2 ? &z[j * ky] : nullptr, t);
        return faults;
    }

    void MeasureSlot(BrennKernel fn, SlotResult& out) {
        Tally<R> t;
        long faults = 0;
        // long vectors: the whole sample in calls of up to 4096 (a group for scalar rows)
        long chunk = std::min<long>(4096, group);
        for (long s = 0; s < n; s += chunk) {
            int len = static_cast<int>(std::min<long>(chunk, n - s));
            faults += CallAndCheck(fn, s, len, 0, 0, false, t);
        }
        // every length 1..40 at every alignment of a and y, and in place, starting at
        // places that walk the special inputs through every lane
        int lanes = std::max<int>(1, 16 / static_cast<int>(sizeof(R) * ka));
        bool canInPlace = shape != Shape::AbsArg && shape != Shape::Cis;
        long place = 0, span = std::min(n, kSweepSpan);
        for (int len = 1; len <= 40; ++len)
            for (int aoff = 0; aoff < lanes; ++aoff)
                for (int yoff = 0; yoff <= lanes; ++yoff) {
                    bool inPlace = yoff == lanes;
                    if (inPlace && !canInPlace) continue;
                    long start = (place++ * 7) % std::max<long>(1, span - len);
                    if (start / group != (start + len - 1) / group) start = (start / group) * group;
                    if (start + len > n) continue;
                    faults += CallAndCheck(fn, start, len, aoff, inPlace ? aoff : yoff, inPlace, t);
                }
        out.present = true;
        out.maxUlp = t.maxUlp;
        out.minBits = t.minBits;
        out.checked = t.checked;
        out.mismatches = t.mismatches;
        out.zeroSign = t.zeroSign;
        out.frameFaults = faults;
        out.worst = t.worstIndex >= 0 ? Describe(t.worstIndex, t) : "";
    }
};

bool IsPackShape(Shape shape) {
    switch (shape) {
    case Shape::PackI:
    case Shape::PackM:
    case Shape::PackV:
    case Shape::UnpackI:
    case Shape::UnpackM:
    case Shape::UnpackV:
        return true;
    default:
        return false;
    }
}

// f.operator()<R, Cx>() for a row's element type: R its real type, Cx complex.
template <class F>
auto ByElementType(char type, F&& f) {
    switch (type) {
    case 's':
        return f.template operator()<float, false>();
    case 'd':
        return f.template operator()<double, false>();
    case 'c':
        return f.template operator()<float, true>();
    default:
        return f.template operator()<double, true>();
    }
}

template <class R, bool Cx>
bool NestedTyped(const RowDesc& row, const Options& fewer, const Options& more, std::string* why) {
    RowRun<R, Cx> a(row), b(row);
    a.MakeInputs(fewer);
    b.MakeInputs(more);
    auto same = [](const std::vector<R>& x, const std::vector<R>& y, size_t count) {
        return count <= x.size() && count <= y.size() &&
               memcmp(x.data(), y.data(), count * sizeof(R)) == 0;
    };
    const long groups = (a.n + a.group - 1) / a.group;
    const size_t scalars = static_cast<size_t>(groups * a.ScalarCount());
    if (a.n % kRoundUp != 0 || b.n % kRoundUp != 0)
        *why = "input counts " + std::to_string(a.n) + " and " + std::to_string(b.n) +
               " are not whole rounds";
    else if (a.n > b.n || !same(a.A, b.A, a.A.size()) || !same(a.B, b.B, a.B.size()))
        *why = "the shorter run's inputs are not the first inputs of the longer run";
    else if (!same(a.S, b.S, scalars))
        *why = "the scalars of a group differ between the runs";
    else if (std::min(a.n, kSweepSpan) != std::min(b.n, kSweepSpan))
        *why = "the short calls start in different spans";
    else
        return true;
    return false;
}

template <class R, bool Cx>
void MeasureTyped(const RowDesc& row, const Options& options, const BrennKernel slots[3],
                  SlotResult out[3]) {
    if (!slots[0] && !slots[1] && !slots[2]) return;
    RowRun<R, Cx> run(row);
    run.MakeInputs(options);
    run.MakeReferences();
    run.MakeRootReferences();
    for (int s = 0; s < 3; ++s) {
        if (!slots[s]) continue;
        int same = -1;
        for (int q = 0; q < s; ++q)
            if (same < 0 && slots[q] == slots[s]) same = q;
        if (same >= 0) {
            out[s] = out[same];
            out[s].sameAs = same;
            continue;
        }
        // Real Powx below HA: the root exponents judged as the roots they dispatch to.
        const bool roots = s != 1 && run.rootRefs;
        if (roots) std::swap(run.refs, run.rootRefs);
        run.MeasureSlot(slots[s], out[s]);
        if (roots) std::swap(run.refs, run.rootRefs);
    }
}

} // namespace

const RowDesc* AllRows(int* count) {
    *count = static_cast<int>(sizeof(gRows) / sizeof(gRows[0]));
    int facts = 0;
    const RowFacts* all = AllRowFacts(&facts); // in row order, one entry a row
    for (RowDesc& r : gRows)
        r.facts = &all[r.index];
    return gRows;
}

bool SlotPresent(const RowDesc& row, int slot) {
    const DispatchRecord& rec = BrennDispatchTable[row.index];
    return (&rec.kernelLA)[slot] != nullptr;
}

void MeasureKernels(const RowDesc& row, const Options& options, const BrennKernel slots[3],
                    SlotResult out[3]) {
    if (IsPackShape(row.shape)) return MeasurePackRow(row, options, slots, out);
    ByElementType(row.type,
                  [&]<class R, bool Cx>() { MeasureTyped<R, Cx>(row, options, slots, out); });
}

bool InputsNest(const RowDesc& row, const Options& fewer, const Options& more, std::string* why) {
    if (IsPackShape(row.shape)) return true; // exact rows with inputs of their own
    return ByElementType(
        row.type, [&]<class R, bool Cx>() { return NestedTyped<R, Cx>(row, fewer, more, why); });
}

void MeasureRow(const RowDesc& row, const Options& options, SlotResult out[3]) {
    const DispatchRecord& rec = BrennDispatchTable[row.index];
    const BrennKernel slots[3] = {rec.kernelLA, rec.kernelHA, rec.kernelEP};
    MeasureKernels(row, options, slots, out);
}

} // namespace brenn::tools
