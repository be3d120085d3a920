// Build-time generator of the front-end's vector-math entries, one pair a row of
// frame/rows.def (the plain entry and the one with an explicit accuracy):
//   gen_vm header OUT   C declarations (include/brenn/brenn_vm_entries.h)
//   gen_vm source OUT   their definitions, each a call of the shape's checked runner
//   gen_vm cxx OUT      C++ overloads over std::span (include/brenn/brenn_vm_entries.hpp)
// Names are lower case: brenn_vm_ + the row's function + the element type's suffix
// (f32, f64, c64, c128), so the double Exp row's entries are brenn_vm_exp_f64 and
// brenn_vm_exp_f64_acc.
#include <cctype>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Row {
    char type;
    std::string name;
    std::string shape;
};

const Row kRows[] = {
#define ROW(t, Fn, Shape, Thunk, Share, cLA, cHA, cEP, Reports) {#t[0], #Fn, #Shape},
#include "frame/rows.def"
#undef ROW
};

std::string Lower(const std::string& s) {
    std::string r = s;
    for (char& c : r)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return r;
}

// Element and real types of a type letter, in C and in C++.
std::string ElemC(char t) {
    return t == 's' ? "float" : t == 'd' ? "double" : t == 'c' ? "BrennComplex8" : "BrennComplex16";
}
std::string ElemCxx(char t) {
    return t == 's'   ? "float"
           : t == 'd' ? "double"
           : t == 'c' ? "std::complex<float>"
                      : "std::complex<double>";
}
std::string RealOf(char t) {
    return (t == 's' || t == 'c') ? "float" : "double";
}

// One argument of an entry: its role decides the C type and how C++ passes it.
enum class Kind { In, InReal, Out, OutReal, Scalar, Count, Index };
struct Arg {
    Kind kind;
    std::string name;
};

std::vector<Arg> ArgsOf(const std::string& shape) {
    if (shape == "Unary") return {{Kind::In, "a"}, {Kind::Out, "y"}};
    if (shape == "AbsArg") return {{Kind::In, "a"}, {Kind::OutReal, "y"}};
    if (shape == "Cis") return {{Kind::InReal, "a"}, {Kind::Out, "y"}};
    if (shape == "Binary") return {{Kind::In, "a"}, {Kind::In, "b"}, {Kind::Out, "y"}};
    if (shape == "Powx") return {{Kind::In, "a"}, {Kind::Scalar, "b"}, {Kind::Out, "y"}};
    if (shape == "TwoRes") return {{Kind::In, "a"}, {Kind::Out, "y"}, {Kind::Out, "z"}};
    if (shape == "LinFrac")
        return {{Kind::In, "a"},          {Kind::In, "b"},          {Kind::Scalar, "scalea"},
                {Kind::Scalar, "shifta"}, {Kind::Scalar, "scaleb"}, {Kind::Scalar, "shiftb"},
                {Kind::Out, "y"}};
    if (shape == "PackI") return {{Kind::In, "a"}, {Kind::Count, "incra"}, {Kind::Out, "y"}};
    if (shape == "PackM") return {{Kind::In, "a"}, {Kind::Index, "ma"}, {Kind::Out, "y"}};
    if (shape == "PackV") return {{Kind::In, "a"}, {Kind::Index, "ia"}, {Kind::Out, "y"}};
    if (shape == "UnpackI") return {{Kind::In, "a"}, {Kind::Out, "y"}, {Kind::Count, "incry"}};
    if (shape == "UnpackM") return {{Kind::In, "a"}, {Kind::Out, "y"}, {Kind::Index, "my"}};
    if (shape == "UnpackV") return {{Kind::In, "a"}, {Kind::Out, "y"}, {Kind::Index, "iy"}};
    std::cerr << "gen_vm: unknown shape " << shape << "\n";
    std::exit(1);
}

// The type of an argument: the C element types and pointers, or (cxx) std::complex
// elements and std::span views.
std::string TypeOf(char t, Kind k, bool cxx) {
    const std::string e = cxx ? ElemCxx(t) : ElemC(t), r = RealOf(t);
    auto view = [&](const std::string& of) { return cxx ? "std::span<" + of + ">" : of + "*"; };
    switch (k) {
    case Kind::In:
        return view("const " + e);
    case Kind::InReal:
        return view("const " + r);
    case Kind::Out:
        return view(e);
    case Kind::OutReal:
        return view(r);
    case Kind::Scalar:
        return e;
    case Kind::Count:
        return "int";
    case Kind::Index:
        return view("const int");
    }
    return "";
}

std::string CParams(const Row& r, bool accuracy) {
    std::string s = "int n";
    for (const Arg& a : ArgsOf(r.shape))
        s += ", " + TypeOf(r.type, a.kind, false) + " " + a.name;
    if (accuracy) s += ", int accuracy";
    return s;
}

