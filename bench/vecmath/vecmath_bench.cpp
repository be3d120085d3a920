// Speed of the vector-math kernels in cycles per element, by the time-stamp counter,
// at n = 1000 (in cache) and n = 1,000,000 (memory), for every slot of every row that
// has a kernel, beside the peers named in the tools' row table: SLEEF's SSE4 functions
// of matching accuracy, glibc's libmvec SSE functions and scalar libm, all found by
// name at run time. A memcpy run gives the memory bound of the Add rows. The output
// (JSON) is turned into docs/performance.md by report.py.
#include <dlfcn.h>
#include <math.h>
#include <string.h>
#include <x86intrin.h>

#include <algorithm>
#include <chrono>
#include <complex>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/vecmath/normal_inverse_peers.h"
#include "frame/dispatch.h"
#include "tools/accuracy/rowtable.h"

using brenn::tools::FindRowFacts;
using brenn::tools::RowFacts;

namespace {

struct Row {
    const char* name;
    char type;
    const char* shape;
    int index;
};

const Row kRows[] = {
#define ROW(t, Fn, Shape, Thunk, Share, cLA, cHA, cEP, Reports)                                    \
    {#t #Fn, #t[0], #Shape, brenn::frame::Row_##t##Fn},
#include "frame/rows.def"
#undef ROW
};

// How a measured function is called.
enum class Kind {
    Kernel,      // a dispatch-table slot, by the row's shape
    VecUnary,    // SLEEF / libmvec: v f(v)
    VecBinary,   // v f(v, v)
    VecTwo,      // struct {v, v} f(v): SLEEF sincos, modf
    ScalarUnary, // libm: x f(x)
    ScalarBinary,
    ScalarSinCos, // void f(x, *s, *c)
    ScalarModf,   // x f(x, *ip): the fraction comes back
    ComplexUnary, // libm complex: z f(z)
    ComplexReal,  // r f(z): cabs, carg
    ComplexBinary,
    LoopInv, // y = 1 / a as a plain compiled loop: the peer of Inv, which no library has
    LoopDiv, // y = a / b likewise, for Div
    LoopCMul, // complex y = a * b as compiled (the C runtime's multiply), for complex Mul
    LoopCDiv, // complex y = a / b likewise, for complex Div
};

struct Job {
    const Row* row;
    const RowFacts* facts;
    Kind kind;
    void* fn;
    long n;
    double powxB = NAN; // Powx beside the row its exponent dispatches to: b fixed
};

struct V4x2 {
    __m128 x, y;
};
struct V2x2 {
    __m128d x, y;
};

// ---- buffers ---------------------------------------------------------------------------

struct Buffers {
    std::vector<double> store[4]; // a, b, y, z as raw space (16-byte aligned by vector)
    void* a;
    void* b;
    void* y;
    void* z;
};

template <class R>
void Fill(R* p, long count, double lo, double hi, std::mt19937_64& rng) {
    if (lo == hi) {
        lo = 0.5;
        hi = 2.0;
    }
    std::uniform_real_distribution<double> u(lo, hi);
    for (long i = 0; i < count; ++i)
        p[i] = static_cast<R>(u(rng));
}

// Speed is measured where results are ordinary: for the exponentials (and E1) the part of the
// interesting range whose results are denormal (each such element is reported, which
// is the error path) is left out, so that the figure is the kernel's own cost.
struct SpeedRange {
    const char* row;
    double lo, hi;
};
constexpr SpeedRange kSpeedRanges[] = {
    {"sExp", -87.33, 88.72},     {"dExp", -708.39, 709.78},    {"sExp2", -126.0, 127.99},
    {"dExp2", -1022.0, 1023.99}, {"sExp10", -37.92, 38.53},    {"dExp10", -307.65, 308.25},
    {"sExpInt1", 0.0, 82.0},     {"dExpInt1", 0.0, 701.0},
};

// The radian trigonometric rows (Sin, Cos, Tan, SinCos) take arguments of any size; past
// the interesting range they need the long reduction. One element in 1000 is such an
// argument, log-uniform in magnitude from 2^14 to the largest finite value, either sign,
// so that every peer pays for its long path at that rate.
bool HugeArguments(const Row& r) {
    const std::string fn = r.name + 1;
    return (r.type == 's' || r.type == 'd') &&
           (fn == "Sin" || fn == "Cos" || fn == "Tan" || fn == "SinCos");
}
template <class R>
void SprinkleHuge(R* p, long count, std::mt19937_64& rng) {
    std::uniform_real_distribution<double> e(14, sizeof(R) == 4 ? 127.99 : 1023.99);
    for (long i = 500; i < count; i += 1000)
        p[i] = static_cast<R>((i / 1000 % 2 ? -1 : 1) * std::exp2(e(rng)));
}

void MakeBuffers(const Job& j, Buffers& b) {
    const bool single = j.row->type == 's' || j.row->type == 'c';
    const bool complex = j.row->type == 'c' || j.row->type == 'z';
    const long reals = j.n * (complex ? 2 : 1) + 8;
    std::mt19937_64 rng(42);
    void* p[4];
    for (int k = 0; k < 4; ++k) {
        b.store[k].assign(reals * 2 + 16, 0.0); // generous: z types and index arrays fit
        p[k] = b.store[k].data();
    }
    b.a = p[0], b.b = p[1], b.y = p[2], b.z = p[3];
    double lo = j.facts->lo, hi = j.facts->hi;
    const double blo = j.facts->blo, bhi = j.facts->bhi;
    for (const SpeedRange& r : kSpeedRanges)
        if (std::string(j.facts->row) == r.row) lo = std::max(lo, r.lo), hi = std::min(hi, r.hi);
    std::string shape = j.row->shape;
    if (shape.rfind("Pack", 0) == 0 || shape.rfind("Unpack", 0) == 0) {
        // raw words; masks all set and indices the identity, both 32-bit (the thunks' form)
        Fill(static_cast<double*>(b.a), reals, -1, 1, rng);
        int32_t* m = static_cast<int32_t*>(b.b);
        for (long i = 0; i < j.n; ++i)
            m[i] = (shape == "PackV" || shape == "UnpackV") ? i : 1;
        return;
    }
    // Powx's exponent, one value for the whole call: VECMATH_BENCH_POWX_B=0.5 times the
    // path the kernel takes for that b (a random one otherwise).
    const char* powxB = getenv("VECMATH_BENCH_POWX_B");
    const bool fixedB = shape == "Powx" && (powxB || !std::isnan(j.powxB)) && !complex;
    const double bValue = std::isnan(j.powxB) ? (powxB ? atof(powxB) : 0.0) : j.powxB;
    if (single) {
        Fill(static_cast<float*>(b.a), reals, lo, hi, rng);
        Fill(static_cast<float*>(b.b), reals, blo == bhi ? lo : blo, blo == bhi ? hi : bhi, rng);
        if (HugeArguments(*j.row)) SprinkleHuge(static_cast<float*>(b.a), j.n, rng);
    } else {
        Fill(static_cast<double*>(b.a), reals, lo, hi, rng);
        Fill(static_cast<double*>(b.b), reals, blo == bhi ? lo : blo, blo == bhi ? hi : bhi, rng);
        if (HugeArguments(*j.row)) SprinkleHuge(static_cast<double*>(b.a), j.n, rng);
    }
    if (fixedB) {
        if (single)
            static_cast<float*>(b.b)[0] = float(bValue);
        else
            static_cast<double*>(b.b)[0] = bValue;
    }
}

// ---- calls -----------------------------------------------------------------------------

template <class R, class E>
void CallKernel(const Job& j, Buffers& b) {
    const int n = static_cast<int>(j.n);
    const std::string shape = j.row->shape;
    void* f = j.fn;
    if (shape == "Unary")
        reinterpret_cast<void (*)(int, const E*, E*)>(f)(n, (E*)b.a, (E*)b.y);
    else if (shape == "AbsArg")
        reinterpret_cast<void (*)(int, const E*, R*)>(f)(n, (E*)b.a, (R*)b.y);
    else if (shape == "Cis")
        reinterpret_cast<void (*)(int, const R*, E*)>(f)(n, (R*)b.a, (E*)b.y);
    else if (shape == "Binary")
        reinterpret_cast<void (*)(int, const E*, const E*, E*)>(f)(n, (E*)b.a, (E*)b.b, (E*)b.y);
    else if (shape == "Powx")
        reinterpret_cast<void (*)(int, const E*, E, E*)>(f)(n, (E*)b.a, *(E*)b.b, (E*)b.y);
    else if (shape == "TwoRes")
        reinterpret_cast<void (*)(int, const E*, E*, E*)>(f)(n, (E*)b.a, (E*)b.y, (E*)b.z);
    else if (shape == "LinFrac") {
        if constexpr (sizeof(E) == sizeof(R))
            reinterpret_cast<void (*)(int, const E*, const E*, E, E, E, E, E*)>(f)(
                n, (E*)b.a, (E*)b.b, E(1.5), E(0.25), E(2), E(3), (E*)b.y);
    } else if (shape == "PackI" || shape == "PackM" || shape == "PackV")
        reinterpret_cast<void (*)(int64_t, const void*, const void*, void*, int32_t)>(f)(
            j.n, b.a, shape == "PackI" ? reinterpret_cast<const void*>(1) : b.b, b.y, 1);
    else if (shape == "UnpackI" || shape == "UnpackM" || shape == "UnpackV")
        reinterpret_cast<void (*)(int64_t, const void*, void*, const void*, int32_t)>(f)(
            j.n, b.a, b.y, shape == "UnpackI" ? reinterpret_cast<const void*>(1) : b.b, 1);
}

// Register and complex types of the peers' argument lists.
template <class R>
struct PeerTypes;
template <>
struct PeerTypes<float> {
    using V = __m128;
    using V2 = V4x2;
    using C = _Complex float;
};
template <>
struct PeerTypes<double> {
    using V = __m128d;
    using V2 = V2x2;
    using C = _Complex double;
};

template <class R>
void CallPeer(const Job& j, Buffers& b) {
    using V = typename PeerTypes<R>::V;
    using V2 = typename PeerTypes<R>::V2;
    using C = typename PeerTypes<R>::C;
    constexpr int w = 16 / sizeof(R);
    R* a = static_cast<R*>(b.a);
    R* bb = static_cast<R*>(b.b);
    R* y = static_cast<R*>(b.y);
    R* z = static_cast<R*>(b.z);
    const long n = j.n;
    const bool powx = strcmp(j.row->shape, "Powx") == 0; // b is one value: use it throughout
    if (powx)
        for (long i = 1; i < n; ++i)
            bb[i] = bb[0];
    switch (j.kind) {
    case Kind::VecUnary:
        for (long i = 0; i < n; i += w) {
            V v;
            memcpy(&v, a + i, 16);
            v = reinterpret_cast<V (*)(V)>(j.fn)(v);
            memcpy(y + i, &v, 16);
        }
        break;
    case Kind::VecBinary:
        for (long i = 0; i < n; i += w) {
            V u, v;
            memcpy(&u, a + i, 16);
            memcpy(&v, bb + i, 16);
            u = reinterpret_cast<V (*)(V, V)>(j.fn)(u, v);
            memcpy(y + i, &u, 16);
        }
        break;
    case Kind::VecTwo:
        for (long i = 0; i < n; i += w) {
            V u;
            memcpy(&u, a + i, 16);
            V2 r = reinterpret_cast<V2 (*)(V)>(j.fn)(u);
            memcpy(y + i, &r.x, 16);
            memcpy(z + i, &r.y, 16);
        }
        break;
    case Kind::ScalarUnary:
        for (long i = 0; i < n; ++i)
            y[i] = reinterpret_cast<R (*)(R)>(j.fn)(a[i]);
        break;
    case Kind::ScalarBinary:
        for (long i = 0; i < n; ++i)
            y[i] = reinterpret_cast<R (*)(R, R)>(j.fn)(a[i], bb[i]);
        break;
    case Kind::ScalarSinCos:
        for (long i = 0; i < n; ++i)
            reinterpret_cast<void (*)(R, R*, R*)>(j.fn)(a[i], y + i, z + i);
        break;
    case Kind::ScalarModf:
        for (long i = 0; i < n; ++i)
            z[i] = reinterpret_cast<R (*)(R, R*)>(j.fn)(a[i], y + i);
        break;
    case Kind::LoopInv:
        for (long i = 0; i < n; ++i)
            y[i] = R(1) / a[i];
        break;
    case Kind::LoopDiv:
        for (long i = 0; i < n; ++i)
            y[i] = a[i] / bb[i];
        break;
    case Kind::LoopCMul:
    case Kind::LoopCDiv: {
        C* ca = reinterpret_cast<C*>(a);
        C* cb = reinterpret_cast<C*>(bb);
        C* cy = reinterpret_cast<C*>(y);
        if (j.kind == Kind::LoopCMul)
            for (long i = 0; i < n; ++i)
                cy[i] = ca[i] * cb[i];
        else
            for (long i = 0; i < n; ++i)
                cy[i] = ca[i] / cb[i];
        break;
    }
    case Kind::ComplexUnary: {
        C* ca = reinterpret_cast<C*>(a);
        C* cy = reinterpret_cast<C*>(y);
        for (long i = 0; i < n; ++i)
            cy[i] = reinterpret_cast<C (*)(C)>(j.fn)(ca[i]);
        break;
    }
    case Kind::ComplexReal: {
        C* ca = reinterpret_cast<C*>(a);
        for (long i = 0; i < n; ++i)
            y[i] = reinterpret_cast<R (*)(C)>(j.fn)(ca[i]);
        break;
    }
    case Kind::ComplexBinary: {
        C* ca = reinterpret_cast<C*>(a);
        C* cb = reinterpret_cast<C*>(bb);
        C* cy = reinterpret_cast<C*>(y);
        for (long i = 0; i < n; ++i)
            cy[i] = reinterpret_cast<C (*)(C, C)>(j.fn)(ca[i], powx ? cb[0] : cb[i]);
        break;
    }
    default:
        break;
    }
}

void Call(const Job& j, Buffers& b) {
    const bool single = j.row->type == 's' || j.row->type == 'c';
    if (j.kind == Kind::Kernel) {
        switch (j.row->type) {
        case 's':
            CallKernel<float, float>(j, b);
            break;
        case 'd':
            CallKernel<double, double>(j, b);
            break;
        case 'c':
            CallKernel<float, BrennComplex8>(j, b);
            break;
        case 'z':
            CallKernel<double, BrennComplex16>(j, b);
            break;
        }
    } else if (single) {
        CallPeer<float>(j, b);
    } else {
        CallPeer<double>(j, b);
    }
}

void Run(benchmark::State& state, Job j, float cost) {
    Buffers b;
    MakeBuffers(j, b);
    const int reps = j.n <= 1000 ? 16 : 1; // keep the counter reads out of the figure
    uint64_t ticks = 0, best = UINT64_MAX;
    Call(j, b); // warm the caches and the lazy bindings
    for (auto _ : state) {
        uint64_t t0 = __rdtsc();
        for (int r = 0; r < reps; ++r)
            Call(j, b);
        uint64_t t1 = __rdtsc();
        ticks += t1 - t0;
        best = std::min(best, t1 - t0);
        benchmark::ClobberMemory();
    }
    // the best round is the figure (other work on the machine only ever adds ticks);
    // the mean is kept beside it
    state.counters["cpe"] = static_cast<double>(best) / (static_cast<double>(reps) * j.n);
    state.counters["cpe_mean"] =
        static_cast<double>(ticks) / (static_cast<double>(state.iterations()) * reps * j.n);
    if (cost > 0) state.counters["cost"] = cost;
}

// A plain memcpy with the footprint of an Add row at n elements: it moves the same
// bytes (two reads and a write of `width` bytes an element) through the same levels of
// the memory hierarchy, so its ticks an element are the bound the row is held to.
void RunMemcpy(benchmark::State& state, long n, long width) {
    const long bytes = n * width * 3 / 2; // copied once: read and written
    std::vector<char> src(bytes, 1), dst(bytes, 0);
    uint64_t best = UINT64_MAX;
    for (auto _ : state) {
        uint64_t t0 = __rdtsc();
        memcpy(dst.data(), src.data(), bytes);
        best = std::min<uint64_t>(best, __rdtsc() - t0);
        benchmark::ClobberMemory();
    }
    state.counters["cpe"] = static_cast<double>(best) / n;
}

// ---- peers by name -----------------------------------------------------------------------

void* Sym(void* lib, const std::string& name) {
    return lib ? dlsym(lib, name.c_str()) : nullptr;
}

struct Libs {
    void* sleef = dlopen("libsleef.so.3", RTLD_NOW);
    void* mvec = dlopen("libmvec.so.1", RTLD_NOW);
    void* m = dlopen("libm.so.6", RTLD_NOW);
};

void Register(const char* name, Job j, float cost) {
    benchmark::RegisterBenchmark(name, [j, cost](benchmark::State& s) {
        Run(s, j, cost);
    })->MinTime(j.n > 1000 ? 0.2 : 0.05);
}

void RegisterPeers(const Row& r, const RowFacts& f, long n, const Libs& libs) {
    const bool single = r.type == 's' || r.type == 'c';
    const bool complex = r.type == 'c' || r.type == 'z';
    const std::string shape = r.shape;
    const std::string size = "/" + std::to_string(n);
    auto add = [&](const std::string& label, Kind kind, void* fn) {
        if (!fn) return;
        std::string name = std::string(r.name) + "/" + label + size;
        Register(name.c_str(), Job{&r, &f, kind, fn, n}, 0);
    };
    if (!complex && (f.ref == brenn::tools::Ref::Inv || f.ref == brenn::tools::Ref::Div))
        add("c_loop", f.ref == brenn::tools::Ref::Inv ? Kind::LoopInv : Kind::LoopDiv,
            reinterpret_cast<void*>(1)); // no function: the loop is the peer
    if (complex && (f.ref == brenn::tools::Ref::CMul || f.ref == brenn::tools::Ref::CDiv))
        add("c_loop", f.ref == brenn::tools::Ref::CMul ? Kind::LoopCMul : Kind::LoopCDiv,
            reinterpret_cast<void*>(1)); // the compiled complex operation is the peer
    if (f.ref == brenn::tools::Ref::CdfNormInv) {
        // no library has it: scalar loops of the published rational forms
        using namespace brenn::bench;
        add("as241", Kind::ScalarUnary,
            single ? reinterpret_cast<void*>(&Ppnd7) : reinterpret_cast<void*>(&Ppnd16));
        add("acklam", Kind::ScalarUnary,
            single ? reinterpret_cast<void*>(&Acklam<float>)
                   : reinterpret_cast<void*>(&Acklam<double>));
    }
    if (f.sleef && !complex) {
        // SLEEF: HA's match is the best of u05/u10/u15 (or the exact form); LA and EP's
        // is u35 where it exists
        const std::string base = std::string("Sleef_") + f.sleef + (single ? "f4" : "d2");
        Kind kind = (shape == "Binary" || shape == "Powx") ? Kind::VecBinary
                    : shape == "TwoRes"                    ? Kind::VecTwo
                                                           : Kind::VecUnary;
        for (const char* u : {"_u05", "_u10", "_u15", "_"}) {
            if (void* fn = Sym(libs.sleef, base + u + "sse4")) {
                add(std::string("sleef") + (u[1] ? u : "_exact"), kind, fn);
                break;
            }
        }
        add("sleef_u35", kind, Sym(libs.sleef, base + "_u35sse4"));
    }
    if (f.mvec && !complex) {
        std::string arg = (shape == "Binary" || shape == "Powx") ? "vv" : "v";
        std::string name =
            std::string("_ZGVbN") + (single ? "4" : "2") + arg + "_" + f.mvec + (single ? "f" : "");
        add("libmvec", arg == "vv" ? Kind::VecBinary : Kind::VecUnary, Sym(libs.mvec, name));
    }
    if (f.libm) {
        std::string name = std::string(f.libm) + (single ? "f" : "");
        Kind kind = Kind::ScalarUnary;
        if (complex)
            kind = shape == "AbsArg"                        ? Kind::ComplexReal
                   : (shape == "Binary" || shape == "Powx") ? Kind::ComplexBinary
                                                            : Kind::ComplexUnary;
        else if (shape == "Binary" || shape == "Powx")
            kind = Kind::ScalarBinary;
        else if (shape == "TwoRes")
            kind = strcmp(f.libm, "sincos") == 0 ? Kind::ScalarSinCos : Kind::ScalarModf;
        add("libm", kind, Sym(libs.m, name));
    }
}

// Time-stamp counter against the wall clock, and against the core clock by a chain of
// dependent one-cycle additions.
void MeasureClocks() {
    auto w0 = std::chrono::steady_clock::now();
    uint64_t t0 = __rdtsc();
    while (std::chrono::steady_clock::now() - w0 < std::chrono::milliseconds(200)) {
    }
    uint64_t t1 = __rdtsc();
    double secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - w0).count();
    double tscHz = (t1 - t0) / secs;
    // the best of many short chains, so that time the thread spends off the core drops out
    const long adds = 2000000;
    uint64_t best = UINT64_MAX;
    for (int round = 0; round < 60; ++round) {
        uint64_t x = 0, c0 = __rdtsc();
        for (long i = 0; i < adds / 8; ++i)
            __asm__ volatile("add $1, %0\n\tadd $1, %0\n\tadd $1, %0\n\tadd $1, %0\n\t"
                             "add $1, %0\n\tadd $1, %0\n\tadd $1, %0\n\tadd $1, %0"
                             : "+r"(x));
        best = std::min<uint64_t>(best, __rdtsc() - c0);
    }
    double ticksPerCycle = static_cast<double>(best) / adds;
    char buf[64];
    snprintf(buf, sizeof buf, "%.1f", tscHz / 1e6);
    benchmark::AddCustomContext("tsc_mhz", buf);
    snprintf(buf, sizeof buf, "%.3f", ticksPerCycle);
    benchmark::AddCustomContext("tsc_ticks_per_core_cycle", buf);
    snprintf(buf, sizeof buf, "%.1f", tscHz / ticksPerCycle / 1e6);
    benchmark::AddCustomContext("core_mhz", buf);
}

} // namespace

