// The Bessel cubic: each node's derivative is that of the parabola through it and its
// neighbours (cubic_bessel.h), and the cubic reproduces quadratic data exactly.
#include "fitting/cubic_bessel.h"

namespace brenn::fit {
namespace {

struct Bessel : BesselRule, NoFinish {
    static constexpr int64_t kLeastNx = 4;
};

} // namespace
} // namespace brenn::fit

BRENN_LOCAL_CUBIC_ENTRIES(Bessel, brenn::fit::Bessel, nullptr)