// The element type's suffix and its name in words.
std::string Suffix(char t) {
    return t == 's' ? "f32" : t == 'd' ? "f64" : t == 'c' ? "c64" : "c128";
}
std::string TypeWords(char t) {
    return t == 's' ? "float" : t == 'd' ? "double" : t == 'c' ? "complex float" : "complex double";
}

std::string EntryName(const Row& r) {
    return "brenn_vm_" + Lower(r.name) + "_" + Suffix(r.type);
}

bool IsPack(const std::string& shape) {
    return shape.rfind("Pack", 0) == 0 || shape.rfind("Unpack", 0) == 0;
}

// What a function computes of one element, in plain words; "a" and "b" stand for
// a[i] and b[i] (or the scalar b). The shapes' own forms (two results, packing,
// the linear fraction) are given by Describe.
struct Formula {
    const char* name;
    const char* text;
};
const Formula kFormulas[] = {
    {"Ceil", "y[i] = the least integer not below a[i]"},
    {"Floor", "y[i] = the greatest integer not above a[i]"},
    {"Frac", "y[i] = a[i] less its integer part, with a[i]'s sign"},
    {"NearbyInt", "y[i] = a[i] rounded to an integer in the current mode, no inexact flag"},
    {"Rint", "y[i] = a[i] rounded to an integer in the current rounding mode"},
    {"Round", "y[i] = a[i] rounded to the nearest integer, halves away from 0"},
    {"Trunc", "y[i] = a[i] rounded toward 0"},
    {"Abs", "y[i] = |a[i]|"},
    {"Inv", "y[i] = 1 / a[i]"},
    {"Sqrt", "y[i] = the square root of a[i]"},
    {"InvSqrt", "y[i] = 1 / sqrt(a[i])"},
    {"Cbrt", "y[i] = the cube root of a[i]"},
    {"InvCbrt", "y[i] = 1 / cbrt(a[i])"},
    {"Sqr", "y[i] = a[i]^2"},
    {"Pow2o3", "y[i] = a[i]^(2/3)"},
    {"Pow3o2", "y[i] = a[i]^(3/2)"},
    {"Exp", "y[i] = e^a[i]"},
    {"Exp2", "y[i] = 2^a[i]"},
    {"Exp10", "y[i] = 10^a[i]"},
    {"Expm1", "y[i] = e^a[i] - 1"},
    {"Ln", "y[i] = the natural logarithm of a[i]"},
    {"Log2", "y[i] = the base-2 logarithm of a[i]"},
    {"Log10", "y[i] = the base-10 logarithm of a[i]"},
    {"Log1p", "y[i] = ln(1 + a[i])"},
    {"Logb", "y[i] = the binary exponent of a[i], floor(log2 |a[i]|)"},
    {"Cos", "y[i] = cos a[i] (radians)"},
    {"Sin", "y[i] = sin a[i] (radians)"},
    {"Tan", "y[i] = tan a[i] (radians)"},
    {"Cosd", "y[i] = cos of a[i] degrees"},
    {"Sind", "y[i] = sin of a[i] degrees"},
    {"Tand", "y[i] = tan of a[i] degrees"},
    {"Cospi", "y[i] = cos(pi a[i])"},
    {"Sinpi", "y[i] = sin(pi a[i])"},
    {"Tanpi", "y[i] = tan(pi a[i])"},
    {"Acos", "y[i] = arccos a[i]"},
    {"Asin", "y[i] = arcsin a[i]"},
    {"Atan", "y[i] = arctan a[i]"},
    {"Acospi", "y[i] = arccos(a[i]) / pi"},
    {"Asinpi", "y[i] = arcsin(a[i]) / pi"},
    {"Atanpi", "y[i] = arctan(a[i]) / pi"},
    {"Atan2", "y[i] = the angle of the point (b[i], a[i]), atan2(a[i], b[i])"},
    {"Atan2pi", "y[i] = atan2(a[i], b[i]) / pi"},
    {"Cosh", "y[i] = cosh a[i]"},
    {"Sinh", "y[i] = sinh a[i]"},
    {"Tanh", "y[i] = tanh a[i]"},
    {"Acosh", "y[i] = arcosh a[i]"},
    {"Asinh", "y[i] = arsinh a[i]"},
    {"Atanh", "y[i] = artanh a[i]"},
    {"Erf", "y[i] = erf a[i]"},
    {"Erfc", "y[i] = 1 - erf a[i]"},
    {"CdfNorm", "y[i] = the standard normal distribution function at a[i]"},
    {"ErfInv", "y[i] = the inverse of erf at a[i]"},
    {"ErfcInv", "y[i] = the inverse of erfc at a[i]"},
    {"CdfNormInv", "y[i] = the standard normal quantile of a[i]"},
    {"LGamma", "y[i] = ln |Gamma(a[i])|"},
    {"TGamma", "y[i] = Gamma(a[i])"},
    {"ExpInt1", "y[i] = the exponential integral E1(a[i])"},
    {"Add", "y[i] = a[i] + b[i]"},
    {"Sub", "y[i] = a[i] - b[i]"},
    {"Mul", "y[i] = a[i] * b[i]"},
    {"Div", "y[i] = a[i] / b[i]"},
    {"MulByConj", "y[i] = a[i] * conj(b[i])"},
    {"Conj", "y[i] = the complex conjugate of a[i]"},
    {"Arg", "y[i] = the argument (phase angle) of a[i]"},
    {"CIS", "y[i] = cos a[i] + i sin a[i]"},
    {"Pow", "y[i] = a[i]^b[i]"},
    {"Powr", "y[i] = a[i]^b[i], as e^(b[i] ln a[i])"},
    {"Powx", "y[i] = a[i]^b, b one scalar"},
    {"Hypot", "y[i] = sqrt(a[i]^2 + b[i]^2)"},
    {"Fdim", "y[i] = a[i] - b[i] when positive, else +0"},
    {"Fmax", "y[i] = the larger of a[i] and b[i]"},
    {"Fmin", "y[i] = the smaller of a[i] and b[i]"},
    {"MaxMag", "y[i] = of a[i] and b[i] the larger in magnitude"},
    {"MinMag", "y[i] = of a[i] and b[i] the smaller in magnitude"},
    {"Fmod", "y[i] = a[i] - b[i] trunc(a[i] / b[i])"},
    {"Remainder", "y[i] = a[i] - b[i] n, n the nearest integer to a[i] / b[i]"},
    {"NextAfter", "y[i] = the next number after a[i] toward b[i]"},
    {"CopySign", "y[i] = |a[i]| with the sign of b[i]"},
    {"SinCos", "y[i] = sin a[i], z[i] = cos a[i]"},
    {"Modf", "y[i] = the integer part of a[i], z[i] its fraction"},
    {"LinearFrac", "y[i] = (scalea*a[i] + shifta) / (scaleb*b[i] + shiftb)"},
    {"PackI", "y[i] = a[i*incra]"},
    {"PackM", "the elements of a whose ma[i] is non-zero, packed into y"},
    {"PackV", "y[i] = a[ia[i]]"},
    {"UnpackI", "y[i*incry] = a[i]"},
    {"UnpackM", "y[i] = a[next] where my[i] is non-zero, in order"},
    {"UnpackV", "y[iy[i]] = a[i]"},
};

