// The Hermite cubic: the node derivatives are the caller's (ic, nx a function, function
// f's from ic + f*nx); the boundary column's routines replace the end ones, and
// without a condition they stay. Periodic: both ends take bc[0] when bc is given, else
// the derivative given at the first node.
#include "fitting/cubic_local.h"

namespace brenn::fit {
namespace {

struct Hermite : NoFinish {
    static constexpr int64_t kLeastNx = 3;

    template <typename T, bool Uniform>
    static void Derivatives(const CubicEnd<T>& e, const CubicCells<T, Uniform>&,
                            const FittingTask* task, int64_t f, int) {
        const T* ic = ElementAt(static_cast<const T*>(task->ic), f, static_cast<uint64_t>(e.nx));
        for (int64_t i = 0; i < e.nx; ++i)
            e.d[i] = ic[i];
    }

    template <typename T>
    static void PeriodicLeft(const CubicEnd<T>& e) {
        if (e.bc != nullptr) e.d[0] = e.bc[0];
    }
    template <typename T>
    static void NoneLeft(const CubicEnd<T>&) {}
    template <typename T>
    static void NoneRight(const CubicEnd<T>&) {}
};

// The derivatives must be given: icType FIT_IC_FIRST_DERIVATIVES and a non-null ic.
int32_t CheckDerivatives(const FittingTask* task) {
    if (task->icType != FIT_IC_FIRST_DERIVATIVES) return FIT_STATUS_BAD_IC_TYPE;
    if (task->ic == nullptr) return FIT_STATUS_BAD_IC;
    return FIT_STATUS_OK;
}

} // namespace
} // namespace brenn::fit

BRENN_LOCAL_CUBIC_ENTRIES(Hermite, brenn::fit::Hermite, brenn::fit::CheckDerivatives)
