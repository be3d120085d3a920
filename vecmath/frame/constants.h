/* The facts of the two floating formats that kernel bodies and scalar routines share,
 * each stated once: field widths, the bit patterns of the sign, magnitude, exponent
 * field and one, the shifter that rounds to an integer, and the splitter of exact
 * products. Bodies written once for both precisions take these as Format<T>::k... */
#ifndef BRENN_VECMATH_FRAME_CONSTANTS_H
#define BRENN_VECMATH_FRAME_CONSTANTS_H

#include <stdint.h>

namespace brenn::vm {

template <class T>
struct Format;

template <>
struct Format<float> {
    using UInt = uint32_t; // the same-width integer view
    using Int = int32_t;
    static constexpr int kMantBits = 23;
    static constexpr int kBias = 127;
    static constexpr UInt kSign = 0x80000000u;
    static constexpr UInt kAbs = 0x7FFFFFFFu;
    static constexpr UInt kExpField = 0x7F800000u; // also the bits of +infinity
    static constexpr UInt kMant = 0x007FFFFFu;
    static constexpr UInt kOne = 0x3F800000u;
    // 1.5 * 2^23: for |x| below 2^22, x + kShifter is rounded to an integer n (nearest
    // even, the entry rule's mode) and n sits in the low bits of its integer view, as a
    // two's-complement number; (x + kShifter) - kShifter is n, exactly.
    static constexpr float kShifter = 0x1.8p23f;
    // 2^12 + 1: Veltkamp's splitter, a*kSplitter - (a*kSplitter - a) keeps the top 12
    // significant bits of a.
    static constexpr float kSplitter = 0x1.001p12f;
};

template <>
struct Format<double> {
    using UInt = uint64_t;
    using Int = int64_t;
    static constexpr int kMantBits = 52;
    static constexpr int kBias = 1023;
    static constexpr UInt kSign = 0x8000000000000000ull;
    static constexpr UInt kAbs = 0x7FFFFFFFFFFFFFFFull;
    static constexpr UInt kExpField = 0x7FF0000000000000ull;
    static constexpr UInt kMant = 0x000FFFFFFFFFFFFFull;
    static constexpr UInt kOne = 0x3FF0000000000000ull;
    // 1.5 * 2^52: as for single, for |x| below 2^51; n is in the low 32-bit word of the
    // lane (and the whole 64-bit view less the shifter's bits).
    static constexpr double kShifter = 0x1.8p52;
    // 2^27 + 1: splits a double into two halves of 26 significant bits.
    static constexpr double kSplitter = 0x1.0000002p27;
};

template <class T>
using UInt = typename Format<T>::UInt;

} // namespace brenn::vm

#endif
