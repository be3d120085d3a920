/** @file brenn_rand.h
 * Random numbers through the front-end: streams made, copied, jumped, saved and
 * loaded with checked arguments, and the distribution generators built.
 *
 * Generator ids are those of the registry (QES_BRNG_* of brenn_rng.h plus a member
 * number, or an id that __qesRegisterBrng gave). An id outside the registry gives
 * QES_RNG_STATUS_BAD_BRNG; a registered family whose generator is not in this build
 * gives BRENN_ERR_NOT_AVAILABLE. Every entry refuses a null stream or array (with
 * n > 0) with BRENN_ERR_NULL_POINTER and a negative count with BRENN_ERR_BAD_SIZE,
 * before anything is written; other statuses are the random-number service's own
 * (QES_*), passed on. A stream is used by one thread at a time.
 *
 * Names: stream calls are brenn_rng_<verb>; each distribution's entry is
 * brenn_rng_<distribution>_<t>, <t> the element type of its results (f32, f64, i32,
 * u32, u64), e.g. brenn_rng_uniform_f64(); brenn_rng_bits_raw() gives the generator's
 * own words, whatever their size. */
#ifndef BRENN_RAND_H
#define BRENN_RAND_H

#include <stdint.h>

#include "brenn_rng.h"
#include "brenn_status.h"

#ifdef __cplusplus
extern "C" {
#endif

/** A stream: one record owned by the caller from brenn_rng_new() to brenn_rng_delete(). */
typedef struct brenn_stream brenn_stream;

/** Whether a generator id names a registered generator built into this library.
 * @param brng a generator id
 * @return BRENN_OK, QES_RNG_STATUS_BAD_BRNG or BRENN_ERR_NOT_AVAILABLE. */
int brenn_rng_check_brng(int brng);

/** Makes a stream of a generator seeded by one word.
 * @param stream where the new stream goes; null on failure
 * @param brng a generator id
 * @param seed the seed
 * @return BRENN_OK or a refusal; on failure nothing is left to delete. */
int brenn_rng_new(brenn_stream** stream, int brng, uint32_t seed);
/** Makes a stream of a generator seeded by n words.
 * @param stream where the new stream goes; null on failure
 * @param brng a generator id
 * @param n number of seed words
 * @param params the seed words
 * @return BRENN_OK or a refusal; on failure nothing is left to delete. */
int brenn_rng_new_ex(brenn_stream** stream, int brng, int n, const uint32_t* params);
/** Ends a stream and sets *stream to null; a null *stream is accepted.
 * @param stream the stream's address
 * @return BRENN_OK, or BRENN_ERR_NULL_POINTER for a null address. */
int brenn_rng_delete(brenn_stream** stream);
/** A new stream with the state and chunks of another.
 * @param copy where the copy goes @param source the stream copied
 * @return BRENN_OK or a refusal. */
int brenn_rng_copy(brenn_stream** copy, const brenn_stream* source);
/** The generator id of a stream.
 * @param stream the stream @param brng where the id goes
 * @return BRENN_OK or BRENN_ERR_NULL_POINTER. */
int brenn_rng_get_brng(const brenn_stream* stream, int* brng);
/** Skips a stream ahead by nskip outputs.
 * @param stream the stream @param nskip the count
 * @return BRENN_OK, QES_RNG_STATUS_NO_SKIPAHEAD or another status of the generator. */
int brenn_rng_skip_ahead(brenn_stream* stream, uint64_t nskip);
/** Makes a stream serve outputs k, k + nstreams, ... of its sequence.
 * @param stream the stream @param k its index @param nstreams how many share the sequence
 * @return BRENN_OK, BRENN_ERR_BAD_ARGUMENT unless 0 <= k < nstreams, or the generator's status. */
int brenn_rng_leapfrog(brenn_stream* stream, int k, int nstreams);

/** The size in bytes of a stream's saved image.
 * @param stream the stream @param size where the size goes
 * @return BRENN_OK or BRENN_ERR_NULL_POINTER. */
int brenn_rng_image_size(const brenn_stream* stream, int64_t* size);
/** Saves a stream into memory.
 * @param stream the stream @param memory the block @param size its bytes
 * @return BRENN_OK, or BRENN_ERR_BAD_SIZE when size is below brenn_rng_image_size(). */
int brenn_rng_save_memory(const brenn_stream* stream, void* memory, int64_t size);
/** Loads a stream from a saved image. The image's header and state must lie within
 * size bytes, and so must the whole image once read, or the load is refused.
 * @param stream where the stream goes @param memory the image @param size its bytes
 * @return BRENN_OK, QES_RNG_STATUS_BAD_IMAGE_FORMAT, or another refusal. */
int brenn_rng_load_memory(brenn_stream** stream, const void* memory, int64_t size);
/** Saves a stream to a file. @param stream the stream @param path the file's name
 * @return BRENN_OK or a QES_RNG_STATUS_FILE_* status. */
int brenn_rng_save_file(const brenn_stream* stream, const char* path);
/** Loads a stream from a file. @param stream where it goes @param path the file's name
 * @return BRENN_OK or a QES_RNG_STATUS_FILE_* / BAD_FILE_FORMAT status. */
int brenn_rng_load_file(brenn_stream** stream, const char* path);

/** n uniform floats on [a, b) (method 0 or QES_RNG_METHOD_UNIFORM_ACCURATE).
 * @return BRENN_OK, a refusal (BRENN_ERR_BAD_ARGUMENT when a < b does not hold, NaN
 *         bounds included; nothing is drawn), or the service's status. */
int brenn_rng_uniform_f32(brenn_stream* stream, int method, int n, float* r, float a, float b);
/** n uniform doubles on [a, b). @copydetails brenn_rng_uniform_f32 */
int brenn_rng_uniform_f64(brenn_stream* stream, int method, int n, double* r, double a, double b);
/** n uniform integers on [a, b). @copydetails brenn_rng_uniform_f32 */
int brenn_rng_uniform_i32(brenn_stream* stream, int method, int n, int32_t* r, int32_t a,
                          int32_t b);
/** n raw words of the stream's generator, of its word size (r holds n of them).
 * @return BRENN_OK, a refusal, or the service's status. */
int brenn_rng_bits_raw(brenn_stream* stream, int n, void* r);
/** n words of 32 uniform bits. @return BRENN_OK, a refusal, or
 * QES_RNG_ERROR_BITS_NOT_SUPPORTED for a generator with fewer bits. */
int brenn_rng_bits_u32(brenn_stream* stream, int n, uint32_t* r);
/** n words of 64 uniform bits. @copydetails brenn_rng_bits_u32 */
int brenn_rng_bits_u64(brenn_stream* stream, int n, uint64_t* r);
/** n Bernoulli variates with P(1) = p, p in [0, 1].
 * @return BRENN_OK, a refusal (p outside: BRENN_ERR_BAD_ARGUMENT), or the service's status. */
int brenn_rng_bernoulli_i32(brenn_stream* stream, int n, int32_t* r, double p);
/** n geometric variates (failures before the first success), p in (0, 1).
 * @copydetails brenn_rng_bernoulli_i32 */
int brenn_rng_geometric_i32(brenn_stream* stream, int n, int32_t* r, double p);

#ifdef __cplusplus
}
#endif

#endif
