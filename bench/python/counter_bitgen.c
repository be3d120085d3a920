/* The cheapest bit generators there can be, for the benchmark's bounds on what a bit
 * generator can gain inside numpy's Generator, in numpy's documented bit-generator
 * record. counter_bitgen: a counter stepped by a constant (the golden ratio in 64-bit
 * fixed point, so that numpy's ziggurat sees its table index bits change); its words
 * are so regular that the sampler's branches are predicted, which no random word
 * allows. mixed_bitgen: the same counter through a 64-bit mixing function (the
 * finaliser of the SplitMix64 generator), whose words look random to the sampler at
 * a few cycles more. Not random enough for use: timing only. */
#include <stdint.h>

typedef struct {
    void* state;
    uint64_t (*next_uint64)(void* st);
    uint32_t (*next_uint32)(void* st);
    double (*next_double)(void* st);
    uint64_t (*next_raw)(void* st);
} bitgen_t;

static uint64_t Step(void* st) {
    uint64_t* c = (uint64_t*)st;
    return *c += 0x9E3779B97F4A7C15u;
}
static uint64_t Mixed(void* st) {
    uint64_t z = Step(st);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
}
static uint32_t Step32(void* st) { return (uint32_t)(Step(st) >> 32); }
static double StepDouble(void* st) { return (double)(Step(st) >> 11) * (1.0 / 9007199254740992.0); }
static uint32_t Mixed32(void* st) { return (uint32_t)(Mixed(st) >> 32); }
static double MixedDouble(void* st) { return (double)(Mixed(st) >> 11) * (1.0 / 9007199254740992.0); }

static uint64_t counter, mixed;
static bitgen_t counter_record = {&counter, Step, Step32, StepDouble, Step};
static bitgen_t mixed_record = {&mixed, Mixed, Mixed32, MixedDouble, Mixed};

bitgen_t* counter_bitgen(void) { return &counter_record; }
bitgen_t* mixed_bitgen(void) { return &mixed_record; }
