// Vector mathematics for Python: the row table made from frame/rows.def, each row's
// front-end entry with an explicit accuracy found by its name in libbrenn, and one
// runner a shape that calls the entry without the GIL on contiguous vectors (in pieces
// of at most INT_MAX elements) or on strided ones walked in blocks, the reported
// elements gathered with their flat indices.
#include <pybind11/numpy.h>
#include <pybind11/complex.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <climits>
#include <complex>
#include <cstdint>
#include <dlfcn.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "brenn.h"
#include "python/src/bindings.h"
#include "python/src/vm_reports.h"
#include "python/src/vm_walk.h"

namespace py = pybind11;

namespace brenn_py {
namespace {

struct Row {
    char type;
    const char* name;
    const char* shape;
};

constexpr Row kRows[] = {
#define ROW(t, Fn, Shape, Thunk, Share, cLA, cHA, cEP, Reports) {#t[0], #Fn, #Shape},
#include "frame/rows.def"
#undef ROW
};
constexpr int kRowCount = static_cast<int>(sizeof(kRows) / sizeof(kRows[0]));

// The entry brenn_vm_<name>_<t>_acc of a row (<t> f32, f64, c64 or c128), or null
// when libbrenn lacks it.
void* EntryOf(const Row& row) {
    std::string name = "brenn_vm_";
    for (const char* c = row.name; *c; ++c)
        name += static_cast<char>(*c >= 'A' && *c <= 'Z' ? *c - 'A' + 'a' : *c);
    name += row.type == 's'   ? "_f32"
            : row.type == 'd' ? "_f64"
            : row.type == 'c' ? "_c64"
                              : "_c128";
    name += "_acc";
    static void* library = [] {
        Dl_info info;
        if (dladdr(reinterpret_cast<void*>(&brenn_status_name), &info) == 0)
            return static_cast<void*>(nullptr);
        return dlopen(info.dli_fname, RTLD_LAZY | RTLD_NOLOAD);
    }();
    return library ? dlsym(library, name.c_str()) : nullptr;
}

// Element types of a type letter.
template <char T>
struct Elem;
template <>
struct Elem<'s'> {
    using type = float;
    using real = float;
};
template <>
struct Elem<'d'> {
    using type = double;
    using real = double;
};
template <>
struct Elem<'c'> {
    using type = BrennComplex8;
    using real = float;
};
template <>
struct Elem<'z'> {
    using type = BrennComplex16;
    using real = double;
};

template <class E>
E ScalarAs(const py::object& v) {
    if constexpr (std::is_same_v<E, BrennComplex8>) {
        auto z = v.cast<std::complex<double>>();
        return E{static_cast<float>(z.real()), static_cast<float>(z.imag())};
    } else if constexpr (std::is_same_v<E, BrennComplex16>) {
        auto z = v.cast<std::complex<double>>();
        return E{z.real(), z.imag()};
    } else {
        return static_cast<E>(v.cast<double>());
    }
}

// The operands of one kernel call: the input and result vectors (contiguous) and the
// scalars in the row's element type.
template <class E>
struct Vectors {
    const void* in[2] = {};
    void* out[2] = {};
    E k[4] = {};
};

// Runs the row on n elements of contiguous vectors, in pieces the int count of the
// entries takes (the GIL already released); element reports go to `reports`, counted
// from `base`. The status is the last piece's report or a refusal.
template <char T>
int Run(const Row& row, void* entry, int accuracy, const Vectors<typename Elem<T>::type>& v,
        int64_t n, Reports* reports, int64_t base) {
    using E = typename Elem<T>::type;
    using R = typename Elem<T>::real;
    std::string_view shape = row.shape;
    auto in = [&](int i, int64_t at) { return static_cast<const E*>(v.in[i]) + at; };
    auto out = [&](int i, int64_t at) { return static_cast<E*>(v.out[i]) + at; };
    auto pieces = [&](auto fn) {
        int status = BRENN_OK;
        for (int64_t at = 0; at < n || at == 0; at += INT_MAX) {
            int count = static_cast<int>(std::min<int64_t>(n - at, INT_MAX));
            if (reports) reports->SetBase(base + at);
            int s = fn(at, count);
            if (s < 0) return s;
            if (s != BRENN_OK) status = s;
            if (n == 0) break;
        }
        return status;
    };
    if (shape == "Unary") {
        auto f = reinterpret_cast<int (*)(int, const E*, E*, int)>(entry);
        return pieces([&](int64_t at, int c) { return f(c, in(0, at), out(0, at), accuracy); });
    }
    if (shape == "AbsArg") {
        auto f = reinterpret_cast<int (*)(int, const E*, R*, int)>(entry);
        return pieces([&](int64_t at, int c) {
            return f(c, in(0, at), static_cast<R*>(v.out[0]) + at, accuracy);
        });
    }
    if (shape == "Cis") {
        auto f = reinterpret_cast<int (*)(int, const R*, E*, int)>(entry);
        return pieces([&](int64_t at, int c) {
            return f(c, static_cast<const R*>(v.in[0]) + at, out(0, at), accuracy);
        });
    }
    if (shape == "Binary") {
        auto f = reinterpret_cast<int (*)(int, const E*, const E*, E*, int)>(entry);
        return pieces(
            [&](int64_t at, int c) { return f(c, in(0, at), in(1, at), out(0, at), accuracy); });
    }
    if (shape == "Powx") {
        auto f = reinterpret_cast<int (*)(int, const E*, E, E*, int)>(entry);
        return pieces(
            [&](int64_t at, int c) { return f(c, in(0, at), v.k[0], out(0, at), accuracy); });
    }
    if (shape == "TwoRes") {
        auto f = reinterpret_cast<int (*)(int, const E*, E*, E*, int)>(entry);
        return pieces(
            [&](int64_t at, int c) { return f(c, in(0, at), out(0, at), out(1, at), accuracy); });
    }
    if (shape == "LinFrac") {
        auto f = reinterpret_cast<int (*)(int, const E*, const E*, E, E, E, E, E*, int)>(entry);
        return pieces([&](int64_t at, int c) {
            return f(c, in(0, at), in(1, at), v.k[0], v.k[1], v.k[2], v.k[3], out(0, at), accuracy);
        });
    }
    return BRENN_ERR_BAD_ARGUMENT; // Built() and the package offer no other shape
}

// Bytes of a row's input and result elements.
size_t InSize(const Row& row, size_t e) {
    return std::string_view(row.shape) == "Cis" ? e / 2 : e;
}
size_t OutSize(const Row& row, size_t e) {
    return std::string_view(row.shape) == "AbsArg" ? e / 2 : e;
}

// Elements a block of the strided walk holds: small enough for the block buffers to
// stay in the second-level cache, large enough for the entry's own split.
constexpr int64_t kWalkBlock = 16384;

// Runs the row over a walk of strided operands (inputs broadcast to `shape`) block by
// block through contiguous buffers.
template <char T>
int Walk(const Row& row, void* entry, int accuracy, Vectors<typename Elem<T>::type> v,
         const std::vector<Strided>& ins, const std::vector<Strided>& outs,
         const std::vector<int64_t>& shape, int64_t n, Reports* reports) {
    using E = typename Elem<T>::type;
    const int64_t block = std::min(n, kWalkBlock);
    std::vector<E> buffers((ins.size() + outs.size()) * static_cast<size_t>(block));
    for (size_t i = 0; i < ins.size(); ++i)
        v.in[i] = buffers.data() + i * block;
    for (size_t i = 0; i < outs.size(); ++i)
        v.out[i] = buffers.data() + (ins.size() + i) * block;
    int status = BRENN_OK;
    for (int64_t at = 0; at < n; at += block) {
        int64_t count = std::min(block, n - at);
        for (size_t i = 0; i < ins.size(); ++i)
            Gather(ins[i], shape, at, count, const_cast<void*>(v.in[i]));
        int s = Run<T>(row, entry, accuracy, v, count, reports, at);
        if (s < 0) return s;
        if (s != BRENN_OK) status = s;
        for (size_t i = 0; i < outs.size(); ++i)
            Scatter(outs[i], shape, at, count, v.out[i]);
    }
    return status;
}

Strided StridedOf(const py::array& a, const std::vector<int64_t>& shape) {
    if (a.ndim() != static_cast<py::ssize_t>(shape.size()))
        throw py::value_error("operand of another rank than the walk");
    Strided s{
        static_cast<char*>(const_cast<void*>(a.data())), {}, static_cast<size_t>(a.itemsize())};
    for (py::ssize_t d = 0; d < a.ndim(); ++d) {
        if (a.shape(d) != shape[d]) throw py::value_error("operand of another shape than the walk");
        s.strides.push_back(a.strides(d));
    }
    return s;
}

// What a call hands back: its status, and when elements were reported (count per
// code 0..4, flat indices and codes of the first of them).
py::tuple Result(int status, Reports& reports, bool collected) {
    int64_t total = 0;
    for (int c = 0; c <= 4; ++c)
        total += reports.Count(c);
    if (!collected || total == 0) return py::make_tuple(status, py::none());
    auto kept = reports.Kept();
    py::array_t<int64_t> index(static_cast<py::ssize_t>(kept.size()));
    py::array_t<int32_t> code(static_cast<py::ssize_t>(kept.size()));
    for (size_t i = 0; i < kept.size(); ++i) {
        index.mutable_at(i) = kept[i].first;
        code.mutable_at(i) = kept[i].second;
    }
    py::list counts;
    for (int c = 0; c <= 4; ++c)
        counts.append(reports.Count(c));
    return py::make_tuple(status, py::make_tuple(counts, index, code));
}

// One call from Python: strided operands walked in blocks, contiguous ones in place.
template <char T>
py::tuple Call(const Row& row, void* entry, int accuracy, const std::vector<py::array>& in,
               const std::vector<py::object>& scalars, const std::vector<py::array>& out,
               const std::vector<int64_t>& shape, bool strided) {
    using E = typename Elem<T>::type;
    Vectors<E> v;
    for (size_t i = 0; i < scalars.size() && i < 4; ++i)
        v.k[i] = ScalarAs<E>(scalars[i]);
    int64_t n = 1;
    for (int64_t d : shape)
        n *= d;
    std::vector<Strided> ins, outs;
    auto contiguous = [&](const py::array& a) {
        if (!strided && (a.size() != n || !(a.flags() & py::array::c_style)))
            throw py::value_error("operand not C-contiguous of the call's size");
    };
    for (size_t i = 0; i < in.size() && i < 2; ++i) {
        if (in[i].itemsize() != static_cast<py::ssize_t>(InSize(row, sizeof(E))))
            throw py::type_error("operand of another element size than the row's");
        contiguous(in[i]);
        v.in[i] = in[i].data();
        if (strided) ins.push_back(StridedOf(in[i], shape));
    }
    for (size_t i = 0; i < out.size() && i < 2; ++i) {
        if (out[i].itemsize() != static_cast<py::ssize_t>(OutSize(row, sizeof(E))) ||
            !out[i].writeable())
            throw py::type_error("result of another element size than the row's, or read-only");
        contiguous(out[i]);
        v.out[i] = const_cast<void*>(out[i].data());
        if (strided) outs.push_back(StridedOf(out[i], shape));
    }
    Reports reports;
    int status;
    bool collected;
    {
        py::gil_scoped_release release;
        ReportScope scope(&reports);
        collected = scope.active();
        status = strided ? Walk<T>(row, entry, accuracy, v, ins, outs, shape, n, &reports)
                         : Run<T>(row, entry, accuracy, v, n, &reports, 0);
    }
    return Result(status, reports, collected);
}

std::vector<void*>& Entries() {
    static std::vector<void*> entries = [] {
        std::vector<void*> v(kRowCount);
        for (int i = 0; i < kRowCount; ++i)
            v[i] = EntryOf(kRows[i]);
        return v;
    }();
    return entries;
}

// Calls the function template F<T> of a row's type letter.
template <template <char> class F, class... A>
auto ByType(char type, A&&... a) {
    switch (type) {
    case 's':
        return F<'s'>::Go(std::forward<A>(a)...);
    case 'd':
        return F<'d'>::Go(std::forward<A>(a)...);
    case 'c':
        return F<'c'>::Go(std::forward<A>(a)...);
    default:
        return F<'z'>::Go(std::forward<A>(a)...);
    }
}

// Whether the row has a kernel at each accuracy: a one-element call on values inside
// every row's domain that is not refused as unavailable.
template <char T>
struct Probe {
    static bool Go(const Row& row, void* entry) {
        using E = typename Elem<T>::type;
        alignas(16) double data[4][4] = {{0.5, 0.25, 0.5, 0.25}, {0.75, 0.5, 0.75, 0.5}};
        Vectors<E> v;
        v.in[0] = data[0];
        v.in[1] = data[1];
        v.out[0] = data[2];
        v.out[1] = data[3];
        for (E& k : v.k)
            k = ScalarAs<E>(py::float_(0.5));
        for (int acc : {BRENN_LA, BRENN_HA, BRENN_EP})
            if (Run<T>(row, entry, acc, v, 1, nullptr, 0) == BRENN_ERR_NOT_AVAILABLE) return false;
        return true;
    }
};

template <char T>
struct Dispatch {
    template <class... A>
    static py::tuple Go(A&&... a) {
        return Call<T>(std::forward<A>(a)...);
    }
};

// Whether a row's kernels are built. Packing rows are left to numpy's own indexing.
bool Built(int i) {
    const Row& row = kRows[i];
    std::string_view shape = row.shape;
    if (shape.rfind("Pack", 0) == 0 || shape.rfind("Unpack", 0) == 0) return false;
    void* entry = Entries()[i];
    return entry != nullptr && ByType<Probe>(row.type, row, entry);
}

} // namespace

void InitVm(py::module_& m) {
    py::module_ vm = m.def_submodule("vm", "Vector-math rows of the front-end");
    vm.attr("REPORTS_KEPT") = Reports::kKept;
    vm.def(
        "rows",
        [] {
            py::list list;
            for (int i = 0; i < kRowCount; ++i)
                list.append(py::make_tuple(i, std::string(1, kRows[i].type), kRows[i].name,
                                           kRows[i].shape, Built(i)));
            return list;
        },
        "The row list: (index, type letter, name, shape, built) for every row.");
    vm.def(
        "call",
        [](int index, int accuracy, const std::vector<py::array>& in,
           const std::vector<py::object>& scalars, const std::vector<py::array>& out,
           const std::vector<int64_t>& shape, bool strided) {
            if (index < 0 || index >= kRowCount) throw py::index_error("no such row");
            const Row& row = kRows[index];
            void* entry = Entries()[index];
            if (entry == nullptr)
                return py::make_tuple(static_cast<int>(BRENN_ERR_NOT_AVAILABLE), py::none());
            return ByType<Dispatch>(row.type, row, entry, accuracy, in, scalars, out, shape,
                                    strided);
        },
        "Runs row `index` over `shape` on arrays of the row's element types (checked by the "
        "caller): C-contiguous ones of that shape, or with `strided` arrays of that shape "
        "with any strides (0 for broadcast axes), walked in blocks. Returns (status, "
        "reports): reports None, or (count per code 0..4, flat indices, codes) of the first "
        "reported elements.");
}

} // namespace brenn_py
