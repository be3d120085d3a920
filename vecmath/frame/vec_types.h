/* The register types of the vector vocabulary and what moves values in and out of them:
 * the float registers as the instruction set has them (Vec<float> is __m128,
 * Vec<double> is __m128d), one thin integer type per lane width (I32x4, I64x2) so that
 * overloads tell 32-bit lanes from 64-bit ones, the maps between them, loads, stores,
 * broadcast constants and bit casts. The rules of the vocabulary are stated in vec.h. */
#ifndef BRENN_VECMATH_FRAME_VEC_TYPES_H
#define BRENN_VECMATH_FRAME_VEC_TYPES_H

#include <nmmintrin.h>
#include <stdint.h>

#include <type_traits>

#include "vecmath/frame/constants.h"

// Every operation of the vocabulary is inlined, so that a body compiles to the
// instructions it names, as if written with the intrinsics.
#define BRENN_VEC inline __attribute__((always_inline))

namespace brenn::vm {

// Integer views of a register. Signedness belongs to the operation, not the type:
// compares are signed, ShiftRight is logical and ShiftRightSigned arithmetic.
struct I32x4 {
    __m128i v;
};
struct I64x2 {
    __m128i v;
};

// Register type by element type: float, double, and the integers of 32 and 64 bits.
template <class T>
struct VecOf;
template <>
struct VecOf<float> {
    using type = __m128;
};
template <>
struct VecOf<double> {
    using type = __m128d;
};
template <class T>
requires(std::is_integral_v<T> && sizeof(T) == 4) struct VecOf<T> {
    using type = I32x4;
};
template <class T>
requires(std::is_integral_v<T> && sizeof(T) == 8) struct VecOf<T> {
    using type = I64x2;
};
template <class T>
using Vec = typename VecOf<T>::type;

template <class T>
inline constexpr int kLanes = int(16 / sizeof(T));

// Element type and same-width integer view of a float register (by overloads: the
// vector types lose their attributes as explicit template arguments).
float ElemTag(__m128);
double ElemTag(__m128d);
I32x4 IntTag(__m128);
I64x2 IntTag(__m128d);
template <class V>
using ElemOf = decltype(ElemTag(V{}));
template <class V>
using IntOf = decltype(IntTag(V{}));

// Loads and stores of whole registers; unaligned unless the name says Aligned.
BRENN_VEC __m128 Load(const float* p) {
    return _mm_loadu_ps(p);
}
BRENN_VEC __m128d Load(const double* p) {
    return _mm_loadu_pd(p);
}
// Integer lanes of any of the four integer types, as their register type.
template <class T>
concept LaneInt = std::is_integral_v<T> && sizeof(T) >= 4;
template <LaneInt T>
BRENN_VEC Vec<T> Load(const T* p) {
    return {_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))};
}
BRENN_VEC __m128 LoadAligned(const float* p) {
    return _mm_load_ps(p);
}
BRENN_VEC __m128d LoadAligned(const double* p) {
    return _mm_load_pd(p);
}
BRENN_VEC void Store(float* p, __m128 v) {
    _mm_storeu_ps(p, v);
}
BRENN_VEC void Store(double* p, __m128d v) {
    _mm_storeu_pd(p, v);
}
template <LaneInt T>
BRENN_VEC void Store(T* p, Vec<T> v) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v.v);
}
BRENN_VEC void StoreAligned(float* p, __m128 v) {
    _mm_store_ps(p, v);
}
BRENN_VEC void StoreAligned(double* p, __m128d v) {
    _mm_store_pd(p, v);
}
template <LaneInt T>
BRENN_VEC void StoreAligned(T* p, Vec<T> v) {
    _mm_store_si128(reinterpret_cast<__m128i*>(p), v.v);
}
// Non-temporal stores (16-byte aligned p), past the cache; StreamFence orders them
// before what the caller does next.
BRENN_VEC void StoreStream(float* p, __m128 v) {
    _mm_stream_ps(p, v);
}
BRENN_VEC void StoreStream(double* p, __m128d v) {
    _mm_stream_pd(p, v);
}
BRENN_VEC void StreamFence() {
    _mm_sfence();
}

// Every lane v: Set<float>(0.5f), Set<int32_t>(-1), Set<UInt<T>>(Format<T>::kOne).
template <class T>
Vec<T> Set(T v);
template <>
BRENN_VEC __m128 Set<float>(float v) {
    return _mm_set1_ps(v);
}
template <>
BRENN_VEC __m128d Set<double>(double v) {
    return _mm_set1_pd(v);
}
template <>
BRENN_VEC I32x4 Set<int32_t>(int32_t v) {
    return {_mm_set1_epi32(v)};
}
template <>
BRENN_VEC I32x4 Set<uint32_t>(uint32_t v) {
    return {_mm_set1_epi32(int32_t(v))};
}
template <>
BRENN_VEC I64x2 Set<int64_t>(int64_t v) {
    return {_mm_set1_epi64x(v)};
}
template <>
BRENN_VEC I64x2 Set<uint64_t>(uint64_t v) {
    return {_mm_set1_epi64x(int64_t(v))};
}

