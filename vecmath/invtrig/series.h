/* The series of the inverse trigonometric bodies, each as data and the form that
 * evaluates it: asin(s) = s + s^3 P(s^2) after the fold at 1/2, atan(t) = t + t^3 P(t^2)
 * after the folds of the double steps, and the two single atan forms on [0, 1].
 * Tail(w, u) is the series less its leading term, u P(w) w, for u = s or 2s. */
#ifndef BRENN_VECMATH_INVTRIG_SERIES_H
#define BRENN_VECMATH_INVTRIG_SERIES_H

#include "vecmath/frame/vec.h"

namespace brenn::vm::invtrig {

// Single EP: p(w) = (c2 w + c1) w + c0, the tail p(w) u (0x380561A3, 0x3E2876B2,
// 0x3DC4C6AE), within 2^-12 of asin over the folded range.
struct AsinSingleEP {
    static constexpr float kP[] = {3.18006023e-05f, 0.164515287f, 0.0960820764f};
    static BRENN_VEC __m128 Tail(__m128 w, __m128 u) { return Mul(Horner(w, kP), u); }
};

// Single LA, from tools/invtrig/asin_single.sollya (relative error 2^-27.6).
struct AsinSingleLA {
    static constexpr float kP[] = {0x1.5555c8p-3f, 0x1.330206p-4f, 0x1.747b72p-5f, 0x1.8c415ap-6f,
                                   0x1.5959aap-5f};
    static BRENN_VEC __m128 Tail(__m128 w, __m128 u) { return Mul(Mul(u, w), Horner(w, kP)); }
};

// From tools/invtrig/asin_double.sollya: six terms (relative error 2^-31.8; the
// pi-scaled double EP, and the pi-scaled single in double), twelve (2^-55.9, double LA),
// thirteen (2^-59.9, double HA).
template <class Set>
struct DoubleSeries {
    static BRENN_VEC __m128d Tail(__m128d w, __m128d u) {
        return Mul(Mul(u, w), Estrin(w, Set::kP));
    }
};
struct AsinDouble6Set {
    static constexpr double kP[] = {0x1.55554c5fb049bp-3, 0x1.33387c9d34b84p-4,
                                    0x1.6caed2156bccbp-5, 0x1.0491a13d066p-5,
                                    0x1.d91fa33709e92p-7, 0x1.3355c1d857444p-5};
};
struct AsinDouble12Set {
    static constexpr double kP[] = {
        0x1.555555555539p-3,  0x1.333333336e80fp-4, 0x1.6db6db427a4f9p-5,  0x1.f1c72c38fb295p-6,
        0x1.6e89f4401af12p-6, 0x1.1c6be1a66c286p-6, 0x1.c6fdc1ad0a76dp-7,  0x1.8ec2fc9502512p-7,
        0x1.abcf5d71aea63p-8, 0x1.3ff4a924fe512p-6, -0x1.09d327898dbebp-6, 0x1.056d6c4746a55p-5};
};
struct AsinDouble13Set {
    static constexpr double kP[] = {
        0x1.5555555555577p-3, 0x1.333333332e133p-4, 0x1.6db6db721247bp-5, 0x1.f1c71a95002fbp-6,
        0x1.6e8bdedebf9e1p-6, 0x1.1c49f077d5b5ap-6, 0x1.ca1f8af1f1d9ap-7, 0x1.75859dacf6aedp-7,
        0x1.613c1e6f4a2fp-7,  0x1.e5fbe8857f6f5p-9, 0x1.639a895132223p-6, -0x1.57fad0e39eaf7p-6,
        0x1.0b45e9f8e6b15p-5};
};
// Double EP: five terms by Horner's rule (tools/invtrig/asin_double_ep.sollya), fitted
// to the error the result takes from them: relative below the fold, and doubled against
// pi/2 - 2 asin(s) above it, where that is the smaller (2^-27.2 either way; the plain
// relative fit leaves 2^-26.6 in the folded Asin near |x| = 1/2).
struct AsinDouble5Set {
    static constexpr double kP[] = {0x1.5555e5ec0cfb9p-3, 0x1.32f95f0296042p-4,
                                    0x1.7545fe6a26482p-5, 0x1.84e354ba5e95dp-6,
                                    0x1.5f4ba3fb224b6p-5};
};
template <class Set>
struct DoubleSeriesHorner {
    static BRENN_VEC __m128d Tail(__m128d w, __m128d u) {
        return Mul(Mul(u, w), Horner(w, Set::kP));
    }
};
using AsinDouble5 = DoubleSeriesHorner<AsinDouble5Set>;
using AsinDouble6 = DoubleSeries<AsinDouble6Set>;
using AsinDouble12 = DoubleSeries<AsinDouble12Set>;
using AsinDouble13 = DoubleSeries<AsinDouble13Set>;

// From tools/invtrig/atan_double.sollya, on [0, tan(pi/8)]: five terms (relative error
// 2^-30.5; double EP, and single HA in double), eleven (2^-59.4; double LA and HA).
struct AtanDouble5Set {
    static constexpr double kP[] = {-0x1.5555492819243p-2, 0x1.9991961ab56f5p-3,
                                    -0x1.23b522dd804b2p-3, 0x1.b1ec307a41c35p-4,
                                    -0x1.f1ed8bf33e067p-5};
};
struct AtanDouble11Set {
    static constexpr double kP[] = {
        -0x1.555555555553dp-2, 0x1.999999999586fp-3, -0x1.24924922ad822p-3, 0x1.c71c70e61c795p-4,
        -0x1.745cf8ddd88a2p-4, 0x1.3b1119362319bp-4, -0x1.10ebb97d402bcp-4, 0x1.df0f5e340f914p-5,
        -0x1.9cd319718662cp-5, 0x1.37d6a2129d12p-5,  -0x1.256cacf01340dp-6};
};
using AtanDouble5 = DoubleSeries<AtanDouble5Set>;
using AtanDouble11 = DoubleSeries<AtanDouble11Set>;

// From tools/invtrig/atan_table.sollya, on the reduced argument of Atan's table
// (atan_tables.h): atan(u) ~ u + u^3 P(u^2), four terms in double for |u| <= 2^-5
// (relative error 2^-62.3), one in single for |u| <= 2^-6 (2^-28.9, a thirtieth of an
// ulp at most, and that only where |u| is near its end).
template <class T>
struct AtanTableSeries;
template <>
struct AtanTableSeries<double> {
    static constexpr double kP[] = {-0x1.55555555554eep-2, 0x1.99999997a2a57p-3,
                                    -0x1.249231619209fp-3, 0x1.c639f409ee9f5p-4};
};
template <>
struct AtanTableSeries<float> {
    static constexpr float kP[] = {-0x1.554abcp-2f};
};

// Single atan on [0, 1] as P(z), z = t^2, atan(t) ~ t P(z). EP: two halves side by side,
// (e0 z^2 + e1) z^2 + e2 + z (o0 z^2 + o1) (0x3CBEDCD4, 0x3E3D1CD1, 0x3F7FFDE4,
// 0xBDBA3A94, 0xBEA9C8F7).
BRENN_VEC __m128 AtanSingleEP(__m128 z) {
    __m128 z2 = Mul(z, z);
    __m128 even = Add(Mul(Add(Mul(Set<float>(0.0232986584f), z2), Set<float>(0.184680238f)), z2),
                      Set<float>(0.999967813f));
    __m128 odd = Add(Mul(Set<float>(-0.0909320414f), z2), Set<float>(-0.331611365f));
    return Add(even, Mul(z, odd));
}
// LA: eight terms in two chains over z^2 and the leading 1: even 0.00284988969,
// 0.0426915213, 0.106409341, 0.199926198 (0x3B3AC537, 0x3D2EDD4E, 0x3DD9ED24,
// 0x3E4CB974); odd -0.0160686299, -0.0750429481, -0.142036438, -0.333330721
// (0xBC83A25C, 0xBD99B01E, 0xBE117200, 0xBEAAAA53).
BRENN_VEC __m128 AtanSingleLA(__m128 z) {
    static constexpr float kEven[] = {0.199926198f, 0.106409341f, 0.0426915213f, 0.00284988969f};
    static constexpr float kOdd[] = {-0.333330721f, -0.142036438f, -0.0750429481f, -0.0160686299f};
    __m128 z2 = Mul(z, z);
    __m128 even = Horner(z2, kEven);
    __m128 odd = Horner(z2, kOdd);
    return Add(Set<float>(1.0f), Add(Mul(z, odd), Mul(z2, even)));
}

} // namespace brenn::vm::invtrig

#endif
