// Geometric variates, the number of failures before the first success: with c =
// 1 / ln(1 - p), floor(ln(u) * c) for a single uniform u on [0, 1), one uniform a
// variate. The logarithms run a block at a time through the single LA slot under
// the log-of-zero sentinel, so a uniform of exactly 0 gives a large finite count.
#include <emmintrin.h>
#include <smmintrin.h>

#include "frame/export.h"
#include "rng/core/stream.h"
#include "rng/dist/frame.h"
#include "vecmath/explog/scalar_log.h"

namespace {

constexpr int32_t kBlock = 1024;

// floor in single precision, then to int32: rounding toward minus infinity in the
// conversion itself, four at a time.
void FloorToInt(int32_t n, const float* x, float c, int32_t* r) {
    const __m128 vc = _mm_set1_ps(c);
    int32_t i = 0;
    for (; i + 4 <= n; i += 4) {
        __m128 v = _mm_mul_ps(_mm_loadu_ps(x + i), vc);
        v = _mm_round_ps(v, _MM_FROUND_TO_NEG_INF | _MM_FROUND_NO_EXC);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(r + i), _mm_cvttps_epi32(v));
    }
    for (; i < n; ++i) {
        __m128 v = _mm_set_ss(x[i] * c);
        v = _mm_round_ss(v, v, _MM_FROUND_TO_NEG_INF | _MM_FROUND_NO_EXC);
        r[i] = _mm_cvttss_si32(v);
    }
}

} // namespace

using namespace brenn::rng;

BRENN_EXPORT int32_t _qesiRngGeometric(int32_t method, void* stream, int32_t n, int32_t* r,
                                       double p) {
    (void)method;
    if (n <= 0) return QES_STATUS_OK;
    if (ZAR_SLOT(sLn, brenn::frame::SlotLA) == nullptr) return QES_STATUS_BAD_METHOD;
    const float c = static_cast<float>(1.0 / __qesdLn(1.0 - p));
    FpGuard guard = GuardEnter();
    ErrorFrame errors = ErrorModeEnter(LogZeroCallbackS);
    int32_t status = QES_STATUS_OK;
    float scratch[kBlock];
    for (int32_t done = 0; done < n; done += kBlock) {
        int32_t block = n - done < kBlock ? n - done : kBlock;
        status = _qessRngUniform(0, stream, block, scratch, 0.0f, 1.0f);
        if (status < 0) break;
        Bracketed(ZAR_SLOT(sLn, brenn::frame::SlotLA), static_cast<int>(block), scratch, scratch);
        FloorToInt(block, scratch, c, r + done);
    }
    ErrorModeLeave(errors);
    GuardLeave(guard);
    return status;
}
