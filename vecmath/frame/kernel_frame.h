/* The kernel frame: the one place where the outer rules of an element-wise kernel live.
 *
 * A family file supplies a body, a small struct of mathematics written in the vector
 * vocabulary of vec.h:
 *   using T = float or double;
 *   Eval(...)   the vector arithmetic on one register, with the range test written as
 *               integer compares that set an all-ones lane mask in `special`
 *               unary:      V Eval(V x, V& special)
 *               binary:     V Eval(V a, V b, V& special)
 *               two result: void Eval(V x, V& y, V& z, V& special)
 *   Scalar(...) (optional) the routine for one special lane; returns the status
 *               (status.h names them); y holds the lane's result from Eval on entry
 *               (every layout but HandTuned)
 *               unary: int Scalar(const T* a, T* y); binary: (a, b, y); two result: (a, y, z)
 *   kName       the public error name, when Scalar can return a non-zero status
 *   kX87, kCsr  (optional) entry rules; Masked and Common when absent
 *   kLayout     (optional) Split (default), SplitOut, NoHead or HandTuned
 *   FixNoError  (optional) vector fix-up of lanes for error mode exactly 0x2000:
 *               int FixNoError(const V* x, V* r, int bits) returns the bits left
 *   kRound      (optional) 16 for a main stage of sixteen elements a round (four quads),
 *               for bodies whose chains are long enough that more independent work a
 *               round pays; the elements left after those rounds take one round of
 *               eight if eight remain, then the tail as usual. Split, SplitOut and
 *               NoHead only.
 *   EvalWide    (required with kRound = 16) the whole round at once, so that the body
 *               can interleave its registers and test its range once a round:
 *               int EvalWide(const V* x, V* y) (unary), (const V* a, const V* b, V* y)
 *               (binary), (const V* x, V* y, V* z) (two result), sixteen elements'
 *               registers each; returns the special-lane bits (bit j for element j of
 *               the round)
 *   kUnderflowLanes (optional, true) Eval gives every lane that is not special its
 *               result, zeros and denormals included, and a result below the least
 *               normal in magnitude has status 4 (underflow), reported by the frame
 *               without a scalar routine. One-result shapes, the common MXCSR rule
 *               (under which the reporter's round trip of a value through double
 *               changes nothing).
 * and the frame does the rest: environment entry and exit, the split at the input's
 * 16-byte boundary, the partial blocks filled with the safe value 0.75 (nothing outside
 * the vectors is read or written), eight (or sixteen) elements a round in the main
 * stage, the lane mask of the range test, the two phases of special handling with the
 * reporter call and the reload of y, and in-place operation (y may equal a or b).
 *
 * Reports wait for the end of the call when nothing can read them sooner (no callback,
 * no message, no trap: frame::ReportsCanWait): a lane's status then only marks its
 * element, and the call ends with one report a status, the statuses in the order of
 * their last elements, so that status, errno and x87 flags come out as element by
 * element. Otherwise each report is made at its element, in element order.
 *
 * The frame works in quads of four elements (one single register, two double ones);
 * a main-stage round is two quads (four with kRound = 16). */
#ifndef BRENN_VECMATH_FRAME_KERNEL_FRAME_H
#define BRENN_VECMATH_FRAME_KERNEL_FRAME_H

#include <stdint.h>

#include <type_traits>

#include "frame/fpenv.h"
#include "frame/mode.h"
#include "frame/report.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/frame/status.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

using frame::CsrRule;
using frame::X87Rule;

enum class Layout {
    Split,     // head to the input's 16-byte boundary, rounds of eight, tail
    SplitOut,  // the same with the head to the output's boundary (stores aligned)
    NoHead,    // rounds of eight from element 0, then one element at a time
    HandTuned, // rounds of eight from element 0; a block with a special lane, and the
               // last elements, run element by element through Scalar, which covers
               // every input and whose status the frame reports at once
};

enum class Shape { Unary, Binary, TwoRes };

constexpr uint32_t kErrorModeNone = 0x2000;