// "Exp, double: y[i] = e^a[i]". A row without a line above stops the build, so a
// new function gets its words when its row is added.
std::string Describe(const Row& r) {
    for (const Formula& f : kFormulas)
        if (r.name == f.name) return r.name + ", " + TypeWords(r.type) + ": " + f.text;
    std::cerr << "gen_vm: no description of " << r.name << "\n";
    std::exit(1);
}

void Header(std::ostream& o) {
    o << "/** @file brenn_vm_entries.h\n"
         " * Generated from frame/rows.def by frontend/gen/gen_vm; do not edit.\n"
         " * The checked entries of every vector-math row: brenn_vm_<fn>_<t>() at the\n"
         " * thread's accuracy and brenn_vm_<fn>_<t>_acc() at the accuracy given (BRENN_LA,\n"
         " * BRENN_HA, BRENN_EP); <t> is f32, f64, c64 or c128. Each returns BRENN_OK, the last "
         "element status of the call\n"
         " * (BRENN_STATUS_DOMAIN .. BRENN_STATUS_UNDERFLOW) or a refusal (BRENN_ERR_*); see\n"
         " * brenn_vm.h for the rules they share. */\n"
         "#ifndef BRENN_VM_ENTRIES_H\n#define BRENN_VM_ENTRIES_H\n\n#include \"brenn_types.h\"\n\n"
         "#ifdef __cplusplus\nextern \"C\" {\n#endif\n\n";
    for (const Row& r : kRows) {
        const std::string e = EntryName(r);
        o << "/** @brief " << Describe(r) << ", for i below n, at the thread's accuracy.\n";
        o << " * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */\n";
        o << "int " << e << "(" << CParams(r, false) << ");\n";
        o << "/** @brief " << r.name << ", " << TypeWords(r.type)
          << ", at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails " << e
          << " */\n";
        o << "int " << e << "_acc(" << CParams(r, true) << ");\n";
    }
    o << "\n#ifdef __cplusplus\n}\n#endif\n\n#endif\n";
}

