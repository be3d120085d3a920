// Test access to the vector-math rows through the library's own dispatch table, and
// helpers for the floating-point state and ulp distances.
#ifndef BRENN_TESTS_VECMATH_KERNELS_H
#define BRENN_TESTS_VECMATH_KERNELS_H

#include <cmath>
#include <cstdint>
#include <cstring>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <xmmintrin.h>

#include "brenn_vecmath.h"
#include "brenn_vecmath_rows.h"

namespace brenn::test {

// The slots of a row, looked up in the library (a program's own reference to a row
// symbol may be a copy).
inline const DispatchRecord* Row(const std::string& name) {
    return static_cast<const DispatchRecord*>(
        dlsym(RTLD_DEFAULT, ("brenn_zar_kernel_" + name + "_ttab").c_str()));
}
inline BrennKernel Slot(const std::string& name, int slot) {
    const DispatchRecord* r = Row(name);
    return r ? (&r->kernelLA)[slot] : nullptr;
}

template <class T>
using Unary = void (*)(int, const T*, T*);
template <class T>
using Binary = void (*)(int, const T*, const T*, T*);
template <class T>
using TwoRes = void (*)(int, const T*, T*, T*);

template <class F>
F As(BrennKernel k) {
    return reinterpret_cast<F>(k);
}

// The unary slot `slot` of `row` on x, its results as a new vector.
template <class T>
std::vector<T> Call(const std::string& row, int slot, const std::vector<T>& x) {
    std::vector<T> y(x.size());
    As<Unary<T>>(Slot(row, slot))(int(x.size()), x.data(), y.data());
    return y;
}

inline uint32_t Bits(float x) {
    return __builtin_bit_cast(uint32_t, x);
}
inline uint64_t Bits(double x) {
    return __builtin_bit_cast(uint64_t, x);
}

// Identical, or both NaN.
template <class T>
bool SameValue(T a, T b) {
    if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
    return Bits(a) == Bits(b);
}

// Each y[i] against want(x[i]) bit for bit (NaN as NaN; with nanBits a NaN's bits too),
// the first five differences reported under `what`.
template <class T, class Want>
void ExpectEachElement(const std::string& what, const std::vector<T>& x, const std::vector<T>& y,
                       Want want, bool nanBits = false) {
    int shown = 0;
    for (size_t i = 0; i < x.size() && shown < 5; ++i) {
        T w = want(x[i]);
        if (nanBits ? Bits(y[i]) == Bits(w) : SameValue(y[i], w)) continue;
        ++shown;
        ADD_FAILURE() << what << " x = " << std::hexfloat << x[i] << ": got " << y[i] << ", want "
                      << w << std::defaultfloat;
    }
}

// Distance in ulps of the format (denormal spacing below the normal range).
template <class T>
double UlpError(T got, long double ref) {
    constexpr int prec = sizeof(T) == 4 ? 24 : 53;
    constexpr int emin = sizeof(T) == 4 ? -126 : -1022;
    if ((long double)got == ref) return 0;
    if (std::isinf(got) || std::isnan(got)) return 1e30;
    int e;
    frexpl(ref, &e);
    if (e - 1 < emin) e = emin + 1;
    return double(fabsl((long double)got - ref) / ldexpl(1.0L, e - prec));
}

// One element through a unary kernel: its result and the status it leaves.
template <class T>
T CallUnary(Unary<T> k, T x, int* status = nullptr) {
    brenn_zar_kernel_SetErrStatus(0);
    T y;
    k(1, &x, &y);
    if (status) *status = brenn_zar_kernel_GetErrStatus();
    return y;
}

// Every length from 1 to maxLen at every alignment of four, in place too: each element
// comes out as the kernel gives it alone (one[i] for pool[i]). Inputs are drawn from the
// pool in a stride that moves each value through every lane. A fatal failure names the
// call and returns.
template <class T, size_t N>
void ExpectLanesAgree(Unary<T> k, const T (&pool)[N], const T (&one)[N], int maxLen,
                      const std::string& what) {
    for (int len = 1; len <= maxLen; ++len)
        for (int off = 0; off < 4; ++off) {
            std::vector<T> in(len + 4), out(len + 4);
            for (int i = 0; i < len; ++i)
                in[off + i] = pool[(i * 7 + len) % N];
            k(len, in.data() + off, out.data() + off);
            for (int i = 0; i < len; ++i)
                ASSERT_TRUE(SameValue(out[off + i], one[(i * 7 + len) % N]))
                    << what << " len " << len << " i " << i;
            k(len, in.data() + off, in.data() + off);
            for (int i = 0; i < len; ++i)
                ASSERT_TRUE(SameValue(in[off + i], one[(i * 7 + len) % N]))
                    << what << " in place, len " << len << " i " << i;
        }
}

// NaNs of both signs, quiet and signalling, come back as the same NaN quieted, with no
// status.
template <class T>
void ExpectNaNsQuieted(Unary<T> k, const std::string& what) {
    using U = decltype(Bits(T()));
    constexpr U quiet = sizeof(T) == 4 ? U(0x00400000u) : U(0x0008000000000000ull);
    const U exp = sizeof(T) == 4 ? U(0x7F800000u) : U(0x7FF0000000000000ull);
    const U sign = U(1) << (sizeof(T) * 8 - 1);
    for (U nan : {U(exp | quiet | 5), U(exp | 5), U(sign | exp | quiet), U(sign | exp | 7)}) {
        int st;
        T y = CallUnary(k, __builtin_bit_cast(T, nan), &st);
        EXPECT_EQ(Bits(y), nan | quiet) << what;
        EXPECT_EQ(st, 0) << what;
    }
}

// The x87 control word, read and loaded.
inline uint16_t ReadX87Cw() {
    uint16_t cw;
    __asm__ volatile("fnstcw %0" : "=m"(cw));
    return cw;
}
inline void LoadX87Cw(uint16_t cw) {
    __asm__ volatile("fldcw %0" : : "m"(cw));
}

// The thread's error mode for a scope, the previous mode word restored afterwards.
struct ModeScope {
    uint32_t saved;
    explicit ModeScope(uint32_t errorMode) : saved(brenn_zar_kernel_SetMode(errorMode)) {}
    ~ModeScope() { brenn_zar_kernel_SetMode(saved); }
};

// Caller's MXCSR around a body, restored afterwards.
struct CsrScope {
    unsigned saved;
    explicit CsrScope(unsigned csr) : saved(_mm_getcsr()) { _mm_setcsr(csr); }
    ~CsrScope() { _mm_setcsr(saved); }
};

} // namespace brenn::test

#endif
