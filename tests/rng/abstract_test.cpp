// Abstract streams: what the constructors refuse; the callback's start index,
// minimum and maximum on every call against a model of the circular buffer; the
// wrap of the buffer; failing callbacks, which keep the last good state; the
// wrong-kind entries; and distribution generators fed through an abstract stream
// with copies of another stream's numbers, which must give that stream's variates.
#include <cmath>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "platform/serv.h"

namespace {

// The recording callback's world: it fills from its own counter, checks each call
// against the model, and returns what `answer` says (by default the maximum).
struct Recorder {
    int32_t bufferSize = 0;
    int32_t needed = 0; // what the request still needs, set by the test
    int32_t expectStart = 0;
    int32_t expectFree = 0;
    uint32_t next = 1; // the next value the callback writes
    int calls = 0;
    int32_t (*answer)(int32_t minimum, int32_t maximum) = nullptr;
    bool checked = true;
};
Recorder rec;

template <typename T>
int32_t Fill(void*, int32_t* bufferSize, T* buffer, int32_t* minimum, int32_t* maximum,
             int32_t* start) {
    ++rec.calls;
    if (rec.checked) {
        EXPECT_EQ(*bufferSize, rec.bufferSize);
        EXPECT_EQ(*start, rec.expectStart) << "call " << rec.calls;
        EXPECT_EQ(*maximum, rec.expectFree) << "call " << rec.calls;
        EXPECT_EQ(*minimum, std::min(rec.needed, rec.expectFree)) << "call " << rec.calls;
    }
    int32_t count = rec.answer ? rec.answer(*minimum, *maximum) : *maximum;
    for (int32_t k = 0; k < count && k <= *maximum; ++k)
        buffer[(*start + k) % *bufferSize] = static_cast<T>(rec.next++);
    // A request that takes all of it calls again where this one ended, the buffer
    // empty again.
    if (count > 0 && count <= rec.needed) {
        rec.expectStart = (*start + count) % *bufferSize;
        rec.needed -= count;
    }
    return count;
}

void* NewI(int32_t size, std::vector<uint32_t>& buffer) {
    buffer.assign(static_cast<size_t>(size), 0);
    void* s = nullptr;
    EXPECT_EQ(__qesiNewAbstractStream(&s, size, buffer.data(), Fill<uint32_t>), 0);
    return s;
}

TEST(RngAbstract, ConstructorsRefuseBadArguments) {
    std::vector<uint32_t> ib(4);
    std::vector<double> db(4);
    std::vector<float> fb(4);
    void* s = reinterpret_cast<void*>(1);
    EXPECT_EQ(__qesiNewAbstractStream(nullptr, 4, ib.data(), Fill<uint32_t>),
              QES_STATUS_BAD_ARGUMENT);
    EXPECT_EQ(__qesiNewAbstractStream(&s, 4, nullptr, Fill<uint32_t>), QES_STATUS_BAD_ARGUMENT);
    EXPECT_EQ(__qesiNewAbstractStream(&s, 4, ib.data(), nullptr), QES_STATUS_BAD_ARGUMENT);
    for (int32_t size : {0, -1, -100}) {
        EXPECT_EQ(__qesiNewAbstractStream(&s, size, ib.data(), Fill<uint32_t>),
                  QES_STATUS_BAD_ARGUMENT);
        EXPECT_EQ(__qesdNewAbstractStream(&s, size, db.data(), 0, 1, Fill<double>),
                  QES_STATUS_BAD_ARGUMENT);
        EXPECT_EQ(__qessNewAbstractStream(&s, size, fb.data(), 0, 1, Fill<float>),
                  QES_STATUS_BAD_ARGUMENT);
    }
    struct {
        double low, high;
        int32_t status;
    } bounds[] = {{1, 1, QES_STATUS_BAD_ARGUMENT},
                  {2, 1, QES_STATUS_BAD_ARGUMENT},
                  {-INFINITY, -INFINITY, QES_STATUS_BAD_ARGUMENT},
                  {0, 1, 0},
                  {-1e300, 1e300, 0},
                  {NAN, 1, 0}, // the test is !(low >= high)
                  {0, NAN, 0}};
    for (auto& b : bounds) {
        void* d = nullptr;
        void* f = nullptr;
        EXPECT_EQ(__qesdNewAbstractStream(&d, 4, db.data(), b.low, b.high, Fill<double>), b.status)
            << b.low << " " << b.high;
        EXPECT_EQ(__qessNewAbstractStream(&f, 4, fb.data(), static_cast<float>(b.low),
                                          static_cast<float>(b.high), Fill<float>),
                  b.status)
            << b.low << " " << b.high;
        if (d != nullptr) {
            EXPECT_EQ(__qesGetStreamStateBrng(d), QES_BRNG_DABSTRACT);
            __qesDeleteStream(&d);
        }
        if (f != nullptr) {
            EXPECT_EQ(__qesGetStreamStateBrng(f), QES_BRNG_SABSTRACT);
            __qesDeleteStream(&f);
        }
    }
    EXPECT_EQ(__qesdNewAbstractStream(&s, 4, nullptr, 0, 1, Fill<double>), QES_STATUS_BAD_ARGUMENT);
    EXPECT_EQ(__qessNewAbstractStream(&s, 4, fb.data(), 0, 1, nullptr), QES_STATUS_BAD_ARGUMENT);
    // No memory: -4 and nothing made.
    int64_t live = brenn_serv_live_allocations();
    brenn_serv_fail_allocation(1);
    s = nullptr;
    EXPECT_EQ(__qesiNewAbstractStream(&s, 4, ib.data(), Fill<uint32_t>), QES_STATUS_NO_MEMORY);
    brenn_serv_fail_allocation(0);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
    // Only the constructors make them.
    uint32_t seed = 1;
    for (int32_t id : {QES_BRNG_IABSTRACT, QES_BRNG_DABSTRACT, QES_BRNG_SABSTRACT})
        EXPECT_EQ(__qesNewStreamEx(&s, id, 1, &seed), QES_RNG_STATUS_BAD_BRNG);
}

// Requests of many lengths on buffers of several sizes, the callback answering its
// maximum, its minimum or something between: every call sees the start index after
// the unread elements, the free count as maximum and min(free, need) as minimum, and
// the values come out 1, 2, 3, ... with no gap and no repeat.
TEST(RngAbstract, TheCallbackSeesTheBuffersPositions) {
    int32_t (*answers[])(int32_t,
                         int32_t) = {nullptr, [](int32_t mn, int32_t) { return mn; },
                                     [](int32_t mn, int32_t mx) { return (mn + mx + 1) / 2; }};
    for (int32_t size : {1, 3, 7, 16}) {
        for (auto answer : answers) {
            std::vector<uint32_t> buffer;
            rec = Recorder{};
            rec.bufferSize = size;
            rec.answer = answer;
            void* s = NewI(size, buffer);
            uint32_t expect = 1; // the next value to come out
            for (int32_t n : {1, 2, 5, 0, 16, 3, 40, 1, 7}) {
                // Values are written in order from index 0 on, so the next unread
                // one, and so the buffer's positions, follow from the values.
                int32_t unread = static_cast<int32_t>(rec.next - expect);
                int32_t next = static_cast<int32_t>((expect - 1) % static_cast<uint32_t>(size));
                rec.needed = n - unread;
                rec.expectStart = (next + unread) % size;
                rec.expectFree = size; // what was unread is taken first
                int callsBefore = rec.calls;
                std::vector<uint32_t> r(static_cast<size_t>(n) + 1, 0);
                ASSERT_EQ(__qesiBRngiAbstract(s, n, r.data()), 0);
                for (int32_t i = 0; i < n; ++i)
                    ASSERT_EQ(r[i], expect++) << "size " << size << " n " << n << " at " << i;
                EXPECT_EQ(r[n], 0u) << "past the request";
                if (n <= unread) EXPECT_EQ(rec.calls, callsBefore) << "served from the buffer";
            }
            __qesDeleteStream(&s);
        }
    }
}

// Callbacks that answer by a fixed script, checked call by call: with a buffer of 5
// and answers 2, 3, 1 for a request of 6 the calls start at 0, 2, 0 (wrapped), with
// minimum min(free, need) and maximum the free count.
TEST(RngAbstract, CallsOfOneRequestInDetail) {
    struct Call {
        int32_t start, minimum, maximum, answer;
    };
    static std::vector<Call> calls;
    static size_t at;
    calls = {{0, 5, 5, 2}, {2, 4, 5, 3}, {0, 1, 5, 4}};
    at = 0;
    static uint32_t value;
    value = 1;
    auto cb = [](void*, int32_t* size, uint32_t* buffer, int32_t* mn, int32_t* mx,
                 int32_t* start) -> int32_t {
        EXPECT_LT(at, calls.size());
        if (at >= calls.size()) return 0;
        const Call& c = calls[at++];
        EXPECT_EQ(*start, c.start) << "call " << at;
        EXPECT_EQ(*mn, c.minimum) << "call " << at;
        EXPECT_EQ(*mx, c.maximum) << "call " << at;
        for (int32_t k = 0; k < c.answer; ++k)
            buffer[(*start + k) % *size] = value++;
        return c.answer;
    };
    std::vector<uint32_t> buffer(5);
    void* s = nullptr;
    ASSERT_EQ(__qesiNewAbstractStream(&s, 5, buffer.data(), cb), 0);
    std::vector<uint32_t> r(9);
    // 2 taken from [0, 2), 3 from [2, 5), then 4 written at 0..3 of which 1 is taken.
    ASSERT_EQ(__qesiBRngiAbstract(s, 6, r.data()), 0);
    EXPECT_EQ(at, 3u);
    EXPECT_EQ(std::vector<uint32_t>(r.begin(), r.begin() + 6),
              (std::vector<uint32_t>{1, 2, 3, 4, 5, 6}));
    // Three unread at 1..3; a request of 5 takes them, then refills from 4 (wrapping).
    calls = {{4, 2, 5, 5}};
    at = 0;
    ASSERT_EQ(__qesiBRngiAbstract(s, 5, r.data()), 0);
    EXPECT_EQ(std::vector<uint32_t>(r.begin(), r.begin() + 5),
              (std::vector<uint32_t>{7, 8, 9, 10, 11}));
    EXPECT_EQ(buffer[4], 10u);
    EXPECT_EQ(buffer[0], 11u);
    __qesDeleteStream(&s);
}

// A callback that answers 0 or more than the free count (or less than 0) fails the
// request; what was delivered stays in r, and the stream keeps its last good state:
// a later request with a good callback goes on without a gap.
TEST(RngAbstract, FailingCallbacksKeepTheLastGoodState) {
    struct {
        int32_t bad;
        int32_t status;
    } cases[] = {{0, QES_RNG_STATUS_ABSTRACT_ZERO_COUNT},
                 {-1, QES_RNG_STATUS_ABSTRACT_BAD_COUNT},
                 {6, QES_RNG_STATUS_ABSTRACT_BAD_COUNT}, // bufferSize + 1
                 {INT32_MIN, QES_RNG_STATUS_ABSTRACT_BAD_COUNT}};
    for (auto& c : cases) {
        static int32_t bad;
        static int goodCalls;
        bad = c.bad;
        goodCalls = 1;
        rec = Recorder{};
        rec.bufferSize = 5;
        rec.checked = false;
        rec.answer = [](int32_t, int32_t mx) {
            if (goodCalls-- > 0) return mx >= 3 ? 3 : mx;
            return bad;
        };
        std::vector<uint32_t> buffer;
        void* s = NewI(5, buffer);
        std::vector<uint32_t> r(8, 0);
        // First call gives 3 (1, 2, 3); the request needs 8, so the second call fails.
        EXPECT_EQ(__qesiBRngiAbstract(s, 8, r.data()), c.status) << c.bad;
        EXPECT_EQ(r[0], 1u);
        EXPECT_EQ(r[2], 3u);
        EXPECT_EQ(r[3], 0u);
        rec.answer = nullptr;
        rec.next = 100;
        // The buffer was left empty after 1, 2, 3: the next values are the refill's.
        ASSERT_EQ(__qesiBRngiAbstract(s, 2, r.data()), 0);
        EXPECT_EQ(r[0], 100u) << c.bad;
        EXPECT_EQ(r[1], 101u) << c.bad;
        __qesDeleteStream(&s);
    }
    // Unread elements are kept after a failure that came after them.
    static int phase;
    phase = 0;
    rec = Recorder{};
    rec.bufferSize = 5;
    rec.checked = false;
    rec.answer = [](int32_t, int32_t mx) { return phase++ == 0 ? mx : 0; };
    std::vector<uint32_t> buffer;
    void* s = NewI(5, buffer);
    std::vector<uint32_t> r(8, 0);
    ASSERT_EQ(__qesiBRngiAbstract(s, 2, r.data()), 0); // 1, 2; 3 unread
    EXPECT_EQ(__qesiBRngiAbstract(s, 6, r.data()),
              QES_RNG_STATUS_ABSTRACT_ZERO_COUNT); // 3, 4, 5 then 0
    EXPECT_EQ(r[2], 5u);
    rec.answer = nullptr;
    ASSERT_EQ(__qesiBRngiAbstract(s, 1, r.data()), 0);
    EXPECT_EQ(r[0], 6u);
    __qesDeleteStream(&s);
}

void* NullBufferStream(int32_t id) {
    // A record with a null buffer cannot be made by a constructor; seeding takes it.
    BrngRecord row;
    EXPECT_EQ(__qesGetBrngProperties(id, &row), 0);
    void* s = brenn_serv_allocate(static_cast<size_t>(row.stateSize), 128);
    std::vector<uint8_t> zeros(static_cast<size_t>(row.stateSize), 0);
    std::memcpy(s, zeros.data(), zeros.size());
    *static_cast<int32_t*>(s) = id;
    std::vector<uint8_t> args(static_cast<size_t>(row.stateSize) - 16, 0);
    *reinterpret_cast<int32_t*>(args.data()) = 4;
    EXPECT_EQ(row.initStream(QES_INIT_SEED, s, 0, args.data()), 0);
    return s;
}

// The entries of the wrong kind, distribution generators asking for the wrong kind,
// the seeding entries' refusals, a null buffer, and images: saved as they stand, never
// loaded.
TEST(RngAbstract, WrongKindsJumpsNullBuffersAndImages) {
    std::vector<uint32_t> ib(4);
    std::vector<double> db(4);
    std::vector<float> fb(4);
    void *i = nullptr, *d = nullptr, *f = nullptr;
    ASSERT_EQ(__qesiNewAbstractStream(&i, 4, ib.data(), Fill<uint32_t>), 0);
    ASSERT_EQ(__qesdNewAbstractStream(&d, 4, db.data(), 0, 1, Fill<double>), 0);
    ASSERT_EQ(__qessNewAbstractStream(&f, 4, fb.data(), 0, 1, Fill<float>), 0);
    float fr[4];
    double dr[4];
    uint32_t ir[4];
    int32_t bits[4];
    const int32_t wrong = QES_RNG_STATUS_ABSTRACT_WRONG_KIND;
    EXPECT_EQ(_qessRngUniform(0, i, 4, fr, 0, 1), wrong);
    EXPECT_EQ(_qesdRngUniform(0, i, 4, dr, 0, 1), wrong);
    EXPECT_EQ(_qessRngUniform(0, d, 4, fr, 0, 1), wrong);
    EXPECT_EQ(_qesiRngUniformBits(0, d, 4, ir), wrong);
    EXPECT_EQ(_qesdRngUniform(0, f, 4, dr, 0, 1), wrong);
    EXPECT_EQ(_qesiRngUniformBits(0, f, 4, ir), wrong);
    EXPECT_EQ(_qesiRngBernoulli(0, d, 4, bits, 0.5), wrong);
    EXPECT_EQ(__qesdBRngiAbstract(nullptr, 4, nullptr, 0, 1), wrong);
    for (int32_t id : {QES_BRNG_IABSTRACT, QES_BRNG_DABSTRACT, QES_BRNG_SABSTRACT}) {
        BrngRecord row;
        ASSERT_EQ(__qesGetBrngProperties(id, &row), 0);
        int real =
            (row.iGenerate !=
             reinterpret_cast<QesIGenerateFn>(reinterpret_cast<void (*)()>(__qesdBRngiAbstract))) +
            (row.dGenerate != __qesdBRngiAbstract) +
            (row.sGenerate !=
             reinterpret_cast<QesSGenerateFn>(reinterpret_cast<void (*)()>(__qesdBRngiAbstract)));
        EXPECT_EQ(real, 1) << std::hex << id << ": one real entry";
    }
    uint64_t count[2] = {1, 0};
    for (void* s : {i, d, f}) {
        EXPECT_EQ(__qesLeapfrogStream(s, 0, 2), QES_RNG_STATUS_NO_LEAPFROG);
        EXPECT_EQ(__qesSkipAheadStream(s, 1), QES_RNG_STATUS_NO_SKIPAHEAD);
        EXPECT_EQ(__qesSkipAheadStreamEx(s, 2, count), QES_RNG_STATUS_NO_SKIPAHEAD_EX);
        BrngRecord row;
        ASSERT_EQ(__qesGetBrngProperties(__qesGetStreamStateBrng(s), &row), 0);
        for (int32_t method : {-1, 4})
            EXPECT_EQ(row.initStream(method, s, 0, nullptr), QES_STATUS_BAD_METHOD);
        // Saved as they stand; the loader refuses them.
        std::vector<uint8_t> image(static_cast<size_t>(__qesGetStreamSize(s)));
        EXPECT_EQ(image.size(), static_cast<size_t>(row.stateSize) + 8);
        ASSERT_EQ(__qesSaveStreamM(s, image.data()), 0);
        void* loaded = reinterpret_cast<void*>(1);
        EXPECT_EQ(__qesLoadStreamM(&loaded, image.data()), QES_RNG_STATUS_BAD_IMAGE_FORMAT);
        EXPECT_EQ(loaded, nullptr);
        __qesDeleteStream(&s);
    }
    void* nb = NullBufferStream(QES_BRNG_DABSTRACT);
    EXPECT_EQ(__qesdBRngdAbstract(nb, 1, dr, 0, 1), QES_STATUS_NULL_POINTER);
    brenn_serv_deallocate(nb);
    nb = NullBufferStream(QES_BRNG_IABSTRACT);
    EXPECT_EQ(__qesiBRngiAbstract(nb, 1, ir), QES_STATUS_NULL_POINTER);
    brenn_serv_deallocate(nb);
}

// ---- Fed by another stream ----------------------------------------------------------

void* source; // the stream whose numbers a callback copies into the buffer

int32_t CopyDoubles(void*, int32_t* size, double* buffer, int32_t* mn, int32_t*, int32_t* start) {
    // The minimum only, in two pieces when the free run wraps.
    int32_t first = std::min(*mn, *size - *start);
    EXPECT_EQ(__qesdBRngMT19937(source, first, buffer + *start, 0.0, 1.0), 0);
    EXPECT_EQ(__qesdBRngMT19937(source, *mn - first, buffer, 0.0, 1.0), 0);
    return *mn;
}

int32_t CopyFloats(void*, int32_t* size, float* buffer, int32_t*, int32_t* mx, int32_t* start) {
    // The maximum: the whole free run.
    int32_t first = std::min(*mx, *size - *start);
    EXPECT_EQ(__qessBRngMT19937(source, first, buffer + *start, 0.0f, 1.0f), 0);
    EXPECT_EQ(__qessBRngMT19937(source, *mx - first, buffer, 0.0f, 1.0f), 0);
    return *mx;
}

// A stream fed with copies of an MT19937 stream's numbers on [0, 1) gives the same
// variates as that stream, whatever the buffer size: uniform doubles on another
// interval through dAbstract, Bernoulli and Geometric variates (which take single
// uniforms) through sAbstract.
TEST(RngAbstract, FedByAnotherStreamGivesItsVariates) {
    uint32_t seed = 5489;
    for (int32_t size : {1, 7, 1024}) {
        void *mt = nullptr, *fed = nullptr;
        ASSERT_EQ(__qesNewStreamEx(&mt, QES_BRNG_MT19937, 1, &seed), 0);
        ASSERT_EQ(__qesNewStreamEx(&source, QES_BRNG_MT19937, 1, &seed), 0);
        std::vector<double> db(static_cast<size_t>(size));
        ASSERT_EQ(__qesdNewAbstractStream(&fed, size, db.data(), 0.0, 1.0, CopyDoubles), 0);
        for (int32_t n : {1, 999, 3, 2048}) {
            std::vector<double> want(static_cast<size_t>(n)), got(static_cast<size_t>(n));
            ASSERT_EQ(_qesdRngUniform(0, mt, n, want.data(), -2.0, 3.0), 0);
            ASSERT_EQ(_qesdRngUniform(0, fed, n, got.data(), -2.0, 3.0), 0);
            ASSERT_EQ(got, want) << "buffer " << size << " n " << n;
        }
        __qesDeleteStream(&fed);
        __qesDeleteStream(&source);
        __qesDeleteStream(&mt);

        ASSERT_EQ(__qesNewStreamEx(&mt, QES_BRNG_MT19937, 1, &seed), 0);
        ASSERT_EQ(__qesNewStreamEx(&source, QES_BRNG_MT19937, 1, &seed), 0);
        std::vector<float> fb(static_cast<size_t>(size));
        ASSERT_EQ(__qessNewAbstractStream(&fed, size, fb.data(), 0.0f, 1.0f, CopyFloats), 0);
        for (int32_t n : {5, 1000}) {
            std::vector<int32_t> want(static_cast<size_t>(n)), got(static_cast<size_t>(n));
            ASSERT_EQ(_qesiRngBernoulli(0, mt, n, want.data(), 0.3), 0);
            ASSERT_EQ(_qesiRngBernoulli(0, fed, n, got.data(), 0.3), 0);
            ASSERT_EQ(got, want) << "buffer " << size << " Bernoulli n " << n;
            int32_t status = _qesiRngGeometric(0, mt, n, want.data(), 0.2);
            if (status == QES_STATUS_BAD_METHOD) continue; // a build without the Ln kernel
            ASSERT_EQ(_qesiRngGeometric(0, fed, n, got.data(), 0.2), 0);
            ASSERT_EQ(got, want) << "buffer " << size << " Geometric n " << n;
        }
        __qesDeleteStream(&fed);
        __qesDeleteStream(&source);
        __qesDeleteStream(&mt);
    }
}

// The real kinds map (x - low) (b - a) / (high - low) + a in their own precision.
TEST(RngAbstract, RealKindsMapTheBuffersInterval) {
    static double dv;
    dv = 0;
    auto dcb = [](void*, int32_t* size, double* buffer, int32_t*, int32_t* mx,
                  int32_t* start) -> int32_t {
        for (int32_t k = 0; k < *mx; ++k)
            buffer[(*start + k) % *size] = 10.0 + 0.37 * dv++;
        return *mx;
    };
    std::vector<double> db(6);
    void* d = nullptr;
    ASSERT_EQ(__qesdNewAbstractStream(&d, 6, db.data(), 10.0, 50.0, dcb), 0);
    std::vector<double> r(20);
    ASSERT_EQ(__qesdBRngdAbstract(d, 20, r.data(), -1.0, 3.0), 0);
    const double scale = (3.0 - -1.0) / (50.0 - 10.0);
    for (int k = 0; k < 20; ++k)
        EXPECT_EQ(r[k], ((10.0 + 0.37 * k) - 10.0) * scale + -1.0) << k;
    __qesDeleteStream(&d);

    static float fv;
    fv = 0;
    auto fcb = [](void*, int32_t* size, float* buffer, int32_t*, int32_t* mx,
                  int32_t* start) -> int32_t {
        for (int32_t k = 0; k < *mx; ++k)
            buffer[(*start + k) % *size] = 1.5f + 0.1f * fv++;
        return *mx;
    };
    std::vector<float> fb(3);
    void* f = nullptr;
    ASSERT_EQ(__qessNewAbstractStream(&f, 3, fb.data(), 1.5f, 4.0f, fcb), 0);
    std::vector<float> fr(10);
    ASSERT_EQ(__qessBRngsAbstract(f, 10, fr.data(), 0.0f, 7.0f), 0);
    const float fscale = (7.0f - 0.0f) / (4.0f - 1.5f);
    for (int k = 0; k < 10; ++k)
        EXPECT_EQ(fr[k], ((1.5f + 0.1f * static_cast<float>(k)) - 1.5f) * fscale + 0.0f) << k;
    __qesDeleteStream(&f);
}

} // namespace
