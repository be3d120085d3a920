// Beta variates a + beta x, x of shapes p and q on (0, 1), by published rejection
// methods: Joehnk's for p and q both below 1, Cheng's BB for both above 1 and Cheng's
// BC otherwise (R. C. H. Cheng, Generating beta variates with nonintegral shape
// parameters, Comm. ACM 21 (1978) 317-322). A round of k trials (the count still
// wanted, at most 512) takes 2k uniforms, trial i the words 2i and 2i + 1; the
// logarithms and exponentials run through the vector slots over the whole round, the
// rarer second tests of Cheng's methods over the trials that reach them. Accepted
// values go to r in trial order; what a round has left when the count is reached is
// dropped.
#include <cmath>
#include <limits>

#include "frame/export.h"
#include "rng/dist/framed.h"

namespace brenn::rng {

namespace {

constexpr int32_t kTrials = 512;

// Joehnk: x = u1^(1/p), y = u2^(1/q), accepted when x + y <= 1, giving x / (x + y).
// When both are too small for the quotient, it is taken from the logarithms.
template <typename T>
int32_t Joehnk(void* stream, int32_t n, T* r, T p, T q) {
    using C = Continuous<T>;
    const T ip = T(1) / p, iq = T(1) / q;
    T words[2 * kTrials], logs[2 * kTrials];
    int32_t status = QES_STATUS_OK;
    for (int32_t written = 0; written < n;) {
        const int32_t k = n - written < kTrials ? n - written : kTrials;
        status = C::Uniform(stream, 2 * k, words, T(0), T(1));
        if (status < 0) return status;
        C::Ln(2 * k, words);
        for (int32_t i = 0; i < k; ++i) {
            words[2 * i] *= ip;
            words[2 * i + 1] *= iq;
            logs[2 * i] = words[2 * i];
            logs[2 * i + 1] = words[2 * i + 1];
        }
        C::Exp(2 * k, words);
        for (int32_t i = 0; i < k && written < n; ++i) {
            T x = words[2 * i], s = x + words[2 * i + 1];
            if (!(s <= T(1))) continue;
            if (s > std::numeric_limits<T>::min()) {
                r[written++] = x / s;
                continue;
            }
            // ln(x / (x + y)) = lx - m - ln(e^(lx - m) + e^(ly - m)), m the larger.
            T lx = logs[2 * i], ly = logs[2 * i + 1];
            T m = lx > ly ? lx : ly;
            T e[2] = {lx - m, ly - m};
            C::Exp(2, e);
            T l = e[0] + e[1];
            C::Ln(1, &l);
            T z = (lx - m) - l;
            C::Exp(1, &z);
            r[written++] = z;
        }
    }
    return status;
}

// Cheng's BB (both shapes above 1) and BC (the smaller at most 1), with the set-up of
// the paper: s the smaller shape for BB and the larger for BC ("a" there), o the
// other.
template <typename T>
struct Cheng {
    bool bb;    // BB, else BC
    bool first; // s is p: the variate is w / (o + w), else o / (o + w)
    T s, o;     // the paper's a and b
    T sum;      // alpha = a + b
    T scale;    // beta
    T gamma;    // BB: a + 1 / beta
    T k1, k2;   // BC's bounds
};

template <typename T>
Cheng<T> ChengSetUp(T p, T q) {
    Cheng<T> c{};
    c.bb = p > T(1) && q > T(1);
    if (c.bb) {
        c.s = p < q ? p : q;
        c.o = p < q ? q : p;
        c.sum = c.s + c.o;
        c.scale = std::sqrt((c.sum - T(2)) / (T(2) * c.s * c.o - c.sum));
        c.gamma = c.s + T(1) / c.scale;
    } else {
        c.s = p > q ? p : q;
        c.o = p > q ? q : p;
        c.sum = c.s + c.o;
        c.scale = T(1) / c.o;
        T delta = T(1) + c.s - c.o;
        c.k1 = delta * (T(0.0138889) + T(0.0416667) * c.o) / (c.s * c.scale - T(0.777778));
        c.k2 = T(0.25) + (T(0.5) + T(0.25) / delta) * c.o;
    }
    c.first = c.s == p;
    return c;
}

enum Verdict : uint8_t { kReject, kAccept, kSecond };

template <typename T>
int32_t ChengWay(void* stream, int32_t n, T* r, T p, T q) {
    using C = Continuous<T>;
    const Cheng<T> c = ChengSetUp(p, q);
    const T ln4 = T(1.3862943611198906);
    T words[2 * kTrials], v[kTrials], w[kTrials], second[2 * kTrials];
    int32_t which[kTrials];
    Verdict verdict[kTrials];
    int32_t status = QES_STATUS_OK;
    for (int32_t written = 0; written < n;) {
        const int32_t k = n - written < kTrials ? n - written : kTrials;
        status = C::Uniform(stream, 2 * k, words, T(0), T(1));
        if (status < 0) return status;
        for (int32_t i = 0; i < k; ++i)
            v[i] = words[2 * i] / (T(1) - words[2 * i]);
        C::Ln(k, v);
        for (int32_t i = 0; i < k; ++i) {
            v[i] *= c.scale;
            w[i] = v[i];
        }
        C::Exp(k, w);
        int32_t late = 0;
        for (int32_t i = 0; i < k; ++i) {
            w[i] *= c.s;
            const T u1 = words[2 * i], u2 = words[2 * i + 1];
            T z;
            Verdict d = kSecond;
            if (c.bb) {
                z = u1 * u1 * u2;
                T s = c.s + (c.gamma * v[i] - ln4) - w[i];
                if (s + T(2.609438) >= T(5) * z) d = kAccept;
            } else if (u1 < T(0.5)) {
                T y = u1 * u2;
                z = u1 * y;
                if (T(0.25) * u2 + z - y >= c.k1) d = kReject;
            } else {
                z = u1 * u1 * u2;
                if (z <= T(0.25))
                    d = kAccept;
                else if (z >= c.k2)
                    d = kReject;
            }
            verdict[i] = d;
            if (d == kSecond) {
                which[late] = i;
                second[2 * late] = z;
                second[2 * late + 1] = c.sum / (c.o + w[i]);
                ++late;
            }
        }
        // ln z and ln(alpha / (b + w)) of the trials the first tests left open.
        C::Ln(2 * late, second);
        for (int32_t j = 0; j < late; ++j) {
            const int32_t i = which[j];
            const T lz = second[2 * j], lq = second[2 * j + 1];
            if (c.bb) {
                T rr = c.gamma * v[i] - ln4;
                T s = c.s + rr - w[i];
                verdict[i] = s > lz || !(rr + c.sum * lq < lz) ? kAccept : kReject;
            } else {
                verdict[i] = c.sum * (lq + v[i]) - ln4 < lz ? kReject : kAccept;
            }
        }
        for (int32_t i = 0; i < k && written < n; ++i) {
            if (verdict[i] != kAccept) continue;
            T x;
            if (c.first)
                x = std::isinf(w[i]) ? T(1) : w[i] / (c.o + w[i]);
            else
                x = c.o / (c.o + w[i]);
            r[written++] = x;
        }
    }
    return status;
}

template <typename T>
int32_t Beta(void* stream, int32_t n, T* r, T p, T q, T a, T beta) {
    return FramedScaled(n, r, a, beta, [&] {
        return p < T(1) && q < T(1) ? Joehnk(stream, n, r, p, q) : ChengWay(stream, n, r, p, q);
    });
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t _qessRngBeta(int32_t method, void* stream, int32_t n, float* r, float p,
                                  float q, float a, float beta) {
    (void)method;
    return Beta(stream, n, r, p, q, a, beta);
}

BRENN_EXPORT int32_t _qesdRngBeta(int32_t method, void* stream, int32_t n, double* r, double p,
                                  double q, double a, double beta) {
    (void)method;
    return Beta(stream, n, r, p, q, a, beta);
}
