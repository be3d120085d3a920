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

// The unmask set of the mode's trap nibble, as control-word bits.
uint16_t UnmaskOf(uint32_t mode) {
    uint16_t unmask = 0;
    if (mode & kTrapInvalid) unmask |= 0x01;
    if (mode & kTrapDivByZero) unmask |= 0x04;
    if (mode & kTrapOverflow) unmask |= 0x08;
    if (mode & kTrapUnderflow) unmask |= 0x10;
    return unmask;
}

// Sets the code's flag in the x87 status word; with the matching trap bit in the
// mode, the flag is unmasked first, so that the second environment load delivers
// the floating-point fault here, synchronously.
//
// What the two loads leave, when no trap is asked for the code's own flag and the
// control word already masks all six exceptions (as it does inside every kernel), is
// the state before them with the flag added: the first load has nothing pending and
// is replaced at once. So there the environment is stored and loaded only while the
// flag is still clear, which in a vector of reported elements is at the first one.
void RaiseX87(uint32_t mode, uint16_t flag) {
    const uint16_t unmask = UnmaskOf(mode);
    X87Env env, copy;
    if ((flag & unmask) == 0) {
        uint16_t cw, sw;
        __asm__ volatile("fnstcw %0" : "=m"(cw));
        if ((cw & 0x3F) == 0x3F) {
            __asm__ volatile("fnstsw %0" : "=m"(sw));
            if ((sw & flag) == flag) return;
            __asm__ volatile("fnstenv %0" : "=m"(env) : : "memory");
            env.statusWord |= flag;
            __asm__ volatile("fldenv %0" : : "m"(env) : "memory");
            return;
        }
    }
    __asm__ volatile("fnstenv %0" : "=m"(env) : : "memory");
    copy = env;
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

// The actions of the error mode after the callback: errno, standard error (which
// needs the record; without it the mode has no standard-error bit) and the exception.
void ActOnError(int code, const ErrorRecord* r, uint32_t mode) {
    Code c = Lookup(code);
    if (mode & kErrErrno) {
        BindCRuntimeErrno();
        SetCRuntimeErrno(c.errnoValue);
    }
    if ((mode & kErrStderr) && r != nullptr) {
        if (code == -1) {
            brenn_serv_print(1, 735, 2, r->functionName, r->index);
        } else if (code == -2) {
            brenn_serv_print(1, 736, 1, r->functionName);
        } else if (code != 0) {
            brenn_serv_print(1, c.message, 1, r->functionName);
            PrintValueLines(*r);
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

// A report that no callback and no message reads: the record is not built. The
// values still make their round trip through double, as the write-back of an unread
// record does (a conversion's flags, a denormal flushed under DAZ), and errno and the
// exception need only the code.
template <class E>
void QuietReport(int code, int index, const E* a1, const E* a2, E* r1, E* r2, uint32_t mode,
                 bool values) {
    using T = Element<E>;
    double a1r = 0, a2r = 0, r1r = 0, r2r = 0, a1i = 0, a2i = 0, r1i = 0, r2i = 0;
    if (values) {
        T::Load(a1[index], a1r, a1i);
        T::Load(a2[index], a2r, a2i);
        T::Load(r1[index], r1r, r1i);
        T::Load(r2[index], r2r, r2i);
        __asm__ volatile("" : : "x"(a1r), "x"(a2r), "x"(a1i), "x"(a2i));
    }
    if (mode & 0x2F00) ActOnError(code, nullptr, mode);
    if (values) {
        T::Store(r2[index], r2r, r2i);
        T::Store(r1[index], r1r, r1i);
    }
}

template <class E>
void Report(int code, int index, const E* a1, const E* a2, E* r1, E* r2, const char* name) {
    using T = Element<E>;
    ThreadContext* context = GetThreadContext();
    uint32_t mode = ThreadMode(context);
    uint32_t e = mode & kModeErrorMask;
    if (e == kErrNone) return;
    context->status = code;
    if (e == kErrIgnore) return;

    const bool values = code != -1 && code != -2;
    ErrorCallback callback = (mode & kErrCallback) ? context->errorCallback : nullptr;
    if (callback == nullptr && !(mode & kErrStderr)) {
        QuietReport(code, index, a1, a2, r1, r2, mode, values);
        return;
    }

    ErrorRecord record = {}; // fields a report does not fill read as zero
    record.code = code;
    record.index = index;
    if (context->inputVectorPointer != nullptr) {
        intptr_t bytes = reinterpret_cast<intptr_t>(a1) -
                         reinterpret_cast<intptr_t>(context->inputVectorPointer);
        record.index += static_cast<int32_t>(bytes >> T::kShift);
    }
    record.functionNameLength = CopyFunctionName(name, record.functionName);
    if (values) {
        T::Load(a1[index], record.a1, record.a1Imag);
        T::Load(a2[index], record.a2, record.a2Imag);
        T::Load(r1[index], record.r1, record.r1Imag);
        T::Load(r2[index], record.r2, record.r2Imag);
    }
    if (callback != nullptr && callback(&record) != 0) return;
    if (mode & 0x2F00) ActOnError(code, &record, mode);
    if (values) {
        T::Store(r2[index], record.r2, record.r2Imag);
        T::Store(r1[index], record.r1, record.r1Imag);
    }
}

} // namespace

bool ReportsCanWait() {
    ThreadContext* context = GetThreadContext();
    uint32_t mode = ThreadMode(context);
    uint32_t e = mode & kModeErrorMask;
    if (e == kErrNone || e == kErrIgnore) return true;
    if ((mode & kErrCallback) && context->errorCallback != nullptr) return false;
    return !(mode & kErrStderr) && !((mode & kErrExcept) && (mode & kModeTrapMask));
}

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
