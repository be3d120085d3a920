/* One checked runner a row shape: the argument list of the front-end's entries in
 * the kernel's order, the arrays that must not be null, and the block that runs the
 * kernel on a part of the vectors. The generated entries (gen_vm source) call these
 * with the row's slot and cost views. */
#ifndef BRENN_FRONTEND_VM_SHAPES_H
#define BRENN_FRONTEND_VM_SHAPES_H

#include <type_traits>

#include "brenn_vm.h"
#include "frontend/export.h"
#include "frontend/vm_run.h"

namespace brenn::fe {

// Element and real types of a type letter.
template <char T>
struct Types {
    using R = std::conditional_t<T == 's' || T == 'c', float, double>;
    using E = std::conditional_t<T == 'c', BrennComplex8,
                                 std::conditional_t<T == 'z', BrennComplex16, R>>;
};
template <char T>
using E = typename Types<T>::E;
template <char T>
using R = typename Types<T>::R;

// The argument record of a block: the kernel, its arrays and its scalars. `Apply`
// offsets the arrays by the block's start.
template <class K, class Args>
int RunShape(const float* cost, int slot, int n, const void* input, size_t inputStride,
             size_t reportUnit, const Args& args) {
    BlockFn block = [](const void* p, int64_t offset, int count) {
        const Args& a = *static_cast<const Args*>(p);
        a.Apply(reinterpret_cast<K>(a.kernel), offset, count);
    };
    const Call call{&args, block, input, inputStride, reportUnit, n, cost[slot], true};
    if (WorthSplitting(call)) return RunSplit(call);
    return RunOneThread([&] { args.Apply(reinterpret_cast<K>(args.kernel), 0, n); });
}

template <class In, class Out>
struct OneToOne {
    BrennKernel kernel;
    const In* a;
    Out* y;
    template <class K>
    void Apply(K k, int64_t o, int c) const {
        k(c, a + o, y + o);
    }
};

template <char T, class In, class Out>
int OneArray(const BrennKernel* row, const float* cost, int accuracy, int n, const In* a, Out* y) {
    int slot;
    if (int s = Prologue(row, accuracy, n, {a, y}, &slot)) return s;
    if (n == 0) return BRENN_OK;
    using K = void (*)(int, const In*, Out*);
    OneToOne<In, Out> args{row[slot], a, y};
    return RunShape<K>(cost, slot, n, a, sizeof(In), sizeof(E<T>), args);
}

template <char T>
int Unary(const BrennKernel* row, const float* cost, int acc, int n, const E<T>* a, E<T>* y) {
    return OneArray<T>(row, cost, acc, n, a, y);
}
template <char T>
int AbsArg(const BrennKernel* row, const float* cost, int acc, int n, const E<T>* a, R<T>* y) {
    return OneArray<T>(row, cost, acc, n, a, y);
}
template <char T>
int Cis(const BrennKernel* row, const float* cost, int acc, int n, const R<T>* a, E<T>* y) {
    return OneArray<T>(row, cost, acc, n, a, y);
}

template <char T>
int Binary(const BrennKernel* row, const float* cost, int acc, int n, const E<T>* a, const E<T>* b,
           E<T>* y) {
    int slot;
    if (int s = Prologue(row, acc, n, {a, b, y}, &slot)) return s;
    if (n == 0) return BRENN_OK;
    struct Args {
        BrennKernel kernel;
        const E<T>*a, *b;
        E<T>* y;
        void Apply(void (*k)(int, const E<T>*, const E<T>*, E<T>*), int64_t o, int c) const {
            k(c, a + o, b + o, y + o);
        }
    } args{row[slot], a, b, y};
    using K = void (*)(int, const E<T>*, const E<T>*, E<T>*);
    return RunShape<K>(cost, slot, n, a, sizeof(E<T>), sizeof(E<T>), args);
}

template <char T>
int Powx(const BrennKernel* row, const float* cost, int acc, int n, const E<T>* a, E<T> b,
         E<T>* y) {
    int slot;
    if (int s = Prologue(row, acc, n, {a, y}, &slot)) return s;
    if (n == 0) return BRENN_OK;
    struct Args {
        BrennKernel kernel;
        const E<T>* a;
        E<T> b;
        E<T>* y;
        void Apply(void (*k)(int, const E<T>*, E<T>, E<T>*), int64_t o, int c) const {
            k(c, a + o, b, y + o);
        }
    } args{row[slot], a, b, y};
    using K = void (*)(int, const E<T>*, E<T>, E<T>*);
    return RunShape<K>(cost, slot, n, a, sizeof(E<T>), sizeof(E<T>), args);
}

template <char T>
int TwoRes(const BrennKernel* row, const float* cost, int acc, int n, const E<T>* a, E<T>* y,
           E<T>* z) {
    int slot;
    if (int s = Prologue(row, acc, n, {a, y, z}, &slot)) return s;
    if (n == 0) return BRENN_OK;
    struct Args {
        BrennKernel kernel;
        const E<T>* a;
        E<T>*y, *z;
        void Apply(void (*k)(int, const E<T>*, E<T>*, E<T>*), int64_t o, int c) const {
            k(c, a + o, y + o, z + o);
        }
    } args{row[slot], a, y, z};
    using K = void (*)(int, const E<T>*, E<T>*, E<T>*);
    return RunShape<K>(cost, slot, n, a, sizeof(E<T>), sizeof(E<T>), args);
}

template <char T>
int LinFrac(const BrennKernel* row, const float* cost, int acc, int n, const E<T>* a, const E<T>* b,
            E<T> scaleA, E<T> shiftA, E<T> scaleB, E<T> shiftB, E<T>* y) {
    int slot;
    if (int s = Prologue(row, acc, n, {a, b, y}, &slot)) return s;
    if (n == 0) return BRENN_OK;
    using K = void (*)(int, const E<T>*, const E<T>*, E<T>, E<T>, E<T>, E<T>, E<T>*);
    struct Args {
        BrennKernel kernel;
        const E<T>*a, *b;
        E<T> scaleA, shiftA, scaleB, shiftB;
        E<T>* y;
        void Apply(K k, int64_t o, int c) const {
            k(c, a + o, b + o, scaleA, shiftA, scaleB, shiftB, y + o);
        }
    } args{row[slot], a, b, scaleA, shiftA, scaleB, shiftB, y};
    return RunShape<K>(cost, slot, n, a, sizeof(E<T>), sizeof(E<T>), args);
}

// The packing rows move elements by stride, mask or index: they never run split,
// report nothing, and take their counts and index arrays as 32-bit words (flag 1,
// as their exported names do). The stride must be at least 1.
template <char T, class Third>
int PackFamily(const BrennKernel* row, const float* cost, int acc, int n, const E<T>* a,
               Third third, E<T>* y, bool unpack) {
    int slot;
    const void* array = nullptr;
    if constexpr (std::is_integral_v<Third>) {
        if (n >= 0 && third < 1) return Refuse(BRENN_ERR_BAD_ARGUMENT);
    } else {
        array = third;
    }
    if (int s = Prologue(row, acc, n, {a, y, std::is_integral_v<Third> ? a : array}, &slot))
        return s;
    if (n == 0) return BRENN_OK;
    (void)cost;
    return RunOneThread([&] {
        if (unpack) {
            using K = void (*)(int64_t, const E<T>*, E<T>*, Third, int32_t);
            reinterpret_cast<K>(row[slot])(n, a, y, third, 1);
        } else {
            using K = void (*)(int64_t, const E<T>*, Third, E<T>*, int32_t);
            reinterpret_cast<K>(row[slot])(n, a, third, y, 1);
        }
    });
}

template <char T>
int PackI(const BrennKernel* r, const float* c, int acc, int n, const E<T>* a, int inc, E<T>* y) {
    return PackFamily<T>(r, c, acc, n, a, static_cast<int64_t>(inc), y, false);
}
template <char T>
int PackM(const BrennKernel* r, const float* c, int acc, int n, const E<T>* a, const int* m,
          E<T>* y) {
    return PackFamily<T>(r, c, acc, n, a, static_cast<const void*>(m), y, false);
}
template <char T>
int PackV(const BrennKernel* r, const float* c, int acc, int n, const E<T>* a, const int* i,
          E<T>* y) {
    return PackFamily<T>(r, c, acc, n, a, static_cast<const void*>(i), y, false);
}
template <char T>
int UnpackI(const BrennKernel* r, const float* c, int acc, int n, const E<T>* a, E<T>* y, int inc) {
    return PackFamily<T>(r, c, acc, n, a, static_cast<int64_t>(inc), y, true);
}
template <char T>
int UnpackM(const BrennKernel* r, const float* c, int acc, int n, const E<T>* a, E<T>* y,
            const int* m) {
    return PackFamily<T>(r, c, acc, n, a, static_cast<const void*>(m), y, true);
}
template <char T>
int UnpackV(const BrennKernel* r, const float* c, int acc, int n, const E<T>* a, E<T>* y,
            const int* i) {
    return PackFamily<T>(r, c, acc, n, a, static_cast<const void*>(i), y, true);
}

} // namespace brenn::fe

#endif
