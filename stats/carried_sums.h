// Running central sums that a data set fed in blocks needs from call to call but that
// no array of the caller holds. The requirement rules let a central sum of order 3 or 4
// be asked with only the mean beside it, and a correlation with only the mean, yet
// joining a new block to them takes the lower central sums (the sums of squares, which
// also scale a correlation back to a cross-product). The basic compute keeps those
// sums itself, in the task's private buffer, marked with the data set they belong to:
// the caller's `accumWeight` array, the dimension and the weights that the writing call
// left in `accumWeight`. A later call uses them only when all of these still hold.
#ifndef BRENN_STATS_CARRIED_SUMS_H
#define BRENN_STATS_CARRIED_SUMS_H

#include <math.h>
#include <stdint.h>

#include "platform/bytes.h"
#include "platform/serv.h"
#include "stats/basic_plan.h"
#include "stats/moments.h"
#include "stats/task.h"

namespace brenn::stats {

// Orders whose sums can be carried: bit k for the central sum of order k + 2.
constexpr int kCarriedOrders = 2;

// The orders of central sums that an estimate stored from the running state depends on
// and that no needed array holds. A central sum or moment is joined with the sums of
// the orders below it; a correlation that has no covariance or cross-product to be
// joined through is scaled back with the sums of squares.
inline uint32_t CarriedOrders(uint32_t needed, MethodKind kind) {
    uint32_t held = 0; // orders whose array is loaded into the state and stored from it
    for (int k = 0; k < 3; ++k)
        if ((kind != MethodRawFirst && Has(needed, PosCenSum2 + k)) || Has(needed, PosCen2 + k))
            held |= 1u << k;
    uint32_t below = (held & 4u) ? 3u : (held & 2u) ? 1u : 0u;
    if (Has(needed, PosCor) && !Has(needed, PosCov) && !Has(needed, PosCrossProduct)) below |= 1u;
    return below & ~held;
}

// The head of the private buffer while the basic compute owns it; kCarriedOrders
// doubles a variable of the dimension follow (NaN for what the writer didn't keep). A
// compute that finds another tag in the first word replaces the buffer.
struct CarriedSums {
    uint32_t tag;
    uint32_t width; // bytes of the real type that wrote the sums
    int64_t p;
    int64_t capacity; // variables the block has room for
    const void* accumWeight;
    double weight[2]; // accumWeight as the writing call left it
};

constexpr uint32_t kCarriedSumsTag = 0x43536D73; // "CSms"

inline double* CarriedValues(CarriedSums* c) {
    return reinterpret_cast<double*>(c + 1);
}

// Makes room for the sums of p variables, keeping what is there when the room suffices.
// False when the block can't be allocated; the task keeps its former buffer then.
inline bool ReserveCarriedSums(SSTask* task, int64_t p) {
    CarriedSums* c = static_cast<CarriedSums*>(task->privateBuffer);
    if (c != nullptr && c->tag == kCarriedSumsTag && c->capacity >= p) return true;
    size_t bytes = sizeof(CarriedSums);
    if (!AddBytesFor(&bytes, p, kCarriedOrders * sizeof(double))) return false;
    CarriedSums* fresh = static_cast<CarriedSums*>(brenn_serv_allocate(bytes, 128));
    if (fresh == nullptr) return false;
    *fresh = CarriedSums{};
    fresh->tag = kCarriedSumsTag;
    fresh->capacity = p;
    if (c != nullptr) brenn_serv_deallocate(c);
    task->privateBuffer = fresh;
    return true;
}

// The kept sums, kCarriedOrders a variable, when they belong to the data set at hand:
// `weight` is accumWeight as it stands before this call's data. Null otherwise.
template <typename T>
const double* FindCarriedSums(const SSTask* task, int64_t p, const T weight[2]) {
    CarriedSums* c = static_cast<CarriedSums*>(task->privateBuffer);
    if (c == nullptr || c->tag != kCarriedSumsTag || c->width != sizeof(T) || c->p != p ||
        c->accumWeight != task->accumWeight || c->weight[0] != double(weight[0]) ||
        c->weight[1] != double(weight[1]))
        return nullptr;
    return CarriedValues(c);
}

// Keeps the sums of the orders in `orders` from the state s, whose weights are now
// final; the sums of squares come from the cross-product's diagonal when the state has
// no central sums. The buffer was reserved for p before.
template <typename T>
void KeepCarriedSums(SSTask* task, int64_t p, const int64_t* act, int64_t q, int order,
                     uint32_t orders, const MomentState<T>& s) {
    CarriedSums* c = static_cast<CarriedSums*>(task->privateBuffer);
    c->width = sizeof(T);
    c->p = p;
    c->accumWeight = task->accumWeight;
    c->weight[0] = s.weight[0];
    c->weight[1] = s.weight[1];
    double* values = CarriedValues(c);
    for (int64_t e = 0; e < p * kCarriedOrders; ++e)
        values[e] = NAN;
    for (int64_t v = 0; v < q; ++v) {
        double* kept = values + act[v] * kCarriedOrders;
        if (orders & 1u) kept[0] = order >= 2 ? s.cen[0][v] : s.cross[v + v * q];
        if (orders & 2u) kept[1] = s.cen[1][v];
    }
}

} // namespace brenn::stats

#endif
