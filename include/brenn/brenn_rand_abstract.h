/** @file brenn_rand_abstract.h
 * Abstract streams through the front-end: a stream whose numbers come from the
 * caller's circular buffer, refilled by the caller's function when the draws have
 * used it up. Every draw of brenn_rand.h and brenn_rand_cont.h takes such a stream;
 * it has no seed, no jumps and no image. brenn_rng_new_abstract_u32() serves 32-bit
 * words, the _f64 and _f32 forms numbers of [low, high), mapped onto each draw's own
 * range.
 *
 * The refill function (QesIAbstractCallback and its double and float forms of
 * brenn_rng.h) gets the stream (the brenn_stream* made here), the buffer's size and
 * address, the least and most elements it may put in and the index to start from,
 * wrapping at the buffer's end; it returns how many it put there. The buffer is the
 * caller's and must outlive the stream.
 *
 * Checks before anything is made, with *stream null after a refusal: a null stream
 * address, buffer or refill function, BRENN_ERR_NULL_POINTER; a size below 1,
 * BRENN_ERR_BAD_SIZE; bounds that are not finite with low below high,
 * BRENN_ERR_BAD_ARGUMENT. Other statuses are the service's (QES_*). */
#ifndef BRENN_RAND_ABSTRACT_H
#define BRENN_RAND_ABSTRACT_H

#include "brenn_rand.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Makes a stream of 32-bit words from a buffer.
 * @param stream where the new stream goes; null on failure
 * @param size the buffer's number of words, at least 1
 * @param buffer the buffer, counted empty at first
 * @param refill the function that refills it
 * @return BRENN_OK, a refusal, or the service's status. */
int brenn_rng_new_abstract_u32(brenn_stream** stream, int size, uint32_t* buffer,
                               QesIAbstractCallback refill);
/** Makes a stream of doubles of [low, high) from a buffer.
 * @param stream where the new stream goes; null on failure
 * @param size the buffer's number of elements, at least 1
 * @param buffer the buffer, counted empty at first
 * @param low the buffer's lower bound, finite
 * @param high its upper bound, finite and above low
 * @param refill the function that refills it
 * @return BRENN_OK, a refusal, or the service's status. */
int brenn_rng_new_abstract_f64(brenn_stream** stream, int size, double* buffer, double low,
                               double high, QesDAbstractCallback refill);
/** The float form of brenn_rng_new_abstract_f64(). @copydetails brenn_rng_new_abstract_f64 */
int brenn_rng_new_abstract_f32(brenn_stream** stream, int size, float* buffer, float low,
                               float high, QesSAbstractCallback refill);

#ifdef __cplusplus
}
#endif

#endif
