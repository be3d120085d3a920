/* Checks of a stream read from an image, one per generator whose entries index by
 * fields of the state (rng/brng/loadable.cpp calls them for the loader). */
#ifndef BRENN_RNG_BRNG_LOADABLE_H
#define BRENN_RNG_BRNG_LOADABLE_H

namespace brenn::rng {

// The head, and chunks large enough for the dimension when the tables lie in chunks.
bool SobolLoadable(void* stream);
bool NiederrLoadable(void* stream);
// The read position inside the ring and the lag position 103 words ahead of it.
bool R250Loadable(void* stream);

} // namespace brenn::rng

#endif
