// Bitwise check of the pack and unpack rows: random raw words (signalling NaNs among
// them) moved by stride, mask and index, with both index widths, every count 0 to 40
// and a long one; elements the operation does not name must stay as they were.
#include <math.h>
#include <stdio.h>
#include <string.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "frame/dispatch.h"
#include "tools/accuracy/measure.h"

namespace brenn::tools {

namespace {

using PackIFn = void (*)(int64_t, const void*, int64_t, void*, int32_t);
using PackMFn = void (*)(int64_t, const void*, const void*, void*, int32_t);
using UnpackIFn = void (*)(int64_t, const void*, void*, int64_t, int32_t);
using UnpackMFn = void (*)(int64_t, const void*, void*, const void*, int32_t);

size_t ElementSize(char type) {
    return type == 's' ? 4 : type == 'z' ? 16 : 8;
}

struct PackCase {
    long n;           // elements processed
    long inc;         // stride of I forms
    int32_t flag;     // 1: 32-bit n, increment, mask and index; else 64-bit
    bool garbageHigh; // 32-bit form with junk in the high words of n and increment
};

// Runs one case and returns the number of wrong words; describes the first.
long RunCase(const RowDesc& row, BrennKernel fn, const PackCase& pc, std::mt19937_64& rng,
             std::string* first) {
    const size_t es = ElementSize(row.type);
    const long n = pc.n, span = std::max<long>(1, n) * pc.inc + 8;
    std::vector<unsigned char> src(span * es), dst(span * es), want;
    for (auto& b : src)
        b = static_cast<unsigned char>(rng());
    // plant signalling NaNs of the element's real type
    for (long i = 0; i + 1 < span; i += 5) {
        if (row.type == 's' || row.type == 'c') {
            uint32_t snan =
                0x7F800001u | static_cast<uint32_t>(rng() & 0x1FFFFE) | (rng() & 1u) << 31;
            memcpy(&src[i * es], &snan, 4);
        } else {
            uint64_t snan =
                0x7FF0000000000001ull | (rng() & 0x3FFFFFFFFFFFEull) | (rng() & 1ull) << 63;
            memcpy(&src[i * es], &snan, 8);
        }
    }
    for (auto& b : dst)
        b = 0xC3;
    want = dst;
    // masks and indices in both widths
    const bool wide = pc.flag != 1;
    std::vector<int32_t> m32(std::max<long>(1, n)), i32(std::max<long>(1, n));
    std::vector<int64_t> m64(std::max<long>(1, n)), i64(std::max<long>(1, n));
    std::vector<long> perm(std::max<long>(1, n));
    for (long i = 0; i < n; ++i)
        perm[i] = i;
    std::shuffle(perm.begin(), perm.begin() + std::max<long>(0, n), rng);
    for (long i = 0; i < n; ++i) {
        bool on = rng() % 3 != 0;
        m32[i] = on ? static_cast<int32_t>(rng() | 1) : 0;
        // a wide mask word that is non-zero only in its high half still counts
        m64[i] = on ? ((rng() & 1) ? int64_t(1) << 40 : static_cast<int64_t>(rng() | 1)) : 0;
        long idx = (row.shape == Shape::UnpackV) ? perm[i] : static_cast<long>(rng() % span);
        i32[i] = static_cast<int32_t>(idx);
        i64[i] = idx;
    }
    const void* mask = wide ? static_cast<const void*>(m64.data()) : m32.data();
    const void* index = wide ? static_cast<const void*>(i64.data()) : i32.data();
    int64_t nArg = n, incArg = pc.inc;
    if (pc.garbageHigh) {
        nArg = static_cast<int64_t>((uint64_t(0x5A5A) << 32) | static_cast<uint32_t>(n));
        incArg = static_cast<int64_t>((uint64_t(0x3C3C) << 32) | static_cast<uint32_t>(pc.inc));
    }
    auto maskOn = [&](long i) { return wide ? m64[i] != 0 : m32[i] != 0; };
    auto at = [&](std::vector<unsigned char>& v, long i) { return &v[i * es]; };
    long j = 0;
    switch (row.shape) {
    case Shape::PackI:
        for (long i = 0; i < n; ++i)
            memcpy(at(want, i), at(src, i * pc.inc), es);
        reinterpret_cast<PackIFn>(fn)(nArg, src.data(), incArg, dst.data(), pc.flag);
        break;
    case Shape::PackM:
        for (long i = 0; i < n; ++i)
            if (maskOn(i)) memcpy(at(want, j++), at(src, i), es);
        reinterpret_cast<PackMFn>(fn)(nArg, src.data(), mask, dst.data(), pc.flag);
        break;
    case Shape::PackV:
        for (long i = 0; i < n; ++i)
            memcpy(at(want, i), at(src, wide ? i64[i] : i32[i]), es);
        reinterpret_cast<PackMFn>(fn)(nArg, src.data(), index, dst.data(), pc.flag);
        break;
    case Shape::UnpackI:
        for (long i = 0; i < n; ++i)
            memcpy(at(want, i * pc.inc), at(src, i), es);
        reinterpret_cast<UnpackIFn>(fn)(nArg, src.data(), dst.data(), incArg, pc.flag);
        break;
    case Shape::UnpackM:
        for (long i = 0; i < n; ++i)
            if (maskOn(i)) memcpy(at(want, i), at(src, j++), es);
        reinterpret_cast<UnpackMFn>(fn)(nArg, src.data(), dst.data(), mask, pc.flag);
        break;
    case Shape::UnpackV:
        for (long i = 0; i < n; ++i)
            memcpy(at(want, wide ? i64[i] : i32[i]), at(src, i), es);
        reinterpret_cast<UnpackMFn>(fn)(nArg, src.data(), dst.data(), index, pc.flag);
        break;
    default:
        return 0;
    }
    long wrong = 0;
    for (long e = 0; e < span; ++e)
        if (memcmp(at(dst, e), at(want, e), es) != 0) {
            if (wrong++ == 0) {
                char buf[160];
                snprintf(buf, sizeof buf,
                         "n = %ld, increment = %ld, flag = %d%s: element %ld differs", n, pc.inc,
                         pc.flag, pc.garbageHigh ? " (junk high words)" : "", e);
                *first = buf;
            }
        }
    return wrong;
}

} // namespace

void MeasurePackRow(const RowDesc& row, const Options& options, const BrennKernel slots[3],
                    SlotResult out[3]) {
    std::mt19937_64 rng(options.seed + static_cast<uint64_t>(row.index));
    for (int s = 0; s < 3; ++s) {
        if (!slots[s]) continue;
        int same = -1;
        for (int q = 0; q < s; ++q)
            if (same < 0 && slots[q] == slots[s]) same = q;
        if (same >= 0) {
            out[s] = out[same];
            out[s].sameAs = same;
            continue;
        }
        SlotResult r;
        r.present = true;
        r.minBits = 0;
        std::vector<PackCase> cases;
        for (int32_t flag : {1, 0})
            for (long n : {0L, -1L, 1000L})
                cases.push_back({n, 2, flag, false});
        for (int32_t flag : {1, 0})
            for (long n = 1; n <= 40; ++n)
                for (long inc = 1; inc <= 3; ++inc)
                    cases.push_back({n, inc, flag, flag == 1 && (n + inc) % 2 == 0});
        for (const PackCase& pc : cases) {
            std::string first;
            long wrong = RunCase(row, slots[s], pc, rng, &first);
            r.checked += std::max<long>(0, pc.n);
            if (wrong && !r.mismatches) r.worst = first;
            r.mismatches += wrong;
        }
        r.maxUlp = r.mismatches ? INFINITY : 0;
        r.minBits = r.mismatches ? 0 : 64;
        out[s] = r;
    }
}

} // namespace brenn::tools
