/** @file brenn_rng.h
 * Random numbers: generator registry, streams, chunks, the shared read-only data
 * table, jumps, basic generators and distribution generators.
 *
 * A stream is one record made by __qesNewStreamEx and ended by __qesDeleteStream.
 * Its first 32-bit word is the generator id: legacy ids below 0x100000 (0 MCG31M1,
 * 1 R250, 2 MRG32K3A, 3 MCG59, 4..276 WH members, 277 Sobol, 278 Niederr) and
 * current ids (family + 1) << 20 | member. Every call returns a signed 32-bit status:
 * 0 success, positive warnings passed on from a generator, negative errors.
 *
 * These entries sit below the argument-checking front-end: they trust null
 * pointers, counts and ids unless a comment says otherwise. */
#ifndef BRENN_RNG_H
#define BRENN_RNG_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Statuses of every random-number entry: 0 on success, positive warnings passed on
 * from a generator, negative errors. */
enum {
    /** success */
    QES_STATUS_OK = 0,
    /** a generator's initStream got an unknown method */
    QES_STATUS_BAD_METHOD = -2,
    /** a bad argument (an abstract stream's null argument or empty interval) */
    QES_STATUS_BAD_ARGUMENT = -3,
    /** an allocation failed */
    QES_STATUS_NO_MEMORY = -4,
    /** the same code as QES_STATUS_NO_MEMORY */
    QES_ERROR_MEM_FAILURE = -4,
    /** a required pointer is null */
    QES_STATUS_NULL_POINTER = -5,
    /** an unknown generator id or member */
    QES_RNG_STATUS_BAD_BRNG = -1000,
    /** the generator has no leapfrog */
    QES_RNG_STATUS_NO_LEAPFROG = -1002,
    /** the generator has no skip-ahead */
    QES_RNG_STATUS_NO_SKIPAHEAD = -1003,
    /** the generator has no long skip-ahead */
    QES_RNG_STATUS_NO_SKIPAHEAD_EX = -1004,
    /** registration: a negative state size */
    QES_RNG_STATUS_BAD_STATE_SIZE = -1008,
    /** registration: a word size other than 4, 8 or 16 */
    QES_RNG_STATUS_BAD_WORD_SIZE = -1009,
    /** registration: a seed count below 1 */
    QES_RNG_STATUS_BAD_SEED_COUNT = -1010,
    /** registration: a bit count below 1 */
    QES_RNG_STATUS_BAD_BIT_COUNT = -1011,
    /** a quasi-random sequence is used up */
    QES_RNG_STATUS_QUASI_PERIOD_ENDED = -1012,
    /** leapfrog: a negative number of streams */
    QES_RNG_STATUS_BAD_STREAM_COUNT = -1013,
    /** the generator cannot give that many random bits a word */
    QES_RNG_ERROR_BITS_NOT_SUPPORTED = -1014,
    /** stream file: closing failed */
    QES_RNG_STATUS_FILE_CLOSE = -1100,
    /** stream file: opening failed */
    QES_RNG_STATUS_FILE_OPEN = -1101,
    /** stream file: writing failed */
    QES_RNG_STATUS_FILE_WRITE = -1102,
    /** stream file: reading failed, or a chunk of an unknown format */
    QES_RNG_STATUS_FILE_READ = -1103,
    /** stream file: not a stream, or not of this generator's size */
    QES_RNG_STATUS_BAD_FILE_FORMAT = -1110,
    /** an abstract stream's callback gave a negative or too large count */
    QES_RNG_STATUS_ABSTRACT_BAD_COUNT = -1120,
    /** an abstract stream's callback gave 0 */
    QES_RNG_STATUS_ABSTRACT_ZERO_COUNT = -1121,
    /** an output entry of the wrong kind for an abstract stream */
    QES_RNG_STATUS_ABSTRACT_WRONG_KIND = -1122,
    /** the processor has no RDRAND */
    QES_RNG_STATUS_NO_RDRAND = -1130,
    /** RDRAND failed past the retry limit */
    QES_RNG_STATUS_RDRAND_FAILED = -1131,
    /** the processor has no AES instructions */
    QES_RNG_STATUS_NO_AES = -1140,
    /** Multinomial: fewer than one cell, a negative probability, or probabilities
     * whose sum lies outside [0.999, 1.001] */
    QES_RNG_ERROR_BAD_MULTINOMIAL = -1150,
    /** memory image: not a stream, or not of this generator's size */
    QES_RNG_STATUS_BAD_IMAGE_FORMAT = -1200,
    /** the shared read-only table has no such entry */
    QES_RNG_STATUS_GLOB_NOT_FOUND = -3000,
    /** the shared read-only table is full */
    QES_RNG_STATUS_GLOB_TABLE_FULL = -3001
};

/** Methods of a generator's initStream entry. */
enum {
    QES_INIT_SEED = 0,     /**< n seed words (uint32) */
    QES_INIT_LEAPFROG = 1, /**< n streams; params: int32 index of this stream */
    QES_INIT_SKIP = 2,     /**< params: one uint64 count */
    QES_INIT_SKIP_EX = 3   /**< params: n uint64 words, least significant first */
};

/** First ids of the built-in families; a member's id adds the member number. */
enum {
    QES_BRNG_MCG31M1 = 0x100000,
    QES_BRNG_R250 = 0x200000,
    QES_BRNG_MRG32K3A = 0x300000,
    QES_BRNG_MCG59 = 0x400000,
    QES_BRNG_WH = 0x500000,
    QES_BRNG_SOBOL = 0x600000,
    QES_BRNG_NIEDERR = 0x700000,
    QES_BRNG_MT19937 = 0x800000,
    QES_BRNG_MT2203 = 0x900000,
    QES_BRNG_IABSTRACT = 0xA00000,
    QES_BRNG_DABSTRACT = 0xB00000,
    QES_BRNG_SABSTRACT = 0xC00000,
    QES_BRNG_SFMT19937 = 0xD00000,
    QES_BRNG_TRNG = 0xE00000,
    QES_BRNG_ARS5 = 0xF00000,
    QES_BRNG_PHILOX4X32X10 = 0x1000000
};

/** The method-word flag of the uniform generators that clamps results to [a, b]. */
#define QES_RNG_METHOD_UNIFORM_ACCURATE 0x40000000

/** The seeding and jump entry of a basic generator.
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the whole stream record
 * @param n the count of params that the method reads
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_RNG_STATUS_NO_LEAPFROG,
 *         QES_RNG_STATUS_NO_SKIPAHEAD or QES_RNG_STATUS_NO_SKIPAHEAD_EX for a jump the
 *         generator does not have; QES_RNG_STATUS_BAD_BRNG for a refused member. */
typedef int32_t (*QesInitStreamFn)(int32_t method, void* stream, int32_t n, const void* params);
/** The single-precision output entry of a basic generator: uniform on [a, b).
 * @param stream the whole stream record
 * @param n number of results
 * @param r where the n results go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK, or a status of the generator. */
typedef int32_t (*QesSGenerateFn)(void* stream, int32_t n, float* r, float a, float b);
/** The double-precision output entry of a basic generator: uniform on [a, b).
 * @param stream the whole stream record
 * @param n number of results
 * @param r where the n results go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK, or a status of the generator. */
