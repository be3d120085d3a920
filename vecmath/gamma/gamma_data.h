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

// A polynomial's first K coefficients as the x87 code loads them, the rest as doubles
// for a part summed in the SSE unit beside it (gamma_core.h PolyHeadTail).
template <size_t K, size_t N>
struct HeadTail {
    ExtPoly<4, K> head;
    double tail[N - K];
};
template <size_t K, size_t N>
constexpr HeadTail<K, N> SplitHeadTail(const long double (&c)[N]) {
    long double h[K] = {};
    for (size_t i = 0; i < K; ++i)
        h[i] = c[i];
    HeadTail<K, N> r{};
    r.head = SplitPoly<4>(h);
    for (size_t i = 0; i < N - K; ++i)
        r.tail[i] = static_cast<double>(c[K + i]);
    return r;
}

template <>
struct GammaData<long double> {
    // H(z) = (Gamma(1 + z) - 1) / (z (z - 1)) in four pieces, split where x = 1 + z is
    // 1.25, the minimum 1.46163214... and 1.5: z in [0, 1/4], [1/4, x0 - 1], [x0 - 1, 1/2],
    // [1/2, 1], polynomials in z less 1/8, 0.35546875, 0.48046875, 3/4, by
    // tools/gamma/gamma_core.sollya (degrees 14, 13, 8, 18; relative 2^-61.5, 2^-64.2,
    // 2^-64.8, 2^-66.2), fitted with the coefficients from the fourth (the last piece:
    // the fifth) on in double, as the x87 code loads them.
    static constexpr long double kH0[15] = {
        0x1.10b5f35993ed2a16p-1L, -0x1.3abefa012bc424ccp-2L, 0x1.6820a76bb89ad18ap-2L,
        -0x1.3318204db09e8p-2L, 0x1.19701e6028d69p-2L, -0x1.f4fea62d1458p-3L,
        0x1.bf5ee82b28ae3p-3L, -0x1.8e4468b1b0b4p-3L, 0x1.625fbd5877e8p-3L, -0x1.3b28794eb1989p-3L,
        0x1.1837b45fd8ffbp-3L, -0x1.f1c91a4b1056bp-4L, 0x1.ba6c1f0bc8ec8p-4L,
        -0x1.9c78c01ad4b14p-4L, 0x1.70398a94681fdp-4L};
    static constexpr long double kH1[14] = {
        0x1.e8e9165aa66055f6p-2L, -0x1.75779624334443ep-3L, 0x1.ac53c4f198ce5db4p-3L,
        -0x1.1959bdd34e10fp-3L, 0x1.bc58499c7b725p-4L, -0x1.4502e75f25e73p-4L,
        0x1.e474cc0cbafeap-5L, -0x1.65ed65b278911p-5L, 0x1.089a356f982e1p-5L,
        -0x1.86c3b31c00ec4p-6L, 0x1.20669e9ac50b4p-6L, -0x1.a9afc2cd9b19p-7L,
        0x1.40fcfef11f05ep-7L, -0x1.d8be2dee6ca9p-8L};
    static constexpr long double kH2[9] = {
        0x1.d4aa4ace850b2874p-2L, -0x1.16042a36c67709fp-3L, 0x1.54de34e28f07dcbcp-3L,
        -0x1.7f2e3090738c1p-4L, 0x1.1fafdae17d8f2p-4L, -0x1.7c3f59b82e514p-5L,
        0x1.051bbe162f1a6p-5L, -0x1.60f9b47fa6ae6p-6L, 0x1.dd4616466f7a1p-7L};
    static constexpr long double kH3[19] = {
        0x1.ba06ca045f2952dap-2L, -0x1.fb38e791192f6fa4p-5L, 0x1.d449cf652eac2e66p-4L,
        -0x1.5926336c11cc4228p-5L, 0x1.03a4161713a14p-5L, -0x1.0e6317cdea9e3p-6L,
        0x1.454b170ba01cbp-7L, -0x1.6fb72f293fbdcp-8L, 0x1.a7e987e803b76p-9L,
        -0x1.e49b0b70df08p-10L, 0x1.156d1eb28b093p-10L, -0x1.3d45f0398f641p-11L,
        0x1.6abd1d09a7af2p-12L, -0x1.9ed37f6f3736ap-13L, 0x1.de5d6ba22f201p-14L,
        -0x1.0d88d299d8f17p-14L, 0x1.da4ada45d0da8p-16L, -0x1.8a74c620d0e81p-16L,
        0x1.6bf81007a7c1p-15L};
    // LGamma takes Stirling's form (with kStirlingD) from 8 on in magnitude.
    static constexpr long double kLnStirlingFrom = 8;
    // ln Gamma on [0.75, 2.25] (gamma_core.h LnGammaInterval), by
    // tools/gamma/lgamma_core.sollya: near 1, z P1(z) on |z| <= 1/4 (2^-65.7 relative);
    // near the minimum, Pm(x - kLnMinAt) on [1.25, 1.75] (2^-65.2); near 2, z P2(z) on
    // |z| <= 1/4 (2^-65.2). The coefficients from the fifth on are doubles.
    static constexpr long double kLnNear1[22] = {
        -0x1.2788cfc6fb618f4ap-1L, 0x1.a51a6625307d3232p-1L, -0x1.9a4d55beab2d6abep-2L,
        0x1.151322ac7d847aaep-2L,  -0x1.a8b9c17aa6254p-3L,   0x1.5b40cb100c492p-3L,
        -0x1.2703a1dcdca94p-3L,    0x1.010b36af74cafp-3L,    -0x1.c806707963005p-4L,
        0x1.9a01e393f698fp-4L,     -0x1.748c2fd8e592ap-4L,   0x1.556ad2a42ad5bp-4L,
        -0x1.3b1e23143b088p-4L,    0x1.2497739a6b2a5p-4L,    -0x1.1103cb61f7986p-4L,
        0x1.ffe2609018888p-5L,     -0x1.e412b9b4f4153p-5L,   0x1.c94e5867ee8f5p-5L,
        -0x1.969ea2d9f212ap-5L,    0x1.816d40d764d86p-5L,    -0x1.0ee2481db461dp-4L,
        0x1.03d3919c64e22p-4L};
    static constexpr long double kLnMin[20] = {
        -0x1.f19b9bcc38a41c1ep-4L, 0x1.66b69bb8891421ecp-66L, 0x1.ef72bc8ee38aba52p-2L,
        -0x1.2e4278dc6bc239c8p-3L, 0x1.08b4294d503bbp-4L,     -0x1.0c9a8df5131b4p-5L,
        0x1.266e797a0282dp-6L,     -0x1.51f9f9500a95ep-7L,    0x1.8fce02baeaa62p-8L,
        -0x1.e2f1a413734ep-9L,     0x1.28311d2697585p-9L,     -0x1.6f9770dd2d1bcp-10L,
        0x1.cc7380b0e76ddp-11L,    -0x1.229298332bac2p-11L,   0x1.70e3c1a813b5ep-12L,
        -0x1.d613d53d093fbp-13L,   0x1.2f65fd4cfc05fp-13L,    -0x1.985edb868a5a7p-14L,
        0x1.03f3e07942751p-14L,    -0x1.8a0878b35780ep-16L};
    static constexpr long double kLnNear2[18] = {
        0x1.b0ee6072093ce16cp-2L, 0x1.4a34cc4a60fa646p-2L, -0x1.13e001a557605f62p-4L,
        0x1.51322ac7d8488272p-6L, -0x1.e404fc218fd93p-8L,  0x1.7add6eadb4d31p-9L,
        -0x1.38ac5c2b38093p-10L,  0x1.0b36af89267efp-11L,  -0x1.d3fd4dba80688p-13L,
        0x1.a127ac3254a3ap-14L,   -0x1.78ddc13e82fdcp-15L, 0x1.581001a3fc19cp-16L,
        -0x1.3ce6e8ff23565p-17L,  0x1.2502cf78eacafp-18L,  -0x1.0b74af7c80c3cp-19L,
        0x1.153f7b311fd5cp-20L,   -0x1.57eeea39e4949p-21L, -0x1.2daca8aed1099p-24L};
    static constexpr long double kLnMinAt = 0x1.762d86356be3f6e2p0L;
    // TGamma takes Stirling's form from 12 on.
    static constexpr long double kStirlingFrom = 12;
    static constexpr long double kHalfLn2Pi = 0.918938533204672741780329736405617639861L;
    static constexpr long double kHalfLn2PiLessHalf = 0.41893853320467274178032973640561764L;
    static constexpr long double kPi = 3.14159265358979323846264338327950288L;
    static constexpr long double kInvPi = 0.318309886183790671537767526745028724L;
    // sin(pi r) = r P(r^2) on |r| <= 1/2, by tools/gamma/sinpi.sollya (2^-65.8 relative)
    static constexpr long double kSinPi[11] = {
        0x1.921fb54442d1846ap1L,    -0x1.4abbce625be52c2cp2L,   0x1.466bc6775aae47dp1L,
        -0x1.32d2cce62bf2121ap-1L,  0x1.50783487ff911152p-4L,   -0x1.e3074fec3e141386p-8L,
        0x1.e8f43bb83125892cp-12L,  -0x1.6fafed7388560e46p-16L, 0x1.abc8bcf0f003ca56p-21L,
        -0x1.ba98b669c7a857f2p-26L, 0x1.6c6e0bb46783f6ecp-29L};
    // ln(sin(pi r) / (pi r)) = r^2 L(r^2) on |r| <= 1/2, by
    // tools/gamma/ln_sinpi_ratio.sollya (degree 15, 2^-64.7 relative, 2^-65.8 absolute, the
    // coefficients from the fifth on doubles).
    static constexpr long double kLnSinPiRatio[16] = {
        -0x1.a51a6625307d323p0L,   -0x1.151322ac7d84933ep-1L, -0x1.5b40cb100c060b12p-2L,
        -0x1.010b36af9c5aabbep-2L, -0x1.9a01e379bf36ap-3L,    -0x1.556ad82fa2879p-3L,
        -0x1.2496a8a946e06p-3L,    -0x1.00051151e6566p-3L,    -0x1.c6af3a738b26ep-4L,
        -0x1.9dc7a057596bdp-4L,    -0x1.56a8a65cb5211p-4L,    -0x1.ee71bf9aa516ep-4L,
        0x1.ed9cf0b29a5b3p-5L,     -0x1.a9ca1dc0b7d2bp-2L,    0x1.e9534fe11c29dp-2L,
        -0x1.026d5c381e443p-1L};
    // ln 2 = kLn2Hi + kLn2Lo, the head with four significant bits
    static constexpr long double kLn2Hi = 0x1.6p-1L;
    static constexpr long double kLn2Lo = 0.00564718055994530941723212145817656808L;

