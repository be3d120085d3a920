/* Add, Sub, Mul and Sqr, single and double: one kernel for all levels. IEEE results,
 * no range test and no report; overflow and NaN flags stay set for the caller. */
#include "frame/kernels.h"
#include "vecmath/frame/stream_frame.h"

namespace brenn::vm {
namespace {

struct AddS {
    using T = float;
    static __m128 Op(__m128 a, __m128 b) { return _mm_add_ps(a, b); }
    static float Op(float a, float b) { return a + b; }
};
struct SubS {
    using T = float;
    static __m128 Op(__m128 a, __m128 b) { return _mm_sub_ps(a, b); }
    static float Op(float a, float b) { return a - b; }
};
struct MulS {
    using T = float;
    static __m128 Op(__m128 a, __m128 b) { return _mm_mul_ps(a, b); }
    static float Op(float a, float b) { return a * b; }
};
struct AddD {
    using T = double;
    static __m128d Op(__m128d a, __m128d b) { return _mm_add_pd(a, b); }
    static double Op(double a, double b) { return a + b; }
};
struct SubD {
    using T = double;
    static __m128d Op(__m128d a, __m128d b) { return _mm_sub_pd(a, b); }
    static double Op(double a, double b) { return a - b; }
};
struct MulD {
    using T = double;
    static __m128d Op(__m128d a, __m128d b) { return _mm_mul_pd(a, b); }
    static double Op(double a, double b) { return a * b; }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sAdd, All) BRENN_SIG(s, Binary) {
    RunStream(AddS{}, n, a, b, y);
}
void ZAR_KERNEL(sSub, All) BRENN_SIG(s, Binary) {
    RunStream(SubS{}, n, a, b, y);
}
void ZAR_KERNEL(sMul, All) BRENN_SIG(s, Binary) {
    RunStream(MulS{}, n, a, b, y);
}
void ZAR_KERNEL(dAdd, All) BRENN_SIG(d, Binary) {
    RunStream(AddD{}, n, a, b, y);
}
void ZAR_KERNEL(dSub, All) BRENN_SIG(d, Binary) {
    RunStream(SubD{}, n, a, b, y);
}
void ZAR_KERNEL(dMul, All) BRENN_SIG(d, Binary) {
    RunStream(MulD{}, n, a, b, y);
}
// Sqr is the product of a with itself.
void ZAR_KERNEL(sSqr, All) BRENN_SIG(s, Unary) {
    RunStream(MulS{}, n, a, a, y);
}
void ZAR_KERNEL(dSqr, All) BRENN_SIG(d, Unary) {
    RunStream(MulD{}, n, a, a, y);
}
}