typedef int32_t (*QesDGenerateFn)(void* stream, int32_t n, double* r, double a, double b);
/** The integer output entry of a basic generator: raw output words.
 * @param stream the whole stream record
 * @param n number of words
 * @param r where the n words of the generator's word size go
 * @return QES_STATUS_OK, or a status of the generator. */
typedef int32_t (*QesIGenerateFn)(void* stream, int32_t n, void* r); /* wordSize bytes each */

/** The refill callback of an iAbstract stream: it puts elements into the circular
 * buffer from *startIndex on, wrapping at the end, and returns how many it put
 * there: at least *minimum (what the request still needs, capped by the free
 * count) and at most *maximum (the free count); 0 or a count outside 0 to *maximum
 * fails the request.
 * @param stream the stream
 * @param bufferSize the buffer's number of elements
 * @param buffer the buffer
 * @param minimum the least useful count
 * @param maximum the free count
 * @param startIndex the first index to fill
 * @return the number of elements put into the buffer. */
typedef int32_t (*QesIAbstractCallback)(void* stream, int32_t* bufferSize, uint32_t* buffer,
                                        int32_t* minimum, int32_t* maximum, int32_t* startIndex);
/** The refill callback of a dAbstract stream, as QesIAbstractCallback with doubles.
 * @param stream the stream
 * @param bufferSize the buffer's number of elements
 * @param buffer the buffer
 * @param minimum the least useful count
 * @param maximum the free count
 * @param startIndex the first index to fill
 * @return the number of elements put into the buffer. */
typedef int32_t (*QesDAbstractCallback)(void* stream, int32_t* bufferSize, double* buffer,
                                        int32_t* minimum, int32_t* maximum, int32_t* startIndex);
/** The refill callback of an sAbstract stream, as QesIAbstractCallback with floats.
 * @param stream the stream
 * @param bufferSize the buffer's number of elements
 * @param buffer the buffer
 * @param minimum the least useful count
 * @param maximum the free count
 * @param startIndex the first index to fill
 * @return the number of elements put into the buffer. */
typedef int32_t (*QesSAbstractCallback)(void* stream, int32_t* bufferSize, float* buffer,
                                        int32_t* minimum, int32_t* maximum, int32_t* startIndex);

/** One row of the generator tables: what a basic generator is and its four entries. */
typedef struct BrngRecord {
    int32_t stateSize;          /**< bytes of the stream record: 16-byte header + state */
    int32_t seedCount;          /**< seed words that fill the state */
    int32_t includesZero;       /**< 1 when an integer output can be 0 */
    int32_t wordSize;           /**< bytes of one output word: 4, 8 or 16 */
    int32_t bitCount;           /**< significant bits of a word */
    QesInitStreamFn initStream; /**< seeding and jumps */
    QesSGenerateFn sGenerate;   /**< single-precision uniform output */
    QesDGenerateFn dGenerate;   /**< double-precision uniform output */
    QesIGenerateFn iGenerate;   /**< raw output words */
} BrngRecord;

/** A cell of a stream's chunk list. A non-zero guid marks data shared through the
 * process-wide read-only table, which then owns it. */
typedef struct QesChunk {
    int32_t id;            /**< the chunk's id */
    uint32_t size;         /**< bytes of data */
    void* data;            /**< the chunk's data */
    struct QesChunk* next; /**< the next cell, or null */
    uint64_t guid[2];      /**< zero for private data, else the id in the shared table */
} QesChunk;

/** A row of the process-wide read-only data table. */
typedef struct GlobRODataEntry {
    uint64_t idLow;    /**< low word of the entry's id */
    uint64_t idHigh;   /**< high word of the entry's id */
    uint32_t refCount; /**< streams that refer to the entry */
    void* data;        /**< the shared data */
} GlobRODataEntry;

/** Registry, legacy ids: exported data of 512 rows (family index below 0x100000). */
extern BrngRecord __RegBrngs[512];
/** Registry, current ids: exported data of 512 rows, row (id >> 20) - 1. */
extern BrngRecord __RegBrngsNew[512];
/** The table and row of a generator id; validates nothing.
 * @param id the generator id
 * @param family where the row index goes
 * @param member where the member number goes
 * @return __RegBrngs or __RegBrngsNew. */
BrngRecord* __qesGetBrngBaseOffset(int32_t id, int32_t* family, int32_t* member);
/** Whether a row and member are a registered generator.
 * @param table the table, as __qesGetBrngBaseOffset() gives it
 * @param family the row index
 * @param member the member number
 * @return QES_STATUS_OK or QES_RNG_STATUS_BAD_BRNG. */
int32_t __qesIsBrngValid(const BrngRecord* table, int32_t family, int32_t member);
/** Copies a generator's row.
 * @param id the generator id
 * @param record where the row goes
 * @return QES_STATUS_OK or QES_RNG_STATUS_BAD_BRNG. */
int32_t __qesGetBrngProperties(int32_t id, BrngRecord* record);
/** The number of registered families.
 * @return the count, built-in and registered by callers. */
int32_t __qesGetNumRegBrngs(void);
/** Registers a caller's generator as a new family.
 * @param record its row
 * @return the new id; or QES_RNG_STATUS_BAD_STATE_SIZE, QES_RNG_STATUS_BAD_WORD_SIZE,
 *         QES_RNG_STATUS_BAD_SEED_COUNT, QES_RNG_STATUS_BAD_BIT_COUNT, or
 *         QES_RNG_STATUS_BAD_BRNG when the table is full. */
int32_t __qesRegisterBrng(const BrngRecord* record);
/** Whether the processor has AES instructions.
 * @return non-zero when it has. */
int32_t __qesCPUisAES(void);
/** Whether the processor has RDRAND.
 * @return non-zero when it has. */
int32_t __qesCPUisRDRAND(void);
/** Whether the processor has 256-bit AES instructions.
 * @return non-zero when it has. */
int32_t __qesCPUisVAES(void);

/* Streams. A family whose generator is not in this build is described by
 * __qesGetBrngProperties, but every entry that would make, copy, jump, save, load or
 * draw from a stream of it returns QES_RNG_STATUS_BAD_BRNG. */
/** Makes a stream of a generator and seeds it.
 * @param stream where the stream goes
 * @param brng the generator id
 * @param n number of seed words
 * @param params the n seed words
 * @return QES_STATUS_OK; QES_RNG_STATUS_BAD_BRNG; QES_STATUS_NO_MEMORY; a status of the
 *         generator's seeding. */
int32_t __qesNewStreamEx(void** stream, int32_t brng, int32_t n, const uint32_t* params);
/** Makes a stream record of a generator without seeding it.
 * @param stream where the stream goes
 * @param table the generator's table
 * @param brng the generator id
 * @param family the row index
 * @param member the member number
 * @return QES_STATUS_OK; QES_RNG_STATUS_BAD_BRNG; QES_STATUS_NO_MEMORY. */
int32_t __qesAllocateStream(void** stream, BrngRecord* table, int32_t brng, int32_t family,
                            int32_t member);
/** Makes a copy of a stream, state and chunks.
 * @param newStream where the copy goes
 * @param source the stream to copy
 * @return QES_STATUS_OK; QES_RNG_STATUS_BAD_BRNG; QES_STATUS_NO_MEMORY. */
