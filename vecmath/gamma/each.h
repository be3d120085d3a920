/* The kernel shape of the element-by-element rows (LGamma, TGamma, ExpInt1 at LA and
 * HA): every element goes through the body's scalar routine, whose status is reported
 * for that element at once. The entry and exit rules of the floating-point environment
 * are the frame's, chosen by the body's kX87 and kCsr as for any other kernel.
 *
 * A body may sort the elements by the path they take (static int Bucket(T x), a number
 * below kBuckets, kBuckets 0 for none): the routine's branches then see runs of one path
 * instead of a random mix, whose mispredictions cost the single rows a third of their
 * time on unordered inputs, and double LGamma a sixth (the sort costs it a twentieth
 * where a short call's branches are already learnt, as when it is repeated).
 * Elements go a block at a time, bucket by bucket, each bucket in index order; the last
 * bucket (kBuckets - 1) holds every element that may report and runs after the others,
 * so that the reports come in index order. */
#ifndef BRENN_VECMATH_GAMMA_EACH_H
#define BRENN_VECMATH_GAMMA_EACH_H

#include <stdint.h>

#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {

// The bucket of x by floor(x), for the rows whose path floor(x) fixes (LGamma, TGamma):
// 2 kSpan + 1 buckets, the last for the poles (zero and the negative integers), for |x|
// from kSpan on and NaN, and where `report` is set, the elements that may report.
template <class T, int kSpan>
inline int FloorBucket(T x, bool report) {
    T f = __builtin_floor(x);
    report = report | ((x <= 0) & (x == f)) | !(__builtin_fabs(x) < T(kSpan));
    return report ? 2 * kSpan : static_cast<int>(report ? T(0) : f) + kSpan;
}

template <class B>
constexpr int BucketsOf() {
    if constexpr (requires { B::kBuckets; })
        return B::kBuckets;
    else
        return 0;
}

template <class B>
inline void RunEach(const B& body, int n, const typename B::T* a, typename B::T* y) {
    using T = typename B::T;
    Env<B> env = Enter<B>();
    const Args<T> v{a, nullptr, y, nullptr};
    if constexpr (BucketsOf<B>() > 0) {
        constexpr int kBlock = 1024, K = B::kBuckets;
        uint8_t bucket[kBlock];
        uint16_t order[kBlock];
        for (int i0 = 0; i0 < n; i0 += kBlock) {
            const int m = n - i0 < kBlock ? n - i0 : kBlock;
            int start[K + 1] = {};
            for (int i = 0; i < m; ++i) {
                bucket[i] = static_cast<uint8_t>(B::Bucket(a[i0 + i]));
                ++start[bucket[i] + 1];
            }
            for (int k = 0; k < K; ++k)
                start[k + 1] += start[k];
            for (int i = 0; i < m; ++i)
                order[start[bucket[i]]++] = static_cast<uint16_t>(i);
            for (int j = 0; j < m; ++j)
                Quads<B, Shape::Unary>::One(body, v, i0 + order[j]);
        }
    } else {
        for (int i = 0; i < n; ++i)
            Quads<B, Shape::Unary>::One(body, v, i);
    }
    Leave(env);
}

} // namespace brenn::vm

// The kernel of row t##Fn that fills the slots `share` (All, LaHa) from Body<type>.
#define ZAR_EACH_KERNEL(t, Fn, share, Body)                                                        \
    void ZAR_KERNEL(t##Fn, share) BRENN_SIG(t, Unary) {                                            \
        brenn::vm::RunEach(Body<BRENN_ELEM_##t>{}, n, a, y);                                       \
    }

#endif
