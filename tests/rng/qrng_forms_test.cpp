// The real forms of Sobol and Niederr, bit for bit against the words: 31 bits in
// the state path and 32 in the chunk path, in double and single precision, for
// every band of dimensions (the specialised kernels, the wide point, the 32-wide
// blocks with and without threads), on bounds with and without a power-of-two
// scale, under requests cut at random, from the start and near counter 2^31, and
// under every rounding mode.
#include <fenv.h>
#include <string.h>

#include <algorithm>
#include <random>

#include "platform/threader.h"
#include "tests/rng/qrng_harness.h"

namespace brenn::test {
namespace {

constexpr int32_t kSobol = QES_BRNG_SOBOL, kNiederr = QES_BRNG_NIEDERR;

int32_t Reals(int32_t id, void* s, int32_t n, double* r, double a, double b) {
    return id == kSobol ? __qesdBRngSobol(s, n, r, a, b) : __qesdBRngNiederr(s, n, r, a, b);
}
int32_t Reals(int32_t id, void* s, int32_t n, float* r, float a, float b) {
    return id == kSobol ? __qessBRngSobol(s, n, r, a, b) : __qessBRngNiederr(s, n, r, a, b);
}

// The element of word w as the generators define it.
double Want(uint32_t w, bool chunk, double a, double b) {
    if (chunk) return static_cast<double>(w) * ((b - a) * (1.0 / 4294967296.0)) + a;
    return static_cast<double>(static_cast<int32_t>(w >> 1)) * ((b - a) * (1.0 / 2147483648.0)) + a;
}
float Want(uint32_t w, bool chunk, float a, float b) {
    if (chunk)
        return static_cast<float>(w) * static_cast<float>((b - a) * (1.0 / 4294967296.0)) + a;
    return static_cast<float>(static_cast<int32_t>(w >> 1)) *
               static_cast<float>((b - a) * (1.0 / 2147483648.0)) +
           a;
}

template <typename T>
bool SameBits(T x, T y) {
    return memcmp(&x, &y, sizeof x) == 0;
}

// `total` elements of a stream made with params, after `skip` coordinates, drawn in
// requests of random length (short ones and runs of many points) against the forms
// of its words; reports the first difference.
template <typename T>
void ExpectForms(int32_t id, const QWords& params, bool chunk, T a, T b, int32_t total,
                 uint32_t seed, uint64_t skip = 0) {
    void* s = NewQrng(id, params);
    ASSERT_EQ(__qesSkipAheadStream(s, skip), 0);
    const QWords w = Draw(id, s, total);
    __qesDeleteStream(&s);
    std::mt19937 g(seed);
    s = NewQrng(id, params);
    ASSERT_EQ(__qesSkipAheadStream(s, skip), 0);
    std::vector<T> r(total);
    const int32_t dim = static_cast<int32_t>(params[0]);
    for (int32_t at = 0; at < total;) {
        const uint32_t longest = g() % 2 == 0 && at > 0 ? 5 * dim + 9 : 90 * dim + 9;
        const int32_t n = std::min<int32_t>(total - at, static_cast<int32_t>(g() % longest));
        ASSERT_EQ(Reals(id, s, n, r.data() + at, a, b), 0);
        at += n;
    }
    __qesDeleteStream(&s);
    for (int32_t i = 0; i < total; ++i)
        if (!SameBits(r[i], Want(w[i], chunk, a, b))) {
            ADD_FAILURE() << (id == kSobol ? "Sobol" : "Niederr") << " dimension " << dim
                          << (chunk ? " chunk" : " state") << (sizeof(T) == 4 ? " single" : "")
                          << " on [" << a << ", " << b << ") after " << skip << " element " << i
                          << ": " << r[i] << " for " << Want(w[i], chunk, a, b);
            return;
        }
}

struct FormCase {
    int32_t id;
    QWords params;
    bool chunk;
};

std::vector<FormCase> Cases() {
    std::vector<FormCase> c;
    // The state path: one coordinate, each kernel width, the first wide points.
    for (uint32_t d : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 33, 40})
        c.push_back({kSobol, {d}, false});
    for (uint32_t d : {1, 3, 12, 15, 16, 40, 64, 317, 318})
        c.push_back({kNiederr, {d}, false});
    // Sobol's user tables lie in chunks from any dimension; Niederr's above 318.
    for (int d : {1, 3, 8, 15, 16, 32, 40, 64, 100, 1000})
        c.push_back({kSobol, UserTable(d, d), true});
    c.push_back({kNiederr, UserTable(1000, 5), true});
    c.push_back({kNiederr, UserTable(331, 6), true});
    return c;
}

// Bounds with the scale a power of two ([0, 1), [-3, 5)) and not; b below a too.
constexpr double kBounds[][2] = {{0.0, 1.0}, {-3.0, 5.0}, {-1.25, 3.5}, {2.0, -1.0}, {0.0, 0.3}};

TEST(QrngForms, RealsAreTheFormsOfTheWordsInEveryBand) {
    uint32_t seed = 1;
    for (const FormCase& k : Cases()) {
        const int32_t dim = static_cast<int32_t>(k.params[0]);
        const int32_t total = dim >= 100 ? 40 * dim + 11 : 300 * dim + 11;
        // From the start, and from a counter near 2^31 where the high rows turn up.
        const uint64_t far = (uint64_t{1} << 31) * static_cast<uint64_t>(dim) - 7;
        // The chunk path runs in blocks over threads, or in this thread with 1.
        for (int threads : {1, 2}) {
            if (threads == 1 && !k.chunk) continue;
            const int previous = brenn_serv_set_num_threads(threads);
            for (const auto& ab : kBounds)
                for (uint64_t skip : {uint64_t{0}, far}) {
                    ExpectForms<double>(k.id, k.params, k.chunk, ab[0], ab[1], total, ++seed, skip);
                    ExpectForms<float>(k.id, k.params, k.chunk, static_cast<float>(ab[0]),
                                       static_cast<float>(ab[1]), total, ++seed, skip);
                }
            brenn_serv_set_num_threads(previous);
        }
    }
}

// Runs of whole points written from every place in a cache line, from an odd and
// an even counter: points of whole lines go in groups cut at line boundaries, the
// output taken as rotated points when it starts inside a line, with its first and
// last coordinates formed one by one. Nothing outside the request is written.
TEST(QrngForms, RunsFromEveryPlaceInALine) {
    const FormCase cases[] = {{kSobol, {40}, false},
                              {kSobol, {32}, false},
                              {kNiederr, {64}, false},
                              {kSobol, UserTable(64, 9), true}};
    constexpr int32_t kPoints = 69; // the second run starts at counter 70
    const double guard = -7.0;
    for (const FormCase& k : cases) {
        const int32_t dim = static_cast<int32_t>(k.params[0]), n = kPoints * dim;
        const QWords w = FirstQ(k.id, k.params, 2 * n);
        std::vector<double> buffer(2 * n + 24);
        double* line =
            buffer.data() + 8 + (64 - reinterpret_cast<uintptr_t>(buffer.data()) % 64) % 64 / 8;
        for (const auto& ab : {kBounds[0], kBounds[2]})
            for (int at = 0; at < 8; ++at) {
                std::fill(buffer.begin(), buffer.end(), guard);
                double* r = line + at;
                void* s = NewQrng(k.id, k.params);
                ASSERT_EQ(Reals(k.id, s, n, r, ab[0], ab[1]), 0);
                ASSERT_EQ(Reals(k.id, s, n, r + n, ab[0], ab[1]), 0);
                __qesDeleteStream(&s);
                EXPECT_EQ(r[-1], guard);
                EXPECT_EQ(r[2 * n], guard);
                for (int32_t i = 0; i < 2 * n; ++i)
                    if (!SameBits(r[i], Want(w[i], k.chunk, ab[0], ab[1]))) {
                        ADD_FAILURE()
                            << "dimension " << dim << " from " << at << " past a line on [" << ab[0]
                            << ", " << ab[1] << ") element " << i;
                        break;
                    }
            }
    }
}

// A zero coordinate (direction numbers 0 and 1 equal, so the second point is 0)
// must give +0 on [0, 1) and [0, 0.3) whatever the rounding: rounding down turns
// the zero difference of an exponent trick into -0.
TEST(QrngForms, ZeroCoordinateKeepsItsSignUnderEveryRounding) {
    QWords p = UserTable(2, 11);
    p[3 + 1] = p[3 + 0];
    for (int mode : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
        ASSERT_EQ(fesetround(mode), 0);
        ExpectForms<double>(kSobol, p, true, 0.0, 1.0, 400, 3);
        ExpectForms<double>(kSobol, p, true, 0.0, 0.3, 400, 3);
        ExpectForms<float>(kSobol, p, true, 0.0f, 1.0f, 400, 3);
        ExpectForms<double>(kSobol, {7}, false, 0.0, 1.0, 700, 4);
        ExpectForms<double>(kSobol, {7}, false, -1.0, 1.0, 700, 4);
        fesetround(FE_TONEAREST);
    }
    const QWords w = FirstQ(kSobol, p, 4);
    ASSERT_EQ(w[2], 0u);
}

} // namespace
} // namespace brenn::test
