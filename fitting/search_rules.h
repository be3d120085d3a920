// The rules of the cell searchers, site by site and block by block. Every searcher
// gives the cell of a site as the count of nodes not above it, except that the right
// end x[nx-1] lies in cell nx-1; they differ in how they find it.
#ifndef BRENN_FITTING_SEARCH_RULES_H
#define BRENN_FITTING_SEARCH_RULES_H

#include <smmintrin.h>

#include "fitting/task.h"

namespace brenn::fit {

enum SearcherIndex {
    kSearchUniform = 0,
    kSearchQuasiUniform = 1,
    kSearchSorted = 2,
    kSearchPeak = 3,
    kSearchHybrid = 4,
    kSearchUserDef = 5,
    kSearchUniUserDef = 6
};

template <typename T>
using SearchCallback = int32_t (*)(const int64_t* count, const T* site, int64_t* cell,
                                   int32_t* flag, void* params, int64_t extra);

// What a searcher needs besides the sites: the partition, its scale, and for some the
// table, the peak or the caller's callback.
template <typename T>
struct SearchSetup {
    int index;
    int64_t nx;
    const T* x;
    T scale;
    const SearchPair* table; // hybrid; null: the whole partition is one bucket
    int64_t peak;
    SearchCallback<T> callback;
    void* params;
    int64_t extra;
};

// Uniform partition: the cell by the position alone; x holds the two ends.
template <typename T>
inline int64_t UniformCell(int64_t nx, T x0, T right, T scale, T s) {
    if (s == right) return nx - 1;
    if (s < x0) return 0;
    T q = (s - x0) * scale;
    if (!(q < static_cast<T>(nx))) return nx;
    int64_t e = static_cast<int64_t>(q) + 1;
    return e < nx ? e : nx;
}

// The walks of a guess, up past the nodes not above s and down past those above it,
// four nodes a test while all four pass and then one by one: the same stop as a walk
// node by node, whatever the nodes, with a quarter of the loop branches. A long walk
// node by node runs at the rate of taken branches, and that rate hangs on where the
// loop happens to lie in memory.
template <typename T>
inline int64_t WalkUp(int64_t nx, const T* x, T s, int64_t c) {
    while (c + 4 <= nx && ((x[c] <= s) & (x[c + 1] <= s) & (x[c + 2] <= s) & (x[c + 3] <= s)))
        c += 4;
    while (c < nx && x[c] <= s)
        ++c;
    return c;
}

template <typename T>
inline int64_t WalkDown(const T* x, T s, int64_t c) {
    while (c >= 4 && ((x[c - 1] > s) & (x[c - 2] > s) & (x[c - 3] > s) & (x[c - 4] > s)))
        c -= 4;
    while (c > 0 && x[c - 1] > s)
        --c;
    return c;
}

// From a guess e (0 to nx), the walk to the true cell.
template <typename T>
inline int64_t WalkFrom(int64_t nx, const T* x, T s, int64_t e) {
    if (e >= nx) return WalkDown(x, s, nx);
    if (s >= x[e]) return WalkUp(nx, x, s, e);
    return WalkDown(x, s, e);
}

template <typename T>
inline int64_t QuasiUniformCell(int64_t nx, const T* x, T scale, T s, int64_t guess) {
    if (s < x[0]) return 0;
    if (s == x[nx - 1]) return nx - 1;
    return WalkFrom(nx, x, s, guess);
}

template <typename T>
inline int64_t PeakCell(int64_t nx, const T* x, int64_t p, T s) {
    if (s == x[nx - 1]) return nx - 1;
    int64_t c = p;
    if (p >= nx) {
        if (s > x[nx - 1]) return nx;
        c = nx - 1;
        while (c > 0 && x[c - 1] > s)
            --c;
        return c;
    }
    if (s >= x[p]) {
        while (c < nx && x[c] <= s)
            ++c;
        return c;
    }
    if (p != 0 && x[p - 1] > s) {
        while (c > 0 && x[c - 1] > s)
            --c;
    }
    return c;
}

// Count of x[k] <= s for k in [lo, hi): two at a time with an early exit for short
// ranges, eight at a time without one for longer ones.
template <typename T>
inline int64_t CountNotAbove(const T* x, int64_t lo, int64_t hi, T s) {
    int64_t n = hi - lo;
    const T* p = x + lo;
    if (n >= 8) {
        int64_t count = 0, k = 0;
        for (; k + 8 <= n; k += 8) {
            count += (p[k] <= s) + (p[k + 1] <= s) + (p[k + 2] <= s) + (p[k + 3] <= s) +
                     (p[k + 4] <= s) + (p[k + 5] <= s) + (p[k + 6] <= s) + (p[k + 7] <= s);
        }
        for (; k < n; ++k)
            count += p[k] <= s;
        return count;
    }
    int64_t k = 0;
    for (; k + 2 <= n; k += 2) {
        bool a = p[k] <= s, b = p[k + 1] <= s;
        if (!(a && b)) return k + a;
    }
    if (k < n && p[k] <= s) ++k;
    return k;
}

constexpr int64_t kHybridLinearNodes = 20;

// The bucket of a site inside the partition. The conversion of a NaN (or of anything
// beyond 64 bits) is INT64_MIN on this hardware, whose byte offset into the table wraps
// to that of bucket 0; such a site reads bucket 0, without the overflow.
template <typename T>
inline int64_t HybridBucket(T x0, T scale, T s) {
    T q = (s - x0) * scale;
    constexpr T kLimit = T(9223372036854775808.0);
    return q > -kLimit && q < kLimit ? static_cast<int64_t>(q) : 0;
}

// The long form of CountNotAbove (8 to 20 nodes, every one counted) as a fixed window
// of 20 nodes from p, those at n and beyond masked off: the same sum without a branch.
// The compares are packed down to one bit mask (two bits a node in double precision,
// one in single) and counted at once. The whole window must lie inside the partition.
inline int64_t CountWindow(const double* p, int64_t n, double s) {
    __m128d sv = _mm_set1_pd(s);
    __m128i c[10];
    for (int k = 0; k < 10; ++k)
        c[k] = _mm_castpd_si128(_mm_cmple_pd(_mm_loadu_pd(p + 2 * k), sv));
    __m128i q0 = _mm_packs_epi16(_mm_packs_epi32(c[0], c[1]), _mm_packs_epi32(c[2], c[3]));
    __m128i q1 = _mm_packs_epi16(_mm_packs_epi32(c[4], c[5]), _mm_packs_epi32(c[6], c[7]));
    __m128i q2 = _mm_packs_epi16(_mm_packs_epi32(c[8], c[9]), _mm_setzero_si128());
    uint64_t bits = static_cast<uint64_t>(_mm_movemask_epi8(q0)) |
                    static_cast<uint64_t>(_mm_movemask_epi8(q1)) << 16 |
                    static_cast<uint64_t>(_mm_movemask_epi8(q2)) << 32;
    bits &= (uint64_t(1) << (2 * n)) - 1;
    return __builtin_popcountll(bits) >> 1;
}

inline int64_t CountWindow(const float* p, int64_t n, float s) {
    __m128 sv = _mm_set1_ps(s);
    __m128i c[5];
    for (int k = 0; k < 5; ++k)
        c[k] = _mm_castps_si128(_mm_cmple_ps(_mm_loadu_ps(p + 4 * k), sv));
    __m128i zero = _mm_setzero_si128();
    __m128i q0 = _mm_packs_epi16(_mm_packs_epi32(c[0], c[1]), _mm_packs_epi32(c[2], c[3]));
    __m128i q1 = _mm_packs_epi16(_mm_packs_epi32(c[4], zero), zero);
    uint32_t bits = static_cast<uint32_t>(_mm_movemask_epi8(q0)) |
                    static_cast<uint32_t>(_mm_movemask_epi8(q1)) << 16;
    bits &= (uint32_t(1) << n) - 1;
    return __builtin_popcount(bits);
}

// x[i0] > s0 and x[i1] > s1 as two 64-bit masks (false for a NaN); s holds s0, s1.
inline __m128i AbovePair(const double* x, int64_t i0, int64_t i1, const double* s) {
    __m128d v = _mm_loadh_pd(_mm_load_sd(x + i0), x + i1);
    return _mm_castpd_si128(_mm_cmpgt_pd(v, _mm_loadu_pd(s)));
}

inline __m128i AbovePair(const float* x, int64_t i0, int64_t i1, const float* s) {
    __m128 v = _mm_unpacklo_ps(_mm_load_ss(x + i0), _mm_load_ss(x + i1));
    __m128 sv = _mm_castpd_ps(_mm_load_sd(reinterpret_cast<const double*>(s)));
    return _mm_cvtepi32_epi64(_mm_castps_si128(_mm_cmpgt_ps(v, sv)));
}

// (a + b) >> 1 with the sign kept, lane by lane: SSE has no 64-bit arithmetic shift.
inline __m128i HalfSum(__m128i a, __m128i b) {
    __m128i sum = _mm_add_epi64(a, b);
    __m128i sign = _mm_and_si128(sum, _mm_set1_epi64x(INT64_MIN));
    return _mm_or_si128(_mm_srli_epi64(sum, 1), sign);
}

// Sites searched side by side by the hybrid searcher. A lone search is a chain of
// dependent loads, each a likely cache miss in a large partition, and of branches
// that go either way at random; with this many searches in step and selects in place
// of the branches, the loads of one round are independent and their misses overlap.
constexpr int kHybridLanes = 16;

// The hybrid rule over a block of sites, lane by lane. For one site the rule is: below
// the first node cell 0, above the last nx, at the last nx - 1; otherwise the table's
// bucket gives a range, bisection narrows it to 20 nodes or fewer, and the nodes not
// above the site are counted. The lanes take the same midpoints, so the same cells;
// only their order in time differs.
template <typename T>
void HybridCells(int64_t nx, const T* x, const SearchPair* table, T scale, int64_t n, const T* site,
                 int32_t* cell) {
    T x0 = x[0], right = x[nx - 1];
    for (int64_t i = 0; i < n; i += kHybridLanes) {
        int g = n - i < kHybridLanes ? static_cast<int>(n - i) : kHybridLanes;
        int32_t* out = cell + i;
        alignas(16) T s[kHybridLanes];
        alignas(16) int64_t lo[kHybridLanes], hi[kHybridLanes];
        uint32_t pending = 0;
        // Sites outside or at the right end settle here; their lanes, and those past
        // the block's end, idle through the rounds with lo = hi = 0.
        for (int j = 0; j < kHybridLanes; ++j) {
            T v = j < g ? site[i + j] : x0;
            s[j] = v;
            lo[j] = hi[j] = 0;
            if (j >= g) continue;
            if (v < x0) {
                out[j] = 0;
            } else if (v > right) {
                out[j] = static_cast<int32_t>(nx);
            } else if (v == right) {
                out[j] = static_cast<int32_t>(nx - 1);
            } else {
                if (table != nullptr) {
                    const SearchPair& e = table[HybridBucket(x0, scale, v)];
                    lo[j] = e.lo;
                    hi[j] = e.hi;
                } else {
                    hi[j] = nx - 1;
                }
                pending |= 1u << j;
            }
        }
        // Bisection rounds until every lane is down to 20 nodes, two lanes a vector:
        // selects rather than branches, which would be mispredicted half the time.
        for (bool more = pending != 0; more;) {
            __m128i any = _mm_setzero_si128();
            const __m128i limit = _mm_set1_epi64x(kHybridLinearNodes);
            for (int j = 0; j < kHybridLanes; j += 2) {
                __m128i l = _mm_load_si128(reinterpret_cast<const __m128i*>(lo + j));
                __m128i h = _mm_load_si128(reinterpret_cast<const __m128i*>(hi + j));
                // All ones while the lane has more than 20 nodes. A lane that is done
                // compares x[0], which is not above its site (or it lies outside and
                // lo = hi = 0), with lo as the midpoint: the update leaves it as it is.
                __m128i active = _mm_cmpgt_epi64(_mm_sub_epi64(h, limit), l);
                __m128i mid = _mm_and_si128(HalfSum(l, h), active);
                __m128i above =
                    AbovePair(x, _mm_cvtsi128_si64(mid), _mm_extract_epi64(mid, 1), s + j);
                __m128i m = _mm_blendv_epi8(l, mid, active);
                h = _mm_blendv_epi8(h, m, above);
                l = _mm_blendv_epi8(m, l, above);
                _mm_store_si128(reinterpret_cast<__m128i*>(lo + j), l);
                _mm_store_si128(reinterpret_cast<__m128i*>(hi + j), h);
                any = _mm_or_si128(any, _mm_cmpgt_epi64(_mm_sub_epi64(h, limit), l));
            }
            more = !_mm_testz_si128(any, any);
        }
        for (int j = 0; j < g; ++j) {
            if (!((pending >> j) & 1)) continue;
            int64_t l = lo[j], h = hi[j], w = h - l;
            int64_t c;
            if (w < 2)
                c = h;
            else if (w < 8 || l < 0 || l > nx - kHybridLinearNodes)
                c = l + CountNotAbove(x, l, h, s[j]);
            else
                c = l + CountWindow(x + l, w, s[j]);
            out[j] = static_cast<int32_t>(c);
        }
    }
}

// The sorted searcher's running walk over ascending sites.
template <typename T>
struct SortedWalk {
    int64_t nx;
    const T* x;
    int64_t c;
    bool fresh = true; // bisect before the next walk

