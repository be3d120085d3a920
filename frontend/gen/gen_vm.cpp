// Build-time generator of the front-end's vector-math entries, one pair a row of
// frame/rows.def (the plain entry and the one with an explicit accuracy):
//   gen_vm header OUT   C declarations (include/brenn/brenn_vm_entries.h)
//   gen_vm source OUT   their definitions, each a call of the shape's checked runner
//   gen_vm cxx OUT      C++ overloads over std::span (include/brenn/brenn_vm_entries.hpp)
// Names are lower case: brenn_v + type letter + the row's name ("vdExp" -> brenn_vdexp).
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

std::string EntryName(const Row& r) {
    return std::string("brenn_v") + r.type + Lower(r.name);
}

bool IsPack(const std::string& shape) {
    return shape.rfind("Pack", 0) == 0 || shape.rfind("Unpack", 0) == 0;
}

std::string Describe(const Row& r) {
    const std::string& s = r.shape;
    const std::string f = r.name;
    if (s == "Unary" || s == "AbsArg" || s == "Cis") return "y[i] = " + f + "(a[i])";
    if (s == "Binary") return "y[i] = " + f + "(a[i], b[i])";
    if (s == "Powx") return "y[i] = a[i] to the power b";
    if (s == "TwoRes") return "(y[i], z[i]) = " + f + "(a[i])";
    if (s == "LinFrac") return "y[i] = (scalea*a[i] + shifta) / (scaleb*b[i] + shiftb)";
    if (s == "PackI") return "y[i] = a[i*incra]";
    if (s == "PackM") return "the elements of a whose ma[i] is non-zero, packed into y";
    if (s == "PackV") return "y[i] = a[ia[i]]";
    if (s == "UnpackI") return "y[i*incry] = a[i]";
    if (s == "UnpackM") return "y[i] = a[next] where my[i] is non-zero, in order";
    return "y[iy[i]] = a[i]";
}

void Header(std::ostream& o) {
    o << "/** @file brenn_vm_entries.h\n"
         " * Generated from frame/rows.def by frontend/gen/gen_vm; do not edit.\n"
         " * The checked entries of every vector-math row: brenn_v<t><fn>() at the thread's\n"
         " * accuracy and brenn_v<t><fn>_acc() at the accuracy given (BRENN_LA, BRENN_HA,\n"
         " * BRENN_EP). Each returns BRENN_OK, the last element status of the call\n"
         " * (BRENN_STATUS_DOMAIN .. BRENN_STATUS_UNDERFLOW) or a refusal (BRENN_ERR_*); see\n"
         " * brenn_vm.h for the rules they share. */\n"
         "#ifndef BRENN_VM_ENTRIES_H\n#define BRENN_VM_ENTRIES_H\n\n#include \"brenn_types.h\"\n\n"
         "#ifdef __cplusplus\nextern \"C\" {\n#endif\n\n";
    for (const Row& r : kRows) {
        const std::string e = EntryName(r);
        o << "/** @brief v" << r.type << r.name << ": " << Describe(r)
          << " for i below n, at the thread's accuracy.\n";
        o << " * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */\n";
        o << "int " << e << "(" << CParams(r, false) << ");\n";
        o << "/** @brief v" << r.type << r.name << " at the accuracy given (BRENN_LA, BRENN_HA, "
          << "BRENN_EP). @copydetails " << e << " */\n";
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
         " * of the element type calls brenn_v<t><fn>() or brenn_v<t><fn>_acc(). Sizes\n"
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
        o << "/** v" << r.type << r.name << ": " << Describe(r) << ". */\n";
        o << "inline status " << Lower(r.name) << "(" << params << ") {\n"
          << "    const long n = " << check << ";\n"
          << "    return n < 0 ? status{static_cast<int>(n)} : status{" << e << "(int(n)" << pass
          << ")};\n}\n";
        o << "/** v" << r.type << r.name << " at the accuracy given. */\n";
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
