/* The frame of the complex kernels with vector bodies: arithmetic, modulus, phase,
 * exponential, logarithm and root of single (c) and double (z) complex vectors.
 *
 * Elements are {re, im} pairs. A group is one register of real parts and one of
 * imaginary parts: two elements in double, four in single, read as two registers and
 * separated into parts (and joined again to store). A body supplies
 *   using T = float or double; using In, Out: the element types it reads and writes
 *   (BrennComplex8/16, or T for the real side of Abs, Arg and CIS);
 *   int Eval(const Cx<T>* a, const Cx<T>* b, Cx<T>& y)
 *               the vector arithmetic on one group; b is null for one input, and a real
 *               input or output uses the re part only; returns the special-lane bits
 *               (bit k for element k of the group)
 *   Scalar(...) the routine for one special lane, on the caller's elements:
 *               int Scalar(const In* a, const In* b, Out* y) (b is null for one input);
 *               returns the status
 *   kName       the public error name, for bodies whose Scalar can return a status
 * and the frame does the rest: the environment of the kernel frame, groups read and
 * stored whole while they fit, the last partial group filled with the safe value 0.75
 * (nothing outside the vectors is read or written), the scalar routine for each special
 * lane, the reporter for each non-zero status with the reload of the element, and
 * in-place operation (y may equal a or b). */
#ifndef BRENN_VECMATH_COMPLEX_CFRAME_H
#define BRENN_VECMATH_COMPLEX_CFRAME_H

#include <type_traits>

#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {

// The parts of one group.
template <class T>
struct Cx {
    Vec<T> re, im;
};

// Elements a group: one register of parts.
template <class T>
inline constexpr int kGroup = kLanes<T>;

// The complex element of a real type, and back.
template <class T>
using ComplexOf = std::conditional_t<std::is_same_v<T, float>, BrennComplex8, BrennComplex16>;

template <class E>
inline constexpr bool kIsComplex =
    std::is_same_v<E, BrennComplex8> || std::is_same_v<E, BrennComplex16>;

// One group of complex elements from p, separated into parts; and joined back.
inline Cx<double> LoadParts(const BrennComplex16* p) {
    const double* d = &p->re;
    __m128d e0 = Load(d), e1 = Load(d + 2);
    return {InterleaveLower(e0, e1), InterleaveUpper(e0, e1)};
}
inline Cx<float> LoadParts(const BrennComplex8* p) {
    const float* f = &p->re;
    __m128 e01 = Load(f), e23 = Load(f + 4);
    return {_mm_shuffle_ps(e01, e23, _MM_SHUFFLE(2, 0, 2, 0)),
            _mm_shuffle_ps(e01, e23, _MM_SHUFFLE(3, 1, 3, 1))};
}
inline void StoreParts(BrennComplex16* p, const Cx<double>& c) {
    double* d = &p->re;
    Store(d, InterleaveLower(c.re, c.im));
    Store(d + 2, InterleaveUpper(c.re, c.im));
}
inline void StoreParts(BrennComplex8* p, const Cx<float>& c) {
    float* f = &p->re;
    Store(f, InterleaveLower(c.re, c.im));
    Store(f + 4, InterleaveUpper(c.re, c.im));
}
// A real group: the re part only.
template <class T>
inline Cx<T> LoadParts(const T* p) {
    return {Load(p), Zero<T>()};
}
template <class T>
inline void StoreParts(T* p, const Cx<T>& c) {
    Store(p, c.re);
}

// The safe value of the partial group's unused elements.
template <class E>
inline void FillSafe(E& e) {
    if constexpr (kIsComplex<E>) {
        e.re = 0.75f;
        e.im = 0.75f;
    } else {
        e = E(0.75);
    }
}

// The common part of a body whose special lanes go to a scalar routine that works in
// x87 extended precision: its types, the x87 rule of the kernel, and the routine.
template <class Tp, class I, class O, int (*Routine)(const I*, const I*, O*)>
struct ExtendedScalarBody {
    using T = Tp;
    using In = I;
    using Out = O;
    static constexpr X87Rule kX87 = X87Rule::Extended;
    static int Scalar(const In* x, const In* w, Out* y) { return Routine(x, w, y); }
};

