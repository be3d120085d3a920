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

/* Status codes. */
enum {
    QES_STATUS_OK = 0,
    QES_STATUS_BAD_METHOD = -2,
    QES_STATUS_BAD_ARGUMENT = -3,
    QES_STATUS_NO_MEMORY = -4,
    QES_ERROR_MEM_FAILURE = -4,
    QES_STATUS_NULL_POINTER = -5,
    QES_RNG_STATUS_BAD_BRNG = -1000,
    QES_RNG_STATUS_NO_LEAPFROG = -1002,
    QES_RNG_STATUS_NO_SKIPAHEAD = -1003,
    QES_RNG_STATUS_NO_SKIPAHEAD_EX = -1004,
    QES_RNG_STATUS_BAD_STATE_SIZE = -1008,
    QES_RNG_STATUS_BAD_WORD_SIZE = -1009,
    QES_RNG_STATUS_BAD_SEED_COUNT = -1010,
    QES_RNG_STATUS_BAD_BIT_COUNT = -1011,
    QES_RNG_STATUS_QUASI_PERIOD_ENDED = -1012,
    QES_RNG_STATUS_BAD_STREAM_COUNT = -1013,
    QES_RNG_ERROR_BITS_NOT_SUPPORTED = -1014,
    QES_RNG_STATUS_FILE_CLOSE = -1100,
    QES_RNG_STATUS_FILE_OPEN = -1101,
    QES_RNG_STATUS_FILE_WRITE = -1102,
    QES_RNG_STATUS_FILE_READ = -1103,
    QES_RNG_STATUS_BAD_FILE_FORMAT = -1110,
    QES_RNG_STATUS_ABSTRACT_BAD_COUNT = -1120,
    QES_RNG_STATUS_ABSTRACT_ZERO_COUNT = -1121,
    QES_RNG_STATUS_ABSTRACT_WRONG_KIND = -1122,
    QES_RNG_STATUS_NO_RDRAND = -1130,
    QES_RNG_STATUS_RDRAND_FAILED = -1131,
    QES_RNG_STATUS_NO_AES = -1140,
    QES_RNG_STATUS_BAD_IMAGE_FORMAT = -1200,
    QES_RNG_STATUS_GLOB_NOT_FOUND = -3000,
    QES_RNG_STATUS_GLOB_TABLE_FULL = -3001
};

/* Methods of a generator's initStream entry. */
enum {
    QES_INIT_SEED = 0,     /* n seed words (uint32) */
    QES_INIT_LEAPFROG = 1, /* n streams; params: int32 index of this stream */
    QES_INIT_SKIP = 2,     /* params: one uint64 count */
    QES_INIT_SKIP_EX = 3   /* params: n uint64 words, least significant first */
};

/* First ids of the built-in families. */
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

/* The method-word flag of the uniform generators that clamps results to [a, b]. */
#define QES_RNG_METHOD_UNIFORM_ACCURATE 0x40000000

/* The four entries of a basic generator. `stream` is the whole stream record. */
typedef int32_t (*QesInitStreamFn)(int32_t method, void* stream, int32_t n, const void* params);
typedef int32_t (*QesSGenerateFn)(void* stream, int32_t n, float* r, float a, float b);
typedef int32_t (*QesDGenerateFn)(void* stream, int32_t n, double* r, double a, double b);
typedef int32_t (*QesIGenerateFn)(void* stream, int32_t n, void* r); /* wordSize bytes each */

/* One row of the generator tables. */
typedef struct BrngRecord {
    int32_t stateSize;    /* bytes of the stream record: 16-byte header + state */
    int32_t seedCount;    /* seed words that fill the state */
    int32_t includesZero; /* 1 when an integer output can be 0 */
    int32_t wordSize;     /* bytes of one output word: 4, 8 or 16 */
    int32_t bitCount;     /* significant bits of a word */
    QesInitStreamFn initStream;
    QesSGenerateFn sGenerate;
    QesDGenerateFn dGenerate;
    QesIGenerateFn iGenerate;
} BrngRecord;

/* A cell of a stream's chunk list. A non-zero guid marks data shared through the
 * process-wide read-only table, which then owns it. */
typedef struct QesChunk {
    int32_t id;
    uint32_t size;
    void* data;
    struct QesChunk* next;
    uint64_t guid[2];
} QesChunk;

/* A row of the process-wide read-only data table. */
typedef struct GlobRODataEntry {
    uint64_t idLow;
    uint64_t idHigh;
    uint32_t refCount;
    void* data;
} GlobRODataEntry;