int main(int argc, char** argv) {
    // --rows=sAdd,dAdd limits the run (before Google Benchmark's own flags)
    std::string only;
    std::vector<char*> args;
    for (int i = 0; i < argc; ++i) {
        if (strncmp(argv[i], "--rows=", 7) == 0)
            only = "," + std::string(argv[i] + 7) + ",";
        else
            args.push_back(argv[i]);
    }
    int count = static_cast<int>(args.size());
    benchmark::Initialize(&count, args.data());
    static Libs libs;
    MeasureClocks();
    for (const Row& r : kRows) {
        if (!only.empty() && only.find("," + std::string(r.name) + ",") == std::string::npos)
            continue;
        const RowFacts* f = FindRowFacts(r.name);
        const DispatchRecord& rec = BrennDispatchTable[r.index];
        const BrennKernel slots[3] = {rec.kernelLA, rec.kernelHA, rec.kernelEP};
        const float costs[3] = {rec.costLA, rec.costHA, rec.costEP};
        if (!f || (!slots[0] && !slots[1] && !slots[2])) continue;
        for (long n : {1000L, 1000000L}) {
            for (int s = 0; s < 3; ++s) {
                if (!slots[s]) continue;
                static const char* const kSlot[3] = {"LA", "HA", "EP"};
                std::string name = std::string(r.name) + "/" + kSlot[s] + "/" + std::to_string(n);
                Register(name.c_str(),
                         Job{&r, f, Kind::Kernel, reinterpret_cast<void*>(slots[s]), n}, costs[s]);
            }
            RegisterPeers(r, *f, n, libs);
            // Real Powx with b = 2, 0.5 and -1, which dispatch to Sqr, Sqrt and Inv (at LA
            // and EP; at HA -1 and 0.5), on those rows' inputs: "dPowx/b2_LA/1000".
            if (std::string(r.shape) == "Powx" && (r.type == 's' || r.type == 'd')) {
                static const struct {
                    double b;
                    const char* label;
                    const char* row;
                } kBeside[] = {{2.0, "b2", "Sqr"}, {0.5, "b0.5", "Sqrt"}, {-1.0, "b-1", "Inv"}};
                for (const auto& k : kBeside) {
                    const RowFacts* kf = FindRowFacts((std::string(1, r.type) + k.row).c_str());
                    for (int s = 0; s < 3 && kf; ++s) {
                        if (!slots[s]) continue;
                        static const char* const kSlot[3] = {"LA", "HA", "EP"};
                        std::string name = std::string(r.name) + "/" + k.label + "_" + kSlot[s] +
                                           "/" + std::to_string(n);
                        Register(name.c_str(),
                                 Job{&r, kf, Kind::Kernel, reinterpret_cast<void*>(slots[s]), n, k.b},
                                 0);
                    }
                }
            }
        }
    }
    for (long width : {4L, 8L}) {
        const char* name = width == 4 ? "memcpy/sAdd/1000000" : "memcpy/dAdd/1000000";
        benchmark::RegisterBenchmark(name, [width](benchmark::State& s) {
            RunMemcpy(s, 1000000, width);
        })->MinTime(0.2);
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
