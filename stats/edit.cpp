// The general editors: one table from parameter id to field, editor type and the
// status of a null address.
#include <stddef.h>

#include "frame/export.h"
#include "brenn_stats.h"
#include "stats/task.h"

namespace brenn::stats {
namespace {

enum Kind : uint8_t { None, Integer, Real };

struct Param {
    uint16_t offset;
    Kind kind;
    int32_t nullStatus;
};

#define F(field, kind, status)                                                                     \
    { offsetof(SSTask, field), kind, status }
constexpr Param kParams[80] = {
    {0, None, 0},
    F(dimension, Integer, -4001),              // 1
    F(observationCount, Integer, -4002),       // 2
    F(observations, Real, -4032),              // 3
    F(observationStorage, Integer, -4044),     // 4
    F(indices, Integer, -4004),                // 5
    F(weights, Real, -4005),                   // 6
    F(mean, Real, -4006),                      // 7
    F(rawMoment2, Real, -4007),                // 8
    F(rawMoment3, Real, -4008),                // 9
    F(rawMoment4, Real, -4009),                // 10
    F(centralMoment2, Real, -4010),            // 11
    F(centralMoment3, Real, -4011),            // 12
    F(centralMoment4, Real, -4012),            // 13
    F(kurtosis, Real, -4013),                  // 14
    F(skewness, Real, -4014),                  // 15
    F(minimum, Real, -4015),                   // 16
    F(maximum, Real, -4016),                   // 17
    F(variation, Real, -4017),                 // 18
    F(covariance, Real, -4018),                // 19
    F(covStorage, Integer, -4044),             // 20
    F(correlation, Real, -4019),               // 21
    F(corStorage, Integer, -4044),             // 22
    F(accumWeight, Real, -4020),               // 23
    F(quantileOrderCount, Integer, -4022),     // 24
    F(quantileOrders, Real, -4021),            // 25
    F(quantiles, Real, -4023),                 // 26
    F(orderStatistics, Real, -4024),           // 27
    F(pooledGroupCount, Integer, -4038),       // 28
    F(pooledOutCovStorage, Integer, -4044),    // 29
    F(pooledOutMean, Real, -4035),             // 30
    F(pooledOutCov, Real, -4034),              // 31
    F(pooledStorage, Integer, -4038),          // 32
    F(pooledMean, Real, -4037),                // 33
    F(pooledCovStorage, Integer, -4044),       // 34
    F(pooledCov, Real, -4036),                 // 35
    F(robustCovStorage, Integer, -4044),       // 36
    F(robustParamCount, Integer, -4043),       // 37
    F(robustParams, Real, -4042),              // 38
    F(robustMean, Real, -4028),                // 39
    F(robustCov, Real, -4027),                 // 40
    F(outlierParamCount, Integer, -4040),      // 41
    F(outlierParams, Real, -4039),             // 42
    F(outlierWeights, Real, -4041),            // 43
    F(orderStatisticsStorage, Integer, -4044), // 44
    F(partialParamIndexCount, Integer, -4045), // 45
    F(partialCov, Real, -4046),                // 46
    F(partialCovStorage, Integer, -4044),      // 47
    F(partialCor, Real, -4047),                // 48
    F(partialCorStorage, Integer, -4044),      // 49
    F(missingParamCount, Integer, -4049),      // 50
    F(missingParams, Real, -4048),             // 51
    F(missingPatternCount, Integer, -4052),    // 52
    F(missingPatterns, Real, -4053),           // 53
    F(missingMeanCount, Integer, -4055),       // 54
    F(missingMeans, Real, -4054),              // 55
    F(missingCovCount, Integer, -4056),        // 56
    F(missingCovs, Real, -4057),               // 57
    F(missingSimCount, Integer, -4061),        // 58
    F(missingSimMeans, Real, -4062),           // 59
    F(parametrizedCor, Real, -4071),           // 60
    F(parametrizedCorStorage, Integer, -4044), // 61
    F(streamParamCount, Integer, -4066),       // 62
    F(streamParams, Real, -4065),              // 63
    F(streamOrderCount, Integer, -4069),       // 64
    F(streamOrders, Real, -4068),              // 65
    F(streamQuantiles, Real, -4070),           // 66
    F(sum, Real, -4006),                       // 67: the mean's status, on purpose
    F(rawSum2, Real, -4075),                   // 68
    F(rawSum3, Real, -4076),                   // 69
    F(rawSum4, Real, -4077),                   // 70
    F(centralSum2, Real, -4078),               // 71
    F(centralSum3, Real, -4079),               // 72
    F(centralSum4, Real, -4080),               // 73
    F(crossProduct, Real, -4081),              // 74
    F(crossProductStorage, Integer, -4044),    // 75
    F(multiplierA, Real, -4082),               // 76
    F(multiplierB, Real, -4083),               // 77
    F(sortedObservations, Real, -4084),        // 78
    F(sortedStorage, Integer, -4044),          // 79
};
#undef F

int32_t Edit(void* handle, int64_t id, const void* address, Kind kind, int64_t lowest,
             int64_t highest) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    if (id < lowest || id > highest) return BRENN_SS_ERROR_BADARGS;
    const Param& param = kParams[id];
    if (param.kind != kind) return BRENN_SS_ERROR_BADARGS;
    if (address == nullptr) return param.nullStatus;
    char* field = static_cast<char*>(handle) + param.offset;
    *reinterpret_cast<const void**>(field) = address;
    return BRENN_SS_OK;
}

} // namespace
} // namespace brenn::stats

using namespace brenn::stats;

BRENN_EXPORT int32_t _qesdSSEditTask(void* task, int64_t id, const double* address) {
    return Edit(task, id, address, Real, 3, 78);
}

BRENN_EXPORT int32_t _qessSSEditTask(void* task, int64_t id, const float* address) {
    return Edit(task, id, address, Real, 3, 78);
}

BRENN_EXPORT int32_t _qesiSSEditTask(void* task, int64_t id, const void* address) {
    return Edit(task, id, address, Integer, 1, 79);
}
