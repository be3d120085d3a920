// The loader's last check of a stream read from an image: for the generators whose
// entries index their tables by fields of the state, whether those fields are ones
// that seeding and the entries could have left. Every other generator either has no
// such field or repairs it where it is used.
#include "rng/brng/loadable.h"
#include "rng/core/persist.h"

namespace brenn::rng::image {

// By the row's seeding entry rather than its id: the legacy table names the same
// generators by other ids.
bool StateLoadable(void* stream, const BrngRecord& row) {
    if (row.initStream == __qesBRngSobolInitStream) return SobolLoadable(stream);
    if (row.initStream == __qesBRngNiederrInitStream) return NiederrLoadable(stream);
    if (row.initStream == __qesBRngR250InitStream) return R250Loadable(stream);
    return true;
}

} // namespace brenn::rng::image
