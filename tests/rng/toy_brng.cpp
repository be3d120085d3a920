// The generators registered by tests: the toy counter and the stepping generator.
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

struct Steps {
    uint32_t served, limit;
};
Steps* StepState(void* s) {
    return reinterpret_cast<Steps*>(static_cast<char*>(s) + 16);
}
int32_t StepInit(int32_t, void* s, int32_t n, const void* p) {
    StepState(s)->served = 0;
    StepState(s)->limit = n > 0 ? *static_cast<const uint32_t*>(p) : 0;
    return 0;
}
template <typename T, typename U>
int32_t Serve(void* s, int32_t n, T* r, U word) {
    Steps* st = StepState(s);
    if (st->served + n > st->limit) return QES_RNG_STATUS_RDRAND_FAILED;
    for (int32_t i = 0; i < n; ++i)
        r[i] = word(st->served++ % 7);
    return 0;
}
int32_t StepS(void* s, int32_t n, float* r, float a, float b) {
    return Serve(s, n, r, [&](uint32_t k) { return a + (b - a) * static_cast<float>(k / 7.0); });
}
int32_t StepD(void* s, int32_t n, double* r, double a, double b) {
    return Serve(s, n, r, [&](uint32_t k) { return a + (b - a) * (k / 7.0); });
}
int32_t StepI(void* s, int32_t n, void* r) {
    return Serve(s, n, static_cast<uint32_t*>(r), [](uint32_t k) { return k; });
}

int32_t Register(BrngRecord r) {
    return __qesRegisterBrng(&r);
}

} // namespace

void* NewSeeded(int32_t id, uint32_t seed) {
    void* s = nullptr;
    EXPECT_EQ(__qesNewStreamEx(&s, id, 1, &seed), 0);
    return s;
}

void* CopyOf(void* stream) {
    void* c = nullptr;
    EXPECT_EQ(__qesCopyStream(&c, stream), 0);
    return c;
}

void ExpectInStepAndDelete(void* a, void* b) {
    uint64_t x = 0, y = 0; // wide enough for any word size
    EXPECT_EQ(_qesiRngUniformBits(0, a, 1, &x), 0);
    EXPECT_EQ(_qesiRngUniformBits(0, b, 1, &y), 0);
    EXPECT_EQ(x, y);
    __qesDeleteStream(&a);
    __qesDeleteStream(&b);
}

int32_t ToyBrngId() {
    static int32_t id = Register({24, 1, 1, 4, 32, ToyInit, ToyS, ToyD, ToyI});
    return id;
}

void* NewToyStream(uint32_t seed) {
    return NewSeeded(ToyBrngId(), seed);
}

int32_t StepBrngId() {
    static int32_t id = Register({24, 1, 1, 4, 32, StepInit, StepS, StepD, StepI});
    return id;
}

void* NewStepStream(uint32_t limit) {
    return NewSeeded(StepBrngId(), limit);
}

} // namespace brenn::test