template <class B>
constexpr X87Rule X87Of() {
    if constexpr (requires { B::kX87; })
        return B::kX87;
    else
        return X87Rule::Masked;
}
template <class B>
constexpr CsrRule CsrOf() {
    if constexpr (requires { B::kCsr; })
        return B::kCsr;
    else
        return CsrRule::Common;
}
template <class B>
constexpr Layout LayoutOf() {
    if constexpr (requires { B::kLayout; })
        return B::kLayout;
    else
        return Layout::Split;
}
// The public error name of the row Fn of a body's element type T, for bodies written
// once for both: "vsSqrt" or "vdSqrt".
#define ZAR_ERROR_NAME_OF(T, Fn)                                                                   \
    (std::is_same_v<T, float> ? ZAR_ERROR_NAME(s##Fn) : ZAR_ERROR_NAME(d##Fn))

// The public error name; rows that never report have none.
template <class B>
constexpr const char* NameOf() {
    if constexpr (requires { B::kName; })
        return B::kName;
    else
        return "";
}
// Elements a main-stage round: 8 unless the body asks for 16.
template <class B>
constexpr int RoundOf() {
    if constexpr (requires { B::kRound; }) {
        static_assert(B::kRound == 8 || B::kRound == 16, "a round is 8 or 16 elements");
        return B::kRound;
    } else {
        return 8;
    }
}
template <class B>
constexpr bool kHasScalar = requires {
    &B::Scalar;
};
template <class B>
constexpr bool kHasWide = requires {
    &B::EvalWide;
};
template <class B>
constexpr bool kHasFix = requires {
    &B::FixNoError;
};
template <class B>
constexpr bool kUnderflowLanes = [] {
    if constexpr (requires { B::kUnderflowLanes; })
        return B::kUnderflowLanes;
    else
        return false;
}();

// Reports held back to the end of a call: the last element of each status 1 to 4.
struct Held {
    int8_t wait = -1; // whether reports may wait; -1 until the first one asks
    int at[5] = {-1, -1, -1, -1, -1};
    bool Wait() {
        if (wait < 0) wait = frame::ReportsCanWait();
        return wait != 0;
    }
};

// Environment for the kernel's duration: x87 and MXCSR entry rules; the mode word is
// read once (not at all by the mask-only and untouched rules unless the body needs
// the error byte for its fix-up).
template <class B>
struct Env {
    frame::FpState fp;
    uint32_t errorByte;
    Held held;
};

template <class B>
inline Env<B> Enter() {
    constexpr CsrRule c = CsrOf<B>();
    uint32_t mode = 0;
    if constexpr (c == CsrRule::Common || kHasFix<B>) mode = frame::ThreadMode();
    Env<B> e;
    e.fp = frame::FpEnter<X87Of<B>(), c>(mode);
    e.errorByte = mode & frame::kModeErrorMask;
    if constexpr (kUnderflowLanes<B>) e.held.Wait();
    return e;
}

template <class B>
inline void Leave(const Env<B>& e) {
    frame::FpLeave(e.fp);
}

// The pointers of one call, by shape: inputs a (and b), outputs y (and z).
template <class T>
struct Args {
    const T* a;
    const T* b;
    T* y;
    T* z;
};

// p + i, or null for a vector the shape does not have.
template <class T>
inline T* At(T* p, int i) {
    return p ? p + i : p;
}

template <class B, Shape S>
struct Quads {
    using T = typename B::T;
    using V = Vec<T>;
    static constexpr int L = kLanes<T>;
    static constexpr int R = 4 / L; // registers per quad

    // One quad of results and the special-lane bits of its four lanes.
    struct Q {
        V x[R], w[R]; // inputs (second input for binary)
        V y[R], z[R]; // results (second result for two-result)
    };

    static inline int Eval(const B& body, const T* a, const T* b, Q& q) {
        int bits = 0;
        for (int k = 0; k < R; ++k) {
            V special = V{};
            q.x[k] = Load(a + k * L);
            if constexpr (S == Shape::Unary) {
                q.y[k] = body.Eval(q.x[k], special);
            } else if constexpr (S == Shape::Binary) {
                q.w[k] = Load(b + k * L);
                q.y[k] = body.Eval(q.x[k], q.w[k], special);
            } else {
                body.Eval(q.x[k], q.y[k], q.z[k], special);
            }
            if constexpr (kHasScalar<B>) bits |= MaskBits(special) << (k * L);
        }
        return bits;
    }

    static inline void Store(const Q& q, T* y, T* z) {
        for (int k = 0; k < R; ++k) {
            vm::Store(y + k * L, q.y[k]);
            if constexpr (S == Shape::TwoRes) vm::Store(z + k * L, q.z[k]);
        }
    }

    static void Report(const Args<T>& v, int st, int i) {
        if constexpr (S == Shape::TwoRes)
            frame::ReportError(st, i, v.a, v.a, v.y, v.z, NameOf<B>());
        else if constexpr (S == Shape::Binary)
            frame::ReportError(st, i, v.a, v.b, v.y, v.y, NameOf<B>());
        else
            frame::ReportError(st, i, v.a, v.a, v.y, v.y, NameOf<B>());
    }

    // A lane's non-zero status: the result stored, reported and read back from y (a
    // callback may have replaced it); or, when reports wait, the element marked and
    // its values taken through double as the reporter takes them (under DAZ a denormal
    // result becomes 0).
    static inline void Status(Held& held, const Args<T>& v, int st, int i, T* ry, T* rz) {
        v.y[i] = *ry;
        if constexpr (S == Shape::TwoRes) v.z[i] = *rz;
        if (st >= status::kDomain && st <= status::kUnderflow && held.Wait()) {
            held.at[st] = i;
            if constexpr (std::is_same_v<T, float>) {
                double a1 = v.a[i], a2 = S == Shape::Binary ? v.b[i] : a1, r1 = *ry;
                double r2 = S == Shape::TwoRes ? *rz : r1;
                __asm__ volatile("" : "+x"(a1), "+x"(a2), "+x"(r1), "+x"(r2));
                if constexpr (S == Shape::TwoRes) *rz = v.z[i] = float(r2);
                *ry = v.y[i] = float(r1);
            }
            return;
        }
        Report(v, st, i);
        if constexpr (S == Shape::TwoRes) *rz = v.z[i];
        *ry = v.y[i];
    }

    // Phase 2 for one lane: the scalar routine on the caller's element, and its status.
    static inline void Lane(const B& body, Held& held, const Args<T>& v, int i, T* ry, T* rz) {
        int st;
        if constexpr (S == Shape::Unary)
            st = body.Scalar(v.a + i, ry);
        else if constexpr (S == Shape::Binary)
            st = body.Scalar(v.a + i, v.b + i, ry);
        else
            st = body.Scalar(v.a + i, ry, rz);
        if (__builtin_expect(st != status::kNone, 0)) Status(held, v, st, i, ry, rz);
    }

    // The held reports at the call's end, one a status, in the order of their last
    // elements.
    static void Flush(Env<B>& env, const Args<T>& v) {
        for (;;) {
            int st = 0;
            for (int k = status::kDomain; k <= status::kUnderflow; ++k)
                if (env.held.at[k] >= 0 && (st == 0 || env.held.at[k] < env.held.at[st])) st = k;
            if (st == 0) return;
            Report(v, st, env.held.at[st]);
            env.held.at[st] = -1;
        }
    }

    // The lanes of a quad whose result is below the least normal in magnitude.
    static inline int UnderBits(const Q& q) {
        int bits = 0;
        for (int k = 0; k < R; ++k) {
            auto mag = AsInt(And(q.y[k], AbsMask<T>()));
            auto least = AsInt(Set<T>(sizeof(T) == 4 ? T(0x1p-126) : T(0x1p-1022)));
            bits |= MaskBits(AsFloat(Lt(mag, least))) << (k * L);
        }
        return bits;
    }

    // Underflow lanes u of the elements from i (bits: their special lanes): marked when
    // reports wait (the last of them, without a branch), else handed to Special.
    static inline int Under(Env<B>& env, int i, int bits, int& u) {
        u &= ~bits;
        if (env.held.wait > 0) {
            // A select by mask: a conditional here compiles to a branch, mispredicted
            // for lanes that fall at random (sErfc at n = 10^6: 3.8 -> 6.7 ticks).
            int last = i + 31 - __builtin_clz(unsigned(u) | 1u);
            int keep = -int(u == 0);
            int& at = env.held.at[status::kUnderflow];
            at = (at & keep) | (last & ~keep);
            u = 0;
        }
        return bits | u;
    }

    // Both phases for the special lanes of a quad whose results sit in ry/rz
    // (memory), elements i .. i+3 of the call; the lanes of `under` have status 4.
    static inline void Special(const B& body, Env<B>& env, const Args<T>& v, int i, Q& q,
                               int bits, T* ry, T* rz, int under = 0) {
        if constexpr (kHasFix<B>) {
            if (env.errorByte == kErrorModeNone) {
                bits = body.FixNoError(q.x, q.y, bits);
                for (int k = 0; k < R; ++k)
                    vm::Store(ry + k * L, q.y[k]);
            }
        }
        for (int lane = 0; lane < 4; ++lane) {
            if (under & (1 << lane))
                Status(env.held, v, status::kUnderflow, i + lane, ry + lane, rz + lane);
            else if constexpr (kHasScalar<B>)
                if (bits & (1 << lane)) Lane(body, env.held, v, i + lane, ry + lane, rz + lane);
        }
    }

    // The partial-block stage: m (1 to 4) elements from i, the other lanes holding the
    // safe value; every element is loaded and stored singly.
    static inline void Partial(const B& body, Env<B>& env, const Args<T>& v, int i, int m) {
        alignas(16) T ina[4] = {T(0.75), T(0.75), T(0.75), T(0.75)};
        alignas(16) T inb[4] = {T(0.75), T(0.75), T(0.75), T(0.75)};
        for (int k = 0; k < m; ++k) {
            ina[k] = v.a[i + k];
            if constexpr (S == Shape::Binary) inb[k] = v.b[i + k];
        }
        Q q;
        int bits = Eval(body, ina, inb, q) & (0xF >> (4 - m)), under = 0;
        if constexpr (kUnderflowLanes<B>) {
            under = UnderBits(q) & (0xF >> (4 - m));
            bits = Under(env, i, bits, under);
        }
        alignas(16) T ry[4], rz[4];
        Store(q, ry, rz);
        if constexpr (kHasScalar<B> || kUnderflowLanes<B>)
            if (bits) Special(body, env, v, i, q, bits, ry, rz, under);
        for (int k = 0; k < m; ++k) {
            v.y[i + k] = ry[k];
            if constexpr (S == Shape::TwoRes) v.z[i + k] = rz[k];
        }
    }

    // One main-stage round: eight elements from i, loaded and stored whole.
    static inline void Round(const B& body, Env<B>& env, const Args<T>& v, int i) {
        Q q0, q1;
        int bits = Eval(body, v.a + i, At(v.b, i), q0);
        bits |= Eval(body, v.a + i + 4, At(v.b, i + 4), q1) << 4;
        int under = 0;
        if constexpr (kUnderflowLanes<B>) {
            under = UnderBits(q0) | UnderBits(q1) << 4;
            bits = Under(env, i, bits, under);
        }
        if (__builtin_expect(bits == 0, 1)) {
            Store(q0, v.y + i, At(v.z, i));
            Store(q1, v.y + i + 4, At(v.z, i + 4));
            return;
        }
        if constexpr (kHasScalar<B> || kUnderflowLanes<B>) {
            alignas(16) T ry[8], rz[8];
            Store(q0, ry, rz);
            Store(q1, ry + 4, rz + 4);
            if (bits & 0xF) Special(body, env, v, i, q0, bits & 0xF, ry, rz, under & 0xF);
            if (bits >> 4)
                Special(body, env, v, i + 4, q1, bits >> 4, ry + 4, rz + 4, under >> 4);
            for (int k = 0; k < 8; ++k) {
                v.y[i + k] = ry[k];
                if constexpr (S == Shape::TwoRes) v.z[i + k] = rz[k];
            }
        }
    }

    // A main-stage round of sixteen: the body's whole-round form evaluates the four
    // quads before the one test of their special bits (four quads one after another
    // gained nothing over rounds of eight); with a special lane, the quads' results go through
    // memory and the special lanes are handled quad by quad, lane 0 up, as in a round of eight.
    static inline void Round16(const B& body, Env<B>& env, const Args<T>& v, int i) {
        static_assert(kHasWide<B>, "rounds of sixteen pay only with the whole-round form");
        Q q[4];
        constexpr int N = 16 / L;
        V x[N], w[N], y[N], z[N];
#pragma GCC unroll 16
        for (int k = 0; k < N; ++k) {
            x[k] = Load(v.a + i + k * L);
            if constexpr (S == Shape::Binary) w[k] = Load(v.b + i + k * L);
        }
        int bits;
        if constexpr (S == Shape::Unary)
            bits = body.EvalWide(x, y);
        else if constexpr (S == Shape::Binary)
            bits = body.EvalWide(x, w, y);
        else
            bits = body.EvalWide(x, y, z);
#pragma GCC unroll 16
        for (int k = 0; k < N; ++k) {
            q[k / R].y[k % R] = y[k];
            if constexpr (S == Shape::TwoRes) q[k / R].z[k % R] = z[k];
        }
        int under = 0;
        if constexpr (kUnderflowLanes<B>) {
#pragma GCC unroll 4
            for (int k = 0; k < 4; ++k)
                under |= UnderBits(q[k]) << (4 * k);
            bits = Under(env, i, bits, under);
        }
        if (__builtin_expect(bits == 0, 1)) {
#pragma GCC unroll 4
            for (int k = 0; k < 4; ++k)
                Store(q[k], v.y + i + 4 * k, At(v.z, i + 4 * k));
            return;
        }
        if constexpr (kHasScalar<B> || kUnderflowLanes<B>) {
            // The arguments again from memory (nothing is stored yet, so an in-place call
            // still holds them there), where keeping them from before the body would keep
            // them live, or stored, through every round.
            for (int k = 0; k < N; ++k) {
                q[k / R].x[k % R] = Load(v.a + i + k * L);
                if constexpr (S == Shape::Binary) q[k / R].w[k % R] = Load(v.b + i + k * L);
            }
            alignas(16) T ry[16], rz[16];
            for (int k = 0; k < 4; ++k)
                Store(q[k], ry + 4 * k, rz + 4 * k);
            for (int k = 0; k < 4; ++k) {
                int b = (bits >> (4 * k)) & 0xF;
                if (b)
                    Special(body, env, v, i + 4 * k, q[k], b, ry + 4 * k, rz + 4 * k,
                            (under >> (4 * k)) & 0xF);
            }
            for (int k = 0; k < 16; ++k) {
                v.y[i + k] = ry[k];
                if constexpr (S == Shape::TwoRes) v.z[i + k] = rz[k];
            }
        }
    }

    // Hand-tuned fall-back: one element through the scalar routine, which gives the
    // result for any input, and its status.
    static inline void One(const B& body, Held& held, const Args<T>& v, int i) {
        T ry, rz;
        Lane(body, held, v, i, &ry, &rz);
        v.y[i] = ry;
        if constexpr (S == Shape::TwoRes) v.z[i] = rz;
    }

    // The same with the report made at once.
    static inline void One(const B& body, const Args<T>& v, int i) {
        Held now;
        now.wait = 0;
        One(body, now, v, i);
    }

    static void Run(const B& body, int n, const Args<T>& v) {
        static_assert(!kUnderflowLanes<B> || (S != Shape::TwoRes &&
                                              LayoutOf<B>() != Layout::HandTuned &&
                                              CsrOf<B>() == CsrRule::Common),
                      "underflow lanes: one result, the scalar split, the common MXCSR rule");
        Env<B> env = Enter<B>();
        if (n > 0) {
            constexpr Layout layout = LayoutOf<B>();
            int i = 0;
            constexpr bool split = layout == Layout::Split || layout == Layout::SplitOut;
            if constexpr (split) {
                uintptr_t p = reinterpret_cast<uintptr_t>(layout == Layout::Split ? v.a : v.y);
                int head = int((((p + 15) & ~uintptr_t(15)) - p) / sizeof(T));
                if (head >= n) head = n;
                if (head > 0) Partial(body, env, v, 0, head);
                i = head;
            }
            if constexpr (RoundOf<B>() == 16) {
                static_assert(layout != Layout::HandTuned, "rounds of 16 need the scalar split");
                int end16 = i + ((n - i) & ~15);
                for (; i < end16; i += 16)
                    Round16(body, env, v, i);
            }
            int end = i + ((n - i) & ~7);
            for (; i < end; i += 8) {
                if constexpr (layout == Layout::HandTuned) {
                    Q q0, q1;
                    int bits = Eval(body, v.a + i, At(v.b, i), q0);
                    bits |= Eval(body, v.a + i + 4, At(v.b, i + 4), q1);
                    if (__builtin_expect(bits == 0, 1)) {
                        Store(q0, v.y + i, At(v.z, i));
                        Store(q1, v.y + i + 4, At(v.z, i + 4));
                    } else {
                        for (int k = 0; k < 8; ++k)
                            One(body, env.held, v, i + k);
                    }
                } else {
                    Round(body, env, v, i);
                }
            }
            if constexpr (split) {
                for (; i < n; i += 4)
                    Partial(body, env, v, i, n - i < 4 ? n - i : 4);
            } else if constexpr (layout == Layout::NoHead) {
                for (; i < n; ++i)
                    Partial(body, env, v, i, 1);
            } else {
                for (; i < n; ++i)
                    One(body, env.held, v, i);
            }
            if (env.held.wait > 0) Flush(env, v);
        }
        Leave(env);
    }
};

// Entry points that family files call from their kernels.
template <class B>
inline void RunUnary(const B& body, int n, const typename B::T* a, typename B::T* y) {
    Quads<B, Shape::Unary>::Run(body, n, {a, nullptr, y, nullptr});
}
template <class B>
inline void RunBinary(const B& body, int n, const typename B::T* a, const typename B::T* b,
                      typename B::T* y) {
    Quads<B, Shape::Binary>::Run(body, n, {a, b, y, nullptr});
}
template <class B>
inline void RunTwoRes(const B& body, int n, const typename B::T* a, typename B::T* y,
                      typename B::T* z) {
    Quads<B, Shape::TwoRes>::Run(body, n, {a, nullptr, y, z});
}

} // namespace brenn::vm

/* Kernels from bodies, inside a family file's extern "C" block: ZAR_KERNEL_OF(s, Sqrt,
 * EP, Unary, Body) defines the kernel of row sSqrt at level EP as the frame over Body;
 * ZAR_LEVEL_KERNELS(s, Sqrt, Unary, Body) the three of one precision from
 * Body<float, Level>, and ZAR_ROW_KERNELS(Sqrt, Unary, Body) the six of both (level.h
 * names the levels). */
#define ZAR_RUN_Unary(...) brenn::vm::RunUnary(__VA_ARGS__{}, n, a, y)
#define ZAR_RUN_Binary(...) brenn::vm::RunBinary(__VA_ARGS__{}, n, a, b, y)
#define ZAR_RUN_TwoRes(...) brenn::vm::RunTwoRes(__VA_ARGS__{}, n, a, y, z)
#define ZAR_KERNEL_OF(t, Fn, level, Shape, ...)                                                    \
    void ZAR_KERNEL(t##Fn, level) BRENN_SIG(t, Shape) {                                            \
        ZAR_RUN_##Shape(__VA_ARGS__);                                                              \
    }
#define ZAR_LEVEL_KERNELS(t, Fn, Shape, Body)                                                      \
    ZAR_KERNEL_OF(t, Fn, EP, Shape, Body<BRENN_ELEM_##t, brenn::vm::Level::EP>)                    \
    ZAR_KERNEL_OF(t, Fn, LA, Shape, Body<BRENN_ELEM_##t, brenn::vm::Level::LA>)                    \
    ZAR_KERNEL_OF(t, Fn, HA, Shape, Body<BRENN_ELEM_##t, brenn::vm::Level::HA>)
#define ZAR_ROW_KERNELS(Fn, Shape, Body)                                                           \
    ZAR_LEVEL_KERNELS(s, Fn, Shape, Body) ZAR_LEVEL_KERNELS(d, Fn, Shape, Body)

#endif
