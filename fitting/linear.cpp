// Linear splines: c0 = y[i], c1 = the slope of cell i, one worker for each storage
// form of the values and of the partition, in the blocking frame of construction.
#include "fitting/construct.h"
#include "frame/export.h"

namespace brenn::fit {
namespace {

template <typename T, bool Columns, bool Uniform>
struct LinearJob {
    const FittingTask* task;
    const T* x;
    T inverseStep;
    int64_t order;
    bool single; // one function in the task: a direct division

    void operator()(const BlockJob& job) const {
        for (int64_t f = job.fBegin; f < job.fEnd; ++f) {
            auto y = FunctionValues<T, Columns>(task, f);
            T* c = static_cast<T*>(task->sCoeff[f]);
            int64_t i = job.cellBegin;
            if (Uniform) {
                for (; i < job.cellEnd; ++i) {
                    c[i * order] = y[i];
                    c[i * order + 1] = (y[i + 1] - y[i]) * inverseStep;
                }
            } else if (single) {
                // One function: a direct division, two cells a turn.
                for (; i + 1 < job.cellEnd; i += 2) {
                    T y0 = y[i], y1 = y[i + 1], y2 = y[i + 2];
                    c[i * order] = y0;
                    c[i * order + 1] = (y1 - y0) / (x[i + 1] - x[i]);
                    c[(i + 1) * order] = y1;
                    c[(i + 1) * order + 1] = (y2 - y1) / (x[i + 2] - x[i + 1]);
                }
                for (; i < job.cellEnd; ++i) {
                    c[i * order] = y[i];
                    c[i * order + 1] = (y[i + 1] - y[i]) / (x[i + 1] - x[i]);
                }
            } else {
                for (; i < job.cellEnd; ++i) {
                    T r = T(1) / (x[i + 1] - x[i]);
                    c[i * order] = y[i];
                    c[i * order + 1] = (y[i + 1] - y[i]) * r;
                }
            }
        }
    }
};

template <typename T, bool Columns, bool Uniform>
int32_t LinearWorker(FittingTask* task, const threader* thr) {
    int64_t nx = task->nx;
    int64_t nf = task->ny > 0 ? task->ny : 1;
    if (int32_t s = CheckConstructionPointers(task, Columns)) return s;
    if (task->bcType == FIT_BC_PERIODIC)
        if (int32_t s = CheckPeriodic<T, Columns>(task, nf)) return s;
    const T* x = static_cast<const T*>(task->x);
    LinearJob<T, Columns, Uniform> job{task, x, T(0), task->sOrder, nf == 1};
    if (Uniform) job.inverseStep = static_cast<T>(nx - 1) / (x[1] - x[0]);
    RunBlocks(nx, nf, thr, job);
    return FIT_STATUS_OK;
}

template <typename T>
constexpr ConstructWorker kLinearWorkers[2][2] = {
    {LinearWorker<T, true, false>, LinearWorker<T, true, true>},
    {LinearWorker<T, false, false>, LinearWorker<T, false, true>}};

template <typename T>
int32_t Linear(FitTaskHandle handle, int64_t flags, const threader* thr) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    if (flags != 0) return FIT_STATUS_FLAG_REFUSED;
    if (task->nx < 2) return FIT_STATUS_BAD_NX;
    int yForm = YForm(task->yHint);
    if (yForm < 0) return FIT_STATUS_BAD_Y_HINT;
    return kLinearWorkers<T>[yForm][XForm(task->xHint)](task, thr);
}

} // namespace
} // namespace brenn::fit

using namespace brenn::fit;

BRENN_EXPORT int32_t brenn_df_kernel_dDFLinearSpline1D(FitTaskHandle task, int64_t, int64_t flags,
                                                       const threader* thr) {
    return Linear<double>(task, flags, thr);
}

BRENN_EXPORT int32_t brenn_df_kernel_sDFLinearSpline1D(FitTaskHandle task, int64_t, int64_t flags,
                                                       const threader* thr) {
    return Linear<float>(task, flags, thr);
}
