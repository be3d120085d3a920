/* Error-free transformations on registers, written once for both precisions, without
 * fused operations: a sum or a product carried as a rounded head and its error. They
 * hold in the absence of overflow and underflow; the products need head room of about
 * 2^(emax - kMantBits/2) (2^995 in double) for the splitter's product. */
#ifndef BRENN_VECMATH_FRAME_VEC_EXACT_H
#define BRENN_VECMATH_FRAME_VEC_EXACT_H

#include "vecmath/frame/vec_float.h"

namespace brenn::vm {

// s + e = a + b exactly, s = a + b rounded (Knuth; any order of magnitudes).
template <class V>
BRENN_VEC void TwoSum(V a, V b, V& s, V& e) {
    s = Add(a, b);
    V bb = Sub(s, a);
    e = Add(Sub(a, Sub(s, bb)), Sub(b, bb));
}

// The same for |a| >= |b| (or a = 0), in three operations (Dekker's fast sum).
template <class V>
BRENN_VEC void FastTwoSum(V a, V b, V& s, V& e) {
    s = Add(a, b);
    e = Sub(b, Sub(s, a));
}

// hi + lo = a, hi the top half of a's significand (12 bits of single, 26 of double) and
// lo the rest, both exact (Veltkamp).
template <class V>
BRENN_VEC void Split(V a, V& hi, V& lo) {
    V t = Mul(a, Set<ElemOf<V>>(Format<ElemOf<V>>::kSplitter));
    hi = Sub(t, Sub(t, a));
    lo = Sub(a, hi);
}

// hi = a*b rounded and lo its error (Dekker, from the halves of a and b). The cross
// products are added to each other before they join the rest, as these kernels have
// always done: that sum may round once, so hi + lo is a*b to within about 2^-78 of it
// (2^-35 in single), not always exactly.
template <class V>
BRENN_VEC void TwoProduct(V a, V b, V& hi, V& lo) {
    using T = ElemOf<V>;
    const V split = Set<T>(Format<T>::kSplitter);
    V ta = Mul(a, split), tb = Mul(b, split);
    V ah = Sub(ta, Sub(ta, a)), al = Sub(a, ah);
    V bh = Sub(tb, Sub(tb, b)), bl = Sub(b, bh);
    hi = Mul(a, b);
    lo = Add(Add(Sub(Mul(ah, bh), hi), Add(Mul(ah, bl), Mul(al, bh))), Mul(al, bl));
}

// The same with Dekker's order of the partial products, each step exact: hi + lo is a*b
// exactly under round to nearest, for products clear of overflow and of the denormal
// range (every partial product a multiple of the lowest bits' product, so also where
// a and b sit on coarse grids, as an integer times a normal number does).
template <class V>
BRENN_VEC void TwoProductExact(V a, V b, V& hi, V& lo) {
    V ah, al, bh, bl;
    Split(a, ah, al);
    Split(b, bh, bl);
    hi = Mul(a, b);
    lo = Add(Add(Add(Sub(Mul(ah, bh), hi), Mul(ah, bl)), Mul(al, bh)), Mul(al, bl));
}

} // namespace brenn::vm

#endif
