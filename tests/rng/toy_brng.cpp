// The toy generator of the stream-core tests: a counter with a fixed extra word.
#include "tests/rng/toy_brng.h"

#include <gtest/gtest.h>

namespace brenn::test {

namespace {

int32_t ToyInit(int32_t method, void* stream, int32_t n, const void* params) {
    if (method != QES_INIT_SEED) return QES_STATUS_BAD_METHOD;
    ToyState(stream)[0] = n > 0 ? static_cast<const uint32_t*>(params)[0] : 0;
    ToyState(stream)[1] = 0xABCD;
    return QES_STATUS_OK;
}

int32_t ToyI(void* stream, int32_t n, void* r) {
    for (int32_t i = 0; i < n; ++i)
        static_cast<uint32_t*>(r)[i] = ToyState(stream)[0]++;
    return QES_STATUS_OK;
}

int32_t ToyS(void* stream, int32_t n, float* r, float a, float b) {
    for (int32_t i = 0; i < n; ++i)
        r[i] = a + (b - a) * (ToyState(stream)[0]++ % 16) / 16.0f;
    return QES_STATUS_OK;
}

int32_t ToyD(void* stream, int32_t n, double* r, double a, double b) {
    for (int32_t i = 0; i < n; ++i)
        r[i] = a + (b - a) * (ToyState(stream)[0]++ % 16) / 16.0;
    return QES_STATUS_OK;
}

} // namespace

int32_t ToyBrngId() {
    static int32_t id = [] {
        BrngRecord r{24, 1, 1, 4, 32, ToyInit, ToyS, ToyD, ToyI};
        return __qesRegisterBrng(&r);
    }();
    return id;
}

void* NewToyStream(uint32_t seed) {
    void* s = nullptr;
    EXPECT_EQ(__qesNewStreamEx(&s, ToyBrngId(), 1, &seed), 0);
    return s;
}

} // namespace brenn::test
