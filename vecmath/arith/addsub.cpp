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

extern "C" {
void ZAR_KERNEL(sAdd, All) BRENN_SIG(s, Binary) {
    RunStream(ArithBody<float, Arith::Add>{}, n, a, b, y);
}
void ZAR_KERNEL(sSub, All) BRENN_SIG(s, Binary) {
    RunStream(ArithBody<float, Arith::Sub>{}, n, a, b, y);
}
void ZAR_KERNEL(sMul, All) BRENN_SIG(s, Binary) {
    RunStream(ArithBody<float, Arith::Mul>{}, n, a, b, y);
}
void ZAR_KERNEL(dAdd, All) BRENN_SIG(d, Binary) {
    RunStream(ArithBody<double, Arith::Add>{}, n, a, b, y);
}
void ZAR_KERNEL(dSub, All) BRENN_SIG(d, Binary) {
    RunStream(ArithBody<double, Arith::Sub>{}, n, a, b, y);
}
void ZAR_KERNEL(dMul, All) BRENN_SIG(d, Binary) {
    RunStream(ArithBody<double, Arith::Mul>{}, n, a, b, y);
}
// Sqr is the product of a with itself.
void ZAR_KERNEL(sSqr, All) BRENN_SIG(s, Unary) {
    RunStream(ArithBody<float, Arith::Mul>{}, n, a, a, y);
}
void ZAR_KERNEL(dSqr, All) BRENN_SIG(d, Unary) {
    RunStream(ArithBody<double, Arith::Mul>{}, n, a, a, y);
}
}
