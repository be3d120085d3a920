/* What the inverse trigonometric bodies share: the unit of the result (radians, or
 * half-turns for the pi-scaled rows), the base angles as whole quarter turns, and the
 * last step of every body, base + head + tail, in plain or compensated arithmetic.
 *
 * Every body ends with an angle k*(pi/4) + v + l: k a small whole number of quarter
 * turns (0 to 4) chosen by the folds, v the main term and l the small corrections. In
 * radians the head of pi/4 has 50 significant bits, so k times it is exact; in half-turns
 * the quarter is 1/4, exact, and v + l is first scaled by 1/pi (as a double-double in
 * the compensated form), so the pi-scaled rows land exactly on their exact points
 * (Atanpi(1) = 1/4, Acospi(-1) = 1) and keep their relative accuracy near them. The
 * folds keep |v| at most the base where the base is not 0 (|v| <= 1 against pi/2 or
 * more, |v|/pi below 0.33 against 1/2 or more), which the fast exact sum needs. */
#ifndef BRENN_VECMATH_INVTRIG_COMMON_H
#define BRENN_VECMATH_INVTRIG_COMMON_H

#include "vecmath/frame/level.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm::invtrig {

enum class Unit { Radian, Pi };

// A quarter turn in the unit and element type: head (exact times 0 to 4) and tail.
template <class T, Unit U>
struct Quarter;
template <>
struct Quarter<float, Unit::Radian> {
    static constexpr float kHi = 0x1.921fb6p-1f; // pi/4 (4 kHi = pi, 0x40490FDB)
    static constexpr float kLo = 0;
};
template <>
struct Quarter<double, Unit::Radian> {
    static constexpr double kHi = 0x1.921fb54442d18p-1; // 50 significant bits
    static constexpr double kLo = 0x1.1a62633145c07p-55;
};
template <class T>
struct Quarter<T, Unit::Pi> {
    static constexpr T kHi = T(0.25);
    static constexpr T kLo = 0;
};

// pi/4 less the single head Quarter<float, Unit::Radian>::kHi: the base's tail for the
// single HA bodies, which join it themselves (kLo stays 0 for the other single steps).
constexpr float kQuarterTailS = -0x1.777a5cp-26f;

// 1/pi in parts, the scale of the pi-scaled rows.
template <class T>
struct InvPi;
template <>
struct InvPi<float> {
    static constexpr float kHi = 0x1.45f306p-2f;
};
template <>
struct InvPi<double> {
    static constexpr double kHi = 0x1.45f306dc9c883p-2;
    static constexpr double kLo = -0x1.6b01ec5417056p-56;
};

// The angle k quarter turns + v + l in the unit U. Compensated: v + l is carried as a
// double-double (scaled by 1/pi as one in half-turns) and joined to the base by an
// exact sum, so the only rounding of size is the last one.
template <Unit U, bool Comp, class V>
BRENN_VEC V Finish(V k, V v, V l) {
    using T = ElemOf<V>;
    using Q = Quarter<T, U>;
    if constexpr (U == Unit::Pi) {
        if constexpr (Comp) {
            // Tiny angles are scaled up by 2^200 first (with the base, exactly): the product's
            // error term must not fall below the denormals' spacing. The result is
            // scaled back by one exact multiplication, rounded once into the denormals.
            V tiny = AsFloat(Lt(AsInt(Abs(v)), AsInt(Set<T>(0x1p-900))));
            V up = IfThenElse(tiny, Set<T>(0x1p200), Set<T>(1));
            v = Mul(v, up);
            l = Mul(l, up);
            V p, e;
            TwoProduct(v, Set<T>(InvPi<T>::kHi), p, e);
            l = Add(e, Add(Mul(l, Set<T>(InvPi<T>::kHi)), Mul(v, Set<T>(InvPi<T>::kLo))));
            V base = Mul(Mul(k, Set<T>(Q::kHi)), up);
            V s, se;
            FastTwoSum(base, p, s, se);
            return Mul(Add(s, Add(se, l)), IfThenElse(tiny, Set<T>(0x1p-200), Set<T>(1)));
        } else {
            v = Mul(Add(v, l), Set<T>(InvPi<T>::kHi));
            l = Zero<T>();
        }
    }
    V base = Mul(k, Set<T>(Q::kHi));
    if constexpr (Q::kLo != 0) l = Add(l, Mul(k, Set<T>(Q::kLo)));
    if constexpr (Comp) {
        // The base is 0 or at least as large as the main term, so the fast exact sum.
        V s, e;
        FastTwoSum(base, v, s, e);
        return Add(s, Add(e, l));
    } else if constexpr (U == Unit::Pi) {
        return Add(base, v);
    } else {
        return Add(base, Add(v, l));
    }
}

} // namespace brenn::vm::invtrig

#endif