int32_t __qesCopyStream(void** newStream, const void* source);
/** Copies the state of one stream into another of the same generator.
 * @param destination the stream that takes the state
 * @param source the stream whose state is copied
 * @return QES_STATUS_OK; QES_RNG_STATUS_BAD_BRNG for streams of different generators;
 *         QES_STATUS_NO_MEMORY. */
int32_t __qesCopyStreamState(void* destination, const void* source);
/** Ends a stream: frees its chunks and record.
 * @param stream address of the stream; null is stored into it
 * @return QES_STATUS_OK. */
int32_t __qesDeleteStream(void** stream);
/** The generator of a stream.
 * @param stream the stream
 * @return its generator id. */
int32_t __qesGetStreamStateBrng(const void* stream);
/** The bytes that __qesSaveStreamM() writes for a stream.
 * @param stream the stream
 * @return the size of its memory image; QES_RNG_STATUS_BAD_BRNG when no image can
 *         hold the stream (its generator is not built); QES_STATUS_NO_MEMORY when the
 *         image would pass INT32_MAX bytes. */
int32_t __qesGetStreamSize(const void* stream);

/** Adds a chunk of data to a stream. guid points to two uint64 words, or is null for
 * private data.
 * @param stream the stream
 * @param id the chunk's id
 * @param guid the id in the shared table, or null
 * @param data the data
 * @param size its bytes
 * @return QES_STATUS_OK or QES_STATUS_NO_MEMORY. */
int32_t __qesAddChunk(void* stream, int32_t id, const uint64_t* guid, void* data, uint32_t size);
/** The data of a stream's first chunk with an id.
 * @param stream the stream
 * @param id the chunk id
 * @return the data, or null. */
void* __qesSearchChunk(const void* stream, int32_t id);
/** The number of a stream's chunks.
 * @param stream the stream
 * @return the length of its chunk list. */
int32_t __qesGetNumChunks(const void* stream);
/** Deletes every chunk of a stream.
 * @param stream the stream */
void __qesDeleteChunks(void* stream);
/** Deletes the chunks of a stream with an id.
 * @param stream the stream
 * @param id the chunk id */
void __qesDeleteChunksById(void* stream, int32_t id);
/** Copies the chunks of one stream to another.
 * @param destination the stream that takes the chunks
 * @param source the stream whose chunks are copied
 * @return QES_STATUS_OK or QES_STATUS_NO_MEMORY. */
int32_t __qesCopyChunks(void* destination, const void* source);

/** Finds an entry of the shared read-only data table.
 * @param entry where the entry goes
 * @param guid the entry's id, two uint64 words
 * @return QES_STATUS_OK or QES_RNG_STATUS_GLOB_NOT_FOUND. */
int32_t __qesFindGlobRODataTableEntry(GlobRODataEntry** entry, const uint64_t* guid);
/** Adds an entry to the shared read-only data table, which then owns the data.
 * @param entry where the entry goes
 * @param guid the entry's id, two uint64 words
 * @param data the data
 * @return QES_STATUS_OK or QES_RNG_STATUS_GLOB_TABLE_FULL. */
int32_t __qesCreateGlobRODataTableEntry(GlobRODataEntry** entry, const uint64_t* guid, void* data);
/** Counts one more reference of a chunk to a shared entry.
 * @param chunk the chunk
 * @param guid the entry's id */
void __qesRegisterGlobRODataReference(QesChunk* chunk, const uint64_t* guid);
/** Drops one reference to a shared entry; the last frees it.
 * @param guid the entry's id */
void __qesUnregisterGlobRODataReference(const uint64_t* guid);
/** Makes a new id for the shared table.
 * @param guid where the two words go
 * @param kind the kind of data
 * @return QES_STATUS_OK. */
int32_t __qesGenerateNewGlobalRODataTableEntryId(uint64_t* guid, int32_t kind);

/** Persistence: the version-2 stream image ("RNG"), in a file or a memory block.
 * nameLength >= 0: name has that many bytes, not terminated; negative: terminated.
 * A memory block for saving must be __qesGetStreamSize(stream) bytes long.
 * This one saves a stream to a file.
 * @param stream the stream
 * @param name the file name
 * @param nameLength its length, or negative for a terminated name
 * @return QES_STATUS_OK; QES_RNG_STATUS_FILE_OPEN, QES_RNG_STATUS_FILE_WRITE or
 *         QES_RNG_STATUS_FILE_CLOSE; QES_STATUS_NO_MEMORY. */
int32_t __qesSaveStreamF(const void* stream, const char* name, int32_t nameLength);
/** Loads a stream from a file.
 * @param stream where the stream goes (null on failure)
 * @param name the file name
 * @param nameLength its length, or negative for a terminated name
 * @return QES_STATUS_OK; QES_RNG_STATUS_FILE_OPEN, QES_RNG_STATUS_FILE_READ,
 *         QES_RNG_STATUS_FILE_CLOSE or QES_RNG_STATUS_BAD_FILE_FORMAT;
 *         QES_RNG_STATUS_BAD_BRNG; QES_STATUS_NO_MEMORY. */
int32_t __qesLoadStreamF(void** stream, const char* name, int32_t nameLength);
/** Saves a stream to a memory block of __qesGetStreamSize() bytes.
 * @param stream the stream
 * @param memory the block
 * @return QES_STATUS_OK. */
int32_t __qesSaveStreamM(const void* stream, void* memory);
/** Loads a stream from a memory image.
 * @param stream where the stream goes (null on failure)
 * @param memory the image
 * @return QES_STATUS_OK; QES_RNG_STATUS_BAD_IMAGE_FORMAT; QES_RNG_STATUS_BAD_BRNG;
 *         QES_STATUS_NO_MEMORY. */
int32_t __qesLoadStreamM(void** stream, const void* memory);

/** Makes a stream the k-th of nstreams interleaved ones.
 * @param stream the stream
 * @param k this stream's index
 * @param nstreams the number of streams
 * @return QES_STATUS_OK; QES_RNG_STATUS_BAD_STREAM_COUNT; QES_RNG_STATUS_NO_LEAPFROG. */
int32_t __qesLeapfrogStream(void* stream, int32_t k, int32_t nstreams);
/** Skips a stream ahead.
 * @param stream the stream
 * @param nskip the number of outputs to skip
 * @return QES_STATUS_OK; QES_RNG_STATUS_NO_SKIPAHEAD. */
int32_t __qesSkipAheadStream(void* stream, uint64_t nskip);
/** Skips a stream ahead by a count of several 64-bit words.
 * @param stream the stream
 * @param n the number of words
 * @param nskip the count, least significant word first
 * @return QES_STATUS_OK; QES_RNG_STATUS_NO_SKIPAHEAD_EX. */
int32_t __qesSkipAheadStreamEx(void* stream, int32_t n, const uint64_t* nskip);

/** Number theory behind the jumps. A modulus of the 3 x 3 powers is passed as its
 * negative 32-bit form: -209 stands for 4294967087. This one is base^count mod modulus.
 * @param base the base
 * @param countLow low word of the exponent
 * @param countHigh high word of the exponent
 * @param modulus the modulus
 * @return the power. */
uint32_t __qesiPowMod(uint32_t base, uint32_t countLow, uint32_t countHigh, uint32_t modulus);
/** base^count mod 2^31 - 1.
 * @param base the base
 * @param countLow low word of the exponent
 * @param countHigh high word of the exponent
 * @return the power. */
