// Chi-square quantiles from the regularised incomplete gamma function: the series of
// P(a, x) below x = a + 1 and the continued fraction of Q(a, x) (modified Lentz) above,
// with a = k / 2 so that log Gamma(a) is a short exact product; the quantile by Newton
// steps on log Q inside a bracket that bisection keeps when a step would leave it.
#include "stats/chi_square.h"

#include <cmath>

namespace brenn::stats {
namespace {

// log Gamma(k / 2): (k/2 - 1)! for even k, sqrt(pi) (1/2)(3/2)...(k/2 - 1) for odd k.
double LogGammaHalf(int64_t k) {
    double s = 0;
    if (k % 2 == 0) {
        for (int64_t j = 2; j < k / 2; ++j)
            s += std::log(double(j));
        return s;
    }
    s = 0.5 * std::log(3.14159265358979323846);
    for (int64_t j = 1; 2 * j < k; ++j)
        s += std::log(double(j) - 0.5);
    return s;
}

constexpr double kTiny = 1e-300;
constexpr double kEps = 1e-16;

// Q(a, x) by the continued fraction, for x >= a + 1.
double UpperByFraction(double a, double x, double logFront) {
    double b = x + 1 - a, c = 1 / kTiny, d = 1 / b, h = d;
    for (int i = 1; i < 10000; ++i) {
        double an = -i * (i - a);
        b += 2;
        d = an * d + b;
        if (std::fabs(d) < kTiny) d = kTiny;
        c = b + an / c;
        if (std::fabs(c) < kTiny) c = kTiny;
        d = 1 / d;
        double del = d * c;
        h *= del;
        if (std::fabs(del - 1) < kEps) break;
    }
    return std::exp(logFront) * h;
}

// P(a, x) by the series, for x < a + 1.
double LowerBySeries(double a, double x, double logFront) {
    double term = 1 / a, sum = term;
    for (int n = 1; n < 10000; ++n) {
        term *= x / (a + n);
        sum += term;
        if (term < sum * kEps) break;
    }
    return std::exp(logFront) * sum;
}

} // namespace

// P(a, x) (lower) or Q(a, x), each from the side where it is formed without a
// difference that cancels.
double GammaHalf(int64_t k, double x, bool lower) {
    if (!(x > 0)) return lower ? 0 : 1;
    const double a = 0.5 * double(k);
    const double logFront = -x + a * std::log(x) - LogGammaHalf(k);
    if (x < a + 1) {
        const double p = LowerBySeries(a, x, logFront);
        return lower ? p : 1 - p;
    }
    const double q = UpperByFraction(a, x, logFront);
    return lower ? 1 - q : q;
}

double UpperGammaHalf(int64_t k, double x) {
    return GammaHalf(k, x, false);
}

double ChiSquareUpperQuantile(int64_t k, double tail) {
    // Above a tail of 1/2 the quantile is found on the lower side, 1 - tail being exact.
    const bool lower = tail > 0.5;
    const double target = lower ? 1 - tail : tail;
    const double a = 0.5 * double(k), logGamma = LogGammaHalf(k), logTarget = std::log(target);
    // Bracket: Q falls from 1 at 0; double the top until it is below the tail.
    double lo = 0, hi = double(k) > 1 ? double(k) : 1;
    while (UpperGammaHalf(k, 0.5 * hi) > tail)
        lo = hi, hi *= 2;
    double x = 0.5 * (lo + hi);
    for (int it = 0; it < 200; ++it) {
        const double s = GammaHalf(k, 0.5 * x, lower);
        if ((s < target) == lower)
            lo = x;
        else
            hi = x;
        // d log P / dx = f(x) / P and d log Q / dx = -f(x) / Q, f the chi-square density.
        const double f = 0.5 * std::exp((a - 1) * std::log(0.5 * x) - 0.5 * x - logGamma);
        const double step = (std::log(s) - logTarget) * s / f;
        double next = lower ? x - step : x + step;
        if (!(next > lo && next < hi)) next = lo > 0 ? std::sqrt(lo * hi) : 0.5 * hi;
        const bool done = std::fabs(next - x) <= 4e-16 * x || hi - lo <= 4e-16 * hi;
        x = next;
        if (done) break;
    }
    return x;
}

} // namespace brenn::stats
