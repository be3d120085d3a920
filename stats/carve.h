// One work block cut into arrays: a first pass with no base adds up the sizes (checked
// against overflow), the block is made once, and a second pass hands out the arrays,
// each on a 64-byte boundary. One allocation means one place to free on every path.
#ifndef BRENN_STATS_CARVE_H
#define BRENN_STATS_CARVE_H

#include <stddef.h>
#include <stdint.h>

#include "platform/bytes.h"

namespace brenn::stats {

struct Carve {
    char* base = nullptr;
    size_t used = 0;
    bool ok = true;

    template <typename E>
    E* Take(int64_t count) {
        size_t at = (used + 63) & ~size_t(63);
        size_t end = at;
        if (!ok || at < used || !AddBytesFor(&end, count, sizeof(E))) {
            ok = false;
            return nullptr;
        }
        used = end;
        return base == nullptr ? nullptr : reinterpret_cast<E*>(base + at);
    }
};

} // namespace brenn::stats

#endif
