// MPFR and MPC references of the vector functions, one case a function. Values are
// computed at kRefPrec bits, far more than the 53 of the widest kernel, so the
// reference's own rounding does not show in a measured error.
#include "tools/accuracy/reference.h"

namespace brenn::tools {

namespace {

constexpr mpfr_rnd_t kN = MPFR_RNDN;

// Scratch numbers at the working precision, freed on scope exit.
struct Tmp {
    mpfr_t v;
    explicit Tmp(mpfr_prec_t p = kRefPrec + 32) { mpfr_init2(v, p); }
    ~Tmp() { mpfr_clear(v); }
    operator mpfr_ptr() { return v; }
};

// y >= 0 with erfc(y) = t, for 0 < t <= 1: bisection to 64 bits, then Newton steps
// at the working precision (erfc has derivative -2/sqrt(pi) exp(-y^2)).
void ErfcInvUpper(mpfr_ptr r, mpfr_srcptr t) {
    Tmp lo(80), hi(80), mid(80), f(80);
    mpfr_set_ui(lo, 0, kN);
    mpfr_set_ui(hi, 32, kN);
    for (int i = 0; i < 72; ++i) {
        mpfr_add(mid, lo, hi, kN);
        mpfr_div_2ui(mid, mid, 1, kN);
        mpfr_erfc(f, mid, kN);
        if (mpfr_cmp(f, t) > 0)
            mpfr_set(lo, mid, kN);
        else
            mpfr_set(hi, mid, kN);
    }
    Tmp y, e, d, c;
    mpfr_set(y, mid, kN);
    mpfr_const_pi(c, kN);
    mpfr_sqrt(c, c, kN);
    mpfr_div_2ui(c, c, 1, kN); // sqrt(pi)/2
    for (int i = 0; i < 4; ++i) {
        mpfr_erfc(e, y, kN);
        mpfr_sub(e, e, t, kN);
        mpfr_sqr(d, y, kN);
        mpfr_exp(d, d, kN);
        mpfr_mul(d, d, c, kN);
        mpfr_mul(e, e, d, kN);
        mpfr_add(y, y, e, kN); // y - (erfc(y) - t) / erfc'(y)
    }
    mpfr_set(r, y, kN);
}

// erfc^-1 on [0, 2]: infinities at the ends, NaN outside.
void ErfcInv(mpfr_ptr r, mpfr_srcptr x) {
    if (mpfr_nan_p(x) || mpfr_sgn(x) < 0 || mpfr_cmp_ui(x, 2) > 0) {
        mpfr_set_nan(r);
    } else if (mpfr_zero_p(x)) {
        mpfr_set_inf(r, 1);
    } else if (mpfr_cmp_ui(x, 2) == 0) {
        mpfr_set_inf(r, -1);
    } else if (mpfr_cmp_ui(x, 1) == 0) {
        mpfr_set_zero(r, 1); // the root itself: Newton's absolute accuracy would not do
    } else if (mpfr_cmp_ui(x, 1) < 0) {
        ErfcInvUpper(r, x);
    } else {
        Tmp t;
        mpfr_ui_sub(t, 2, x, kN); // exact at this precision
        ErfcInvUpper(r, t);
        mpfr_neg(r, r, kN);
    }
}

// erf^-1 on [-1, 1]. Near zero Newton on erf from y = x sqrt(pi)/2, elsewhere
// through erfc^-1(1 - |x|), which is exact in the argument.
void ErfInv(mpfr_ptr r, mpfr_srcptr x) {
    if (mpfr_nan_p(x) || mpfr_cmpabs_ui(x, 1) > 0) {
        mpfr_set_nan(r);
        return;
    }
    if (mpfr_zero_p(x)) {
        mpfr_set(r, x, kN);
        return;
    }
    if (mpfr_cmpabs_ui(x, 1) == 0) {
        mpfr_set_inf(r, mpfr_sgn(x));
        return;
    }
    if (mpfr_get_exp(x) < -8) {
        Tmp y, e, d, c;
        mpfr_const_pi(c, kN);
        mpfr_sqrt(c, c, kN);
        mpfr_div_2ui(c, c, 1, kN);
        mpfr_mul(y, x, c, kN);
        for (int i = 0; i < 5; ++i) {
            mpfr_erf(e, y, kN);
            mpfr_sub(e, e, x, kN);
            mpfr_sqr(d, y, kN);
            mpfr_exp(d, d, kN);
            mpfr_mul(d, d, c, kN);
            mpfr_mul(e, e, d, kN);
            mpfr_sub(y, y, e, kN);
        }
        mpfr_set(r, y, kN);
        return;
    }
    Tmp t;
    mpfr_abs(t, x, kN);
    mpfr_ui_sub(t, 1, t, kN);
    ErfcInvUpper(r, t);
    if (mpfr_sgn(x) < 0) mpfr_neg(r, r, kN);
}

// Phi(x) = erfc(-x / sqrt 2) / 2.
void CdfNorm(mpfr_ptr r, mpfr_srcptr x) {
    Tmp t, s;
    mpfr_sqrt_ui(s, 2, kN);
    mpfr_div(t, x, s, kN);
    mpfr_neg(t, t, kN);
    mpfr_erfc(t, t, kN);
    mpfr_div_2ui(r, t, 1, kN);
}

// Phi^-1(p) = -sqrt 2 erfc^-1(2p).
void CdfNormInv(mpfr_ptr r, mpfr_srcptr p) {
    Tmp t, s;
    mpfr_mul_2ui(t, p, 1, kN);
    ErfcInv(t, t);
    mpfr_sqrt_ui(s, 2, kN);
    mpfr_mul(t, t, s, kN);
    mpfr_neg(r, t, kN);
    if (mpfr_zero_p(r)) mpfr_set_zero(r, 1); // Phi^-1(1/2) = +0
}

// E1(x) = -Ei(-x) for x > 0; +inf at 0; a domain error (NaN) below.
void ExpInt1(mpfr_ptr r, mpfr_srcptr x) {
    if (mpfr_nan_p(x) || mpfr_sgn(x) < 0) {
        mpfr_set_nan(r);
    } else if (mpfr_zero_p(x)) {
        mpfr_set_inf(r, 1);
    } else if (mpfr_inf_p(x)) {
        mpfr_set_zero(r, 1);
    } else {
        Tmp t;
        mpfr_neg(t, x, kN);
        mpfr_eint(t, t, kN);
        mpfr_neg(r, t, kN);
    }
}

// The exponent of |x| as a number, with logb's values at the ends.
void Logb(mpfr_ptr r, mpfr_srcptr x) {
    if (mpfr_nan_p(x))
        mpfr_set_nan(r);
    else if (mpfr_inf_p(x))
        mpfr_set_inf(r, 1);
    else if (mpfr_zero_p(x))
        mpfr_set_inf(r, -1);
    else
        mpfr_set_si(r, mpfr_get_exp(x) - 1, kN);
}

// 1/sqrt(x) with the sign of a zero kept (1/sqrt(-0) = -inf, as 1/(-0)).
void InvSqrt(mpfr_ptr r, mpfr_srcptr x) {
    if (mpfr_zero_p(x))
        mpfr_set_inf(r, mpfr_signbit(x) ? -1 : 1);
    else
        mpfr_rec_sqrt(r, x, kN);
}

} // namespace

void RefUnary(Ref ref, mpfr_ptr r, mpfr_ptr r2, mpfr_srcptr x) {
    Tmp t;
    switch (ref) {
    case Ref::Inv:
        mpfr_ui_div(r, 1, x, kN);
        break;
    case Ref::Sqrt:
        mpfr_sqrt(r, x, kN);
        break;
    case Ref::InvSqrt:
        InvSqrt(r, x);
        break;
    case Ref::Cbrt:
        mpfr_cbrt(r, x, kN);
        break;
    case Ref::InvCbrt:
        mpfr_cbrt(t, x, kN);
        mpfr_ui_div(r, 1, t, kN);
        break;
    case Ref::Exp:
        mpfr_exp(r, x, kN);
        break;
    case Ref::Ln:
        mpfr_log(r, x, kN);
        break;
    case Ref::Log10:
        mpfr_log10(r, x, kN);
        break;
    case Ref::Cos:
        mpfr_cos(r, x, kN);
        break;
    case Ref::Sin:
        mpfr_sin(r, x, kN);
        break;
    case Ref::Tan:
        mpfr_tan(r, x, kN);
        break;
    case Ref::Acos:
        mpfr_acos(r, x, kN);
        break;
    case Ref::Acosh:
        mpfr_acosh(r, x, kN);
        break;
    case Ref::Asin:
        mpfr_asin(r, x, kN);
        break;
    case Ref::Asinh:
        mpfr_asinh(r, x, kN);
        break;
    case Ref::Atan:
        mpfr_atan(r, x, kN);
        break;
    case Ref::Atanh:
        mpfr_atanh(r, x, kN);
        break;
    case Ref::Cosh:
        mpfr_cosh(r, x, kN);
        break;
    case Ref::Sinh:
        mpfr_sinh(r, x, kN);
        break;
    case Ref::Tanh:
        mpfr_tanh(r, x, kN);
        break;
    case Ref::Erf:
        mpfr_erf(r, x, kN);
        break;
    case Ref::Erfc:
        mpfr_erfc(r, x, kN);
        break;
    case Ref::ErfInv:
        ErfInv(r, x);
        break;
    case Ref::Expm1:
        mpfr_expm1(r, x, kN);
        break;
    case Ref::Log1p:
        mpfr_log1p(r, x, kN);
        break;
    case Ref::Pow3o2:
        // x * sqrt(x): NaN for every negative x, -inf included (pow would give +inf).
        mpfr_set_d(t, 1.5, kN);
        if (mpfr_sgn(x) < 0)
            mpfr_set_nan(r);
        else
            mpfr_pow(r, x, t, kN);
        break;
    case Ref::Pow2o3:
        mpfr_cbrt(t, x, kN);
        mpfr_sqr(r, t, kN);
        break;
    case Ref::ErfcInv:
        ErfcInv(r, x);
        break;
    case Ref::CdfNorm:
        CdfNorm(r, x);
        break;
    case Ref::CdfNormInv:
        CdfNormInv(r, x);
        break;
    case Ref::LGamma: {
        int sign;
        mpfr_lgamma(r, &sign, x, kN);
        break;
    }
    case Ref::TGamma:
        mpfr_gamma(r, x, kN);
        break;
    case Ref::ExpInt1:
        ExpInt1(r, x);
        break;
    case Ref::Sinpi:
        mpfr_sinpi(r, x, kN);
        break;
    case Ref::Cospi:
        mpfr_cospi(r, x, kN);
        break;
    case Ref::Tanpi:
        mpfr_tanpi(r, x, kN);
        break;
    case Ref::Acospi:
        mpfr_acospi(r, x, kN);
        break;
    case Ref::Asinpi:
        mpfr_asinpi(r, x, kN);
        break;
    case Ref::Atanpi:
        mpfr_atanpi(r, x, kN);
        break;
    case Ref::Exp2:
        mpfr_exp2(r, x, kN);
        break;
    case Ref::Exp10:
        mpfr_exp10(r, x, kN);
        break;
    case Ref::Log2:
        mpfr_log2(r, x, kN);
        break;
    case Ref::Sind:
        mpfr_sinu(r, x, 360, kN);
        break;
    case Ref::Cosd:
        mpfr_cosu(r, x, 360, kN);
        break;
    case Ref::Tand:
        mpfr_tanu(r, x, 360, kN);
        break;
    case Ref::Logb:
        Logb(r, x);
        break;
    case Ref::SinCos:
        mpfr_sin_cos(r, r2, x, kN);
        break;
    default:
        mpfr_set_nan(r);
        break;
    }
}

void RefBinary(Ref ref, mpfr_ptr r, mpfr_srcptr a, mpfr_srcptr b) {
    switch (ref) {
    case Ref::Div:
        mpfr_div(r, a, b, kN);
        break;
    case Ref::Pow:
        mpfr_pow(r, a, b, kN);
        break;
    case Ref::Powr:
        // The library's Powr is Pow on x >= 0 without the integer class: NaN for any
        // negative x, -0 as +0, and Pow's values elsewhere (0^0 and inf^0 are 1, 1^inf
        // is 1), not IEEE powr's NaNs.
        if (mpfr_sgn(a) < 0) {
            mpfr_set_nan(r);
        } else {
            Tmp t;
            mpfr_abs(t, a, kN);
            mpfr_pow(r, t, b, kN);
        }
        break;
    case Ref::Atan2:
        mpfr_atan2(r, a, b, kN);
        break;
    case Ref::Atan2pi:
        mpfr_atan2pi(r, a, b, kN);
        break;
    case Ref::Hypot:
        mpfr_hypot(r, a, b, kN);
        break;
    default:
        mpfr_set_nan(r);
        break;
    }
}

namespace {

// tanh(x + iy) into r, in MPFR without mpc_tanh, whose working precision grows without
// bound for some double inputs (minutes an element). Kahan's form, with t = tan y,
// b = 1 + t^2, s = sinh x, c = sqrt(1 + s^2) = cosh x:
//   tanh z = (b c s + i t) / (1 + b s^2)
// has only sums of positive terms, products and quotients, so each part is within about
// ten roundings of the working precision, relatively, of the exact value, however near
// z lies to a pole or a zero (tan y and sinh x are correctly rounded by MPFR, whose own
// loops find the distance of a double y to the poles of tan). So kRefPrec + 32 bits is
// ample and bounded. Beyond |x| = 64, tanh x is +-1 within 2^-180 and the imaginary part
// is 4 sin y cos y e^(-2|x|) within the same relative error, without sinh's overflow of
// MPFR's exponent range for huge x.
void KahanTanh(mpc_ptr r, mpfr_srcptr x, mpfr_srcptr y) {
    Tmp t, b, s, c, d;
    if (mpfr_cmpabs_ui(x, 64) > 0) {
        mpfr_sin_cos(t, c, y, kN);
        mpfr_mul(t, t, c, kN);
        mpfr_mul_2ui(t, t, 1, kN); // sin 2y
        mpfr_mul_2ui(s, x, 1, kN);
        mpfr_abs(s, s, kN);
        mpfr_neg(s, s, kN);
        mpfr_exp(s, s, kN);
        mpfr_mul_2ui(s, s, 1, kN);
        mpfr_mul(mpc_imagref(r), t, s, kN);
        mpfr_set_si(mpc_realref(r), mpfr_sgn(x) < 0 ? -1 : 1, kN);
        return;
    }
    mpfr_tan(t, y, kN);
    mpfr_sqr(b, t, kN);
    mpfr_add_ui(b, b, 1, kN);
    mpfr_sinh(s, x, kN);
    mpfr_sqr(c, s, kN);
    mpfr_mul(d, c, b, kN);
    mpfr_add_ui(d, d, 1, kN);
    mpfr_add_ui(c, c, 1, kN);
    mpfr_sqrt(c, c, kN);
    mpfr_mul(c, c, b, kN);
    mpfr_mul(c, c, s, kN);
    mpfr_div(mpc_realref(r), c, d, kN);
    mpfr_div(mpc_imagref(r), t, d, kN);
}

} // namespace

void RefComplex(Ref ref, mpc_ptr r, mpc_srcptr a, mpc_srcptr b) {
    constexpr mpc_rnd_t kC = MPC_RNDNN;
    switch (ref) {
    case Ref::CCos:
        mpc_cos(r, a, kC);
        break;
    case Ref::CSin:
        mpc_sin(r, a, kC);
        break;
    case Ref::CTan: { // tan z = -i tanh(iz): tanh(-y + ix) = u + iv gives v - iu
        Tmp u(mpfr_get_prec(mpc_imagref(a)));
        mpfr_neg(u, mpc_imagref(a), kN);
        KahanTanh(r, u, mpc_realref(a));
        mpfr_swap(mpc_realref(r), mpc_imagref(r));
        mpfr_neg(mpc_imagref(r), mpc_imagref(r), kN);
        break;
    }
    case Ref::CCosh:
        mpc_cosh(r, a, kC);
        break;
    case Ref::CSinh:
        mpc_sinh(r, a, kC);
        break;
    case Ref::CTanh:
        KahanTanh(r, mpc_realref(a), mpc_imagref(a));
        break;
    case Ref::CAcos:
        mpc_acos(r, a, kC);
        break;
    case Ref::CAsin:
        mpc_asin(r, a, kC);
        break;
    case Ref::CAtan:
        mpc_atan(r, a, kC);
        break;
    case Ref::CAcosh:
        mpc_acosh(r, a, kC);
        break;
    case Ref::CAsinh:
        mpc_asinh(r, a, kC);
        break;
    case Ref::CAtanh:
        mpc_atanh(r, a, kC);
        break;
    case Ref::CExp:
        mpc_exp(r, a, kC);
        break;
    case Ref::CLn:
        mpc_log(r, a, kC);
        break;
    case Ref::CLog10:
        mpc_log10(r, a, kC);
        break;
    case Ref::CSqrt:
        mpc_sqrt(r, a, kC);
        break;
    case Ref::Conj:
        mpc_conj(r, a, kC);
        break;
    case Ref::Cis: {
        // cos x + i sin x from the real part of a
        mpfr_sin_cos(mpc_imagref(r), mpc_realref(r), mpc_realref(a), kN);
        break;
    }
    case Ref::CAbs:
        mpc_abs(mpc_realref(r), a, kN);
        mpfr_set_zero(mpc_imagref(r), 1);
        break;
    case Ref::CArg:
        mpc_arg(mpc_realref(r), a, kN);
        mpfr_set_zero(mpc_imagref(r), 1);
        break;
    case Ref::CDiv:
        mpc_div(r, a, b, kC);
        break;
    case Ref::CPow:
        mpc_pow(r, a, b, kC);
        break;
    case Ref::CAdd:
        mpc_add(r, a, b, kC);
        break;
    case Ref::CSub:
        mpc_sub(r, a, b, kC);
        break;
    case Ref::CMul:
        mpc_mul(r, a, b, kC);
        break;
    case Ref::CMulByConj: {
        mpc_t c;
        mpc_init2(c, mpc_get_prec(r));
        mpc_conj(c, b, kC);
        mpc_mul(r, a, c, kC);
        mpc_clear(c);
        break;
    }
    default:
        mpfr_set_nan(mpc_realref(r));
        mpfr_set_nan(mpc_imagref(r));
        break;
    }
}

} // namespace brenn::tools
