/* The cheapest bit generator there can be, for the benchmark's bound on what a bit
 * generator can gain inside numpy's Generator: a counter stepped by a constant (the
 * golden ratio in 64-bit fixed point, so that numpy's ziggurat sees its table index
 * bits change), in numpy's documented bit-generator record. Not random: timing only. */
#include <stdint.h>

typedef struct {
    void* state;
    uint64_t (*next_uint64)(void* st);
    uint32_t (*next_uint32)(void* st);
    double (*next_double)(void* st);
    uint64_t (*next_raw)(void* st);
} bitgen_t;

static uint64_t Next64(void* st) {
    uint64_t* c = (uint64_t*)st;
    return *c += 0x9E3779B97F4A7C15u;
}
static uint32_t Next32(void* st) { return (uint32_t)(Next64(st) >> 32); }
static double NextDouble(void* st) { return (double)(Next64(st) >> 11) * (1.0 / 9007199254740992.0); }

static uint64_t counter;
static bitgen_t record = {&counter, Next64, Next32, NextDouble, Next64};

bitgen_t* counter_bitgen(void) { return &record; }
