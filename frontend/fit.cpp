// Spline objects of the front-end: checked construction of one function's spline of
// any construction family (the family's entry found in the kernel library by its
// name, so families built later need no change here), evaluation at sites, and
// integrals over intervals.
#include <cmath>
#include <dlfcn.h>
#include <new>
#include <string>
#include <vector>

#include "brenn_fit.h"
#include "frontend/export.h"
#include "platform/threader.h"

namespace {

struct Kind {
    const char* family; // brenn_df_kernel_<t>DF<family>Spline1D
    int order;
    int64_t sType;
    int64_t icType;
    int icExtra; // ic holds nx + icExtra values; -1 for none
};
constexpr Kind kKinds[BRENN_FIT_KIND_COUNT] = {
    {"Linear", FIT_ORDER_LINEAR, FIT_TYPE_DEFAULT, FIT_IC_NONE, -1},
    {"Quadratic", FIT_ORDER_QUADRATIC, FIT_TYPE_DEFAULT, FIT_IC_NONE, -1},
    {"Quadratic", FIT_ORDER_QUADRATIC, FIT_TYPE_KNOTS, FIT_IC_KNOTS, 1},
    {"DefaultCubic", FIT_ORDER_CUBIC, FIT_TYPE_CUBIC_DEFAULT, FIT_IC_NONE, -1},
    {"NaturalCubic", FIT_ORDER_CUBIC, FIT_TYPE_CUBIC_NATURAL, FIT_IC_NONE, -1},
    {"AkimaCubic", FIT_ORDER_CUBIC, FIT_TYPE_CUBIC_AKIMA, FIT_IC_NONE, -1},
    {"BesselCubic", FIT_ORDER_CUBIC, FIT_TYPE_CUBIC_BESSEL, FIT_IC_NONE, -1},
    {"HymanCubic", FIT_ORDER_CUBIC, FIT_TYPE_CUBIC_HYMAN, FIT_IC_NONE, -1},
    {"HermiteCubic", FIT_ORDER_CUBIC, FIT_TYPE_CUBIC_HERMITE, 1, 0},
};

// Bits of the boundary codes that need a number in bc.
constexpr int64_t kBcValueBits = FIT_BC_FIRST_LEFT | FIT_BC_FIRST_RIGHT | FIT_BC_SECOND_LEFT |
                                 FIT_BC_SECOND_RIGHT | FIT_BC_MID_VALUE;

using Construct = int32_t (*)(FitTaskHandle, int64_t, int64_t, const threader*);

// The construction entry of a family, looked up in the kernel library itself (its
// handle found from one of its own functions), so that a program that loaded the
// front-end privately finds it too.
Construct FindConstruct(const char* family, char t) {
    static void* library = [] {
        Dl_info info;
        if (dladdr(reinterpret_cast<void*>(&brenn_df_kernel_DeleteTask), &info) == 0)
            return static_cast<void*>(nullptr);
        return dlopen(info.dli_fname, RTLD_LAZY | RTLD_NOLOAD);
    }();
    if (library == nullptr) return nullptr;
    std::string name = std::string("brenn_df_kernel_") + t + "DF" + family + "Spline1D";
    return reinterpret_cast<Construct>(dlsym(library, name.c_str()));
}

template <class T>
struct Precision;
template <>
struct Precision<double> {
    static constexpr char letter = 'd';
    static constexpr auto newTask = brenn_df_kernel_dNewTask1D;
    static constexpr auto edit = brenn_df_kernel_dEditPPSpline1D;
    static constexpr auto interpolate = brenn_df_kernel_dDFInterpolate1D;
    static constexpr auto integrate = brenn_df_kernel_dDFIntegrate1D;
};
template <>
struct Precision<float> {
    static constexpr char letter = 's';
    static constexpr auto newTask = brenn_df_kernel_sNewTask1D;
    static constexpr auto edit = brenn_df_kernel_sEditPPSpline1D;
    static constexpr auto interpolate = brenn_df_kernel_sDFInterpolate1D;
    static constexpr auto integrate = brenn_df_kernel_sDFIntegrate1D;
};

} // namespace

