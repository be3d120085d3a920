// Status, callback and input-vector-pointer functions of the calling thread, with
// the forwarding names the front-end calls.
#include "frame/context.h"
#include "frame/export.h"
#include "frame/mode.h"

using namespace brenn::frame;

BRENN_EXPORT int32_t brenn_zar_kernel_GetErrStatus(void) {
    return GetThreadContext()->status;
}

BRENN_EXPORT int32_t brenn_zar_kernel_SetErrStatus(int32_t status) {
    ThreadContext* c = GetThreadContext();
    int32_t old = c->status;
    c->status = status;
    return old;
}

BRENN_EXPORT int32_t brenn_zar_kernel_ClearErrStatus(void) {
    return brenn_zar_kernel_SetErrStatus(0);
}

// Registering a callback also turns the callback bit of the error mode on (or, for
// null, off) through SetMode, whose rules apply: an error mode that would become
// empty is left as it was.
BRENN_EXPORT ErrorCallback brenn_zar_kernel_SetErrorCallBack(ErrorCallback callback) {
    ThreadContext* c = GetThreadContext();
    ErrorCallback old = c->errorCallback;
    uint32_t mode = ThreadMode(c);
    c->errorCallback = callback;
    SetMode(callback != nullptr ? (mode | kErrCallback) : (mode & ~uint32_t{kErrCallback}));
    return old;
}

BRENN_EXPORT ErrorCallback brenn_zar_kernel_GetErrorCallBack(void) {
    return GetThreadContext()->errorCallback;
}

BRENN_EXPORT ErrorCallback brenn_zar_kernel_ClearErrorCallBack(void) {
    return brenn_zar_kernel_SetErrorCallBack(nullptr);
}

BRENN_EXPORT const void* brenn_zar_kernel_SetInterfInputVectorPointer(const void* pointer) {
    GetThreadContext()->inputVectorPointer = pointer;
    return pointer;
}

BRENN_EXPORT int32_t _zarGetErrStatus(void) {
    return brenn_zar_kernel_GetErrStatus();
}
BRENN_EXPORT int32_t _zarSetErrStatus(int32_t status) {
    return brenn_zar_kernel_SetErrStatus(status);
}
BRENN_EXPORT int32_t _zarClearErrStatus(void) {
    return brenn_zar_kernel_ClearErrStatus();
}
BRENN_EXPORT ErrorCallback _zarGetErrorCallBack(void) {
    return brenn_zar_kernel_GetErrorCallBack();
}
BRENN_EXPORT ErrorCallback _zarSetErrorCallBack(ErrorCallback callback) {
    return brenn_zar_kernel_SetErrorCallBack(callback);
}
BRENN_EXPORT ErrorCallback _zarClearErrorCallBack(void) {
    return brenn_zar_kernel_ClearErrorCallBack();
}
BRENN_EXPORT const void* _zarSetInterfInputVectorPointer(const void* pointer) {
    return brenn_zar_kernel_SetInterfInputVectorPointer(pointer);
}
