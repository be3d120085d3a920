// The version the kernel library was built as, so that a program can compare the
// library it runs against with the headers it was compiled with.
#include "brenn_version.h"
#include "frame/export.h"

BRENN_EXPORT const char* brenn_get_version(int* major, int* minor, int* patch) {
    if (major != nullptr) *major = BRENN_VERSION_MAJOR;
    if (minor != nullptr) *minor = BRENN_VERSION_MINOR;
    if (patch != nullptr) *patch = BRENN_VERSION_PATCH;
    return BRENN_VERSION_STRING;
}
