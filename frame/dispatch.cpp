// The dispatch table of vector mathematics and its exported entry thunks, laid out
// in assembly from the row list so that the table is one contiguous block and every
// exported row symbol is an address inside it. A slot whose kernel is not defined
// anywhere in the library resolves to null (a weak, hidden reference).
#include "frame/dispatch.h"

#if !defined(__x86_64__)
#error "the dispatch thunks are written for x86-64"
#endif

namespace brenn::frame {

#define BRENN_SHARE_CHAR_All 'A'
#define BRENN_SHARE_CHAR_LaHa 'H'
#define BRENN_SHARE_CHAR_LaEp 'E'
#define BRENN_SHARE_CHAR_Own 'O'
#define BRENN_ERROR_NAME_1(t, Fn) "v" #t #Fn
#define BRENN_ERROR_NAME_0(t, Fn) nullptr

const RowInfo kRowInfo[RowCount] = {
#define ROW(t, Fn, Shape, Thunk, Share, cLA, cHA, cEP, Reports)                                  \
    {#t #Fn, BRENN_ERROR_NAME_##Reports(t, Fn), BRENN_SHARE_CHAR_##Share},
#include "frame/rows.def"
#undef ROW
};

} // namespace brenn::frame

// Kernel symbol of each slot, by the row's sharing pattern.
#define BRENN_S0_All(r) "Kernel_" r "_All"
#define BRENN_S1_All(r) "Kernel_" r "_All"
#define BRENN_S2_All(r) "Kernel_" r "_All"
#define BRENN_S0_LaHa(r) "Kernel_" r "_LaHa"
#define BRENN_S1_LaHa(r) "Kernel_" r "_LaHa"
#define BRENN_S2_LaHa(r) "Kernel_" r "_EP"
#define BRENN_S0_LaEp(r) "Kernel_" r "_LaEp"
#define BRENN_S1_LaEp(r) "Kernel_" r "_HA"
#define BRENN_S2_LaEp(r) "Kernel_" r "_LaEp"
#define BRENN_S0_Own(r) "Kernel_" r "_LA"
#define BRENN_S1_Own(r) "Kernel_" r "_HA"
#define BRENN_S2_Own(r) "Kernel_" r "_EP"

#define BRENN_WEAK(sym) "\t.weak " sym "\n\t.hidden " sym "\n"

#define BRENN_ROW_DATA(t, Fn, Share, cLA, cHA, cEP)                                              \
    BRENN_WEAK(BRENN_S0_##Share(#t #Fn))                                                         \
    BRENN_WEAK(BRENN_S1_##Share(#t #Fn))                                                         \
    BRENN_WEAK(BRENN_S2_##Share(#t #Fn))                                                         \
    "\t.globl brenn_zar_kernel_" #t #Fn "_ttab\n"                                               \
    "\t.type brenn_zar_kernel_" #t #Fn "_ttab, @object\n"                                       \
    "\t.size brenn_zar_kernel_" #t #Fn "_ttab, 24\n"                                            \
    "\t.globl brenn_zar_kernel_" #t #Fn "_ctab\n"                                               \
    "\t.type brenn_zar_kernel_" #t #Fn "_ctab, @object\n"                                       \
    "\t.size brenn_zar_kernel_" #t #Fn "_ctab, 12\n"                                            \
    ".Lrow_" #t #Fn ":\n"                                                                        \
    "brenn_zar_kernel_" #t #Fn "_ttab:\n"                                                        \
    "\t.quad " BRENN_S0_##Share(#t #Fn) ", " BRENN_S1_##Share(#t #Fn) ", " BRENN_S2_##Share(   \
        #t #Fn) "\n"                                                                             \
    "brenn_zar_kernel_" #t #Fn "_ctab:\n"                                                        \
    "\t.float " #cLA ", " #cHA ", " #cEP "\n"                                                    \
    "\t.long 0\n"

// Exported suffixes: LA is _21 for single and single complex, _50 for double and
// double complex; EP is _11 or _26 the same way; HA has the plain name and _HA.
#define BRENN_LASUF_s "_21"
#define BRENN_LASUF_c "_21"
#define BRENN_LASUF_d "_50"
#define BRENN_LASUF_z "_50"
#define BRENN_EPSUF_s "_11"
#define BRENN_EPSUF_c "_11"
#define BRENN_EPSUF_d "_26"
#define BRENN_EPSUF_z "_26"

#define BRENN_FUNC(name) "\t.globl " name "\n\t.type " name ", @function\n"

// Plain thunk: load the slot and jump, stack untouched.
#define BRENN_BODY_Plain(row, off) "\tjmp *" row "+" off "(%rip)\n"
// Pack and unpack: the index-width flag (fifth integer argument) becomes 1.
#define BRENN_BODY_Flag(row, off) "\tmovl $1, %r8d\n\tjmp *" row "+" off "(%rip)\n"
// A frame of its own around the call (the double-complex scalar exponent).
#define BRENN_BODY_Frame(row, off)                                                               \
    "\tsubq $8, %rsp\n\tcall *" row "+" off "(%rip)\n\taddq $8, %rsp\n\tret\n"

#define BRENN_ROW_THUNKS(t, Fn, Thunk)                                                           \
    "\t.p2align 4\n" BRENN_FUNC("_zar" #t #Fn BRENN_LASUF_##t) "_zar" #t #Fn BRENN_LASUF_##t    \
    ":\n" BRENN_BODY_##Thunk(".Lrow_" #t #Fn, "0") "\t.p2align 4\n" BRENN_FUNC("_zar" #t #Fn)  \
        BRENN_FUNC("_zar" #t #Fn "_HA") "_zar" #t #Fn ":\n_zar" #t #Fn "_HA:\n" BRENN_BODY_##Thunk( \
            ".Lrow_" #t #Fn, "8") "\t.p2align 4\n" BRENN_FUNC("_zar" #t #Fn BRENN_EPSUF_##t)       \
            "_zar" #t #Fn BRENN_EPSUF_##t ":\n" BRENN_BODY_##Thunk(".Lrow_" #t #Fn, "16")

__asm__("\t.pushsection .data\n"
        "\t.p2align 6\n"
        "\t.globl BrennDispatchTable\n"
        "\t.hidden BrennDispatchTable\n"
        "\t.type BrennDispatchTable, @object\n"
        "\t.size BrennDispatchTable, 9280\n"
        "BrennDispatchTable:\n"
#define ROW(t, Fn, Shape, Thunk, Share, cLA, cHA, cEP, Reports)                                  \
    BRENN_ROW_DATA(t, Fn, Share, cLA, cHA, cEP)
#include "frame/rows.def"
#undef ROW
        "\t.popsection\n"
        "\t.pushsection .text\n"
#define ROW(t, Fn, Shape, Thunk, Share, cLA, cHA, cEP, Reports) BRENN_ROW_THUNKS(t, Fn, Thunk)
#include "frame/rows.def"
#undef ROW
        "\t.popsection\n");

static_assert(sizeof(DispatchRecord) == 40, "a row is three pointers and three floats, padded");