uint32_t __qesiPowMod2P31M1(uint32_t base, uint32_t countLow, uint32_t countHigh);
/** base^count mod 2^59.
 * @param baseLow low word of the base
 * @param baseHigh high word of the base
 * @param countLow low word of the exponent
 * @param countHigh high word of the exponent
 * @return the power. */
uint64_t __qesiPowMod2P59(uint32_t baseLow, uint32_t baseHigh, uint32_t countLow,
                          uint32_t countHigh);
/** Multiplies a 3-vector by a power of a 3 x 3 matrix, in place.
 * @param vector the vector
 * @param row the matrix, row by row
 * @param modulus the modulus, in its negative 32-bit form
 * @param countLow low word of the exponent
 * @param countHigh high word of the exponent */
void __qesiVect3PowMod(uint32_t* vector, const uint32_t* row, int32_t modulus, uint32_t countLow,
                       uint32_t countHigh);
/** Multiplies a 3-vector by a power of a 3 x 3 matrix with a long exponent, in place.
 * @param vector the vector
 * @param row the matrix, row by row
 * @param modulus the modulus, in its negative 32-bit form
 * @param n the number of exponent words
 * @param words the exponent, least significant word first
 * @return QES_STATUS_OK. */
int32_t __qesiVect3PowArrayMod(uint32_t* vector, const uint32_t* row, int32_t modulus, int32_t n,
                               const uint64_t* words);
/** The long power of the first MRG32K3A component (modulus 4294967087), by table.
 * @param vector the vector
 * @param n the number of exponent words
 * @param words the exponent, least significant word first
 * @param table the matrix powers */
void __qesiVect3PowArrayMod_M1(uint32_t* vector, int32_t n, const uint64_t* words,
                               const uint32_t* table);
/** The long power of the second MRG32K3A component (modulus 4294944443), by table.
 * @param vector the vector
 * @param n the number of exponent words
 * @param words the exponent, least significant word first
 * @param table the matrix powers */
void __qesiVect3PowArrayMod_M2(uint32_t* vector, int32_t n, const uint64_t* words,
                               const uint32_t* table);

/** x^count mod P(x) over GF(2); out gets wordCount little-endian 32-bit words.
 * @param count the exponent
 * @param degree the degree of P
 * @param termCount the number of terms of P
 * @param terms the exponents of P's terms
 * @param wordCount the words of out
 * @param out the remainder
 * @return QES_STATUS_OK or QES_STATUS_NO_MEMORY. */
int32_t __qesPolyRem(uint64_t count, int32_t degree, int32_t termCount, const int32_t* terms,
                     int32_t wordCount, uint32_t* out);

/** Polynomial jump of a generator that is linear over GF(2): clears a scratch state. */
typedef void (*QesJumpZeroFn)(void* state);
/** Adds (xor) one scratch state into another. */
typedef void (*QesJumpAddFn)(void* destination, const void* source);
/** Copies a scratch state. */
typedef void (*QesJumpCopyFn)(void* destination, const void* source);
/** Advances a scratch state by one step of the generator. */
typedef void (*QesJumpStepFn)(void* state);
/** Puts the jumped state back into the stream, with the steps left over. */
typedef void (*QesJumpFinishFn)(void* stream, const void* result, int32_t remainder);
/** Turns the count into the one the polynomial jumps by; a status stops the jump. */
typedef int32_t (*QesJumpPrepareFn)(void* stream, uint64_t* count, int32_t* remainder);
/** Polynomial jump by Horner's rule over the remainder's bits; states are scratch
 * records of stateBytes bytes.
 * @param stream the stream
 * @param zero clears a scratch state
 * @param add adds a scratch state into another
 * @param copy copies a scratch state
 * @param step advances a scratch state by one step
 * @param finish puts the result back into the stream
 * @param prepare turns the count into the jump's count, or null
 * @param countLow low word of the count
 * @param countHigh high word of the count
 * @param wordCount words of the remainder polynomial
 * @param degree degree of the characteristic polynomial
 * @param stateBytes bytes of a scratch state
 * @param termCount number of terms of the polynomial
 * @param terms the exponents of its terms
 * @return QES_STATUS_OK, QES_STATUS_NO_MEMORY or a status of prepare. */
int32_t __qes_SkipAheadHorner(void* stream, QesJumpZeroFn zero, QesJumpAddFn add,
                              QesJumpCopyFn copy, QesJumpStepFn step, QesJumpFinishFn finish,
                              QesJumpPrepareFn prepare, uint32_t countLow, uint32_t countHigh,
                              int32_t wordCount, int32_t degree, int32_t stateBytes,
                              int32_t termCount, const int32_t* terms);
/** Polynomial jump by sliding windows over the remainder's bits.
 * @param stream the stream
 * @param zero clears a scratch state
 * @param add adds a scratch state into another
 * @param copy copies a scratch state
 * @param step advances a scratch state by one step
 * @param finish puts the result back into the stream
 * @param prepare turns the count into the jump's count, or null
 * @param countLow low word of the count
 * @param countHigh high word of the count
 * @param wordCount words of the remainder polynomial
 * @param degree degree of the characteristic polynomial
 * @param stateBytes bytes of a scratch state
 * @param termCount number of terms of the polynomial
 * @param terms the exponents of its terms
 * @return QES_STATUS_OK, QES_STATUS_NO_MEMORY or a status of prepare. */
int32_t __qes_SkipAheadSWin(void* stream, QesJumpZeroFn zero, QesJumpAddFn add, QesJumpCopyFn copy,
                            QesJumpStepFn step, QesJumpFinishFn finish, QesJumpPrepareFn prepare,
                            uint32_t countLow, uint32_t countHigh, int32_t wordCount,
                            int32_t degree, int32_t stateBytes, int32_t termCount,
                            const int32_t* terms);