// The spline: the task and the copies it points to.
template <class T>
struct Spline {
    FitTaskHandle task = nullptr;
    int order = 0;
    std::vector<T> x, y, bc, ic, coefficients;
    ~Spline() { brenn_df_kernel_DeleteTask(&task); }
};
struct brenn_fit_spline_f64 : Spline<double> {};
struct brenn_fit_spline_f32 : Spline<float> {};

namespace {

template <class T>
int CheckNew(int kind, int64_t nx, const T* x, const T* y, int64_t bcType, const T* bc,
             const T* ic) {
    if (nx < 0) return BRENN_ERR_BAD_SIZE;
    if (kind < 0 || kind >= BRENN_FIT_KIND_COUNT) return BRENN_ERR_BAD_ARGUMENT;
    if (x == nullptr || y == nullptr) return BRENN_ERR_NULL_POINTER;
    if ((bcType & kBcValueBits) != 0 && bc == nullptr) return BRENN_ERR_NULL_POINTER;
    if (kKinds[kind].icExtra >= 0 && ic == nullptr) return BRENN_ERR_NULL_POINTER;
    for (int64_t i = 0; i < nx; ++i)
        if (!std::isfinite(x[i]) || (i > 0 && !(x[i] > x[i - 1]))) return BRENN_ERR_BAD_ARGUMENT;
    return BRENN_OK;
}

template <class S, class T>
int New(S** out, int kind, int64_t nx, const T* x, const T* y, int64_t bcType, const T* bc,
        const T* ic) {
    if (out == nullptr) return BRENN_ERR_NULL_POINTER;
    *out = nullptr;
    if (int s = CheckNew(kind, nx, x, y, bcType, bc, ic)) return s;
    const Kind& k = kKinds[kind];
    Construct construct = FindConstruct(k.family, Precision<T>::letter);
    if (construct == nullptr) return BRENN_ERR_NOT_AVAILABLE;
    S* s = new (std::nothrow) S;
    if (s == nullptr) return BRENN_ERR_NO_MEMORY;
    s->order = k.order;
    s->x.assign(x, x + nx);
    s->y.assign(y, y + nx);
    int values = __builtin_popcountll(static_cast<uint64_t>(bcType & kBcValueBits));
    if (bc != nullptr && values > 0) s->bc.assign(bc, bc + values);
    if (k.icExtra >= 0) s->ic.assign(ic, ic + nx + k.icExtra);
    int64_t pieces = kind == BRENN_FIT_QUADRATIC_KNOTS ? nx : (nx > 1 ? nx - 1 : 1);
    s->coefficients.assign(static_cast<size_t>(pieces * k.order), T(0));
    int status = Precision<T>::newTask(&s->task, nx, s->x.data(), FIT_X_NON_UNIFORM, 1, s->y.data(),
                                       FIT_Y_ROWS, 0);
    if (status == FIT_STATUS_OK)
        status = Precision<T>::edit(
            s->task, k.order, k.sType, bcType, s->bc.empty() ? nullptr : s->bc.data(), k.icType,
            s->ic.empty() ? nullptr : s->ic.data(), s->coefficients.data(), FIT_Y_ROWS);
    if (status == FIT_STATUS_OK) status = construct(s->task, 0, 0, brenn_serv_pool_threader());
    if (status < 0) {
        delete s;
        return status;
    }
    *out = s;
    return status;
}

template <class S, class T>
int Eval(const S* s, int64_t nsite, const T* site, int nderiv, T* result) {
    if (nsite < 0) return BRENN_ERR_BAD_SIZE;
    if (s == nullptr) return BRENN_ERR_NULL_POINTER;
    if (nderiv < 1 || nderiv > s->order) return BRENN_ERR_BAD_ARGUMENT;
    if (nsite > 0 && (site == nullptr || result == nullptr)) return BRENN_ERR_NULL_POINTER;
    for (int64_t i = 0; i < nsite; ++i)
        if (std::isnan(site[i])) return BRENN_ERR_BAD_ARGUMENT;
    if (nsite == 0) return BRENN_OK;
    int32_t dorder[4] = {1, 1, 1, 1};
    return Precision<T>::interpolate(s->task, FIT_CALL_VALUES, 0, nsite, site, 0, nderiv, dorder,
                                     nullptr, result, FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES,
                                     nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                     nullptr, nullptr, brenn_serv_pool_threader());
}

// Integrals from a[i] to b[i]. Without extrapolation an interval with a limit outside
// the partition is NaN, as the end cells' polynomials would otherwise be taken.
template <class S, class T>
int Integrate(const S* s, int64_t n, const T* a, const T* b, int extrapolate, T* result) {
    if (n < 0) return BRENN_ERR_BAD_SIZE;
    if (s == nullptr) return BRENN_ERR_NULL_POINTER;
    if (n > 0 && (a == nullptr || b == nullptr || result == nullptr)) return BRENN_ERR_NULL_POINTER;
    for (int64_t i = 0; i < n; ++i)
        if (std::isnan(a[i]) || std::isnan(b[i])) return BRENN_ERR_BAD_ARGUMENT;
    if (n == 0) return BRENN_OK;
    int status = Precision<T>::integrate(s->task, 0, n, a, 0, b, 0, nullptr, nullptr, result,
                                         FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES, nullptr, nullptr,
                                         nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                         brenn_serv_pool_threader());
    if (status < 0 || extrapolate) return status;
    T lo = s->x.front(), hi = s->x.back();
    for (int64_t i = 0; i < n; ++i)
        if (a[i] < lo || a[i] > hi || b[i] < lo || b[i] > hi) result[i] = std::nan("");
    return status;
}

template <class S>
int Delete(S** s) {
    if (s == nullptr) return BRENN_ERR_NULL_POINTER;
    delete *s;
    *s = nullptr;
    return BRENN_OK;
}

} // namespace

