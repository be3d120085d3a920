// The Box-Muller method that uses both halves of each pair: sine and cosine from one
// SinCos. A cosine half left over by an odd call waits in a chunk of the stream as
// its two raw uniforms (-1.0 twice when none waits), so the variates a stream yields
// do not depend on how the calls cut them; a and sigma apply at delivery.
#include "rng/dist/continuous.h"
#include "rng/dist/pair_chunk.h"
#include "rng/dist/pair_passes.h"

namespace brenn::rng {

namespace {

// Radius sqrt(-2 ln u1) of `m` pairs taken from 2m words into `radius`, the angles
// 2 pi u2 into `sine` and `cosine`. The logarithm is out of place: the sentinel
// reads its argument back from the source.
template <typename T>
void Pairs(int32_t m, T* words, T* angle, T* radius, T* sine, T* cosine) {
    using C = Continuous<T>;
    SplitPairs(m, words, angle);
    C::SinCos(m, angle, sine, cosine);
    C::LnTo(m, words, radius);
    MinusTwice(m, radius);
    C::Sqrt(m, radius);
}

// r gets radius * sine, then radius * cosine, for each pair in order, each raw
// product then scaled and shifted: the same rounding as a raw half kept for a later
// call and scaled at delivery there.
template <typename T>
void Deliver(int32_t m, const T* radius, const T* sine, const T* cosine, T* r, T sigma, T a) {
    using L = Lanes<T>;
    const typename L::V s = L::Set(sigma), t = L::Set(a);
    int32_t i = 0;
    for (; i + L::kCount <= m; i += L::kCount) {
        typename L::V rad = L::LoadU(radius + i);
        typename L::V x = L::Fma(L::Mul(rad, L::LoadU(sine + i)), s, t);
        typename L::V y = L::Fma(L::Mul(rad, L::LoadU(cosine + i)), s, t);
        L::StoreU(r + 2 * i, L::InterleaveLow(x, y));
        L::StoreU(r + 2 * i + L::kCount, L::InterleaveHigh(x, y));
    }
    for (; i < m; ++i) {
        T x = radius[i] * sine[i], y = radius[i] * cosine[i];
        Put(r + 2 * i, x * sigma + a);
        Put(r + 2 * i + 1, y * sigma + a);
    }
}

} // namespace

template <typename T>
int32_t GaussianBoxMuller2(void* stream, int32_t n, T* r, T a, T sigma) {
    using C = Continuous<T>;
    if (n <= 0) return QES_STATUS_OK;
    int32_t status = QES_STATUS_OK;
    T* pending = PairChunk<T>(stream, C::kChunk, &status);
    if (pending == nullptr) return status;
    int32_t written = 0;
    if (pending[0] != T(-1)) {
        // The waiting cosine half, computed in the chunk itself: a failure later in
        // this call leaves the chunk as this step leaves it.
        pending[1] *= C::TwoPi();
        C::Cos(1, pending + 1);
        T l;
        C::LnTo(1, pending, &l);
        pending[0] = -(l + l);
        C::Sqrt(1, pending);
        T z = pending[0] * pending[1];
        Put(r, z * sigma + a);
        written = 1;
    }
    const int32_t owed = n - written;
    constexpr int32_t kHalf = kContinuousBlock / 2;
    alignas(16) T words[kContinuousBlock];
    alignas(16) T angle[kHalf], radius[kHalf], cosine[kHalf];
    T* sine = words + kHalf; // the angle words' half, free once they are read
    auto pairs = [&](int32_t m) {
        status = C::Uniform(stream, 2 * m, words, T(0), T(1));
        if (status < 0) return false;
        Pairs(m, words, angle, radius, sine, cosine);
        Deliver(m, radius, sine, cosine, r + written, sigma, a);
        written += 2 * m;
        return true;
    };
    for (int32_t b = owed / kContinuousBlock; b > 0; --b)
        if (!pairs(kHalf)) return status;
    const int32_t p = (n - written) / 2;
    if (p > 0 && !pairs(p)) return status;
    if (owed % 2 != 0) {
        T u[2];
        status = C::Uniform(stream, 2, u, T(0), T(1));
        if (status < 0) return status;
        pending[0] = u[0];
        pending[1] = u[1];
        T last, angle1 = u[1] * C::TwoPi();
        C::Sin(1, &angle1);
        C::LnTo(1, u, &last);
        last = -(last + last);
        C::Sqrt(1, &last);
        T z = last * angle1;
        Put(r + n - 1, z * sigma + a);
    } else {
        pending[0] = T(-1);
        pending[1] = T(-1);
    }
    return status;
}

template int32_t GaussianBoxMuller2<float>(void*, int32_t, float*, float, float);
template int32_t GaussianBoxMuller2<double>(void*, int32_t, double*, double, double);

} // namespace brenn::rng
