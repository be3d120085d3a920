/* Add, Sub, Mul and Sqr, single and double: one kernel for all levels. IEEE results,
 * no range test and no report; overflow and NaN flags stay set for the caller. */
#include "frame/kernels.h"
#include "vecmath/frame/stream_frame.h"

namespace brenn::vm {
namespace {

enum class Arith { Add, Sub, Mul };

// The operation on registers and on single elements: one IEEE operation either way.
template <class Tp, Arith A>
struct ArithBody {
    using T = Tp;
    static Vec<T> Op(Vec<T> a, Vec<T> b) {
        if constexpr (A == Arith::Add)
            return Add(a, b);
        else if constexpr (A == Arith::Sub)
            return Sub(a, b);
        else
            return Mul(a, b);
    }
    static T Op(T a, T b) {
        if constexpr (A == Arith::Add)
            return a + b;
        else if constexpr (A == Arith::Sub)
            return a - b;
        else
            return a * b;
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

// Sqr is the product of a with itself.
#define BRENN_STREAM_KERNELS(t)                                                                    \
    void ZAR_KERNEL(t##Add, All) BRENN_SIG(t, Binary) {                                            \
        RunStream(ArithBody<BRENN_ELEM_##t, Arith::Add>{}, n, a, b, y);                            \
    }                                                                                              \
    void ZAR_KERNEL(t##Sub, All) BRENN_SIG(t, Binary) {                                            \
        RunStream(ArithBody<BRENN_ELEM_##t, Arith::Sub>{}, n, a, b, y);                            \
    }                                                                                              \
    void ZAR_KERNEL(t##Mul, All) BRENN_SIG(t, Binary) {                                            \
        RunStream(ArithBody<BRENN_ELEM_##t, Arith::Mul>{}, n, a, b, y);                            \
    }                                                                                              \
    void ZAR_KERNEL(t##Sqr, All) BRENN_SIG(t, Unary) {                                             \
        RunStream(ArithBody<BRENN_ELEM_##t, Arith::Mul>{}, n, a, a, y);                            \
    }

extern "C" {
BRENN_STREAM_KERNELS(s)
BRENN_STREAM_KERNELS(d)
}
