// The cubic families as the cubic tests and the scipy driver call them: one id a
// family, its construction entry in either precision, its name and least nx.
#ifndef BRENN_TESTS_FITTING_CUBIC_FAMILIES_H
#define BRENN_TESTS_FITTING_CUBIC_FAMILIES_H

#include <stdint.h>

#include "brenn_fitting.h"

namespace brenn::fittest {

enum CubicFamily { kNatural, kDefault, kAkima, kBessel, kHyman, kHermite, kCubicFamilies };

using CubicEntry = int32_t (*)(FitTaskHandle, int64_t, int64_t, const struct threader*);

struct CubicFamilyInfo {
    const char* name;
    CubicEntry d, s;
    int64_t leastNx;
    int64_t sType;
};

inline const CubicFamilyInfo& CubicInfo(int family) {
    static const CubicFamilyInfo kInfo[kCubicFamilies] = {
        {"Natural", brenn_df_kernel_dDFNaturalCubicSpline1D,
         brenn_df_kernel_sDFNaturalCubicSpline1D, 2, FIT_TYPE_CUBIC_NATURAL},
        {"Default", brenn_df_kernel_dDFDefaultCubicSpline1D,
         brenn_df_kernel_sDFDefaultCubicSpline1D, 3, FIT_TYPE_CUBIC_DEFAULT},
        {"Akima", brenn_df_kernel_dDFAkimaCubicSpline1D, brenn_df_kernel_sDFAkimaCubicSpline1D, 5,
         FIT_TYPE_CUBIC_AKIMA},
        {"Bessel", brenn_df_kernel_dDFBesselCubicSpline1D, brenn_df_kernel_sDFBesselCubicSpline1D,
         4, FIT_TYPE_CUBIC_BESSEL},
        {"Hyman", brenn_df_kernel_dDFHymanCubicSpline1D, brenn_df_kernel_sDFHymanCubicSpline1D, 4,
         FIT_TYPE_CUBIC_HYMAN},
        {"Hermite", brenn_df_kernel_dDFHermiteCubicSpline1D,
         brenn_df_kernel_sDFHermiteCubicSpline1D, 3, FIT_TYPE_CUBIC_HERMITE}};
    return kInfo[family];
}

template <typename T>
int32_t ConstructCubic(int family, FitTaskHandle task, int64_t flags, const struct threader* thr) {
    const CubicFamilyInfo& info = CubicInfo(family);
    return (sizeof(T) == sizeof(double) ? info.d : info.s)(task, 0, flags, thr);
}

// The boundary codes in column order 0 to 6, and 0 (column 7 of the local families).
constexpr int64_t kBcTypes[8] = {1, 2, 12, 36, 24, 48, 64, 0};

} // namespace brenn::fittest

#endif
