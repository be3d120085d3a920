// Scalar inverse normal distribution functions, the peers of CdfNormInv (no vector
// library offers one), transcribed from their published descriptions:
//   Ppnd16  Wichura, Algorithm AS 241, Applied Statistics 37 (1988): rational forms of
//           degree 7 in the centre and in two tails of sqrt(-ln p), about 1e-16;
//   Ppnd7   the same paper's single-precision form, degree 3 and 2, about 1e-7;
//   Acklam  Acklam's rational forms (degree 5 over 5 in the centre, 5 over 4 in the
//           tails of sqrt(-2 ln p)), about 1.15e-9 relative.
// Each is called element by element through a pointer, as the libm peers are.
#ifndef BRENN_BENCH_VECMATH_NORMAL_INVERSE_PEERS_H
#define BRENN_BENCH_VECMATH_NORMAL_INVERSE_PEERS_H

#include <math.h>

#include <cmath>

namespace brenn::bench {

// a[0] + a[1] r + ... + a[N-1] r^(N-1)
template <int N, class R>
inline R Horner(const R (&a)[N], R r) {
    R s = a[N - 1];
    for (int k = N - 2; k >= 0; --k)
        s = s * r + a[k];
    return s;
}

// AS 241 PPND16: the centre (a/b), the tail to r = 5 (c/d), beyond (e/f).
struct Ppnd16Coefficients {
    static constexpr double a[8] = {3.3871328727963666080e0,  1.3314166789178437745e+2,
                                    1.9715909503065514427e+3, 1.3731693765509461125e+4,
                                    4.5921953931549871457e+4, 6.7265770927008700853e+4,
                                    3.3430575583588128105e+4, 2.5090809287301226727e+3};
    static constexpr double b[8] = {1.0,
                                    4.2313330701600911252e+1,
                                    6.8718700749205790830e+2,
                                    5.3941960214247511077e+3,
                                    2.1213794301586595867e+4,
                                    3.9307895800092710610e+4,
                                    2.8729085735721942674e+4,
                                    5.2264952788528545610e+3};
    static constexpr double c[8] = {1.42343711074968357734e0,  4.63033784615654529590e0,
                                    5.76949722146069140550e0,  3.64784832476320460504e0,
                                    1.27045825245236838258e0,  2.41780725177450611770e-1,
                                    2.27238449892691845833e-2, 7.74545014278341407640e-4};
    static constexpr double d[8] = {1.0,
                                    2.05319162663775882187e0,
                                    1.67638483018380384940e0,
                                    6.89767334985100004550e-1,
                                    1.48103976427480074590e-1,
                                    1.51986665636164571966e-2,
                                    5.47593808499534494600e-4,
                                    1.05075007164441684324e-9};
    static constexpr double e[8] = {6.65790464350110377720e0,  5.46378491116411436990e0,
                                    1.78482653991729133580e0,  2.96560571828504891230e-1,
                                    2.65321895265761230930e-2, 1.24266094738807843860e-3,
                                    2.71155556874348757815e-5, 2.01033439929228813265e-7};
    static constexpr double f[8] = {1.0,
                                    5.99832206555887937690e-1,
                                    1.36929880922735805310e-1,
                                    1.48753612908506148525e-2,
                                    7.86869131145613259100e-4,
                                    1.84631831751005468180e-5,
                                    1.42151175831644588870e-7,
                                    2.04426310338993978564e-15};
};

// AS 241 PPND7, the same shape with shorter forms.
struct Ppnd7Coefficients {
    static constexpr float a[4] = {3.3871327179e+00f, 5.0434271938e+01f, 1.5929113202e+02f,
                                   5.9109374720e+01f};
    static constexpr float b[4] = {1.0f, 1.7895169469e+01f, 7.8757757664e+01f, 6.7187563600e+01f};
    static constexpr float c[4] = {1.4234372777e+00f, 2.7568153900e+00f, 1.3067284816e+00f,
                                   1.7023821103e-01f};
    static constexpr float d[3] = {1.0f, 7.3700164250e-01f, 1.2021132975e-01f};
    static constexpr float e[4] = {6.6579051150e+00f, 3.0812263860e+00f, 4.2868294337e-01f,
                                   1.7337203997e-02f};
    static constexpr float f[3] = {1.0f, 2.4197894225e-01f, 1.2258202635e-02f};
};

// The algorithm of AS 241 on the coefficient set K.
template <class R, class K>
inline R Ppnd(R p) {
    R q = p - R(0.5);
    if (std::fabs(q) <= R(0.425)) {
        R r = R(0.180625) - q * q;
        return q * Horner(K::a, r) / Horner(K::b, r);
    }
    R r = q < 0 ? p : 1 - p;
    if (r <= 0) return r == 0 ? (q < 0 ? -HUGE_VAL : HUGE_VAL) : NAN;
    r = std::sqrt(-std::log(r));
    R v = r <= 5 ? Horner(K::c, r - R(1.6)) / Horner(K::d, r - R(1.6))
                 : Horner(K::e, r - 5) / Horner(K::f, r - 5);
    return q < 0 ? -v : v;
}

inline double Ppnd16(double p) {
    return Ppnd<double, Ppnd16Coefficients>(p);
}
inline float Ppnd7(float p) {
    return Ppnd<float, Ppnd7Coefficients>(p);
}

template <class R>
inline R Acklam(R p) {
    static const R a[6] = {R(2.506628277459239e+00), R(-3.066479806614716e+01),
                           R(1.383577518672690e+02), R(-2.759285104469687e+02),
                           R(2.209460984245205e+02), R(-3.969683028665376e+01)};
    static const R b[6] = {R(1.0),
                           R(-1.328068155288572e+01),
                           R(6.680131188771972e+01),
                           R(-1.556989798598866e+02),
                           R(1.615858368580409e+02),
                           R(-5.447609879822406e+01)};
    static const R c[6] = {R(2.938163982698783e+00),  R(4.374664141464968e+00),
                           R(-2.549732539343734e+00), R(-2.400758277161838e+00),
                           R(-3.223964580411365e-01), R(-7.784894002430293e-03)};
    static const R d[5] = {R(1.0), R(3.754408661907416e+00), R(2.445134137142996e+00),
                           R(3.224671290700398e-01), R(7.784695709041462e-03)};
    const R low = R(0.02425);
    if (p > low && p < 1 - low) {
        R q = p - R(0.5), r = q * q;
        return q * Horner(a, r) / Horner(b, r);
    }
    R t = p <= low ? p : 1 - p;
    R q = sqrt(-2 * log(t));
    R v = Horner(c, q) / Horner(d, q);
    return p <= low ? v : -v;
}

} // namespace brenn::bench

#endif