BRENN_FE_EXPORT int brenn_fit_available(int kind) {
    if (kind < 0 || kind >= BRENN_FIT_KIND_COUNT) return BRENN_ERR_BAD_ARGUMENT;
    return FindConstruct(kKinds[kind].family, 'd') != nullptr ? BRENN_OK : BRENN_ERR_NOT_AVAILABLE;
}

BRENN_FE_EXPORT int brenn_fit_order(int kind) {
    return kind < 0 || kind >= BRENN_FIT_KIND_COUNT ? 0 : kKinds[kind].order;
}

BRENN_FE_EXPORT int brenn_fit_spline_new_f64(brenn_fit_spline_f64** spline, int kind, int64_t nx,
                                             const double* x, const double* y, int64_t bcType,
                                             const double* bc, const double* ic) {
    return New(spline, kind, nx, x, y, bcType, bc, ic);
}
BRENN_FE_EXPORT int brenn_fit_spline_eval_f64(const brenn_fit_spline_f64* spline, int64_t nsite,
                                              const double* site, int nderiv, double* result) {
    return Eval(spline, nsite, site, nderiv, result);
}
BRENN_FE_EXPORT int brenn_fit_spline_integrate_f64(const brenn_fit_spline_f64* spline, int64_t n,
                                                   const double* a, const double* b,
                                                   int extrapolate, double* result) {
    return Integrate(spline, n, a, b, extrapolate, result);
}
BRENN_FE_EXPORT int brenn_fit_spline_delete_f64(brenn_fit_spline_f64** spline) {
    return Delete(spline);
}
BRENN_FE_EXPORT int brenn_fit_spline_new_f32(brenn_fit_spline_f32** spline, int kind, int64_t nx,
                                             const float* x, const float* y, int64_t bcType,
                                             const float* bc, const float* ic) {
    return New(spline, kind, nx, x, y, bcType, bc, ic);
}
BRENN_FE_EXPORT int brenn_fit_spline_eval_f32(const brenn_fit_spline_f32* spline, int64_t nsite,
                                              const float* site, int nderiv, float* result) {
    return Eval(spline, nsite, site, nderiv, result);
}
BRENN_FE_EXPORT int brenn_fit_spline_integrate_f32(const brenn_fit_spline_f32* spline, int64_t n,
                                                   const float* a, const float* b, int extrapolate,
                                                   float* result) {
    return Integrate(spline, n, a, b, extrapolate, result);
}
BRENN_FE_EXPORT int brenn_fit_spline_delete_f32(brenn_fit_spline_f32** spline) {
    return Delete(spline);
}