/* Registry. The two tables are exported data of 512 rows each. */
extern BrngRecord __RegBrngs[512];
extern BrngRecord __RegBrngsNew[512];
BrngRecord* __qesGetBrngBaseOffset(int32_t id, int32_t* family, int32_t* member);
int32_t __qesIsBrngValid(const BrngRecord* table, int32_t family, int32_t member);
int32_t __qesGetBrngProperties(int32_t id, BrngRecord* record);
int32_t __qesGetNumRegBrngs(void);
int32_t __qesRegisterBrng(const BrngRecord* record); /* the new id, or a status */
int32_t __qesCPUisAES(void);
int32_t __qesCPUisRDRAND(void);
int32_t __qesCPUisVAES(void);

/* Streams. */
int32_t __qesNewStreamEx(void** stream, int32_t brng, int32_t n, const uint32_t* params);
int32_t __qesAllocateStream(void** stream, BrngRecord* table, int32_t brng, int32_t family,
                            int32_t member);
int32_t __qesCopyStream(void** newStream, const void* source);
int32_t __qesCopyStreamState(void* destination, const void* source);
int32_t __qesDeleteStream(void** stream);
int32_t __qesGetStreamStateBrng(const void* stream);
int32_t __qesGetStreamSize(const void* stream);

/* Chunks. guid points to two uint64 words, or is null for private data. */
int32_t __qesAddChunk(void* stream, int32_t id, const uint64_t* guid, void* data, uint32_t size);
void* __qesSearchChunk(const void* stream, int32_t id);
int32_t __qesGetNumChunks(const void* stream);
void __qesDeleteChunks(void* stream);
void __qesDeleteChunksById(void* stream, int32_t id);
int32_t __qesCopyChunks(void* destination, const void* source);

/* The shared read-only data table. */
int32_t __qesFindGlobRODataTableEntry(GlobRODataEntry** entry, const uint64_t* guid);
int32_t __qesCreateGlobRODataTableEntry(GlobRODataEntry** entry, const uint64_t* guid, void* data);
void __qesRegisterGlobRODataReference(QesChunk* chunk, const uint64_t* guid);
void __qesUnregisterGlobRODataReference(const uint64_t* guid);
int32_t __qesGenerateNewGlobalRODataTableEntryId(uint64_t* guid, int32_t kind);

/* Persistence: the version-2 stream image ("RNG"), in a file or a memory block.
 * nameLength >= 0: name has that many bytes, not terminated; negative: terminated.
 * A memory block for saving must be __qesGetStreamSize(stream) bytes long. */
int32_t __qesSaveStreamF(const void* stream, const char* name, int32_t nameLength);
int32_t __qesLoadStreamF(void** stream, const char* name, int32_t nameLength);
int32_t __qesSaveStreamM(const void* stream, void* memory);
int32_t __qesLoadStreamM(void** stream, const void* memory);

/* Jumps. */
int32_t __qesLeapfrogStream(void* stream, int32_t k, int32_t nstreams);
int32_t __qesSkipAheadStream(void* stream, uint64_t nskip);
int32_t __qesSkipAheadStreamEx(void* stream, int32_t n, const uint64_t* nskip);

/* Number theory behind the jumps. A modulus of the 3 x 3 powers is passed as its
 * negative 32-bit form: -209 stands for 4294967087. */
uint32_t __qesiPowMod(uint32_t base, uint32_t countLow, uint32_t countHigh, uint32_t modulus);
uint32_t __qesiPowMod2P31M1(uint32_t base, uint32_t countLow, uint32_t countHigh);
uint64_t __qesiPowMod2P59(uint32_t baseLow, uint32_t baseHigh, uint32_t countLow,
                          uint32_t countHigh);
void __qesiVect3PowMod(uint32_t* vector, const uint32_t* row, int32_t modulus, uint32_t countLow,
                       uint32_t countHigh);
int32_t __qesiVect3PowArrayMod(uint32_t* vector, const uint32_t* row, int32_t modulus, int32_t n,
                               const uint64_t* words);
void __qesiVect3PowArrayMod_M1(uint32_t* vector, int32_t n, const uint64_t* words,
                               const uint32_t* table);
void __qesiVect3PowArrayMod_M2(uint32_t* vector, int32_t n, const uint64_t* words,
                               const uint32_t* table);

/* x^count mod P(x) over GF(2); out gets wordCount little-endian 32-bit words. */
int32_t __qesPolyRem(uint64_t count, int32_t degree, int32_t termCount, const int32_t* terms,
                     int32_t wordCount, uint32_t* out);

