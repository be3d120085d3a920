/* Test controls of the processor queries and of RDRAND. They live in the kernel
 * library with hidden visibility: only programs linked with its objects (the
 * internal tests) reach them, and the shared library exports neither. Left at
 * their defaults, the queries ask the processor and TRNG runs the instruction. */
#ifndef BRENN_RNG_CORE_CPU_HOOKS_H
#define BRENN_RNG_CORE_CPU_HOOKS_H

#include <stdint.h>

namespace brenn::rng::testing {

enum : uint32_t { kHideAes = 1, kHideRdrand = 2, kHideVaes = 4, kHideAvx2 = 8 };

// Features that __qesCPUisAES, __qesCPUisRDRAND and __qesCPUisVAES report absent
// whatever the processor says; kHideAvx2 keeps PHILOX4X32X10 on 128-bit registers.
extern uint32_t hiddenFeatures;

// A stand-in for one 32-bit RDRAND: 1 with a word stored, 0 for a failure. Null
// runs the instruction.
using RdrandStep = int (*)(uint32_t* word);
extern RdrandStep rdrandStep;

} // namespace brenn::rng::testing

#endif