/* Congruential generators. */
/** The initStream entry of MCG31M1 (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; the status of a jump MCG31M1 lacks. */
int32_t __qesBRngMCG31M1InitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision uniform output of MCG31M1 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qessBRngMCG31M1(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision uniform output of MCG31M1 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qesdBRngMCG31M1(void* stream, int32_t n, double* r, double a, double b);
/** Raw output words of MCG31M1.
 * @param stream the stream
 * @param n number of words
 * @param r where they go
 * @return QES_STATUS_OK. */
int32_t __qesiBRngMCG31M1(void* stream, int32_t n, void* r);
/** The initStream entry of MCG59 (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; the status of a jump MCG59 lacks. */
int32_t __qesBRngMCG59InitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision uniform output of MCG59 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qessBRngMCG59(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision uniform output of MCG59 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qesdBRngMCG59(void* stream, int32_t n, double* r, double a, double b);
/** Raw output words of MCG59.
 * @param stream the stream
 * @param n number of words
 * @param r where they go
 * @return QES_STATUS_OK. */
int32_t __qesiBRngMCG59(void* stream, int32_t n, void* r);

/* Mersenne Twister family. The state keeps raw (untempered) words. */
/** The initStream entry of MT19937 (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; the status of a jump MT19937 lacks. */
int32_t __qesBRngMT19937InitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision uniform output of MT19937 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qessBRngMT19937(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision uniform output of MT19937 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qesdBRngMT19937(void* stream, int32_t n, double* r, double a, double b);
/** Raw output words of MT19937.
 * @param stream the stream
 * @param n number of words
 * @param r where they go
 * @return QES_STATUS_OK. */
int32_t __qesiBRngMT19937(void* stream, int32_t n, void* r);
/* MT2203: member m is id 0x900000 + m; members without verified parameters are
 * refused at seeding with -1000. */
/** The initStream entry of MT2203 (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; the status of a jump MT2203 lacks. */
int32_t __qesBRngMT2203InitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision uniform output of MT2203 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qessBRngMT2203(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision uniform output of MT2203 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qesdBRngMT2203(void* stream, int32_t n, double* r, double a, double b);
/** Raw output words of MT2203.
 * @param stream the stream
 * @param n number of words
 * @param r where they go
 * @return QES_STATUS_OK. */
int32_t __qesiBRngMT2203(void* stream, int32_t n, void* r);
/** The initStream entry of SFMT19937 (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; the status of a jump SFMT19937 lacks. */
int32_t __qesBRngSFMT19937InitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision uniform output of SFMT19937 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qessBRngSFMT19937(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision uniform output of SFMT19937 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qesdBRngSFMT19937(void* stream, int32_t n, double* r, double a, double b);
/** Raw output words of SFMT19937.
 * @param stream the stream
 * @param n number of words
 * @param r where they go
 * @return QES_STATUS_OK. */
int32_t __qesiBRngSFMT19937(void* stream, int32_t n, void* r);

/* The combined multiple recursive generator, the shift-register generator R250 and the
 * Wichmann-Hill set (member m is id 0x500000 + m, 0 to 272). */
/** The initStream entry of MRG32K3A (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; the status of a jump MRG32K3A lacks. */
int32_t __qesBRngMRG32K3AInitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision uniform output of MRG32K3A on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qessBRngMRG32K3A(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision uniform output of MRG32K3A on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qesdBRngMRG32K3A(void* stream, int32_t n, double* r, double a, double b);
/** Raw output of MRG32K3A: one 32-bit word an element.
 * @param stream the stream
 * @param n number of elements
 * @param r where they go
 * @return QES_STATUS_OK. */
int32_t __qesiBRngMRG32K3A(void* stream, int32_t n, void* r);
/** The initStream entry of R250 (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; the status of a jump R250 lacks. */
int32_t __qesBRngR250InitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision uniform output of R250 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qessBRngR250(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision uniform output of R250 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qesdBRngR250(void* stream, int32_t n, double* r, double a, double b);
/** Raw output of R250: one 32-bit word an element.
 * @param stream the stream
 * @param n number of elements
 * @param r where they go
 * @return QES_STATUS_OK. */
int32_t __qesiBRngR250(void* stream, int32_t n, void* r);
/** The initStream entry of WH (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; the status of a jump WH lacks. */
int32_t __qesBRngWHInitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision uniform output of WH on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qessBRngWH(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision uniform output of WH on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qesdBRngWH(void* stream, int32_t n, double* r, double a, double b);
/** Raw output of WH: the four component words of an element, 16 bytes.
 * @param stream the stream
 * @param n number of elements
 * @param r where they go
 * @return QES_STATUS_OK. */
int32_t __qesiBRngWH(void* stream, int32_t n, void* r);
/* The quasi-random generators: each element is one coordinate of a point. */
/** The initStream entry of Sobol (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; the status of a jump Sobol lacks. */
int32_t __qesBRngSobolInitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision uniform output of Sobol on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qessBRngSobol(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision uniform output of Sobol on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qesdBRngSobol(void* stream, int32_t n, double* r, double a, double b);
/** Raw output of Sobol: one 32-bit word a coordinate.
 * @param stream the stream
 * @param n number of elements
 * @param r where they go
 * @return QES_STATUS_OK. */
int32_t __qesiBRngSobol(void* stream, int32_t n, void* r);
/** The initStream entry of Niederr (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; the status of a jump Niederr lacks. */
int32_t __qesBRngNiederrInitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision uniform output of Niederr on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qessBRngNiederr(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision uniform output of Niederr on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qesdBRngNiederr(void* stream, int32_t n, double* r, double a, double b);
/** Raw output of Niederr: one 32-bit word a coordinate.
 * @param stream the stream
 * @param n number of elements
 * @param r where they go
 * @return QES_STATUS_OK. */
int32_t __qesiBRngNiederr(void* stream, int32_t n, void* r);

/* Counter-based generators (ARS5: params 0-3 the key, 4-7 the counter; PHILOX4X32X10:
 * params 0-1 the key, 2-5 the counter; missing words 0). Their words are served as
 * signed values: the real forms are centred, w 2^-32 (b - a) + (a + b) / 2. Skip-ahead
 * by one count or by up to three 64-bit words; no leapfrog. ARS5 entries other than
 * seeding return QES_RNG_STATUS_NO_AES on a processor without AES. */
/** The initStream entry of ARS5 (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_RNG_STATUS_NO_LEAPFROG;
 *         QES_RNG_STATUS_NO_AES for a jump without AES. */
int32_t __qesBRngARS5InitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision output of ARS5 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK or QES_RNG_STATUS_NO_AES. */
int32_t __qessBRngARS5(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision output of ARS5 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK or QES_RNG_STATUS_NO_AES. */
int32_t __qesdBRngARS5(void* stream, int32_t n, double* r, double a, double b);
/** Raw output of ARS5: one 32-bit word an element.
 * @param stream the stream
 * @param n number of elements
 * @param r where they go
 * @return QES_STATUS_OK or QES_RNG_STATUS_NO_AES. */
int32_t __qesiBRngARS5(void* stream, int32_t n, void* r);
/** The initStream entry of PHILOX4X32X10 (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_RNG_STATUS_NO_LEAPFROG. */
int32_t __qesBRngPHILOX4X32X10InitStream(int32_t method, void* stream, int32_t n,
                                         const void* params);
/** Single-precision output of PHILOX4X32X10 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qessBRngPHILOX4X32X10(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision output of PHILOX4X32X10 on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK. */
int32_t __qesdBRngPHILOX4X32X10(void* stream, int32_t n, double* r, double a, double b);
/** Raw output of PHILOX4X32X10: one 32-bit word an element.
 * @param stream the stream
 * @param n number of elements
 * @param r where they go
 * @return QES_STATUS_OK. */
int32_t __qesiBRngPHILOX4X32X10(void* stream, int32_t n, void* r);
/* TRNG: words of the processor's RDRAND; params[1] (when n >= 2 and not 0) is the
 * retry limit, else 10. The double form takes two words an element, first word low.
 * No jumps; every entry returns QES_RNG_STATUS_NO_RDRAND without RDRAND, and
 * QES_RNG_STATUS_RDRAND_FAILED when RDRAND failed past the limit (the elements made
 * before stay in r). */
/** The initStream entry of TRNG (QesInitStreamFn).
 * @param method QES_INIT_SEED, QES_INIT_LEAPFROG, QES_INIT_SKIP or QES_INIT_SKIP_EX
 * @param stream the stream
 * @param n the count of params
 * @param params the method's words
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_RNG_STATUS_NO_LEAPFROG,
 *         QES_RNG_STATUS_NO_SKIPAHEAD or QES_RNG_STATUS_NO_SKIPAHEAD_EX. */
int32_t __qesBRngTRNGInitStream(int32_t method, void* stream, int32_t n, const void* params);
/** Single-precision output of TRNG on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK; QES_RNG_STATUS_NO_RDRAND; QES_RNG_STATUS_RDRAND_FAILED. */
int32_t __qessBRngTRNG(void* stream, int32_t n, float* r, float a, float b);
/** Double-precision output of TRNG on [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return QES_STATUS_OK; QES_RNG_STATUS_NO_RDRAND; QES_RNG_STATUS_RDRAND_FAILED. */
int32_t __qesdBRngTRNG(void* stream, int32_t n, double* r, double a, double b);
/** Raw output of TRNG: one 32-bit word an element.
 * @param stream the stream
 * @param n number of elements
 * @param r where they go
 * @return QES_STATUS_OK; QES_RNG_STATUS_NO_RDRAND; QES_RNG_STATUS_RDRAND_FAILED. */
int32_t __qesiBRngTRNG(void* stream, int32_t n, void* r);
/* Abstract streams: the caller's circular buffer and the callback that refills it.
 * Made only by their constructors (__qesNewStreamEx refuses the three ids); no seed,
 * no jumps; each kind has one output entry and __qesdBRngiAbstract in the others.
 * The real kinds map an element x to (x - low) (b - a) / (high - low) + a. */
/** Makes an iAbstract stream (id QES_BRNG_IABSTRACT); the buffer counts as empty.
 * @param stream where the stream goes
 * @param bufferSize elements of the buffer, at least 1
 * @param buffer the buffer
 * @param callback its refill function
 * @return QES_STATUS_OK; QES_STATUS_BAD_ARGUMENT for a null pointer or a size below 1;
 *         QES_RNG_STATUS_BAD_BRNG; QES_STATUS_NO_MEMORY. */
int32_t __qesiNewAbstractStream(void** stream, int32_t bufferSize, uint32_t* buffer,
                                QesIAbstractCallback callback);
/** Makes a dAbstract stream (id QES_BRNG_DABSTRACT), values in [low, high).
 * @param stream where the stream goes
 * @param bufferSize elements of the buffer, at least 1
 * @param buffer the buffer
 * @param low the buffer's lower bound
 * @param high the buffer's upper bound; low >= high is refused (a NaN passes)
 * @param callback its refill function
 * @return QES_STATUS_OK; QES_STATUS_BAD_ARGUMENT; QES_RNG_STATUS_BAD_BRNG;
 *         QES_STATUS_NO_MEMORY. */
int32_t __qesdNewAbstractStream(void** stream, int32_t bufferSize, double* buffer, double low,
                                double high, QesDAbstractCallback callback);
/** Makes a sAbstract stream (id QES_BRNG_SABSTRACT), values in [low, high).
 * @param stream where the stream goes
 * @param bufferSize elements of the buffer, at least 1
 * @param buffer the buffer
 * @param low the buffer's lower bound
 * @param high the buffer's upper bound; low >= high is refused (a NaN passes)
 * @param callback its refill function
 * @return QES_STATUS_OK; QES_STATUS_BAD_ARGUMENT; QES_RNG_STATUS_BAD_BRNG;
 *         QES_STATUS_NO_MEMORY. */
int32_t __qessNewAbstractStream(void** stream, int32_t bufferSize, float* buffer, float low,
                                float high, QesSAbstractCallback callback);
/** The initStream entry of iAbstract streams: method 0 takes the constructor's record.
 * @param method QES_INIT_SEED; the jump methods are refused
 * @param stream the stream
 * @param n unused
 * @param params the constructor's record
 * @return QES_STATUS_OK; QES_RNG_STATUS_NO_LEAPFROG, QES_RNG_STATUS_NO_SKIPAHEAD,
 *         QES_RNG_STATUS_NO_SKIPAHEAD_EX; QES_STATUS_BAD_METHOD. */
int32_t __qesBRngiAbstractInitStream(int32_t method, void* stream, int32_t n, const void* params);
/** The initStream entry of dAbstract streams: method 0 takes the constructor's record.
 * @param method QES_INIT_SEED; the jump methods are refused
 * @param stream the stream
 * @param n unused
 * @param params the constructor's record
 * @return QES_STATUS_OK; QES_RNG_STATUS_NO_LEAPFROG, QES_RNG_STATUS_NO_SKIPAHEAD,
 *         QES_RNG_STATUS_NO_SKIPAHEAD_EX; QES_STATUS_BAD_METHOD. */
int32_t __qesBRngdAbstractInitStream(int32_t method, void* stream, int32_t n, const void* params);
/** The initStream entry of sAbstract streams: method 0 takes the constructor's record.
 * @param method QES_INIT_SEED; the jump methods are refused
 * @param stream the stream
 * @param n unused
 * @param params the constructor's record
 * @return QES_STATUS_OK; QES_RNG_STATUS_NO_LEAPFROG, QES_RNG_STATUS_NO_SKIPAHEAD,
 *         QES_RNG_STATUS_NO_SKIPAHEAD_EX; QES_STATUS_BAD_METHOD. */
int32_t __qesBRngsAbstractInitStream(int32_t method, void* stream, int32_t n, const void* params);
/** The output entry of iAbstract streams: the buffer's words, refilled by the callback.
 * @param stream the stream
 * @param n number of words
 * @param r where they go
 * @return QES_STATUS_OK; QES_STATUS_NULL_POINTER for a null buffer;
 *         QES_RNG_STATUS_ABSTRACT_BAD_COUNT or QES_RNG_STATUS_ABSTRACT_ZERO_COUNT for a
 *         failing callback (what was delivered stays in r). */
int32_t __qesiBRngiAbstract(void* stream, int32_t n, void* r);
/** The output entry of dAbstract streams, mapped to [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return as __qesiBRngiAbstract(). */
int32_t __qesdBRngdAbstract(void* stream, int32_t n, double* r, double a, double b);
/** The output entry of sAbstract streams, mapped to [a, b).
 * @param stream the stream
 * @param n number of results
 * @param r where they go
 * @param a left end
 * @param b right end
 * @return as __qesiBRngiAbstract(). */
int32_t __qessBRngsAbstract(void* stream, int32_t n, float* r, float a, float b);
/** The entry of every wrong-kind slot of the abstract rows.
 * @param stream unused
 * @param n unused
 * @param r unused
 * @param a unused
 * @param b unused
 * @return QES_RNG_STATUS_ABSTRACT_WRONG_KIND. */
int32_t __qesdBRngiAbstract(void* stream, int32_t n, double* r, double a, double b);

/* Distribution generators: method, stream, n, result, parameters. */
/** Single-precision uniform variates on [a, b).
 * @param method 0, or with QES_RNG_METHOD_UNIFORM_ACCURATE to clamp to [a, b]
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a left end
 * @param b right end, above a
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_STATUS_BAD_ARGUMENT; a status of
 *         the generator (QES_RNG_ERROR_BITS_NOT_SUPPORTED for too few bits). */
int32_t _qessRngUniform(int32_t method, void* stream, int32_t n, float* r, float a, float b);
/** Double-precision uniform variates on [a, b).
 * @param method 0, or with QES_RNG_METHOD_UNIFORM_ACCURATE to clamp to [a, b]
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a left end
 * @param b right end, above a
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_STATUS_BAD_ARGUMENT; a status of
 *         the generator (QES_RNG_ERROR_BITS_NOT_SUPPORTED for too few bits). */
int32_t _qesdRngUniform(int32_t method, void* stream, int32_t n, double* r, double a, double b);
/** Integer uniform variates on [a, b).
 * @param method 0
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a left end
 * @param b right end, above a
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_STATUS_BAD_ARGUMENT; a status of
 *         the generator (QES_RNG_ERROR_BITS_NOT_SUPPORTED for too few bits). */
int32_t _qesiRngUniform(int32_t method, void* stream, int32_t n, int32_t* r, int32_t a, int32_t b);
/** Raw output words of the stream's generator.
 * @param method 0
 * @param stream the stream
 * @param n number of words
 * @param r where they go, of the generator's word size
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_STATUS_BAD_ARGUMENT; a status of
 *         the generator (QES_RNG_ERROR_BITS_NOT_SUPPORTED for too few bits). */
int32_t _qesiRngUniformBits(int32_t method, void* stream, int32_t n, void* r);
/** 32 uniformly random bits an element.
 * @param method 0
 * @param stream the stream
 * @param n number of words
 * @param r where they go
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_STATUS_BAD_ARGUMENT; a status of
 *         the generator (QES_RNG_ERROR_BITS_NOT_SUPPORTED for too few bits). */
int32_t _qesiRngUniformBits32(int32_t method, void* stream, int32_t n, uint32_t* r);
/** 64 uniformly random bits an element.
 * @param method 0
 * @param stream the stream
 * @param n number of words
 * @param r where they go
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_STATUS_BAD_ARGUMENT; a status of
 *         the generator (QES_RNG_ERROR_BITS_NOT_SUPPORTED for too few bits). */
int32_t _qesiRngUniformBits64(int32_t method, void* stream, int32_t n, uint64_t* r);
/** Bernoulli variates: 1 with probability p, else 0.
 * @param method 0
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param p the probability of 1, in [0, 1]
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_STATUS_BAD_ARGUMENT; a status of
 *         the generator (QES_RNG_ERROR_BITS_NOT_SUPPORTED for too few bits). */
int32_t _qesiRngBernoulli(int32_t method, void* stream, int32_t n, int32_t* r, double p);
/** Geometric variates: the number of failures before the first success.
 * @param method 0
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param p the probability of success, in (0, 1)
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD; QES_STATUS_BAD_ARGUMENT; a status of
 *         the generator (QES_RNG_ERROR_BITS_NOT_SUPPORTED for too few bits). */
int32_t _qesiRngGeometric(int32_t method, void* stream, int32_t n, int32_t* r, double p);
/** Binomial variates: the successes in ntrial trials of probability p. Inversion
 * (one uniform a variate) while ntrial min(p, 1 - p) is below 30, BTPE from there;
 * the set-up is kept in chunk 5 of the stream.
 * @param method 0
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param ntrial number of trials, 0 or more (0 fills r with 0 and draws nothing)
 * @param p probability of success, in [0, 1]
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; QES_ERROR_MEM_FAILURE; a status of the generator. */
int32_t _qesiRngBinomial(int32_t method, void* stream, int32_t n, int32_t* r, int32_t ntrial,
                         double p);
/** Hypergeometric variates: the marked elements among s drawn without replacement
 * from a lot of l elements of which m are marked. Inversion (one uniform a variate)
 * when the mode of the folded distribution is below 10, H2PE above; the set-up is
 * kept in chunk 6 of the stream, made anew for new parameters.
 * @param method 0
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param l lot size, 0 or more
 * @param s sample size, 0 to l
 * @param m number of marked elements, 0 to l
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; QES_ERROR_MEM_FAILURE; a status of the generator. */
int32_t _qesiRngHypergeometric(int32_t method, void* stream, int32_t n, int32_t* r, int32_t l,
                               int32_t s, int32_t m);
/** Negative binomial variates: the failures before the a-th success of trials of
 * probability p. Inversion (one uniform a variate, the table in chunk 4 of the
 * stream) while the mean a (1 - p) / p is below 10737418.24 and the mode (a - 1) (1 -
 * p) / p below 100; a rejection method above (for a below 1 at huge means, a sum of
 * logarithmic counts); a result beyond INT32_MAX is held at INT32_MAX.
 * @param method 0
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a number of successes, above 0 (need not be whole)
 * @param p probability of success, in (0, 1]
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; QES_ERROR_MEM_FAILURE; a status of the generator. */
int32_t _qesiRngNegbinomial(int32_t method, void* stream, int32_t n, int32_t* r, double a,
                            double p);
/** Single-precision Gaussian variates a + sigma z.
 * @param method 0 Box-Muller, sine halves; 1 Box-Muller, both halves; 2 inverse CDF
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a mean
 * @param sigma standard deviation
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qessRngGaussian(int32_t method, void* stream, int32_t n, float* r, float a, float sigma);
/** Double-precision Gaussian variates a + sigma z.
 * @param method 0 Box-Muller, sine halves; 1 Box-Muller, both halves; 2 inverse CDF
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a mean
 * @param sigma standard deviation
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qesdRngGaussian(int32_t method, void* stream, int32_t n, double* r, double a,
                         double sigma);
/** Single-precision lognormal variates max(b, beta exp(a + sigma z) + b).
 * @param method 0 from Gaussian method 1, any other value from method 2
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a mean of the logarithm
 * @param sigma its standard deviation
 * @param b shift
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qessRngLognormal(int32_t method, void* stream, int32_t n, float* r, float a, float sigma,
                          float b, float beta);
/** Double-precision lognormal variates max(b, beta exp(a + sigma z) + b).
 * @param method 0 from Gaussian method 1, any other value from method 2
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a mean of the logarithm
 * @param sigma its standard deviation
 * @param b shift
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qesdRngLognormal(int32_t method, void* stream, int32_t n, double* r, double a,
                          double sigma, double b, double beta);
/** Single-precision exponential variates max(a, a - beta ln u).
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a shift
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qessRngExponential(int32_t method, void* stream, int32_t n, float* r, float a, float beta);
/** Double-precision exponential variates max(a, a - beta ln u).
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a shift
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qesdRngExponential(int32_t method, void* stream, int32_t n, double* r, double a,
                            double beta);
/** Single-precision Gumbel variates beta ln(-ln u) + a (the minimum form).
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a location
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qessRngGumbel(int32_t method, void* stream, int32_t n, float* r, float a, float beta);
/** Double-precision Gumbel variates beta ln(-ln u) + a (the minimum form).
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a location
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qesdRngGumbel(int32_t method, void* stream, int32_t n, double* r, double a, double beta);
/** Single-precision Laplace variates a +- beta ln u.
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a location
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qessRngLaplace(int32_t method, void* stream, int32_t n, float* r, float a, float beta);
/** Double-precision Laplace variates a +- beta ln u.
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a location
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qesdRngLaplace(int32_t method, void* stream, int32_t n, double* r, double a, double beta);
/** Single-precision Rayleigh variates max(a, beta sqrt(-ln u) + a).
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a shift
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qessRngRayleigh(int32_t method, void* stream, int32_t n, float* r, float a, float beta);
/** Double-precision Rayleigh variates max(a, beta sqrt(-ln u) + a).
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a shift
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qesdRngRayleigh(int32_t method, void* stream, int32_t n, double* r, double a, double beta);
/** Single-precision Weibull variates max(a, beta (-ln u)^(1/alpha) + a).
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param alpha shape
 * @param a shift
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qessRngWeibull(int32_t method, void* stream, int32_t n, float* r, float alpha, float a,
                        float beta);
/** Double-precision Weibull variates max(a, beta (-ln u)^(1/alpha) + a).
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param alpha shape
 * @param a shift
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qesdRngWeibull(int32_t method, void* stream, int32_t n, double* r, double alpha, double a,
                        double beta);
/** Single-precision Cauchy variates a + beta tan(v), v uniform on [-pi/2, pi/2).
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a location
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qessRngCauchy(int32_t method, void* stream, int32_t n, float* r, float a, float beta);
/** Double-precision Cauchy variates a + beta tan(v), v uniform on [-pi/2, pi/2).
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param a location
 * @param beta scale
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qesdRngCauchy(int32_t method, void* stream, int32_t n, double* r, double a, double beta);
/** Poisson variates.
 * @param method 0 exact (inversion below lambda 27, rejection from 27; keeps its
 *        set-up in chunk 3 of the stream); 1 transforming, one uniform a variate, an
 *        approximation (partial sums below 1, a Cornish-Fisher expansion from 1 to
 *        100, a bent normal from 100)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param lambda the mean, above 0
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD for another method word or when the
 *         library is built without the kernel rows it needs; QES_ERROR_MEM_FAILURE
 *         or the status of __qesAddChunk when chunk 3 cannot be made; a status of the
 *         generator. */
int32_t _qesiRngPoisson(int32_t method, void* stream, int32_t n, int32_t* r, double lambda);
/** Poisson variates with a mean for each element, by the transforming method's
 * approximations: exactly n uniforms whatever the means.
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param lambda n means, each at least 0
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qesiRngPoissonV(int32_t method, void* stream, int32_t n, int32_t* r,
                         const double* lambda);
/** Multinomial rows: n rows of k counts, each row adding up to ntrial.
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of rows
 * @param r where they go, n * k counts, row after row
 * @param ntrial trials a row, at least 0
 * @param k number of cells
 * @param p k probabilities
 * @return QES_STATUS_OK; QES_RNG_ERROR_BAD_MULTINOMIAL for k below 1, a negative p
 *         or a sum of p outside [0.999, 1.001] (not checked when ntrial is 0);
 *         QES_ERROR_MEM_FAILURE; QES_STATUS_BAD_METHOD when the library is built
 *         without the kernel rows it needs; a status of the generator. */
int32_t _qesiRngMultinomial(int32_t method, void* stream, int32_t n, int32_t* r, int32_t ntrial,
                            int32_t k, const double* p);

/** Single-precision Gamma variates a + beta v, v of shape alpha and unit scale. Alpha
 * above 1: Marsaglia and Tsang's squeeze with normals, a trial left over at the end of a
 * call kept in chunk 8 (so calls may be cut anywhere); 1: the Exponential generator;
 * from 0.6 to 1: rejection from a Weibull form; below 0.6: Ahrens and Dieter's
 * two-uniform rejection.
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param alpha shape, above 0
 * @param a displacement
 * @param beta scale, above 0
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; QES_ERROR_MEM_FAILURE; a status of the generator. */
int32_t _qessRngGamma(int32_t method, void* stream, int32_t n, float* r, float alpha, float a,
                      float beta);
/** Double-precision Gamma variates a + beta v, as _qessRngGamma; the leftover trial of
 * alpha above 1 waits in chunk 7. */
int32_t _qesdRngGamma(int32_t method, void* stream, int32_t n, double* r, double alpha, double a,
                      double beta);
/** Single-precision chi-square variates of v degrees of freedom: v = 1 the square of a
 * Gaussian; v above 16 Gamma of shape v / 2 and scale 2; otherwise -2 ln of the product
 * of v / 2 (rounded down) uniforms, plus the square of a Gaussian for odd v. The
 * Gaussians are those of _qessRngGaussian's method 1.
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param v degrees of freedom, 1 or more
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; QES_ERROR_MEM_FAILURE; a status of the generator. */
int32_t _qessRngChiSquare(int32_t method, void* stream, int32_t n, float* r, int32_t v);
/** Double-precision chi-square variates, as _qessRngChiSquare. */
int32_t _qesdRngChiSquare(int32_t method, void* stream, int32_t n, double* r, int32_t v);
/** Storage forms of the Cholesky factor T of _qessRngGaussianMV and _qesdRngGaussianMV:
 * T is lower triangular and the covariance is T T'. Full: d by d, row by row, element
 * (i, j) at t[i d + j], the part above the diagonal not read. Packed: the lower
 * triangle row by row, (i, j), j <= i, at t[i (i + 1) / 2 + j]. Diagonal: the d
 * diagonal elements. */
enum {
    QES_RNG_STORAGE_FULL = 0,
    QES_RNG_STORAGE_PACKED = 1,
    QES_RNG_STORAGE_DIAGONAL = 2
};
/** Single-precision Beta variates a + beta x, x on (0, 1) of density proportional to
 * x^(p - 1) (1 - x)^(q - 1). p and q below 1: Joehnk's method; both above 1: Cheng's
 * BB; otherwise Cheng's BC. Two uniforms a trial; a call draws rounds of trials and
 * drops what the last round has left.
 * @param method 0 (not read)
 * @param stream the stream
 * @param n number of variates
 * @param r where they go
 * @param p first shape, above 0
 * @param q second shape, above 0
 * @param a displacement
 * @param beta scale, above 0
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; a status of the generator. */
int32_t _qessRngBeta(int32_t method, void* stream, int32_t n, float* r, float p, float q, float a,
                     float beta);
/** Double-precision Beta variates, as _qessRngBeta. */
int32_t _qesdRngBeta(int32_t method, void* stream, int32_t n, double* r, double p, double q,
                     double a, double beta);
/** Single-precision multivariate Gaussian vectors a + T z, z a vector of dimen standard
 * Gaussians of _qessRngGaussian's method `method`, T the lower triangular Cholesky
 * factor of the covariance T T' in the storage that mstorage names. Vector k is
 * r[k dimen] to r[k dimen + dimen - 1]; the products run through the service
 * library's triangular products (brenn_blas4zar_strmm, brenn_blas4zar_sptrmm).
 * @param method the Gaussian method of z: 0, 1 or 2 as in _qessRngGaussian
 * @param stream the stream
 * @param n number of vectors
 * @param r where they go, n dimen elements
 * @param dimen dimension d, 1 or more
 * @param mstorage QES_RNG_STORAGE_FULL, QES_RNG_STORAGE_PACKED or QES_RNG_STORAGE_DIAGONAL
 * @param a mean, dimen elements
 * @param t the factor in that storage
 * @return QES_STATUS_OK; QES_STATUS_BAD_METHOD when the library is built without the
 *         kernel rows it needs; QES_ERROR_MEM_FAILURE; a status of the generator. */
int32_t _qessRngGaussianMV(int32_t method, void* stream, int32_t n, float* r, int32_t dimen,
                           int32_t mstorage, const float* a, const float* t);
/** Double-precision multivariate Gaussian vectors, as _qessRngGaussianMV
 * (brenn_blas4zar_dtrmm, brenn_blas4zar_dptrmm). */
int32_t _qesdRngGaussianMV(int32_t method, void* stream, int32_t n, double* r, int32_t dimen,
                           int32_t mstorage, const double* a, const double* t);
#ifdef __cplusplus
}
#endif

#endif
