/* The C library's complex arithmetic and functions in plain loops, for the complex
 * benchmark (complex_peers.py): each element through the compiler's complex * and /
 * (the C runtime's multiply and divide routines, with their Annex G recovery) or
 * through cabs, carg, cexp, clog, csqrt, the trigonometric and hyperbolic functions and
 * their inverses, clog10 and cpow, in double and in single. */
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

/* y = fn(a) for the functions of the extended-precision rows, and y = a^b. */
#define UNARY(C, f, fn, Name)                                                                      \
    void Loop##f##Name(int n, const C* a, C* y) {                                                  \
        for (int i = 0; i < n; ++i)                                                                \
            y[i] = fn##f(a[i]);                                                                    \
    }
/* clang-format off */
#define EXTENDED(C, f)                                                                             \
    UNARY(C, f, ccos, Cos) UNARY(C, f, csin, Sin) UNARY(C, f, ctan, Tan)                           \
    UNARY(C, f, ccosh, Cosh) UNARY(C, f, csinh, Sinh) UNARY(C, f, ctanh, Tanh)                     \
    UNARY(C, f, cacos, Acos) UNARY(C, f, casin, Asin) UNARY(C, f, catan, Atan)                     \
    UNARY(C, f, cacosh, Acosh) UNARY(C, f, casinh, Asinh) UNARY(C, f, catanh, Atanh)               \
    UNARY(C, f, clog10, Log10)                                                                     \
    void Loop##f##Pow(int n, const C* a, const C* b, C* y) {                                       \
        for (int i = 0; i < n; ++i)                                                                \
            y[i] = cpow##f(a[i], b[i]);                                                            \
    }
/* clang-format on */

LOOPS(double, double complex, )
LOOPS(float, float complex, f)
EXTENDED(double complex, )
EXTENDED(float complex, f)
