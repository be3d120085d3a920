// Names of the statuses a front-end entry can return, and the thread limit of the
// pool the front-end runs its parallel work on.
#include "brenn_status.h"
#include "brenn_types.h"
#include "frontend/export.h"
#include "platform/threader.h"

BRENN_FE_EXPORT const char* brenn_status_name(int status) {
    switch (status) {
    case BRENN_OK:
        return "BRENN_OK";
    case BRENN_ERR_BAD_SIZE:
        return "BRENN_ERR_BAD_SIZE";
    case BRENN_ERR_NULL_POINTER:
        return "BRENN_ERR_NULL_POINTER";
    case BRENN_ERR_BAD_ACCURACY:
        return "BRENN_ERR_BAD_ACCURACY";
    case BRENN_ERR_NOT_AVAILABLE:
        return "BRENN_ERR_NOT_AVAILABLE";
    case BRENN_ERR_SIZE_MISMATCH:
        return "BRENN_ERR_SIZE_MISMATCH";
    case BRENN_ERR_BAD_ARGUMENT:
        return "BRENN_ERR_BAD_ARGUMENT";
    case BRENN_ERR_NO_MEMORY:
        return "BRENN_ERR_NO_MEMORY";
    case BRENN_ERR_TOO_LONG:
        return "BRENN_ERR_TOO_LONG";
    case BRENN_ERR_BAD_METHOD:
        return "BRENN_ERR_BAD_METHOD";
    case BRENN_STATUS_DOMAIN:
        return "BRENN_STATUS_DOMAIN";
    case BRENN_STATUS_SINGULARITY:
        return "BRENN_STATUS_SINGULARITY";
    case BRENN_STATUS_OVERFLOW:
        return "BRENN_STATUS_OVERFLOW";
    case BRENN_STATUS_UNDERFLOW:
        return "BRENN_STATUS_UNDERFLOW";
    default:
        return "service status";
    }
}

BRENN_FE_EXPORT int brenn_set_num_threads(int limit) {
    return brenn_serv_set_num_threads(limit);
}