// Bodies whose chains are long enough to fill the machine alone, and which would spill
// registers with two groups in flight, say so: static constexpr bool kOneGroup = true.
template <class B>
constexpr bool kOneGroupARound = requires { requires B::kOneGroup; };

// Bodies whose chains are long and bound by latency may take a round of several groups
// step by step, each step over all of them, so that the chains overlap: they say
//   static constexpr int kGroups = N;
//   int EvalGroups(const Cx<T>* a, const Cx<T>* b, Cx<T>* y)
//               N groups (b null for one input); returns the special-lane bits of
//               group g from bit g*K
// The others run two groups a round (or one, kOneGroup).
template <class B>
constexpr int kGroupsARound = [] {
    if constexpr (requires { B::kGroups; })
        return B::kGroups;
    else
        return 2;
}();
template <class B>
constexpr bool kStepped = requires { B::kGroups; };

// A step of a stepped round, a lambda: inlined into the round like the body it runs.
#define BRENN_STEP __attribute__((always_inline))

// The common form of EvalGroups: a state S a group, begun from its elements by first,
// which returns the group's special-lane bits; each middle step over all the groups in
// turn; last gives each group's results from its state. The steps are always_inline
// lambdas.
template <class S, int N, class T, class First, class... Middle, class Last>
BRENN_VEC int StepGroups(const Cx<T>* x, Cx<T>* y, First first, Last last, Middle... middle) {
    S s[N];
    int bits = 0;
#pragma GCC unroll 8
    for (int g = 0; g < N; ++g)
        bits |= first(x[g], s[g]) << (g * kGroup<T>);
    (
        [&]() BRENN_STEP {
#pragma GCC unroll 8
            for (int g = 0; g < N; ++g)
                middle(s[g]);
        }(),
        ...);
#pragma GCC unroll 8
    for (int g = 0; g < N; ++g)
        last(s[g], y[g]);
    return bits;
}

// The same for a body in two steps whose second gives the special-lane bits: begin (a
// group's elements into its state S, with what the second step needs held apart) over
// every group, then finish (the group's results; its bits) over every group.
template <class S, int N, class T, class Begin, class Finish>
BRENN_VEC int TwoStepGroups(const Cx<T>* x, Cx<T>* y, Begin begin, Finish finish) {
    S s[N];
#pragma GCC unroll 8
    for (int g = 0; g < N; ++g)
        begin(x[g], s[g]);
    int bits = 0;
#pragma GCC unroll 8
    for (int g = 0; g < N; ++g)
        bits |= finish(s[g], y[g]) << (g * kGroup<T>);
    return bits;
}

// A body in two steps as a base of the body D: Eval for a group, and rounds of N groups
// by TwoStepGroups, with D::Hold(s) keeping apart the values of a group's state that its
// second step needs. D gives Start, Begin(const Cx<T>&, Start&), Finish(Start&, Cx<T>&)
// returning the special-lane bits, and Hold.
template <class D, class T, int N = 4>
struct TwoStepRounds {
    static constexpr int kGroups = N;
    BRENN_VEC static int Eval(const Cx<T>* z, const Cx<T>*, Cx<T>& y) {
        typename D::Start s;
        D::Begin(*z, s);
        return D::Finish(s, y);
    }
    BRENN_VEC static int EvalGroups(const Cx<T>* x, const Cx<T>*, Cx<T>* y) {
        using S = typename D::Start;
        return TwoStepGroups<S, N>(
            x, y,
            [](const Cx<T>& z, S& s) BRENN_STEP {
                D::Begin(z, s);
                D::Hold(s);
            },
            [](S& s, Cx<T>& r) BRENN_STEP { return D::Finish(s, r); });
    }
};

template <class B>
struct ComplexFrame {
    using T = typename B::T;
    using In = typename B::In;
    using Out = typename B::Out;
    static constexpr int K = kGroup<T>;

