// Vector mathematics for Python: the row table made from frame/rows.def, each row's
// front-end entry with an explicit accuracy found by its name in libbrenn, and one
// runner a shape that takes numpy buffers, releases the GIL and calls the entry in
// pieces of at most INT_MAX elements.
#include <pybind11/numpy.h>
#include <pybind11/complex.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <climits>
#include <complex>
#include <cstdint>
#include <dlfcn.h>
#include <string>
#include <vector>

#include "brenn.h"
#include "python/src/bindings.h"

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

void* Data(const py::array& a) {
    return const_cast<void*>(a.data());
}

// Runs fn(offset, count) over n elements in pieces the int count of the entries
// takes, without the GIL; the status is the last piece's report or a refusal.
template <class F>
int Pieces(int64_t n, F fn) {
    py::gil_scoped_release release;
    int status = BRENN_OK;
    for (int64_t at = 0; at < n || (n == 0 && at == 0); at += INT_MAX) {
        int count = static_cast<int>(n - at < INT_MAX ? n - at : INT_MAX);
        int s = fn(at, count);
        if (s < 0) return s;
        if (s != BRENN_OK) status = s;
        if (n == 0) break;
    }
    return status;
}

template <char T>
int Run(const Row& row, void* entry, int accuracy, const std::vector<py::array>& in,
        const std::vector<py::object>& scalars, const std::vector<py::array>& out, int64_t n) {
    using E = typename Elem<T>::type;
    using R = typename Elem<T>::real;
    std::string shape = row.shape;
    auto ptr = [](const py::array& a, int64_t at, auto* kind) {
        using P = std::remove_pointer_t<decltype(kind)>;
        return static_cast<P*>(Data(a)) + at;
    };
    E* e = nullptr;
    R* r = nullptr;
    if (shape == "Unary") {
        auto f = reinterpret_cast<int (*)(int, const E*, E*, int)>(entry);
        return Pieces(n, [&](int64_t at, int c) {
            return f(c, ptr(in[0], at, e), ptr(out[0], at, e), accuracy);
        });
    }
    if (shape == "AbsArg") {
        auto f = reinterpret_cast<int (*)(int, const E*, R*, int)>(entry);
        return Pieces(n, [&](int64_t at, int c) {
            return f(c, ptr(in[0], at, e), ptr(out[0], at, r), accuracy);
        });
    }
    if (shape == "Cis") {
        auto f = reinterpret_cast<int (*)(int, const R*, E*, int)>(entry);
        return Pieces(n, [&](int64_t at, int c) {
            return f(c, ptr(in[0], at, r), ptr(out[0], at, e), accuracy);
        });
    }
    if (shape == "Binary") {
        auto f = reinterpret_cast<int (*)(int, const E*, const E*, E*, int)>(entry);
        return Pieces(n, [&](int64_t at, int c) {
            return f(c, ptr(in[0], at, e), ptr(in[1], at, e), ptr(out[0], at, e), accuracy);
        });
    }
    if (shape == "Powx") {
        auto f = reinterpret_cast<int (*)(int, const E*, E, E*, int)>(entry);
        E b = ScalarAs<E>(scalars.at(0));
        return Pieces(n, [&](int64_t at, int c) {
            return f(c, ptr(in[0], at, e), b, ptr(out[0], at, e), accuracy);
        });
    }
    if (shape == "TwoRes") {
        auto f = reinterpret_cast<int (*)(int, const E*, E*, E*, int)>(entry);
        return Pieces(n, [&](int64_t at, int c) {
            return f(c, ptr(in[0], at, e), ptr(out[0], at, e), ptr(out[1], at, e), accuracy);
        });
    }
    if (shape == "LinFrac") {
        auto f = reinterpret_cast<int (*)(int, const E*, const E*, E, E, E, E, E*, int)>(entry);
        E k[4];
        for (int i = 0; i < 4; ++i)
            k[i] = ScalarAs<E>(scalars.at(i));
        return Pieces(n, [&](int64_t at, int c) {
            return f(c, ptr(in[0], at, e), ptr(in[1], at, e), k[0], k[1], k[2], k[3],
                     ptr(out[0], at, e), accuracy);
        });
    }
    throw py::value_error(std::string("no runner for the shape ") + row.shape);
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

// Whether a row's kernels are built: a one-element call at each accuracy that is
// not refused as unavailable. Packing rows are left to numpy's own indexing.
bool Built(int i) {
    const Row& row = kRows[i];
    std::string shape = row.shape;
    if (shape.rfind("Pack", 0) == 0 || shape.rfind("Unpack", 0) == 0) return false;
    void* entry = Entries()[i];
    if (entry == nullptr) return false;
    alignas(16) double in0[4] = {0.5, 0.25, 0.5, 0.25}, in1[4] = {0.75, 0.5, 0.75, 0.5};
    alignas(16) double o0[4], o1[4];
    auto dtype = py::dtype("float64");
    std::vector<py::array> ins, outs;
    for (double* p : {in0, in1})
        ins.push_back(py::array(dtype, {4}, {8}, p, py::none()));
    for (double* p : {o0, o1})
        outs.push_back(py::array(dtype, {4}, {8}, p, py::none()));
    std::vector<py::object> scalars(4, py::float_(0.5));
    for (int acc : {BRENN_LA, BRENN_HA, BRENN_EP}) {
        int s = 0;
        switch (row.type) {
        case 's':
            s = Run<'s'>(row, entry, acc, ins, scalars, outs, 1);
            break;
        case 'd':
            s = Run<'d'>(row, entry, acc, ins, scalars, outs, 1);
            break;
        case 'c':
            s = Run<'c'>(row, entry, acc, ins, scalars, outs, 1);
            break;
        default:
            s = Run<'z'>(row, entry, acc, ins, scalars, outs, 1);
            break;
        }
        if (s == BRENN_ERR_NOT_AVAILABLE) return false;
    }
    return true;
}

} // namespace

void InitVm(py::module_& m) {
    py::module_ vm = m.def_submodule("vm", "Vector-math rows of the front-end");
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
           const std::vector<py::object>& scalars, const std::vector<py::array>& out, int64_t n) {
            if (index < 0 || index >= kRowCount) throw py::index_error("no such row");
            const Row& row = kRows[index];
            void* entry = Entries()[index];
            if (entry == nullptr) return static_cast<int>(BRENN_ERR_NOT_AVAILABLE);
            switch (row.type) {
            case 's':
                return Run<'s'>(row, entry, accuracy, in, scalars, out, n);
            case 'd':
                return Run<'d'>(row, entry, accuracy, in, scalars, out, n);
            case 'c':
                return Run<'c'>(row, entry, accuracy, in, scalars, out, n);
            default:
                return Run<'z'>(row, entry, accuracy, in, scalars, out, n);
            }
        },
        "Runs row `index` on n elements of contiguous arrays of the row's types (checked "
        "by the caller); returns the front-end's status.");
}

} // namespace brenn_py
