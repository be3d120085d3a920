// Every kernel of every row gives an element the same bits and the same status wherever
// the element stands: in one call of 37 elements, one element a call, in two calls cut at
// any point, or with the arrays moved off their 16-byte boundary by one element. The rows
// come from the row list, so a row that gains a kernel is checked without a change here.
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "kernels.h"
#include "tools/accuracy/measure.h"

namespace {

using brenn::test::ModeScope;
using brenn::test::Slot;

constexpr int kN = 37;   // elements of the whole call
constexpr int kCap = 96; // array room: twice kN (stride two) plus the shift
constexpr int kInc = 2;  // stride of PackI and UnpackI

using brenn::tools::Shape; // the argument lists of the row list

// Statuses by element, from the error callback: slot = first element of the call + index.
int gFirst = 0;
int gCodes[kCap];
int Record(ErrorRecord* r) {
    int i = gFirst + r->index;
    if (i >= 0 && i < kCap) gCodes[i] = r->code;
    return 0;
}

// Inputs: sets of 37 values a precision, each over a band that rows' domains share: the
// whole format (denormals to the largest, infinities, NaNs), the unit interval with its
// ends, the band where exponentials overflow and underflow, the trigonometric short band
// (remainders near zero beside ordinary ones, quarter turns, degrees, half-integers), the
// long-reduction band, and random values over several bands (a fixed seed).
constexpr int kSets = 10;

inline uint64_t Mix(uint64_t z) { // splitmix64
    z += 0x9E3779B97F4A7C15ull;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

template <class R>
R Pool(int set, int i) {
    using L = std::numeric_limits<R>;
    const bool single = sizeof(R) == 4;
    const R sign = (i & 1) ? R(-1) : R(1);
    const uint64_t bits = Mix(uint64_t(set) * 1000003u + uint64_t(i));
    const double u = double(bits >> 11) * 0x1p-53; // uniform on [0, 1)
    const R rsign = (bits & 1) ? R(-1) : R(1);
    switch (set) {
    case 0: {
        switch (i) {
        case 0:
            return L::infinity();
        case 5:
            return -L::infinity();
        case 10:
            return L::quiet_NaN();
        case 15:
            return L::signaling_NaN();
        case 20:
            return R(-0.0);
        case 25:
            return L::max();
        case 30:
            return L::denorm_min();
        case 35:
            return -L::min();
        default:
            break;
        }
        const int lo = L::min_exponent - L::digits, hi = L::max_exponent - 1;
        int e = lo + (hi - lo) * i / (kN - 1);
        return sign * std::ldexp(R(1.2345) + R(0.0217) * R(i), e);
    }
    case 1: {
        static const double unit[] = {0.0,  1.0,    0.5,   0.75,  0.999, 1e-3, 1e-7, 0.3,
                                      0.25, 0.9375, 0.125, 0.625, 0.05,  0.8,  0.42, 0.01};
        if (i < 16) return sign * R(unit[i]);
        if (i < 28) return sign * (R(1) - std::ldexp(R(1), -(i - 14)));
        return sign * std::ldexp(R(1.1), -10 * (i - 27));
    }
    case 2: {
        const R band = single ? R(110) : R(760);
        return band * (R(2 * i + 1) / R(kN) - R(1)) + R(0.0123) * R(i);
    }
    case 3: {
        // Multiples of pi/2 rounded to the format (a remainder near zero) beside
        // arguments whose single results differ in the last bit between a reduction in
        // single and one in double, round degrees and half-integers, and random ones.
        static const double fixed[] = {0x1.72265ep+12, 0x1.bd5f2ap+12, 0x1.bd6002p+10,
                                       0x1.7c3918p-10, 0x1.4f267ap-8,  0x1.55cde8p-12,
                                       0x1.316b68p+12, 0x1.bd49bp+10,  0x1.72192ap+12,
                                       90.0,           180.0,          100.25};
        if (i % 3 == 0) return sign * R(double(5 * i + 1) * 1.5707963267948966);
        if (i % 3 == 1) return sign * R(fixed[i / 3]);
        return sign * R(1.0 + 8000.0 * u);
    }
    case 4: {
        // The long-reduction band, every other element from the short band.
        if (i & 1) return rsign * R(0.5 + 4000.0 * u);
        const int lo = single ? 13 : 24, hi = L::max_exponent - 1;
        return sign * std::ldexp(R(1) + R(u), lo + (hi - lo) * i / (kN - 1));
    }
    case 5:
        return rsign * R(std::ldexp(1.0 + u, int(Mix(bits) % 48) - 24));
    case 6:
        return rsign * R(std::ldexp(1.0 + u, int(Mix(bits) % 15) - 1));
    case 7: {
        const int lo = L::min_exponent - L::digits, hi = L::max_exponent;
        return rsign * std::ldexp(R(1) + R(u), lo + int(Mix(bits) % uint64_t(hi - lo)));
    }
    case 8:
        return rsign * R(u);
    default:
        return rsign * R(u) * (single ? R(110) : R(760));
    }
}

template <class R>
void Put(R& e, R re, R) {
    e = re;
}
template <class C, class R>
void Put(C& e, R re, R im) {
    e.re = re;
    e.im = im;
}

// One problem: every array the shape uses, moved by `shift` elements, and the call that
// computes elements [lo, hi) of the whole vector.
template <class E, class R, Shape S>
struct Problem {
    alignas(64) E a[kCap], b[kCap], y[kCap], z[kCap];
    alignas(64) R ar[kCap], yr[kCap];
    alignas(64) int32_t ix[kCap];
    E scalar;
    E lf[4];
    int shift = 0;

    void Fill(int set, int shift_) {
        shift = shift_;
        std::memset(static_cast<void*>(a), 0, sizeof a);
        std::memset(static_cast<void*>(b), 0, sizeof b);
        std::memset(static_cast<void*>(ar), 0, sizeof ar);
        const int other = (set + 1) % kSets;
        for (int i = 0; i < 2 * kN; ++i) {
            int j = i % kN;
            R re = Pool<R>(set, j), im = Pool<R>(other, (j * 7 + 3) % kN);
            Put(a[shift + i], re, im);
            Put(b[shift + i], Pool<R>(other, (j * 11 + 5) % kN), Pool<R>(set, (j * 5 + 1) % kN));
            ar[shift + i] = re;
            // A mask of every third element off, or a permutation for the index rows.
            ix[shift + i] = S == Shape::PackM || S == Shape::UnpackM ? (i % 3 != 1) : (j * 16) % kN;
        }
        R pw[] = {R(2.5), R(-1.5), R(1) / R(3), R(0.5), R(-3)};
        Put(scalar, pw[set % 5], pw[other % 5]);
        Put(lf[0], R(1.5), R(0));
        Put(lf[1], R(-0.25), R(0));
        Put(lf[2], R(0.75), R(0));
        Put(lf[3], R(2), R(0));
        ClearOut();
    }
    void ClearOut() {
        std::memset(static_cast<void*>(y), 0x5A, sizeof y);
        std::memset(static_cast<void*>(z), 0x5A, sizeof z);
        std::memset(static_cast<void*>(yr), 0x5A, sizeof yr);
    }
    // Elements of the mask's first m switched on.
    int Count(int m) const {
        int c = 0;
        for (int i = 0; i < m; ++i)
            c += ix[shift + i] != 0;
        return c;
    }

    void Call(BrennKernel k, int lo, int hi) {
        const int n = hi - lo, s = shift;
        gFirst = lo;
        using brenn::test::As;
        if constexpr (S == Shape::Unary)
            As<void (*)(int, const E*, E*)>(k)(n, a + s + lo, y + s + lo);
        else if constexpr (S == Shape::AbsArg)
            As<void (*)(int, const E*, R*)>(k)(n, a + s + lo, yr + s + lo);
        else if constexpr (S == Shape::Cis)
            As<void (*)(int, const R*, E*)>(k)(n, ar + s + lo, y + s + lo);
        else if constexpr (S == Shape::Binary)
            As<void (*)(int, const E*, const E*, E*)>(k)(n, a + s + lo, b + s + lo, y + s + lo);
        else if constexpr (S == Shape::Powx)
            As<void (*)(int, const E*, E, E*)>(k)(n, a + s + lo, scalar, y + s + lo);
        else if constexpr (S == Shape::TwoRes)
            As<void (*)(int, const E*, E*, E*)>(k)(n, a + s + lo, y + s + lo, z + s + lo);
        else if constexpr (S == Shape::LinFrac)
            As<void (*)(int, const E*, const E*, E, E, E, E, E*)>(k)(
                n, a + s + lo, b + s + lo, lf[0], lf[1], lf[2], lf[3], y + s + lo);
        else if constexpr (S == Shape::PackI)
            As<void (*)(int64_t, const E*, int64_t, E*, int32_t)>(k)(n, a + s + lo * kInc, kInc,
                                                                     y + s + lo, 1);
        else if constexpr (S == Shape::PackM)
            As<void (*)(int64_t, const E*, const void*, E*, int32_t)>(k)(n, a + s + lo, ix + s + lo,
                                                                         y + s + Count(lo), 1);
        else if constexpr (S == Shape::PackV)
            As<void (*)(int64_t, const E*, const void*, E*, int32_t)>(k)(n, a + s, ix + s + lo,
                                                                         y + s + lo, 1);
        else if constexpr (S == Shape::UnpackI)
            As<void (*)(int64_t, const E*, E*, int64_t, int32_t)>(k)(n, a + s + lo,
                                                                     y + s + lo * kInc, kInc, 1);
        else if constexpr (S == Shape::UnpackM)
            As<void (*)(int64_t, const E*, E*, const void*, int32_t)>(k)(
                n, a + s + Count(lo), y + s + lo, ix + s + lo, 1);
        else
            As<void (*)(int64_t, const E*, E*, const void*, int32_t)>(k)(n, a + s + lo, y + s,
                                                                         ix + s + lo, 1);
    }
};

// What a run leaves: every output array's bytes from the shift on, and the statuses.
struct Outcome {
    unsigned char bytes[4 * kCap * 16];
    size_t size = 0;
    int codes[kCap];
};

template <class E, class R, Shape S>
void Take(const Problem<E, R, S>& p, Outcome& o) {
    const int room = kCap - 1;
    size_t at = 0;
    auto add = [&](const void* from, size_t n) {
        std::memcpy(o.bytes + at, from, n);
        at += n;
    };
    add(p.y + p.shift, room * sizeof(E));
    if constexpr (S == Shape::TwoRes) add(p.z + p.shift, room * sizeof(E));
    if constexpr (S == Shape::AbsArg) add(p.yr + p.shift, room * sizeof(R));
    o.size = at;
    std::memcpy(o.codes, gCodes, sizeof gCodes);
}

// The first element whose bytes or status differ, or -1.
template <class E, class R, Shape S>
int FirstDifference(const Outcome& x, const Outcome& y) {
    constexpr size_t w = S == Shape::AbsArg ? sizeof(R) : sizeof(E);
    for (size_t i = 0; i < x.size; i += w)
        if (std::memcmp(x.bytes + i, y.bytes + i, w) != 0) return int((i / w) % (kCap - 1));
    for (int i = 0; i < kCap; ++i)
        if (x.codes[i] != y.codes[i]) return i;
    return -1;
}

// Runs the calls that `split` makes of the whole vector on a fresh copy of the inputs.
template <class E, class R, Shape S, class F>
void Run(Problem<E, R, S>& p, BrennKernel k, int set, int shift, F split, Outcome& o) {
    p.Fill(set, shift);
    std::memset(gCodes, 0, sizeof gCodes);
    split(p, k);
    Take(p, o);
}

template <class E, class R, Shape S>
std::string Check(BrennKernel k) {
    static Problem<E, R, S> p;
    static Outcome whole, part;
    for (int set = 0; set < kSets; ++set) {
        Run(
            p, k, set, 0, [](auto& q, BrennKernel f) { q.Call(f, 0, kN); }, whole);
        auto differs = [&](const char* how) -> std::string {
            int i = FirstDifference<E, R, S>(whole, part);
            if (i < 0) return "";
            return std::string(how) + ", input set " + std::to_string(set) + ", element " +
                   std::to_string(i) + " (value or status)";
        };
        Run(
            p, k, set, 1, [](auto& q, BrennKernel f) { q.Call(f, 0, kN); }, part);
        if (std::string d = differs("arrays moved by one element"); !d.empty()) return d;
        Run(
            p, k, set, 0,
            [](auto& q, BrennKernel f) {
                for (int i = 0; i < kN; ++i)
                    q.Call(f, i, i + 1);
            },
            part);
        if (std::string d = differs("one element a call"); !d.empty()) return d;
        for (int cut = 1; cut < kN; ++cut) {
            for (int shift = 0; shift < 2; ++shift) {
                Run(
                    p, k, set, shift,
                    [cut](auto& q, BrennKernel f) {
                        q.Call(f, 0, cut);
                        q.Call(f, cut, kN);
                    },
                    part);
                std::string how = "cut at " + std::to_string(cut) + (shift ? ", moved by one" : "");
                if (std::string d = differs(how.c_str()); !d.empty()) return d;
            }
        }
    }
    return "";
}

struct RowCheck {
    const char* name;
    std::string (*check)(BrennKernel);
};

#define BRENN_POS_E_s float
#define BRENN_POS_E_d double
#define BRENN_POS_E_c BrennComplex8
#define BRENN_POS_E_z BrennComplex16
#define BRENN_POS_R_s float
#define BRENN_POS_R_d double
#define BRENN_POS_R_c float
#define BRENN_POS_R_z double
const RowCheck kRows[] = {
#define ROW(t, Fn, Shape_, Thunk, Share, cLA, cHA, cEP, Reports)                                   \
    {#t #Fn, &Check<BRENN_POS_E_##t, BRENN_POS_R_##t, Shape::Shape_>},
#include "frame/rows.def"
#undef ROW
};

// Slots whose results still depend on where an element stands, with the reason: none.
struct Known {
    const char* row;
    int slot;
    const char* reason;
};
constexpr std::array<Known, 0> kKnown{};

const char* KnownReason(const std::string& row, int slot) {
    for (const Known& k : kKnown)
        if (row == k.row && slot == k.slot) return k.reason;
    return nullptr;
}

TEST(ElementPositions, EveryKernelGivesAnElementTheSameResultAndStatusWhereverItStands) {
    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(Record);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    int checked = 0;
    for (const RowCheck& r : kRows) {
        BrennKernel done[3] = {};
        for (int slot = 0; slot < 3; ++slot) {
            BrennKernel k = Slot(r.name, slot);
            if (!k || k == done[0] || k == done[1]) continue;
            done[slot] = k;
            ++checked;
            std::string d = r.check(k);
            const char* known = KnownReason(r.name, slot);
            if (known) {
                if (d.empty())
                    ADD_FAILURE() << r.name << " slot " << slot << " now agrees: "
                                  << "take it off the known list";
                continue;
            }
            EXPECT_EQ(d, "") << r.name << " slot " << slot;
        }
    }
    brenn_zar_kernel_SetErrorCallBack(saved);
    std::printf("kernels checked: %d\n", checked);
}

} // namespace