    // The reporter's view of a call: complex elements; or, for a real input and a
    // complex result (CIS), the real reporter with the result's two parts as its two
    // results, as a function of two results reports (Abs and Arg never report).
    static void Report(int st, int i, const In* a, const In* b, Out* y) {
        if constexpr (kIsComplex<In> && kIsComplex<Out>) {
            frame::ReportError(st, i, a, b ? b : a, y, y, NameOf<B>());
        } else if constexpr (kIsComplex<Out>) {
            // parts as real vectors whose element i they are
            T* re = &y[i].re - i;
            T* im = &y[i].im - i;
            frame::ReportError(st, i, a, a, re, im, NameOf<B>());
        }
    }

    // The special lanes of a group whose results sit in r (K elements from i).
    static void Special(const B& body, const In* a, const In* b, Out* y, int i, int bits, Out* r) {
        for (int k = 0; k < K; ++k) {
            if (!(bits & (1 << k))) continue;
            int st = body.Scalar(a + i + k, b ? b + i + k : nullptr, r + k);
            if (__builtin_expect(st != status::kNone, 0)) {
                y[i + k] = r[k];
                Report(st, i + k, a, b, y);
                r[k] = y[i + k];
            }
        }
    }

    // The results of a group with special lanes (bits), K elements from i.
    static void SpecialGroup(const B& body, const In* a, const In* b, Out* y, int i, int bits,
                             const Cx<T>& cy) {
        if constexpr (kHasScalar<B>) {
            alignas(16) Out r[K];
            StoreParts(r, cy);
            Special(body, a, b, y, i, bits, r);
            for (int k = 0; k < K; ++k)
                y[i + k] = r[k];
        }
    }

    // A round of two groups, 2K elements from i: both evaluated before either is stored,
    // so that their chains interleave.
    BRENN_VEC static void Round(const B& body, const In* a, const In* b, Out* y, int i) {
        if constexpr (kStepped<B>) {
            constexpr int N = kGroupsARound<B>;
            Cx<T> ca[N], cb[N], cy[N];
            for (int g = 0; g < N; ++g) {
                ca[g] = LoadParts(a + i + g * K);
                if (b) cb[g] = LoadParts(b + i + g * K);
            }
            int bits = body.EvalGroups(ca, b ? cb : nullptr, cy);
            if (__builtin_expect(bits == 0, 1)) {
                for (int g = 0; g < N; ++g)
                    StoreParts(y + i + g * K, cy[g]);
                return;
            }
            // group by group, as below
            for (int g = 0; g < N; ++g) {
                int bg = (bits >> (g * K)) & ((1 << K) - 1);
                if (bg)
                    SpecialGroup(body, a, b, y, i + g * K, bg, cy[g]);
                else
                    StoreParts(y + i + g * K, cy[g]);
            }
            return;
        }
        if constexpr (kOneGroupARound<B>) {
            for (int g = 0; g < 2; ++g, i += K) {
                Cx<T> a0 = LoadParts(a + i), b0, y0;
                if (b) b0 = LoadParts(b + i);
                int bits = body.Eval(&a0, b ? &b0 : nullptr, y0);
                if (__builtin_expect(bits == 0, 1))
                    StoreParts(y + i, y0);
                else
                    SpecialGroup(body, a, b, y, i, bits, y0);
            }
            return;
        }
        Cx<T> a0 = LoadParts(a + i), a1 = LoadParts(a + i + K), b0, b1, y0, y1;
        if (b) b0 = LoadParts(b + i), b1 = LoadParts(b + i + K);
        int bits0 = body.Eval(&a0, b ? &b0 : nullptr, y0);
        int bits1 = body.Eval(&a1, b ? &b1 : nullptr, y1);
        if (__builtin_expect((bits0 | bits1) == 0, 1)) {
            StoreParts(y + i, y0);
            StoreParts(y + i + K, y1);
            return;
        }
        // group by group: the scalar routines read the caller's elements, which the first
        // group's stores do not reach in place
        if (bits0)
            SpecialGroup(body, a, b, y, i, bits0, y0);
        else
            StoreParts(y + i, y0);
        if (bits1)
            SpecialGroup(body, a, b, y, i + K, bits1, y1);
        else
            StoreParts(y + i + K, y1);
    }

