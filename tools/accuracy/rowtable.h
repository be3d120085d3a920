/* What the measuring tools know about each vector-math row: the reference operation
 * (evaluated with MPFR/MPC or, for exact rows, natively) and the rule results are
 * judged by, where its inputs live and which range is worth sampling densely, the peer
 * functions of SLEEF, glibc's libmvec and libm that the benchmark sets beside it, and
 * the family file of its kernels. The entries are made from tools/accuracy/rows.def,
 * one line a row of frame/rows.def in the same order; the row list stays the table of
 * contents, this table only adds what the tools need. Shared by the accuracy tool and
 * the benchmark, so it has no dependency on MPFR. */
#ifndef BRENN_TOOLS_ACCURACY_ROWTABLE_H
#define BRENN_TOOLS_ACCURACY_ROWTABLE_H

namespace brenn::tools {

// Reference operations, by the function's name in the row list.
enum class Ref {
    // real, one argument
    Ceil,
    Floor,
    Frac,
    NearbyInt,
    Rint,
    Round,
    Trunc,
    Abs,
    Inv,
    Sqrt,
    InvSqrt,
    Cbrt,
    InvCbrt,
    Exp,
    Ln,
    Log10,
    Cos,
    Sin,
    Tan,
    Acos,
    Acosh,
    Asin,
    Asinh,
    Atan,
    Atanh,
    Cosh,
    Sinh,
    Tanh,
    Erf,
    Erfc,
    ErfInv,
    Sqr,
    Expm1,
    Log1p,
    Pow3o2,
    Pow2o3,
    ErfcInv,
    CdfNorm,
    CdfNormInv,
    LGamma,
    TGamma,
    ExpInt1,
    Sinpi,
    Cospi,
    Tanpi,
    Acospi,
    Asinpi,
    Atanpi,
    Exp2,
    Exp10,
    Log2,
    Sind,
    Cosd,
    Tand,
    Logb,
    // real, two arguments
    Div,
    Pow,
    Atan2,
    Hypot,
    Add,
    Sub,
    Mul,
    Atan2pi,
    CopySign,
    NextAfter,
    Fdim,
    Fmax,
    Fmin,
    MaxMag,
    MinMag,
    Powr,
    Remainder,
    Fmod,
    // real, two results or scalars
    SinCos,
    Modf,
    LinearFrac,
    // complex
    CCos,
    CSin,
    CTan,
    CCosh,
    CSinh,
    CTanh,
    CAcos,
    CAsin,
    CAtan,
    CAcosh,
    CAsinh,
    CAtanh,
    CExp,
    CLn,
    CLog10,
    CSqrt,
    Conj,
    Cis,
    CAbs,
    CArg,
    CDiv,
    CPow,
    CAdd,
    CSub,
    CMul,
    CMulByConj,
    // raw moves
    Pack,
};

// Where the first argument's log-uniform samples are drawn.
enum class Dom {
    Any,   // the whole line, both signs
    Pos,   // x >= 0
    Unit,  // |x| <= 1
    Prob,  // 0 <= x <= 1
    Two,   // 0 <= x <= 2
    GeOne, // x >= 1
};

// How a row's results are judged (the rule column of rows.def).
enum class Rule {
    ExactNaN, // bit for bit; a NaN input must come out as that NaN, quieted
    Exact,    // bit for bit; any NaN where a NaN is due
    Rounded,  // ulps; the HA slot is correctly rounded (at most 0.5 ulp)
    Ulp,      // ulps against the reference
    UlpSlow,  // ulps; the reference is slow, so a fifth of the random inputs
};

struct RowFacts {
    const char* row; // "sExp", as in the row list
    Ref ref;
    Rule rule;
    Dom dom;
    double lo, hi;   // interesting range of a (real and imaginary parts for complex)
    double blo, bhi; // interesting range of b (binary rows, scalar exponents)
    // Peer base names, or null: SLEEF "exp" becomes Sleef_expf4_u10sse4 and the
    // like; libmvec "exp" becomes _ZGVbN4v_expf / _ZGVbN2v_exp; libm "exp" becomes
    // expf / exp (and "cexp" cexpf / cexp for complex rows).
    const char* sleef;
    const char* mvec;
    const char* libm;
    const char* family; // "vecmath/explog/exp.cpp", or null while the row has no kernels
};

// The entry of a row, or null for a name that is no row.
const RowFacts* FindRowFacts(const char* row);

// All entries, in row-list order: entry i is dispatch row i.
const RowFacts* AllRowFacts(int* count);

// Exact rows: results must match bit for bit (no ulp error allowed).
inline bool IsExact(const RowFacts& f) {
    return f.rule == Rule::Exact || f.rule == Rule::ExactNaN;
}

} // namespace brenn::tools

#endif
