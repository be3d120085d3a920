/* Constants of the gamma family's shared mathematics (gamma_core.h), by working type:
 * long double for the double rows, double for the single rows. */
#ifndef BRENN_VECMATH_GAMMA_GAMMA_DATA_H
#define BRENN_VECMATH_GAMMA_GAMMA_DATA_H

#include "vecmath/gamma/ext_const.h"

namespace brenn::vm::gamma {

// The working type of a result type.
template <class T>
struct WideOf;
template <>
struct WideOf<double> {
    using W = long double;
};
template <>
struct WideOf<float> {
    using W = double;
};
template <class T>
using Wide = typename WideOf<T>::W;

template <class W>
struct GammaData;

template <>
struct GammaData<long double> {
    // H(z) = (Gamma(1 + z) - 1) / (z (z - 1)) on [i/4, (i+1)/4], polynomials in
    // z - (2i + 1)/8, by tools/gamma/gamma_core.sollya (degree 14, 2^-61.5 relative).
    static constexpr long double kH[4][15] = {
        {0x1.10b5f35993ed2a16p-1L, -0x1.3abefa012bc424cep-2L, 0x1.6820a76bb89ad18ap-2L,
         -0x1.3318204db09e7866p-2L, 0x1.19701e6028d68e26p-2L, -0x1.f4fea62d146cdb14p-3L,
         0x1.bf5ee82b28b67d22p-3L, -0x1.8e4468b1a2f1eb06p-3L, 0x1.625fbd5870f822cep-3L,
         -0x1.3b28795369bf1934p-3L, 0x1.1837b462972e7032p-3L, -0x1.f1c918ab8ce2572ap-4L,
         0x1.ba6c1e0232e8a792p-4L, -0x1.9c78dc6bd2739a64p-4L, 0x1.70399df2ec75eea8p-4L},
        {0x1.e55811d564176414p-2L, -0x1.650d136ccacbcc26p-3L, 0x1.9c56a82f1c9cfc74p-3L,
         -0x1.08987bce46021904p-3L, 0x1.9df2382e863da558p-4L, -0x1.2a0163d21f167a7cp-4L,
         0x1.b63aa6f04504c26cp-5L, -0x1.3f2474253bf9e844p-5L, 0x1.d137574bfcf6bce4p-6L,
         -0x1.52a594eaf3210666p-6L, 0x1.ece08f159986beeap-7L, -0x1.666f9618e08a62e8p-7L,
         0x1.04d0063fbf23e23p-7L, -0x1.876bfdaa98b5947p-8L, 0x1.19ff0246a4cd0cdp-8L},
        {0x1.c3dfb5a5eccb4c7p-2L, -0x1.7be0a46cd9d79c72p-4L, 0x1.11547809ad5abe06p-3L,
         -0x1.f3b6bd97539dccaep-5L, 0x1.6edba71ab1ad3234p-5L, -0x1.ad6ab7ad8276acfep-6L,
         0x1.1049badc562730d6p-6L, -0x1.4df55b45125848p-7L, 0x1.9d25d9dd639dbb8cp-8L,
         -0x1.fcf7e74cd5fe39f6p-9L, 0x1.399a3a0831a0307ap-9L, -0x1.821e765620188cb2p-10L,
         0x1.daf32ca275332384p-11L, -0x1.2b4992f49014c2dap-11L, 0x1.807e2bfb16bfc178p-12L},
        {0x1.b3da85adc8fa1c26p-2L, -0x1.1f613c048372d4ecp-5L, 0x1.9e8f0961d199f696p-4L,
         -0x1.d3417f49a110454cp-6L, 0x1.7eed7dbc60407d7p-6L, -0x1.5b2b432a39b2a96ep-7L,
         0x1.94c1d3b1a142361ep-8L, -0x1.a4befad1ccac61b6p-9L, 0x1.c7cdad6ce2f9874ap-10L,
         -0x1.e56496c0e2abd66p-11L, 0x1.03b1410ffe7619c8p-11L, -0x1.1514824b0e959af6p-12L,
         0x1.1c8db859c29816b2p-13L, -0x1.416551d0fc71a3f2p-14L, 0x1.235f281d6dec2b06p-13L},
    };
    // LGamma's positive axis takes Stirling's form (with kStirlingD) from 8 on.
    static constexpr long double kLnStirlingFrom = 8;
    // Stirling's form from 12 on, with eight terms B_2k / (2k (2k - 1)) of the
    // correction series (the first left out is below 2^-63 of ln Gamma there).
    static constexpr long double kStirlingFrom = 12;
    static constexpr long double kStirling[8] = {
        1.0L / 12,   -1.0L / 360,      1.0L / 1260, -1.0L / 1680,
        1.0L / 1188, -691.0L / 360360, 1.0L / 156,  -3617.0L / 122400,
    };
    static constexpr long double kHalfLn2PiLessHalf = 0.41893853320467274178032973640561764L;
    static constexpr long double kPi = 3.14159265358979323846264338327950288L;
    static constexpr long double kInvPi = 0.318309886183790671537767526745028724L;
    // sin(pi r) = r P(r^2) on |r| <= 1/2, by tools/gamma/sinpi.sollya (2^-65.8 relative)
    static constexpr long double kSinPi[11] = {
        0x1.921fb54442d1846ap1L,    -0x1.4abbce625be52c2cp2L,   0x1.466bc6775aae47dp1L,
        -0x1.32d2cce62bf2121ap-1L,  0x1.50783487ff911152p-4L,   -0x1.e3074fec3e141386p-8L,
        0x1.e8f43bb83125892cp-12L,  -0x1.6fafed7388560e46p-16L, 0x1.abc8bcf0f003ca56p-21L,
        -0x1.ba98b669c7a857f2p-26L, 0x1.6c6e0bb46783f6ecp-29L};
    // ln 2 = kLn2Hi + kLn2Lo, the head with four significant bits
    static constexpr long double kLn2Hi = 0x1.6p-1L;
    static constexpr long double kLn2Lo = 0.00564718055994530941723212145817656808L;