    // The last m elements, fewer than N groups' worth, through N groups of copies: the
    // last partial group (N = 1), or for a stepped body more than a group and fewer than
    // a round (N groups a round), so that the groups' chains overlap as in a whole round,
    // where group by group each would wait out its own.
    template <int N>
    static void Tail(const B& body, const In* a, const In* b, Out* y, int i, int m) {
        alignas(16) In ta[N * K], tb[N * K];
        for (int k = 0; k < N * K; ++k) {
            FillSafe(ta[k]);
            FillSafe(tb[k]);
        }
        for (int k = 0; k < m; ++k) {
            ta[k] = a[i + k];
            if (b) tb[k] = b[i + k];
        }
        Cx<T> ca[N], cb[N], cy[N];
        for (int g = 0; g < N; ++g) {
            ca[g] = LoadParts(ta + g * K);
            if (b) cb[g] = LoadParts(tb + g * K);
        }
        int bits;
        if constexpr (N == 1)
            bits = body.Eval(ca, b ? cb : nullptr, cy[0]);
        else
            bits = body.EvalGroups(ca, b ? cb : nullptr, cy);
        bits &= (1 << m) - 1;
        alignas(16) Out r[N * K];
        for (int g = 0; g < N; ++g)
            StoreParts(r + g * K, cy[g]);
        if constexpr (kHasScalar<B>)
            for (int g = 0; g * K < m; ++g) {
                int bg = (bits >> (g * K)) & ((1 << K) - 1);
                if (bg) Special(body, a, b, y, i + g * K, bg, r + g * K);
            }
        for (int k = 0; k < m; ++k)
            y[i + k] = r[k];
    }

    static void Run(const B& body, int n, const In* a, const In* b, Out* y) {
        Env<B> env = Enter<B>();
        constexpr int R = kStepped<B> ? kGroupsARound<B> * K : 2 * K;
        int i = 0;
        for (; i + R <= n; i += R)
            Round(body, a, b, y, i);
        if constexpr (kStepped<B>)
            if (n - i > K) {
                Tail<kGroupsARound<B>>(body, a, b, y, i, n - i);
                i = n;
            }
        for (; i < n; i += K)
            Tail<1>(body, a, b, y, i, n - i < K ? n - i : K);
        Leave(env);
    }
};

template <class B>
inline void RunComplex(int n, const typename B::In* a, const typename B::In* b,
                       typename B::Out* y) {
    ComplexFrame<B>::Run(B{}, n, a, b, y);
}

} // namespace brenn::vm

// Kernels from complex bodies, inside an extern "C" block: ZAR_COMPLEX_KERNEL(z, Mul,
// LaHa, Binary, Body) defines the kernel of row zMul in its shared LA/HA slot.
#define ZAR_COMPLEX_RUN_Binary(...) brenn::vm::RunComplex<__VA_ARGS__>(n, a, b, y)
#define ZAR_COMPLEX_RUN_Unary(...) brenn::vm::RunComplex<__VA_ARGS__>(n, a, nullptr, y)
#define ZAR_COMPLEX_RUN_AbsArg(...) brenn::vm::RunComplex<__VA_ARGS__>(n, a, nullptr, y)
#define ZAR_COMPLEX_RUN_Cis(...) brenn::vm::RunComplex<__VA_ARGS__>(n, a, nullptr, y)
#define ZAR_COMPLEX_KERNEL(t, Fn, level, Shape, ...)                                               \
    void ZAR_KERNEL(t##Fn, level) BRENN_SIG(t, Shape) {                                            \
        ZAR_COMPLEX_RUN_##Shape(__VA_ARGS__);                                                      \
    }

#endif
