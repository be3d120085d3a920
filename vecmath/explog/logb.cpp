/* Logb, single and double, one kernel each for all levels: the unbiased exponent of
 * |x| as a floating value, taken from the bits (exponent field minus the bias, converted
 * by cvtdq2ps or cvtdq2pd); exact. Range test: exponent field all zeros (zero, denormal)
 * or all ones (infinity, NaN). Scalar routine: zero gives -inf by -1/|x| with status 2;
 * a denormal is scaled into the normal range (by 2^25 in single, 2^54 in double) and the
 * shift taken back; +-inf gives +inf; NaN stays, quieted. */
#include "frame/kernels.h"
#include "vecmath/explog/exp_scalar.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

template <class T>
int LogbScalar(const T* a, T* y) {
    T x = *a;
    if (__builtin_isnan(x)) {
        *y = x + x;
        return kStatusOk;
    }
    T ax = __builtin_fabs(x);
    if (__builtin_isinf(x)) {
        *y = ax;
        return kStatusOk;
    }
    if (ax == 0) {
        *y = T(-1) / Keep(ax);
        return kStatusPole;
    }
    if constexpr (sizeof(T) == 4) {
        uint32_t b = BitsOf(ax * 33554432.0f); // 2^25
        *y = T(int(b >> 23) - 127 - 25);
    } else {
        uint64_t b = BitsOf(ax * 18014398509481984.0); // 2^54
        *y = T(int(b >> 52) - 1023 - 54);
    }
    return kStatusOk;
}

struct LogbS {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sLogb);
    static int Scalar(const float* a, float* y) { return LogbScalar(a, y); }
    static __m128 Eval(__m128 x, __m128& special) {
        __m128i e = _mm_and_si128(_mm_castps_si128(x), _mm_set1_epi32(0x7F800000));
        special = _mm_castsi128_ps(_mm_or_si128(_mm_cmpeq_epi32(e, _mm_setzero_si128()),
                                                _mm_cmpeq_epi32(e, _mm_set1_epi32(0x7F800000))));
        return _mm_cvtepi32_ps(_mm_sub_epi32(_mm_srli_epi32(e, 23), _mm_set1_epi32(127)));
    }
};

struct LogbD {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dLogb);
    static int Scalar(const double* a, double* y) { return LogbScalar(a, y); }
    static __m128d Eval(__m128d x, __m128d& special) {
        const __m128i field = _mm_set1_epi64x(0x7FF0000000000000ll);
        __m128i e = _mm_and_si128(_mm_castpd_si128(x), field);
        special = _mm_castsi128_pd(
            _mm_or_si128(_mm_cmpeq_epi64(e, _mm_setzero_si128()), _mm_cmpeq_epi64(e, field)));
        __m128i k = _mm_shuffle_epi32(_mm_srli_epi64(e, 52), _MM_SHUFFLE(3, 1, 2, 0));
        return _mm_cvtepi32_pd(_mm_sub_epi32(k, _mm_set1_epi32(1023)));
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
void ZAR_KERNEL(sLogb, All) BRENN_SIG(s, Unary) {
    RunUnary(LogbS{}, n, a, y);
}
void ZAR_KERNEL(dLogb, All) BRENN_SIG(d, Unary) {
    RunUnary(LogbD{}, n, a, y);
}
}