    // The sets as the x87 code loads them (ext_const.h): H's as fitted; in the sine the
    // terms from r^9 on are below 2^-62 of the sum with their coefficients rounded to
    // double; S is summed in double (gamma_core.h). The LGamma sets were
    // fitted with their coefficients from the fifth on in double.
    static constexpr auto kHP0 = SplitPoly<3>(kH0);
    static constexpr auto kHP1 = SplitPoly<3>(kH1);
    static constexpr auto kHP2 = SplitPoly<3>(kH2);
    static constexpr auto kHP3 = SplitPoly<4>(kH3);
    // The split at the minimum, x0 - 1 rounded to double.
    static constexpr long double kMinLessOne = 0.4616321449683622L;
    // The series in double from 8 on, eleven terms (the first left out is below 2^-60).
    static constexpr double kStirlingD[11] = {
        1.0 / 12,         -1.0 / 360,         1.0 / 1260,      -1.0 / 1680,
        1.0 / 1188,       -691.0 / 360360,    1.0 / 156,       -3617.0 / 122400,
        43867.0 / 244188, -174611.0 / 125400, 854513.0 / 63756};
    static constexpr auto kSinPiP = SplitPoly<4>(kSinPi);
    // L split for the x87 and SSE units (gamma_core.h LnSinPiRatio): its first K
    // coefficients as the x87 code loads them, the rest as doubles.
    template <size_t K>
    struct LnSinPiRatioSplit {
        static constexpr auto kHead = [] {
            struct {
                long double v[K];
            } h{};
            for (size_t i = 0; i < K; ++i)
                h.v[i] = kLnSinPiRatio[i];
            return SplitPoly<4>(h.v);
        }();
        static constexpr auto kTail = [] {
            struct {
                double v[16 - K];
            } t{};
            for (size_t i = 0; i < 16 - K; ++i)
                t.v[i] = static_cast<double>(kLnSinPiRatio[K + i]);
            return t;
        }();
    };
    static constexpr auto kLnNear1P = SplitPoly<4>(kLnNear1);
    static constexpr auto kLnMinP = SplitPoly<4>(kLnMin);
    static constexpr auto kLnNear2P = SplitPoly<4>(kLnNear2);
    static constexpr auto kLnNear1S = SplitHeadTail<8>(kLnNear1);
    static constexpr auto kLnMinS = SplitHeadTail<8>(kLnMin);
    static constexpr auto kLnNear2S = SplitHeadTail<8>(kLnNear2);
    static constexpr Ext2 kLnMinAt2 = Split2(kLnMinAt);
    static constexpr Ext2 kHalfLn2Pi2 = Split2(kHalfLn2Pi);
    static constexpr Ext2 kHalfLn2PiLessHalf2 = Split2(kHalfLn2PiLessHalf);
    static constexpr Ext2 kPi2 = Split2(kPi);
    static constexpr Ext2 kInvPi2 = Split2(kInvPi);
    static constexpr Ext2 kLn2Lo2 = Split2(kLn2Lo);
};

