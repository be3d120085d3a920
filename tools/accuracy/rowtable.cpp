// The tools' row table: reference, domain, interesting ranges and peer names of every
// row of frame/rows.def. A row missing here is a start-up error of the tools (checked
// against the dispatch table's row names), so a new row cannot be skipped silently.
#include "tools/accuracy/rowtable.h"

#include <string.h>

namespace brenn::tools {

namespace {

#define N nullptr
// Unary rows: R(row, ref, dom, lo, hi, sleef, mvec, libm); binary rows take b's range.
#define R(row, ref, dom, lo, hi, sl, mv, lm) {row, Ref::ref, Dom::dom, lo, hi, 0, 0, sl, mv, lm},
#define B(row, ref, dom, lo, hi, blo, bhi, sl, mv, lm)                                             \
    {row, Ref::ref, Dom::dom, lo, hi, blo, bhi, sl, mv, lm},

const RowFacts kFacts[] = {
    // single real, one argument
    R("sCeil", Ceil, Any, -20, 20, "ceil", N,
      "ceil") R("sFloor", Floor, Any, -20, 20, "floor", N,
                "floor") R("sFrac", Frac, Any, -20, 20, N, N,
                           N) R("sNearbyInt", NearbyInt, Any, -20, 20, "rint", N,
                                "nearbyint") R("sRint", Rint, Any, -20, 20, "rint", N, "rint")
        R("sRound", Round, Any, -20, 20, "round", N, "round") R(
            "sTrunc",
            Trunc, Any,
            -20, 20,
            "trunc",
            N, "trunc") R("sAbs", Abs, Any, -10, 10, "fabs", N, "fabs")
            R("sInv", Inv, Any, -4, 4, N, N, N) R("sSqrt", Sqrt, Pos, 0, 4, "sqrt", N, "sqrt") R(
                "sInvSqrt",
                InvSqrt, Pos,
                0, 4,
                N, N,
                N) R("sCbrt", Cbrt, Any, -8, 8, "cbrt", "cbrt",
                     "cbrt") R("sInvCbrt", InvCbrt, Any, -8, 8, N, N, N)
                R("sExp", Exp, Any, -103.98, 88.73, "exp", "exp",
                  "exp") R("sLn", Ln, Pos, 0.5, 2, "log", "log",
                           "log") R("sLog10", Log10, Pos, 0.5, 2, "log10", "log10", "log10")
                    R("sCos", Cos, Any, -10, 10, "cos", "cos",
                      "cos") R("sSin", Sin, Any, -10, 10, "sin", "sin",
                               "sin") R("sTan", Tan, Any, -10, 10, "tan", "tan", "tan")
                        R("sAcos", Acos, Unit, -1, 1, "acos", "acos", "acos") R(
                            "sAcosh",
                            Acosh, GeOne,
                            1, 10, "acosh",
                            "acosh", "acosh") R("sAsin", Asin, Unit, -1, 1, "asin", "asin", "asin")
                            R("sAsinh", Asinh, Any, -10, 10, "asinh", "asinh",
                              "asinh") R("sAtan", Atan, Any, -10, 10, "atan", "atan", "atan")
                                R("sAtanh", Atanh, Unit, -1, 1, "atanh", "atanh",
                                  "atanh") R("sCosh", Cosh, Any, -89.42, 89.42, "cosh", "cosh",
                                             "cosh")
                                    R("sSinh", Sinh, Any, -89.42, 89.42, "sinh", "sinh", "sinh") R(
                                        "sTanh", Tanh, Any,
                                        -10, 10, "tanh", "tanh",
                                        "tanh") R("sErf", Erf, Any, -4, 4, "erf", "erf", "erf")
                                        R("sErfc", Erfc, Any, -4, 10.06, "erfc", "erfc", "erfc") R(
                                            "sErfInv", ErfInv, Unit,
                                            -1, 1, N,
                                            N, N) R("sSqr", Sqr, Any, -1e3, 1e3, N, N, N)
                                            R("sExpm1", Expm1, Any, -20, 88.73, "expm1", "expm1",
                                              "expm1") R("sLog1p", Log1p, Any, -0.5, 1, "log1p",
                                                         "log1p",
                                                         "log1p")
                                                R("sPow3o2", Pow3o2, Pos, 0, 100, N, N,
                                                  N) R("sPow2o3", Pow2o3, Any, -100, 100, N, N,
                                                       N) R("sErfcInv", ErfcInv, Two, 0, 2, N, N, N)
                                                    R("sCdfNorm", CdfNorm, Any, -14.1, 5.5, N, N,
                                                      N) R("sCdfNormInv", CdfNormInv, Prob, 0, 1, N,
                                                           N, N) R("sLGamma", LGamma, Any, -10, 10,
                                                                   "lgamma",
                                                                   N,
                                                                   "lgamma")
                                                        R("sTGamma", TGamma, Any, -10, 35.04,
                                                          "tgamma", N, "tgamma")
                                                            R("sExpInt1", ExpInt1, Pos, 0, 20, N, N,
                                                              N) R("sSinpi", Sinpi, Any, -4, 4,
                                                                   "sinpi", N,
                                                                   N) R("sCospi", Cospi, Any, -4, 4,
                                                                        "cospi", N,
                                                                        N)
                                                                R("sTanpi", Tanpi, Any, -4, 4, N, N,
                                                                  N) R("sAcospi", Acospi, Unit, -1,
                                                                       1, N, N, N)
                                                                    R("sAsinpi", Asinpi, Unit, -1,
                                                                      1, N, N,
                                                                      N) R("sAtanpi", Atanpi,
                                                                           Any, -10, 10, N, N,
                                                                           N) R("sExp2", Exp2, Any,
                                                                                -150, 128, "exp2",
                                                                                "exp2", "exp2")
                                                                        R("sExp10", Exp10, Any,
                                                                          -45.2, 38.54, "exp10",
                                                                          "exp10",
                                                                          "exp10") R("sLog2", Log2,
                                                                                     Pos, 0.5,
                                                                                     2, "log2",
                                                                                     "log2", "log2")
                                                                            R("sSind", Sind, Any,
                                                                              -720, 720, N, N,
                                                                              N) R("sCosd", Cosd,
                                                                                   Any, -720, 720,
                                                                                   N, N, N)
                                                                                R("sTand", Tand,
                                                                                  Any, -720, 720, N,
                                                                                  N, N)
                                                                                    R("sLogb", Logb,
                                                                                      Any, -10, 10,
                                                                                      N, N, "logb")
    // double real, one argument
    R("dCeil", Ceil, Any, -20, 20, "ceil", N,
      "ceil") R("dFloor", Floor, Any, -20, 20, "floor", N,
                "floor") R("dFrac", Frac, Any, -20, 20, N, N, N) R("dNearbyInt", NearbyInt, Any,
                                                                   -20, 20, "rint", N, "nearbyint")
        R("dRint", Rint, Any, -20, 20, "rint", N, "rint") R(
            "dRound",
            Round, Any,
            -20, 20, "round",
            N, "round") R("dTrunc", Trunc, Any, -20, 20, "trunc", N, "trunc")
            R("dAbs", Abs, Any, -10, 10, "fabs", N, "fabs") R("dInv", Inv, Any, -4, 4, N, N, N) R(
                "dSqrt", Sqrt,
                Pos, 0,
                4, "sqrt",
                N, "sqrt") R("dInvSqrt", InvSqrt, Pos, 0, 4, N, N, N)
                R("dCbrt", Cbrt, Any, -8, 8, "cbrt", "cbrt", "cbrt") R(
                    "dInvCbrt",
                    InvCbrt,
                    Any, -8, 8,
                    N, N,
                    N) R("dExp", Exp, Any, -745.14, 709.79, "exp", "exp",
                         "exp") R("dLn", Ln, Pos, 0.5, 2, "log", "log", "log")
                    R("dLog10", Log10, Pos, 0.5, 2, "log10", "log10",
                      "log10") R("dCos", Cos, Any, -10, 10, "cos", "cos", "cos")
                        R("dSin", Sin, Any, -10, 10, "sin", "sin",
                          "sin") R("dTan", Tan, Any, -10, 10, "tan", "tan",
                                   "tan") R("dAcos", Acos, Unit, -1, 1, "acos", "acos", "acos")
                            R("dAcosh", Acosh, GeOne, 1, 10, "acosh", "acosh", "acosh") R(
                                "dAsin", Asin,
                                Unit,
                                -1,
                                1, "asin",
                                "asin",
                                "asin") R("dAsinh", Asinh, Any, -10, 10, "asinh", "asinh", "asinh")
                                R("dAtan", Atan, Any, -10, 10, "atan", "atan", "atan") R(
                                    "dAtanh",
                                    Atanh, Unit, -1, 1,
                                    "atanh", "atanh",
                                    "atanh") R("dCosh", Cosh, Any, -710.48, 710.48, "cosh", "cosh",
                                               "cosh") R("dSinh", Sinh, Any, -710.48, 710.48,
                                                         "sinh", "sinh", "sinh")
                                    R("dTanh", Tanh, Any, -20, 20, "tanh", "tanh", "tanh") R(
                                        "dErf",
                                        Erf,
                                        Any, -6, 6,
                                        "erf", "erf",
                                        "erf") R("dErfc", Erfc, Any, -6, 27.23, "erfc", "erfc",
                                                 "erfc") R("dErfInv", ErfInv, Unit, -1, 1, N, N, N)
                                        R("dSqr", Sqr, Any, -1e3, 1e3, N, N,
                                          N) R("dExpm1", Expm1, Any, -40, 709.79, "expm1", "expm1",
                                               "expm1")
                                            R("dLog1p", Log1p, Any, -0.5, 1, "log1p", "log1p",
                                              "log1p") R("dPow3o2", Pow3o2, Pos, 0, 100, N, N, N)
                                                R("dPow2o3", Pow2o3, Any, -100, 100, N, N,
                                                  N) R("dErfcInv", ErfcInv, Two, 0, 2, N, N, N)
                                                    R("dCdfNorm", CdfNorm, Any, -38.5, 8.3, N, N,
                                                      N) R("dCdfNormInv", CdfNormInv, Prob, 0, 1, N,
                                                           N, N) R("dLGamma", LGamma, Any, -20, 20,
                                                                   "lgamma",
                                                                   N,
                                                                   "lgamma")
                                                        R("dTGamma", TGamma, Any, -20, 171.62,
                                                          "tgamma", N, "tgamma")
                                                            R("dExpInt1", ExpInt1, Pos, 0, 40, N, N,
                                                              N) R("dSinpi", Sinpi, Any, -4, 4,
                                                                   "sinpi", N,
                                                                   N) R("dCospi", Cospi, Any, -4, 4,
                                                                        "cospi", N,
                                                                        N)
                                                                R("dTanpi", Tanpi, Any, -4, 4, N, N,
                                                                  N) R("dAcospi", Acospi, Unit, -1,
                                                                       1, N, N, N) R("dAsinpi",
                                                                                     Asinpi, Unit,
                                                                                     -1, 1, N, N, N)
                                                                    R("dAtanpi", Atanpi, Any, -10,
                                                                      10, N, N,
                                                                      N) R("dExp2", Exp2, Any,
                                                                           -1075, 1024, "exp2",
                                                                           "exp2", "exp2")
                                                                        R("dExp10", Exp10, Any,
                                                                          -323.6, 308.26, "exp10",
                                                                          "exp10",
                                                                          "exp10") R("dLog2", Log2,
                                                                                     Pos, 0.5, 2,
                                                                                     "log2", "log2",
                                                                                     "log2")
                                                                            R("dSind", Sind, Any,
                                                                              -720, 720, N, N,
                                                                              N) R("dCosd", Cosd,
                                                                                   Any, -720, 720,
                                                                                   N, N, N)
                                                                                R("dTand", Tand,
                                                                                  Any, -720, 720, N,
                                                                                  N, N)
                                                                                    R("dLogb", Logb,
                                                                                      Any, -10, 10,
                                                                                      N, N, "logb")
    // single complex, one argument
    R("cCos", CCos, Any, -10, 10, N, N, "ccos") R("cSin", CSin, Any, -10, 10, N, N, "csin")
        R("cTan", CTan, Any, -10, 10, N, N, "ctan") R("cCosh", CCosh, Any, -10, 10, N, N, "ccosh")
            R("cSinh", CSinh, Any, -10, 10, N, N, "csinh")
                R("cTanh", CTanh, Any, -10, 10, N, N, "ctanh")
                    R("cAcos", CAcos, Any, -2, 2, N, N, "cacos")
                        R("cAsin", CAsin, Any, -2, 2, N, N, "casin")
                            R("cAtan", CAtan, Any, -2, 2, N, N, "catan") R("cAcosh", CAcosh, Any,
                                                                           -2, 2, N, N, "cacosh")
                                R("cAsinh", CAsinh, Any, -2, 2, N, N, "casinh")
                                    R("cAtanh", CAtanh, Any, -2, 2, N, N, "catanh")
                                        R("cExp", CExp, Any, -10, 10, N, N, "cexp")
                                            R("cLn", CLn, Any, -10, 10, N, N, "clog")
                                                R("cLog10", CLog10, Any, -10, 10, N, N, "clog10")
                                                    R("cSqrt", CSqrt, Any, -10, 10, N, N, "csqrt")
                                                        R("cConj", Conj, Any, -10, 10, N, N, "conj")
    // double complex, one argument
    R("zCos", CCos, Any, -10, 10, N, N, "ccos") R("zSin", CSin, Any, -10, 10, N, N, "csin")
        R("zTan", CTan, Any, -10, 10, N, N, "ctan") R("zCosh", CCosh, Any, -10, 10, N, N, "ccosh")
            R("zSinh", CSinh, Any, -10, 10, N, N, "csinh")
                R("zTanh", CTanh, Any, -10, 10, N, N, "ctanh")
                    R("zAcos", CAcos, Any, -2, 2, N, N, "cacos")
                        R("zAsin", CAsin, Any, -2, 2, N, N, "casin")
                            R("zAtan", CAtan, Any, -2, 2, N, N, "catan") R("zAcosh", CAcosh, Any,
                                                                           -2, 2, N, N, "cacosh")
                                R("zAsinh", CAsinh, Any, -2, 2, N, N, "casinh")
                                    R("zAtanh", CAtanh, Any, -2, 2, N, N, "catanh")
                                        R("zExp", CExp, Any, -10, 10, N, N, "cexp")
                                            R("zLn", CLn, Any, -10, 10, N, N, "clog")
                                                R("zLog10", CLog10, Any, -10, 10, N, N, "clog10")
                                                    R("zSqrt", CSqrt, Any, -10, 10, N, N, "csqrt")
                                                        R("zConj", Conj, Any, -10, 10, N, N, "conj")
    // real to complex and complex to real
    R("cCIS", Cis, Any, -10, 10, N, N, N) R("zCIS", Cis, Any, -10, 10, N, N, N)
        R("cAbs", CAbs, Any, -10, 10, N, N, "cabs") R("cArg", CArg, Any, -10, 10, N, N, "carg")
            R("zAbs", CAbs, Any, -10, 10, N, N, "cabs") R("zArg", CArg, Any, -10, 10, N, N, "carg")
    // single real, two arguments
    B("sDiv", Div, Any, -10, 10, -10, 10, N, N,
      N) B("sPow", Pow, Pos, 0.1, 10, -20, 20, "pow", "pow",
           "pow") B("sAtan2", Atan2, Any, -10, 10, -10, 10, "atan2", "atan2",
                    "atan2") B("sHypot", Hypot, Any, -10, 10, -10, 10, "hypot", "hypot",
                               "hypot") B("sAdd", Add, Any, -1e3, 1e3, -1e3, 1e3, N, N, N)
        B("sSub", Sub, Any, -1e3, 1e3, -1e3, 1e3, N, N,
          N) B("sMul", Mul, Any, -1e3, 1e3, -1e3, 1e3, N, N, N)
            B("sAtan2pi", Atan2pi, Any, -10, 10, -10, 10, N, N, N)
                B("sCopySign", CopySign, Any, -10, 10, -10, 10, "copysign", N, "copysign")
                    B("sNextAfter", NextAfter, Any, -10, 10, -10, 10, "nextafter", N, "nextafter")
                        B("sFdim", Fdim, Any, -10, 10, -10, 10, "fdim", N, "fdim")
                            B("sFmax", Fmax, Any, -10, 10, -10, 10, "fmax", N, "fmax")
                                B("sFmin", Fmin, Any, -10, 10, -10, 10, "fmin", N, "fmin")
                                    B("sMaxMag", MaxMag, Any, -10, 10, -10, 10, N, N, "fmaxmag")
                                        B("sMinMag", MinMag, Any, -10, 10, -10, 10, N, N, "fminmag")
                                            B("sPowr", Powr, Pos, 0.1, 10, -20, 20, N, N, N)
                                                B("sRemainder", Remainder, Any, -100, 100, -10, 10,
                                                  "remainder", N, "remainder")
                                                    B("sFmod", Fmod, Any, -100, 100, -10, 10,
                                                      "fmod", N, "fmod")
    // double real, two arguments
    B("dDiv", Div, Any, -10, 10, -10, 10, N, N,
      N) B("dPow", Pow, Pos, 0.1, 10, -100, 100, "pow", "pow",
           "pow") B("dAtan2", Atan2, Any, -10, 10, -10, 10, "atan2", "atan2",
                    "atan2") B("dHypot", Hypot, Any, -10, 10, -10, 10, "hypot", "hypot",
                               "hypot") B("dAdd", Add, Any, -1e3, 1e3, -1e3, 1e3, N, N, N)
        B("dSub", Sub, Any, -1e3, 1e3, -1e3, 1e3, N, N,
          N) B("dMul", Mul, Any, -1e3, 1e3, -1e3, 1e3, N, N, N)
            B("dAtan2pi", Atan2pi, Any, -10, 10, -10, 10, N, N, N)
                B("dCopySign", CopySign, Any, -10, 10, -10, 10, "copysign", N, "copysign")
                    B("dNextAfter", NextAfter, Any, -10, 10, -10, 10, "nextafter", N, "nextafter")
                        B("dFdim", Fdim, Any, -10, 10, -10, 10, "fdim", N, "fdim")
                            B("dFmax", Fmax, Any, -10, 10, -10, 10, "fmax", N, "fmax")
                                B("dFmin", Fmin, Any, -10, 10, -10, 10, "fmin", N, "fmin")
                                    B("dMaxMag", MaxMag, Any, -10, 10, -10, 10, N, N, "fmaxmag")
                                        B("dMinMag", MinMag, Any, -10, 10, -10, 10, N, N, "fminmag")
                                            B("dPowr", Powr, Pos, 0.1, 10, -100, 100, N, N, N)
                                                B("dRemainder", Remainder, Any, -100, 100, -10, 10,
                                                  "remainder", N, "remainder")
                                                    B("dFmod", Fmod, Any, -100, 100, -10, 10,
                                                      "fmod", N, "fmod")
    // complex, two arguments
    B("cDiv", CDiv, Any, -10, 10, -10, 10, N, N, N) B("cPow", CPow, Any, -4, 4, -4, 4, N, N, "cpow")
        B("cAdd", CAdd, Any, -1e3, 1e3, -1e3, 1e3, N, N, N)
            B("cSub", CSub, Any, -1e3, 1e3, -1e3, 1e3, N, N, N)
                B("cMul", CMul, Any, -1e3, 1e3, -1e3, 1e3, N, N, N) B("cMulByConj", CMulByConj, Any,
                                                                      -1e3, 1e3, -1e3, 1e3, N, N, N)
                    B("zDiv", CDiv, Any, -10, 10, -10, 10, N, N, N)
                        B("zPow", CPow, Any, -4, 4, -4, 4, N, N, "cpow") B("zAdd", CAdd, Any, -1e3,
                                                                           1e3, -1e3, 1e3, N, N, N)
                            B("zSub", CSub, Any, -1e3, 1e3, -1e3, 1e3, N, N, N)
                                B("zMul", CMul, Any, -1e3, 1e3, -1e3, 1e3, N, N, N)
                                    B("zMulByConj", CMulByConj, Any, -1e3, 1e3, -1e3, 1e3, N, N, N)
    // scalar exponent: b is one value a call
    B("cPowx", CPow, Any, -4, 4, -4, 4, N, N, "cpow")
        B("zPowx", CPow, Any, -4, 4, -4, 4, N, N, "cpow")
            B("sPowx", Pow, Pos, 0.1, 10, -20, 20, "pow", "pow", "pow")
                B("dPowx", Pow, Pos, 0.1, 10, -100, 100, "pow", "pow", "pow")
    // two results, linear fraction
    R("sSinCos", SinCos, Any, -10, 10, "sincos", N, "sincos")
        R("sModf", Modf, Any, -20, 20, "modf", N, "modf")
            R("dSinCos", SinCos, Any, -10, 10, "sincos", N, "sincos")
                R("dModf", Modf, Any, -20, 20, "modf", N, "modf")
                    B("sLinearFrac", LinearFrac, Any, -10, 10, -10, 10, N, N, N)
                        B("dLinearFrac", LinearFrac, Any, -10, 10, -10, 10, N, N, N)
    // pack and unpack: raw words, any bit pattern
    R("sPackI", Pack, Any, 0, 0, N, N, N) R("dPackI", Pack, Any, 0, 0, N, N, N)
        R("cPackI", Pack, Any, 0, 0, N, N, N) R("zPackI", Pack, Any, 0, 0, N, N, N)
            R("sPackM", Pack, Any, 0, 0, N, N, N) R("dPackM", Pack, Any, 0, 0, N, N, N) R(
                "cPackM", Pack, Any, 0, 0, N, N, N) R("zPackM", Pack, Any, 0, 0, N, N, N)
                R("sPackV", Pack, Any, 0, 0, N, N, N) R("dPackV", Pack, Any, 0, 0, N, N, N) R(
                    "cPackV", Pack, Any, 0, 0, N, N, N) R("zPackV", Pack, Any, 0, 0, N, N, N)
                    R("sUnpackI", Pack, Any, 0, 0, N, N, N) R("dUnpackI", Pack, Any, 0, 0, N, N, N)
                        R("cUnpackI", Pack, Any, 0, 0, N, N, N)
                            R("zUnpackI", Pack, Any, 0, 0, N, N, N)
                                R("sUnpackM", Pack, Any, 0, 0, N, N, N)
                                    R("dUnpackM", Pack, Any, 0, 0, N, N, N) R("cUnpackM", Pack, Any,
                                                                              0, 0, N, N, N)
                                        R("zUnpackM", Pack, Any, 0, 0, N, N, N)
                                            R("sUnpackV", Pack, Any, 0, 0, N, N, N)
                                                R("dUnpackV", Pack, Any, 0, 0, N, N, N)
                                                    R("cUnpackV", Pack, Any, 0, 0, N, N, N)
                                                        R("zUnpackV", Pack, Any, 0, 0, N, N, N)};

#undef R
#undef B
#undef N

} // namespace

const RowFacts* FindRowFacts(const char* row) {
    for (const RowFacts& f : kFacts)
        if (strcmp(f.row, row) == 0) return &f;
    return nullptr;
}

const RowFacts* AllRowFacts(int* count) {
    *count = static_cast<int>(sizeof(kFacts) / sizeof(kFacts[0]));
    return kFacts;
}

bool IsExactRef(Ref ref) {
    switch (ref) {
    case Ref::Ceil:
    case Ref::Floor:
    case Ref::Frac:
    case Ref::NearbyInt:
    case Ref::Rint:
    case Ref::Round:
    case Ref::Trunc:
    case Ref::Abs:
    case Ref::Sqr:
    case Ref::Add:
    case Ref::Sub:
    case Ref::Mul:
    case Ref::CopySign:
    case Ref::NextAfter:
    case Ref::Fdim:
    case Ref::Fmax:
    case Ref::Fmin:
    case Ref::MaxMag:
    case Ref::MinMag:
    case Ref::Remainder:
    case Ref::Fmod:
    case Ref::Modf:
    case Ref::Conj:
    case Ref::Pack:
        return true;
    default:
        return false;
    }
}

} // namespace brenn::tools