/* Polynomial jump of a generator that is linear over GF(2). States are scratch
 * records of stateBytes bytes; the generator supplies the operations. */
typedef void (*QesJumpZeroFn)(void* state);
typedef void (*QesJumpAddFn)(void* destination, const void* source);
typedef void (*QesJumpCopyFn)(void* destination, const void* source);
typedef void (*QesJumpStepFn)(void* state);
typedef void (*QesJumpFinishFn)(void* stream, const void* result, int32_t remainder);
typedef int32_t (*QesJumpPrepareFn)(void* stream, uint64_t* count, int32_t* remainder);
int32_t __qes_SkipAheadHorner(void* stream, QesJumpZeroFn zero, QesJumpAddFn add,
                              QesJumpCopyFn copy, QesJumpStepFn step, QesJumpFinishFn finish,
                              QesJumpPrepareFn prepare, uint32_t countLow, uint32_t countHigh,
                              int32_t wordCount, int32_t degree, int32_t stateBytes,
                              int32_t termCount, const int32_t* terms);
int32_t __qes_SkipAheadSWin(void* stream, QesJumpZeroFn zero, QesJumpAddFn add, QesJumpCopyFn copy,
                            QesJumpStepFn step, QesJumpFinishFn finish, QesJumpPrepareFn prepare,
                            uint32_t countLow, uint32_t countHigh, int32_t wordCount,
                            int32_t degree, int32_t stateBytes, int32_t termCount,
                            const int32_t* terms);

/* Congruential generators. */
int32_t __qesBRngMCG31M1InitStream(int32_t method, void* stream, int32_t n, const void* params);
int32_t __qessBRngMCG31M1(void* stream, int32_t n, float* r, float a, float b);
int32_t __qesdBRngMCG31M1(void* stream, int32_t n, double* r, double a, double b);
int32_t __qesiBRngMCG31M1(void* stream, int32_t n, void* r);
int32_t __qesBRngMCG59InitStream(int32_t method, void* stream, int32_t n, const void* params);
int32_t __qessBRngMCG59(void* stream, int32_t n, float* r, float a, float b);
int32_t __qesdBRngMCG59(void* stream, int32_t n, double* r, double a, double b);
int32_t __qesiBRngMCG59(void* stream, int32_t n, void* r);

/* Mersenne Twister family. The state keeps raw (untempered) words. */
int32_t __qesBRngMT19937InitStream(int32_t method, void* stream, int32_t n, const void* params);
int32_t __qessBRngMT19937(void* stream, int32_t n, float* r, float a, float b);
int32_t __qesdBRngMT19937(void* stream, int32_t n, double* r, double a, double b);
int32_t __qesiBRngMT19937(void* stream, int32_t n, void* r);
/* MT2203: member m is id 0x900000 + m; members without verified parameters are
 * refused at seeding with -1000. */
int32_t __qesBRngMT2203InitStream(int32_t method, void* stream, int32_t n, const void* params);
int32_t __qessBRngMT2203(void* stream, int32_t n, float* r, float a, float b);
int32_t __qesdBRngMT2203(void* stream, int32_t n, double* r, double a, double b);
int32_t __qesiBRngMT2203(void* stream, int32_t n, void* r);
int32_t __qesBRngSFMT19937InitStream(int32_t method, void* stream, int32_t n, const void* params);
int32_t __qessBRngSFMT19937(void* stream, int32_t n, float* r, float a, float b);
int32_t __qesdBRngSFMT19937(void* stream, int32_t n, double* r, double a, double b);
int32_t __qesiBRngSFMT19937(void* stream, int32_t n, void* r);

/* Distribution generators: method, stream, n, result, parameters. */
int32_t _qessRngUniform(int32_t method, void* stream, int32_t n, float* r, float a, float b);
int32_t _qesdRngUniform(int32_t method, void* stream, int32_t n, double* r, double a, double b);
int32_t _qesiRngUniform(int32_t method, void* stream, int32_t n, int32_t* r, int32_t a, int32_t b);
int32_t _qesiRngUniformBits(int32_t method, void* stream, int32_t n, void* r);
int32_t _qesiRngUniformBits32(int32_t method, void* stream, int32_t n, uint32_t* r);
int32_t _qesiRngUniformBits64(int32_t method, void* stream, int32_t n, uint64_t* r);
int32_t _qesiRngBernoulli(int32_t method, void* stream, int32_t n, int32_t* r, double p);
int32_t _qesiRngGeometric(int32_t method, void* stream, int32_t n, int32_t* r, double p);

#ifdef __cplusplus
}
#endif

#endif
