/* The C library's complex arithmetic and functions in plain loops, for the complex
 * benchmark (complex_peers.py): each element through the compiler's complex * and /
 * (the C runtime's multiply and divide routines, with their Annex G recovery) or
 * through cabs, carg, cexp, clog and csqrt, in double and in single. */
#include <complex.h>

#define LOOPS(T, C, f)                                                                             \
    void Loop##f##Mul(int n, const C* a, const C* b, C* y) {                                       \
        for (int i = 0; i < n; ++i)                                                                \
            y[i] = a[i] * b[i];                                                                    \
    }                                                                                              \
    void Loop##f##Div(int n, const C* a, const C* b, C* y) {                                       \
        for (int i = 0; i < n; ++i)                                                                \
            y[i] = a[i] / b[i];                                                                    \
    }                                                                                              \
    void Loop##f##Abs(int n, const C* a, T* y) {                                                   \
        for (int i = 0; i < n; ++i)                                                                \
            y[i] = cabs##f(a[i]);                                                                  \
    }                                                                                              \
    void Loop##f##Exp(int n, const C* a, C* y) {                                                   \
        for (int i = 0; i < n; ++i)                                                                \
            y[i] = cexp##f(a[i]);                                                                  \
    }                                                                                              \
    void Loop##f##Ln(int n, const C* a, C* y) {                                                    \
        for (int i = 0; i < n; ++i)                                                                \
            y[i] = clog##f(a[i]);                                                                  \
    }                                                                                              \
    void Loop##f##Sqrt(int n, const C* a, C* y) {                                                  \
        for (int i = 0; i < n; ++i)                                                                \
            y[i] = csqrt##f(a[i]);                                                                 \
    }

LOOPS(double, double complex, )
LOOPS(float, float complex, f)
