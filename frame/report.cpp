// The reporters: status, callback, errno, standard error and the x87 exception, in
// that order, for one element; then the write-back of the (possibly patched) results.
#include "frame/report.h"

#include <string.h>

#include "frame/context.h"
#include "frame/mode.h"
#include "platform/serv.h"

namespace brenn::frame {

namespace {

struct Code {
    int errnoValue;
    int message;
    uint16_t x87Flag;
};

Code Lookup(int code) {
    switch (code) {
    case 0: return {0, 0, 0};
    case 1: return {33, 737, 0x01};
    case 2: return {34, 738, 0x04};
    case 3: return {34, 739, 0x08};
    case 4: return {34, 740, 0x10};
    case -1: return {22, 735, 0};
    case -2: return {13, 736, 0};
    default: return {14, 741, 0};
    }
}

// The x87 environment as fnstenv stores it in 32-bit protected-mode form.
struct X87Env {
    uint16_t controlWord, pad0;
    uint16_t statusWord, pad1;
    uint16_t tagWord, pad2;
    uint32_t rest[4];
};

// Sets the code's flag in the x87 status word; with the matching trap bit in the
// mode, the flag is unmasked first, so that the second environment load delivers
// the floating-point fault here, synchronously.
void RaiseX87(uint32_t mode, uint16_t flag) {
    X87Env env, copy;
    __asm__ volatile("fnstenv %0" : "=m"(env) : : "memory");
    copy = env;
    uint16_t unmask = 0;
    if (mode & kTrapInvalid) unmask |= 0x01;
    if (mode & kTrapDivByZero) unmask |= 0x04;
    if (mode & kTrapOverflow) unmask |= 0x08;
    if (mode & kTrapUnderflow) unmask |= 0x10;
    copy.controlWord = static_cast<uint16_t>(copy.controlWord & ~unmask);
    copy.statusWord = static_cast<uint16_t>((copy.statusWord & ~0x80FF) | flag);
    if (flag & unmask) copy.statusWord |= 0x8080; // error summary and busy: pending
    __asm__ volatile("fldenv %0" : : "m"(copy) : "memory");
    env.controlWord |= 0x3F;
    env.statusWord |= flag;
    __asm__ volatile("fldenv %0" : : "m"(env) : "memory");
}

bool SameBits(double x, double y) {
    return memcmp(&x, &y, sizeof x) == 0;
}

void PrintValueLines(const ErrorRecord& r) {
    bool twoArgs = !(SameBits(r.a1, r.a2) || r.a2 == 0.0);
    bool twoResults = !(SameBits(r.r1, r.r2) || r.r2 == 0.0);
    int i = r.index;
    if (!twoArgs && !twoResults) {
        brenn_serv_print(1, 742, 2, i, r.a1);
        brenn_serv_print(1, 743, 2, i, r.r1);
    } else if (!twoArgs) {
        brenn_serv_print(1, 744, 2, i, r.a1);
        brenn_serv_print(1, 745, 2, i, r.r1);
        brenn_serv_print(1, 746, 2, i, r.r2);
    } else if (!twoResults) {
        brenn_serv_print(1, 747, 2, i, r.a1);
        brenn_serv_print(1, 748, 2, i, r.a2);
        brenn_serv_print(1, 749, 2, i, r.r1);
    } else {
        brenn_serv_print(1, 750, 2, i, r.a1);
        brenn_serv_print(1, 751, 2, i, r.a2);
        brenn_serv_print(1, 752, 2, i, r.r1);
        brenn_serv_print(1, 753, 2, i, r.r2);
    }
}

void ActOnError(const ErrorRecord& r, uint32_t mode) {
    Code c = Lookup(r.code);
    if (mode & kErrErrno) {
        BindCRuntimeErrno();
        SetCRuntimeErrno(c.errnoValue);
    }
    if (mode & kErrStderr) {
        if (r.code == -1) {
            brenn_serv_print(1, 735, 2, r.functionName, r.index);
        } else if (r.code == -2) {
            brenn_serv_print(1, 736, 1, r.functionName);
        } else if (r.code != 0) {
            brenn_serv_print(1, c.message, 1, r.functionName);
            PrintValueLines(r);
        }
    }
    if (mode & kErrExcept) RaiseX87(ThreadMode(), c.x87Flag);
}

// How an element type is read into the record and written back.
template <class E>
struct Element;

template <>
struct Element<float> {
    static constexpr int kShift = 2;
    static void Load(const float& v, double& re, double&) { re = v; }
    static void Store(float& v, double re, double) { v = static_cast<float>(re); }
    static constexpr bool kComplex = false;
};

template <>
struct Element<double> {
    static constexpr int kShift = 3;
    static void Load(const double& v, double& re, double&) { re = v; }
    static void Store(double& v, double re, double) { v = re; }
    static constexpr bool kComplex = false;
};

template <>
struct Element<BrennComplex8> {
    static constexpr int kShift = 3;
    static void Load(const BrennComplex8& v, double& re, double& im) {
        re = v.re;
        im = v.im;
    }
    static void Store(BrennComplex8& v, double re, double im) {
        v.re = static_cast<float>(re);
        v.im = static_cast<float>(im);
    }
    static constexpr bool kComplex = true;
};

template <>
struct Element<BrennComplex16> {
    static constexpr int kShift = 4;
    static void Load(const BrennComplex16& v, double& re, double& im) {
        re = v.re;
        im = v.im;
    }
    static void Store(BrennComplex16& v, double re, double im) {
        v.re = re;
        v.im = im;
    }
    static constexpr bool kComplex = true;
};

template <class E>
void Report(int code, int index, const E* a1, const E* a2, E* r1, E* r2, const char* name) {
    using T = Element<E>;
    ThreadContext* context = GetThreadContext();
    uint32_t mode = ThreadMode(context);
    uint32_t e = mode & kModeErrorMask;
    if (e == kErrNone) return;
    context->status = code;
    if (e == kErrIgnore) return;

    ErrorRecord record = {}; // fields a report does not fill read as zero
    record.code = code;
    record.index = index;
    if (context->inputVectorPointer != nullptr) {
        intptr_t bytes = reinterpret_cast<intptr_t>(a1) -
                         reinterpret_cast<intptr_t>(context->inputVectorPointer);
        record.index += static_cast<int32_t>(bytes >> T::kShift);
    }
    record.functionNameLength = CopyFunctionName(name, record.functionName);
    const bool values = code != -1 && code != -2;
    if (values) {
        T::Load(a1[index], record.a1, record.a1Imag);
        T::Load(a2[index], record.a2, record.a2Imag);
        T::Load(r1[index], record.r1, record.r1Imag);
        T::Load(r2[index], record.r2, record.r2Imag);
    }
    if ((mode & kErrCallback) && context->errorCallback != nullptr) {
        if (context->errorCallback(&record) != 0) return;
    }
    if (mode & 0x2F00) ActOnError(record, mode);
    if (values) {
        T::Store(r2[index], record.r2, record.r2Imag);
        T::Store(r1[index], record.r1, record.r1Imag);
    }
}

} // namespace

void ReportErrorS(int code, int index, const float* a1, const float* a2, float* r1, float* r2,
                  const char* name) {
    Report(code, index, a1, a2, r1, r2, name);
}
void ReportErrorD(int code, int index, const double* a1, const double* a2, double* r1,
                  double* r2, const char* name) {
    Report(code, index, a1, a2, r1, r2, name);
}
void ReportErrorC(int code, int index, const BrennComplex8* a1, const BrennComplex8* a2,
                  BrennComplex8* r1, BrennComplex8* r2, const char* name) {
    Report(code, index, a1, a2, r1, r2, name);
}
void ReportErrorZ(int code, int index, const BrennComplex16* a1, const BrennComplex16* a2,
                  BrennComplex16* r1, BrennComplex16* r2, const char* name) {
    Report(code, index, a1, a2, r1, r2, name);
}

} // namespace brenn::frame