    // The sets as the x87 code loads them (ext_const.h): in H the terms from t^3 on and in
    // the sine those from r^9 on are below 2^-62 of the sum with their coefficients
    // rounded to double; S is summed in double (gamma_core.h).
    static constexpr auto kHP = SplitPolys<3>(kH);
    static constexpr auto kStirlingP = SplitPoly<0>(kStirling);
    // The series in double from 8 on, eleven terms (the first left out is below 2^-60).
    static constexpr double kStirlingD[11] = {
        1.0 / 12,         -1.0 / 360,         1.0 / 1260,      -1.0 / 1680,
        1.0 / 1188,       -691.0 / 360360,    1.0 / 156,       -3617.0 / 122400,
        43867.0 / 244188, -174611.0 / 125400, 854513.0 / 63756};
    static constexpr auto kSinPiP = SplitPoly<4>(kSinPi);
    static constexpr Ext2 kHalfLn2PiLessHalf2 = Split2(kHalfLn2PiLessHalf);
    static constexpr Ext2 kPi2 = Split2(kPi);
    static constexpr Ext2 kInvPi2 = Split2(kInvPi);
    static constexpr Ext2 kLn2Lo2 = Split2(kLn2Lo);
};

template <>
struct GammaData<double> {
    // H as above, by tools/gamma/gamma_core.sollya (degree 8, 2^-36.7 relative).
    static constexpr double kH[4][9] = {
        {0x1.10b5f35994526p-1, -0x1.3abef9fb78b0fp-2, 0x1.6820a7605356ap-2, -0x1.33183347ceabp-2,
         0x1.1970372907f4cp-2, -0x1.f4dc949b50c68p-3, 0x1.bf3a490c82a88p-3, -0x1.998e6601e2006p-3,
         0x1.6d33e5bca9461p-3},
        {0x1.e55811d564367p-2, -0x1.650d136b468b8p-3, 0x1.9c56a82c10e5ep-3, -0x1.089880db83fccp-3,
         0x1.9df2446420f8bp-4, -0x1.29f8500a1dd5fp-4, 0x1.b6298deca49dfp-5, -0x1.452b8637855c8p-5,
         0x1.daf5ef82d8665p-6},
        {0x1.c3dfb5a5ecd1ep-2, -0x1.7be0a46c48c6p-4, 0x1.1154780917a41p-3, -0x1.f3b6c15e08f53p-5,
         0x1.6edbab7b568bbp-5, -0x1.ad63edadbd20ep-6, 0x1.1043e7ff22ca8p-6, -0x1.5278c9ecc9059p-7,
         0x1.a387b04d293bcp-8},
        {0x1.b3da85adc8fbep-2, -0x1.1f613c043e861p-5, 0x1.9e8f0961873a2p-4, -0x1.d3418115093ap-6,
         0x1.7eed7fc95605ap-6, -0x1.5b2808e81bfbbp-7, 0x1.94bca14a3b6d2p-8, -0x1.a90a68986d82ep-9,
         0x1.cd450ed67e808p-10},
    };
    // Stirling's form from 8 on, four terms of the correction series (2^-37 there).
    static constexpr double kStirlingFrom = 8;
    static constexpr double kLnStirlingFrom = 8;
    static constexpr double kStirling[4] = {1.0 / 12, -1.0 / 360, 1.0 / 1260, -1.0 / 1680};
    static constexpr const double (&kStirlingD)[4] = kStirling;
    static constexpr double kHalfLn2PiLessHalf = 0.41893853320467274178;
    static constexpr double kPi = 3.14159265358979323846;
    static constexpr double kInvPi = 0.31830988618379067154;
    static constexpr double kLn2Hi = 0x1.6p-1;
    static constexpr double kLn2Lo = 0.0056471805599453094172;
};

} // namespace brenn::vm::gamma

#endif