    int64_t Next(T s) {
        if (s == x[nx - 1]) {
            fresh = true;
            return nx - 1;
        }
        if (fresh) {
            int64_t half = nx / 2, hi = nx;
            while (c < hi - half) {
                int64_t m = (c + hi) / 2;
                if (x[m] > s)
                    hi = m;
                else
                    c = m;
            }
            fresh = false;
        }
        while (c < nx && x[c] <= s)
            ++c;
        return c;
    }
};

// Runs a plain searcher (indices 0 to 4) over n sites into 32-bit cells. position is
// the running cell of the sorted searcher, in and out.
template <typename T>
void SearchPlain(const SearchSetup<T>& st, int64_t n, const T* site, int32_t* cell,
                 int64_t* position) {
    int64_t nx = st.nx;
    const T* x = st.x;
    switch (st.index) {
    case kSearchUniform: {
        T x0 = x[0], right = x[1];
        int64_t i = 0;
        for (; i + 4 <= n; i += 4) {
            cell[i] = static_cast<int32_t>(UniformCell(nx, x0, right, st.scale, site[i]));
            cell[i + 1] = static_cast<int32_t>(UniformCell(nx, x0, right, st.scale, site[i + 1]));
            cell[i + 2] = static_cast<int32_t>(UniformCell(nx, x0, right, st.scale, site[i + 2]));
            cell[i + 3] = static_cast<int32_t>(UniformCell(nx, x0, right, st.scale, site[i + 3]));
        }
        for (; i < n; ++i)
            cell[i] = static_cast<int32_t>(UniformCell(nx, x0, right, st.scale, site[i]));
        break;
    }
    case kSearchQuasiUniform: {
        // Guesses for a block of 32 first, then the walks.
        int64_t guess[32];
        T x0 = x[0], right = x[nx - 1];
        for (int64_t i = 0; i < n; i += 32) {
            int64_t m = n - i < 32 ? n - i : 32;
            for (int64_t j = 0; j < m; ++j)
                guess[j] = UniformCell(nx, x0, right, st.scale, site[i + j]);
            for (int64_t j = 0; j < m; ++j)
                cell[i + j] =
                    static_cast<int32_t>(QuasiUniformCell(nx, x, st.scale, site[i + j], guess[j]));
        }
        break;
    }
    case kSearchSorted: {
        SortedWalk<T> walk{nx, x, position != nullptr ? *position : 0};
        for (int64_t i = 0; i < n; ++i)
            cell[i] = static_cast<int32_t>(walk.Next(site[i]));
        if (position != nullptr) *position = walk.c;
        break;
    }
    case kSearchPeak:
        for (int64_t i = 0; i < n; ++i)
            cell[i] = static_cast<int32_t>(PeakCell(nx, x, st.peak, site[i]));
        break;
    default:
        HybridCells(nx, x, st.table, st.scale, n, site, cell);
        break;
    }
}

// Chooses the searcher: callback, partition hint, site hint, data hint, in that order.
// -1026 for a malformed data hint.
template <typename T>
int32_t SelectSearcher(const FittingTask* task, const T* dataHint, bool callback, int64_t siteHint,
                       int* index) {
    if (callback) {
        *index = task->xHint == FIT_X_UNIFORM ? kSearchUniUserDef : kSearchUserDef;
        return FIT_STATUS_OK;
    }
    if (task->xHint == FIT_X_UNIFORM) {
        *index = kSearchUniform;
    } else if (task->xHint == FIT_X_QUASI_UNIFORM) {
        *index = kSearchQuasiUniform;
    } else if (siteHint == FIT_SITES_SORTED) {
        *index = kSearchSorted;
    } else if (dataHint != nullptr) {
        if (dataHint[1] == T(1)) {
            if (!(dataHint[4] >= T(0) && dataHint[4] <= static_cast<T>(task->nx)))
                return FIT_STATUS_BAD_DATA_HINT;
            *index = kSearchPeak;
        } else if (dataHint[1] == T(0)) {
            *index = kSearchHybrid;
        } else {
            return FIT_STATUS_BAD_DATA_HINT;
        }
    } else {
        *index = kSearchHybrid;
    }
    return FIT_STATUS_OK;
}

// The searcher's scale and helpers from the task.
template <typename T>
SearchSetup<T> MakeSearchSetup(int index, const FittingTask* task, const T* dataHint,
                               SearchCallback<T> callback, void* params, int64_t extra) {
    SearchSetup<T> st{};
    st.index = index;
    st.nx = task->nx;
    st.x = static_cast<const T*>(task->x);
    st.callback = callback;
    st.params = params;
    st.extra = extra;
    const T* x = st.x;
    if (index == kSearchUniform || index == kSearchUniUserDef)
        st.scale = static_cast<T>(st.nx - 1) / (x[1] - x[0]);
    else if (index == kSearchQuasiUniform || index == kSearchUserDef)
        st.scale = static_cast<T>(st.nx - 1) / (x[st.nx - 1] - x[0]);
    else if (index == kSearchPeak)
        st.peak = dataHint != nullptr ? static_cast<int64_t>(dataHint[4]) : 0;
    else if (index == kSearchHybrid) {
        st.scale = SearchScale<T>(task);
        st.table = task->searchCells > 0 ? task->searchTable : nullptr;
    }
    return st;
}

// A user-defined searcher over n sites in blocks of 128: the callback's cells, with
// the cells it does not vouch for corrected. Cells are stored 64-bit when wide.
template <typename T>
int32_t SearchUser(const SearchSetup<T>& st, int64_t n, const T* site, void* cell, bool wide);

} // namespace brenn::fit

#endif