template <>
struct GammaData<double> {
    // H as above on [i/4, (i + 1)/4] (x = 1.25, 1.5, 1.75 the splits), polynomials in
    // z - (2i + 1)/8, by tools/gamma/gamma_core.sollya (degree 8, 2^-36.7 relative).
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
    // LGamma's expansions as above in double, by tools/gamma/lgamma_core.sollya (2^-43.8,
    // 2^-42.2, 2^-46.2 relative).
    static constexpr double kLnNear1[14] = {
        -0x1.2788cfc6fb766p-1, 0x1.a51a6625300b3p-1, -0x1.9a4d55bdac386p-2, 0x1.151322ad5fb5dp-2,
        -0x1.a8b9c376f2d84p-3, 0x1.5b40cb1d1822p-3,  -0x1.2702e4676ebfp-3,  0x1.010ae80da2a3p-3,
        -0x1.c8496705ba632p-4, 0x1.9a2c1d5b2072dp-4, -0x1.6e85add1a8002p-4, 0x1.50cabc0499f31p-4,
        -0x1.7e943c96b0937p-4, 0x1.5ed4118975a8bp-4};
    static constexpr double kLnMin[12] = {
        -0x1.f19b9bcc38936p-4, -0x1.36b58c17cf9f6p-40, 0x1.ef72bc8ed2b66p-2,
        -0x1.2e4278cdfe71ap-3, 0x1.08b429650134dp-4,   -0x1.0c9aa67e622f3p-5,
        0x1.266e937fffa5fp-6,  -0x1.51e8b06a0b693p-7,  0x1.8f99d0e8849cep-8,
        -0x1.e83f20e983409p-9, 0x1.3494d701b0001p-9,   -0x1.2af7e6b7c3b7dp-10};
    static constexpr double kLnNear2[11] = {
        0x1.b0ee6072093eap-2,   0x1.4a34cc4a61ed5p-2,  -0x1.13e001a56f0a1p-4,
        0x1.51322ab4d086fp-6,   -0x1.e404fb4eee73cp-8, 0x1.7adda4006e93dp-9,
        -0x1.38ad0848baf9cp-10, 0x1.0b1843d5fd8dap-11, -0x1.d37ef0fc0a1d3p-13,
        0x1.b045e2e1ba7a5p-14,  -0x1.8dd35a574ba49p-15};
    static constexpr double kLnMinAt = 0x1.762d86356be3fp0;
    // Stirling's form from 8 on, four terms of the correction series (2^-37 there).
    static constexpr double kStirlingFrom = 8;
    static constexpr double kLnStirlingFrom = 8;
    static constexpr double kStirling[4] = {1.0 / 12, -1.0 / 360, 1.0 / 1260, -1.0 / 1680};
    static constexpr const double (&kStirlingD)[4] = kStirling;
    static constexpr double kHalfLn2Pi = 0.91893853320467274178;
    static constexpr double kHalfLn2PiLessHalf = 0.41893853320467274178;
    static constexpr double kPi = 3.14159265358979323846;
    static constexpr double kInvPi = 0.31830988618379067154;
    static constexpr double kLn2Hi = 0x1.6p-1;
    static constexpr double kLn2Lo = 0.0056471805599453094172;
};

} // namespace brenn::vm::gamma

#endif
