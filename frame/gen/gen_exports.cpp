// Build-time generator: expands the vector-math row list into the version script,
// the expected export list and the public declarations of the exported names.
//   gen_exports map OUT [exports.list ...]      linker version script
//   gen_exports list OUT [exports.list ...]     every exported name, sorted
//   gen_exports header OUT                      include/brenn_vecmath_rows.h
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "frame/kernels.h"

namespace {

#define BRENN_STR2(...) #__VA_ARGS__
#define BRENN_STR(...) BRENN_STR2(__VA_ARGS__)

struct Row {
    const char* type;
    const char* name;
    const char* shape;
    const char* signature;
    const char* costs;
    bool reports;
};

const Row kRows[] = {
#define ROW(t, Fn, Shape, Thunk, Share, cLA, cHA, cEP, Reports)                                    \
    {#t, #Fn, #Shape, BRENN_STR(BRENN_SIG(t, Shape)), #cLA ", " #cHA ", " #cEP, Reports != 0},
#include "frame/rows.def"
#undef ROW
};

std::string LaSuffix(char t) {
    return (t == 's' || t == 'c') ? "_21" : "_50";
}
std::string EpSuffix(char t) {
    return (t == 's' || t == 'c') ? "_11" : "_26";
}

std::vector<std::string> RowNames() {
    std::vector<std::string> names;
    for (const Row& r : kRows) {
        std::string stem = std::string(r.type) + r.name;
        names.push_back("_zar" + stem + LaSuffix(r.type[0]));
        names.push_back("_zar" + stem);
        names.push_back("_zar" + stem + "_HA");
        names.push_back("_zar" + stem + EpSuffix(r.type[0]));
        names.push_back("brenn_zar_kernel_" + stem + "_ttab");
        names.push_back("brenn_zar_kernel_" + stem + "_ctab");
    }
    return names;
}

std::vector<std::string> ListNames(int argc, char** argv, int first) {
    std::vector<std::string> names;
    for (int i = first; i < argc; ++i) {
        std::ifstream in(argv[i]);
        if (!in) {
            std::cerr << "cannot read " << argv[i] << "\n";
            std::exit(1);
        }
        std::string line;
        while (std::getline(in, line)) {
            size_t hash = line.find('#');
            if (hash != std::string::npos) line.erase(hash);
            std::istringstream words(line);
            std::string w;
            while (words >> w)
                names.push_back(w);
        }
    }
    return names;
}

const char* TypeWords(char t) {
    switch (t) {
    case 's':
        return "single-precision";
    case 'd':
        return "double-precision";
    case 'c':
        return "single-precision complex";
    default:
        return "double-precision complex";
    }
}

// What an entry of each argument shape does and what its arguments are, for the
// reference documentation: a description line and one @param line an argument.
struct ShapeDoc {
    const char* shape;
    const char* what;
    std::vector<const char*> params;
};

const ShapeDoc kShapeDocs[] = {
    {"Unary",
     "y[i] = %s(a[i]) for i below n.",
     {"n number of elements", "a arguments, n elements", "y results, n elements"}},
    {"AbsArg",
     "y[i] = %s(a[i]) for i below n: complex arguments, real results.",
     {"n number of elements", "a complex arguments, n elements", "y real results, n elements"}},
    {"Cis",
     "y[i] = %s(a[i]) for i below n: real arguments, complex results.",
     {"n number of elements", "a real arguments, n elements", "y complex results, n elements"}},
    {"Binary",
     "y[i] = %s(a[i], b[i]) for i below n.",
     {"n number of elements", "a first arguments, n elements", "b second arguments, n elements",
      "y results, n elements"}},
    {"Powx",
     "y[i] = %s(a[i], b) for i below n, with one second argument for all.",
     {"n number of elements", "a first arguments, n elements", "b the second argument",
      "y results, n elements"}},
    {"TwoRes",
     "y[i] and z[i] are the two results of %s(a[i]) for i below n.",
     {"n number of elements", "a arguments, n elements", "y first results, n elements",
      "z second results, n elements"}},
    {"LinFrac",
     "y[i] = (scaleA * a[i] + shiftA) / (scaleB * b[i] + shiftB) for i below n (%s).",
     {"n number of elements", "a numerator arguments, n elements",
      "b denominator arguments, n elements", "scaleA scale of a", "shiftA shift of a",
      "scaleB scale of b", "shiftB shift of b", "y results, n elements"}},
    {"PackI",
     "y[i] = a[i * increment] for i below n (%s by stride). Elements are copied "
     "as raw bits.",
     {"n number of elements, read as 32 bits", "a the strided source",
      "increment the stride of a in elements, read as 32 bits", "y the dense destination",
      "flag ignored: the entry reads n and increment as 32-bit integers"}},
    {"PackM",
     "For i below n, each a[i] whose mask[i] is non-zero goes to the next place of "
     "y (%s by mask). Elements are copied as raw bits.",
     {"n number of elements, read as 32 bits", "a the source, n elements",
      "mask n 32-bit mask words", "y the dense destination",
      "flag ignored: the entry reads n and the mask as 32-bit integers"}},
    {"PackV",
     "y[i] = a[index[i]] for i below n (%s by index). Elements are copied as raw "
     "bits.",
     {"n number of elements, read as 32 bits", "a the source", "index n 32-bit indices into a",
      "y the dense destination, n elements",
      "flag ignored: the entry reads n and the indices as 32-bit integers"}},
    {"UnpackI",
     "y[i * increment] = a[i] for i below n (%s by stride). Elements are copied "
     "as raw bits; the others of y stay.",
     {"n number of elements, read as 32 bits", "a the dense source, n elements",
      "y the strided destination", "increment the stride of y in elements, read as 32 bits",
      "flag ignored: the entry reads n and increment as 32-bit integers"}},
    {"UnpackM",
     "For i below n, each y[i] whose mask[i] is non-zero takes the next element "
     "of a (%s by mask). Elements are copied as raw bits; the others of y stay.",
     {"n number of elements, read as 32 bits", "a the dense source",
      "y the destination, n elements", "mask n 32-bit mask words",
      "flag ignored: the entry reads n and the mask as 32-bit integers"}},
    {"UnpackV",
     "y[index[i]] = a[i] for i below n (%s by index). Elements are copied as raw "
     "bits; the others of y stay.",
     {"n number of elements, read as 32 bits", "a the dense source, n elements",
      "y the destination", "index n 32-bit indices into y",
      "flag ignored: the entry reads n and the indices as 32-bit integers"}},
};

const ShapeDoc& DocOf(const char* shape) {
    for (const ShapeDoc& d : kShapeDocs)
        if (std::strcmp(d.shape, shape) == 0) return d;
    std::cerr << "no documentation for argument shape " << shape << "\n";
    std::exit(1);
}

// The documentation of a row: a member group named after the row, the LA entry
// documented in full and the other entries referring to it.
void RowDoc(std::ostringstream& o, const Row& r, const std::string& stem,
            const std::vector<std::string>& entries) {
    const ShapeDoc& d = DocOf(r.shape);
    char what[256];
    std::snprintf(what, sizeof what, d.what, r.name);
    o << "\n/** @name " << stem << "\n * " << r.name << " of " << TypeWords(r.type[0])
      << " vectors (cost figures " << r.costs << ").\n * @{ */\n";
    o << "/** @brief " << stem << " at the LA level.\n * @details " << what << "\n";
    if (r.reports)
        o << " * Elements outside the function's domain, poles, overflows and underflows are\n"
             " * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to\n"
             " * BRENN_STATUS_UNDERFLOW, under the row's public error name);\n"
             " * the other elements leave the status as it is.\n";
    else
        o << " * Reports no element and leaves the thread's status as it is.\n";
    for (const char* p : d.params)
        o << " * @param " << p << "\n";
    o << " */\n";
    const char* briefs[] = {nullptr, " at the HA level (the plain name)", " at the HA level",
                            " at the EP level"};
    for (size_t k = 0; k < entries.size(); ++k) {
        if (k > 0)
            o << "/** @brief " << stem << briefs[k] << ". @copydetails " << entries[0] << " */\n";
        o << "void " << entries[k] << r.signature << ";\n";
    }
    o << "/** The row's kernels by slot (LA, HA, EP), indexed by\n"
         " * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */\n"
         "extern BrennKernel brenn_zar_kernel_"
      << stem << "_ttab[3];\n";
    o << "/** The row's cost figures by slot (LA, HA, EP): " << r.costs
      << ". */\nextern float brenn_zar_kernel_" << stem << "_ctab[3];\n/** @} */\n";
}

std::string Header() {
    std::ostringstream o;
    o << "/** @file brenn_vecmath_rows.h\n"
         " * Generated from frame/rows.def by frame/gen/gen_exports; do not edit.\n"
         " * Entry points of every vector-math row: the LA name (_21 single, _50 double),\n"
         " * the HA names (plain and _HA), the EP name (_11 single, _26 double), and the\n"
         " * row's slot and cost views, indexed by brenn_zar_kernel_GetTTableIndex(). */\n"
         "#ifndef BRENN_VECMATH_ROWS_H\n#define BRENN_VECMATH_ROWS_H\n\n"
         "#include <stdint.h>\n#include \"brenn_types.h\"\n\n"
         "#ifdef __cplusplus\nextern \"C\" {\n#endif\n";
    for (const Row& r : kRows) {
        std::string stem = std::string(r.type) + r.name;
        RowDoc(o, r, stem,
               {"_zar" + stem + LaSuffix(r.type[0]), "_zar" + stem, "_zar" + stem + "_HA",
                "_zar" + stem + EpSuffix(r.type[0])});
    }
    o << "\n#ifdef __cplusplus\n}\n#endif\n\n#endif\n";
    return o.str();
}

bool Write(const char* path, const std::string& text) {
    std::ofstream out(path, std::ios::binary);
    out << text;
    return static_cast<bool>(out);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: gen_exports map|list|header OUT [exports.list ...]\n";
        return 2;
    }
    std::string mode = argv[1];
    if (mode == "header") return Write(argv[2], Header()) ? 0 : 1;
    std::vector<std::string> names = RowNames();
    std::vector<std::string> extra = ListNames(argc, argv, 3);
    names.insert(names.end(), extra.begin(), extra.end());
    std::sort(names.begin(), names.end());
    if (std::adjacent_find(names.begin(), names.end()) != names.end()) {
        std::cerr << "duplicate exported name: " << *std::adjacent_find(names.begin(), names.end())
                  << "\n";
        return 1;
    }
    std::ostringstream o;
    if (mode == "map") {
        o << "/* Generated by gen_exports; do not edit. */\n{\n  global:\n";
        for (const std::string& n : names)
            o << "    " << n << ";\n";
        o << "  local:\n    *;\n};\n";
    } else if (mode == "list") {
        for (const std::string& n : names)
            o << n << "\n";
    } else {
        std::cerr << "unknown mode " << mode << "\n";
        return 2;
    }
    return Write(argv[2], o.str()) ? 0 : 1;
}
