// Akima's cubic: the derivative at a node weights its two neighbouring slopes by the
// differences of the slopes beyond them, so that a kink in the data bends only the
// cells beside it. Nodes 1 and nx-2 see slopes extended beyond the ends, linearly
// (m[-1] = 2*m[0] - m[1], m[-2] = 2*m[-1] - m[0], as the end (3*m[0] - m[1]) / 2 of
// column 7 presumes) or, for a periodic condition, wrapped across the seam.
#include <cmath>

#include "fitting/cubic_local.h"

namespace brenn::fit {
namespace {

// Below this sum of the weights (absolute, in either precision) the node takes the
// mean of its two slopes.
constexpr double kAkimaFlat = 1e-10;

// a = |m[i+1] - m[i]| weighs m[i-1], b = |m[i-1] - m[i-2]| weighs m[i].
template <typename T>
inline T AkimaDerivative(T a, T b, T left, T right) {
    T sum = a + b;
    if (sum < T(kAkimaFlat)) return (left + right) / T(2);
    return (a * left + b * right) / sum;
}

struct Akima : NoFinish {
    static constexpr int64_t kLeastNx = 5;

    template <typename T, bool Uniform>
    static void Derivatives(const CubicEnd<T>& e, const CubicCells<T, Uniform>&, const FittingTask*,
                            int64_t, int bcColumn) {
        int64_t n = e.nx;
        T* m = e.m;
        if (bcColumn == 6) {
            m[-1] = m[n - 2];
            m[-2] = m[n - 3];
            m[n - 1] = m[0];
            m[n] = m[1];
        } else {
            m[-1] = T(2) * m[0] - m[1];
            m[-2] = T(2) * m[-1] - m[0];
            m[n - 1] = T(2) * m[n - 2] - m[n - 3];
            m[n] = T(2) * m[n - 1] - m[n - 2];
        }
        // Each difference w[k] = |m[k] - m[k-1]| once: node i weighs with w[i+1] and
        // w[i-1], and carries the two it has not used up.
        T wBefore = std::fabs(m[0] - m[-1]);
        T wHere = std::fabs(m[1] - m[0]);
        for (int64_t i = 1; i + 1 < n; ++i) {
            T wAfter = std::fabs(m[i + 1] - m[i]);
            e.d[i] = AkimaDerivative(wAfter, wBefore, m[i - 1], m[i]);
            wBefore = wHere;
            wHere = wAfter;
        }
    }

    // Node 0 with the slopes wrapped across the seam.
    template <typename T>
    static void PeriodicLeft(const CubicEnd<T>& e) {
        const T* m = e.m;
        e.d[0] = AkimaDerivative(std::fabs(m[1] - m[0]), std::fabs(m[-1] - m[-2]), m[-1], m[0]);
    }
    template <typename T>
    static void NoneLeft(const CubicEnd<T>& e) {
        e.d[0] = (T(3) * e.m[0] - e.m[1]) / T(2);
    }
    template <typename T>
    static void NoneRight(const CubicEnd<T>& e) {
        int64_t n = e.nx;
        e.d[n - 1] = (T(3) * e.m[n - 2] - e.m[n - 3]) / T(2);
    }
};

} // namespace
} // namespace brenn::fit

BRENN_LOCAL_CUBIC_ENTRIES(Akima, brenn::fit::Akima, nullptr)