template <class T>
Vec<T> Zero();
template <>
BRENN_VEC __m128 Zero<float>() {
    return _mm_setzero_ps();
}
template <>
BRENN_VEC __m128d Zero<double>() {
    return _mm_setzero_pd();
}
template <LaneInt T>
BRENN_VEC Vec<T> Zero() {
    return {_mm_setzero_si128()};
}

// Bit casts: the same 128 bits seen as another register type; no instruction.
BRENN_VEC __m128i RawBits(__m128 v) {
    return _mm_castps_si128(v);
}
BRENN_VEC __m128i RawBits(__m128d v) {
    return _mm_castpd_si128(v);
}
BRENN_VEC __m128i RawBits(I32x4 v) {
    return v.v;
}
BRENN_VEC __m128i RawBits(I64x2 v) {
    return v.v;
}
template <class To>
To FromRawBits(__m128i v);
template <>
BRENN_VEC __m128 FromRawBits<__m128>(__m128i v) {
    return _mm_castsi128_ps(v);
}
template <>
BRENN_VEC __m128d FromRawBits<__m128d>(__m128i v) {
    return _mm_castsi128_pd(v);
}
template <>
BRENN_VEC I32x4 FromRawBits<I32x4>(__m128i v) {
    return {v};
}
template <>
BRENN_VEC I64x2 FromRawBits<I64x2>(__m128i v) {
    return {v};
}
template <class To, class From>
BRENN_VEC To BitCast(From v) {
    return FromRawBits<To>(RawBits(v));
}

// The same-width integer view of a float register and back.
BRENN_VEC I32x4 AsInt(__m128 v) {
    return {_mm_castps_si128(v)};
}
BRENN_VEC I64x2 AsInt(__m128d v) {
    return {_mm_castpd_si128(v)};
}
BRENN_VEC __m128 AsFloat(I32x4 v) {
    return _mm_castsi128_ps(v.v);
}
BRENN_VEC __m128d AsFloat(I64x2 v) {
    return _mm_castsi128_pd(v.v);
}

// Every lane the float whose bits are b: masks and constants given as bit patterns.
template <class T>
BRENN_VEC Vec<T> SplatBits(UInt<T> b) {
    return AsFloat(Set<UInt<T>>(b));
}

// Two lanes from two scalars, lane 0 first.
BRENN_VEC __m128d SetLanes(double lane0, double lane1) {
    return _mm_set_pd(lane1, lane0);
}
BRENN_VEC I64x2 SetLanes(int64_t lane0, int64_t lane1) {
    return {_mm_set_epi64x(lane1, lane0)};
}

// v in lane 0, zeros in the others.
template <class T>
Vec<T> SetFirst(T v);
template <>
BRENN_VEC __m128 SetFirst<float>(float v) {
    return _mm_set_ss(v);
}
template <>
BRENN_VEC __m128d SetFirst<double>(double v) {
    return _mm_set_sd(v);
}

// Lane 0 as a scalar.
BRENN_VEC float GetLane(__m128 v) {
    return _mm_cvtss_f32(v);
}
BRENN_VEC double GetLane(__m128d v) {
    return _mm_cvtsd_f64(v);
}

// A lane mask from the low bits of b (bit k: lane k all ones), as a float register.
template <class T>
Vec<T> MaskFromBits(int b);
template <>
BRENN_VEC __m128 MaskFromBits<float>(int b) {
    return _mm_castsi128_ps(
        _mm_set_epi32(b & 8 ? -1 : 0, b & 4 ? -1 : 0, b & 2 ? -1 : 0, b & 1 ? -1 : 0));
}
template <>
BRENN_VEC __m128d MaskFromBits<double>(int b) {
    return _mm_castsi128_pd(_mm_set_epi64x(b & 2 ? -1 : 0, b & 1 ? -1 : 0));
}

// v unchanged, but hidden from the optimiser: a constant passed through Opaque is kept
// as written (a compare's limit is not turned into limit + 1 and a negation).
template <class V>
BRENN_VEC V Opaque(V v) {
    __m128i r = RawBits(v);
    asm("" : "+x"(r));
    return FromRawBits<V>(r);
}

} // namespace brenn::vm

#endif