// The definitions: the row's slot view and cost view, the shape's runner, and the
// arguments in the kernel's order.
void Source(std::ostream& o) {
    o << "// Generated from frame/rows.def by frontend/gen/gen_vm; do not edit.\n"
         "#include \"frontend/vm_shapes.h\"\n\n";
    for (const Row& r : kRows) {
        const std::string row = std::string(1, r.type) + r.name;
        const std::string e = EntryName(r);
        std::string args;
        for (const Arg& a : ArgsOf(r.shape))
            args += ", " + a.name;
        const std::string call = "brenn::fe::" + r.shape + "<'" + r.type + "'>(brenn_zar_kernel_" +
                                 row + "_ttab, brenn_zar_kernel_" + row + "_ctab, ";
        o << "BRENN_FE_EXPORT int " << e << "(" << CParams(r, false) << ") {\n    return " << call
          << "brenn::fe::kThreadAccuracy, n" << args << ");\n}\n";
        o << "BRENN_FE_EXPORT int " << e << "_acc(" << CParams(r, true) << ") {\n    return "
          << call << "brenn::fe::ExplicitAccuracy(accuracy), n" << args << ");\n}\n";
    }
}

// The C++ overloads: the spans' sizes are checked against each other (the packing
// rows' spans against what the count and stride need), then the C entry runs.
void Cxx(std::ostream& o) {
    o << "/** @file brenn_vm_entries.hpp\n"
         " * Generated from frame/rows.def by frontend/gen/gen_vm; do not edit.\n"
         " * brenn::vm::<fn>(spans..., [accuracy]) for every vector-math row: the overload\n"
         " * of the element type calls brenn_vm_<fn>_<t>() or brenn_vm_<fn>_<t>_acc(). Sizes\n"
         " * that do not match give status BRENN_ERR_SIZE_MISMATCH and write nothing. */\n"
         "#ifndef BRENN_VM_ENTRIES_HPP\n#define BRENN_VM_ENTRIES_HPP\n\n"
         "#include <complex>\n#include <span>\n\n#include \"brenn_vm_call.hpp\"\n\n"
         "namespace brenn::vm {\n\n";
    for (const Row& r : kRows) {
        const std::vector<Arg> args = ArgsOf(r.shape);
        std::string params, sizes, pass;
        for (const Arg& a : args) {
            params += (params.empty() ? "" : ", ") + TypeOf(r.type, a.kind, true) + " " + a.name;
            bool span = a.kind != Kind::Scalar && a.kind != Kind::Count;
            if (span) sizes += (sizes.empty() ? "" : ", ") + a.name + ".size()";
            if (a.kind == Kind::Scalar && (r.type == 'c' || r.type == 'z'))
                pass += ", detail::as_c(" + a.name + ")";
            else if (span)
                pass += ", detail::as_c(" + a.name + ".data())";
            else
                pass += ", " + a.name;
        }
        const std::string e = EntryName(r);
        std::string names;
        for (const Arg& a : args)
            names += (names.empty() ? "" : ", ") + a.name;
        const std::string check = IsPack(r.shape)
                                      ? "detail::count_" + Lower(r.shape) + "(" + names + ")"
                                      : "detail::common_size({" + sizes + "})";
        o << "/** " << Describe(r) << ". */\n";
        o << "inline status " << Lower(r.name) << "(" << params << ") {\n"
          << "    const long n = " << check << ";\n"
          << "    return n < 0 ? status{static_cast<int>(n)} : status{" << e << "(int(n)" << pass
          << ")};\n}\n";
        o << "/** " << r.name << ", " << TypeWords(r.type) << ", at the accuracy given. */\n";
        o << "inline status " << Lower(r.name) << "(" << params << ", accuracy acc) {\n"
          << "    const long n = " << check << ";\n"
          << "    return n < 0 ? status{static_cast<int>(n)} : status{" << e << "_acc(int(n)"
          << pass << ", static_cast<int>(acc))};\n}\n";
    }
    o << "\n} // namespace brenn::vm\n\n#endif\n";
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: gen_vm header|source|cxx OUT\n";
        return 2;
    }
    std::ostringstream text;
    std::string what = argv[1];
    if (what == "header")
        Header(text);
    else if (what == "source")
        Source(text);
    else if (what == "cxx")
        Cxx(text);
    else
        return 2;
    // Written only when it changes, so that a rebuild does not recompile its users.
    std::ifstream old(argv[2]);
    std::stringstream current;
    current << old.rdbuf();
    if (old && current.str() == text.str()) return 0;
    std::ofstream out(argv[2]);
    out << text.str();
    return out ? 0 : 1;
}
