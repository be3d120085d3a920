// The editors and queries of the fitting task. A task that is not editable takes
// every edit and query (but EditPPSpline1D) as a no-op returning 0.
#include "fitting/task.h"
#include "frame/export.h"

namespace brenn::fit {

template <typename T>
int32_t SetCoefficientPointers(FittingTask* task, T* sCoeff, int64_t sCoeffHint) {
    int64_t ny = task->ny;
    if (int32_t s = RenewPointerBlock(&task->sCoeff, &task->sCoeffSlots, ny)) return s;
    void** block = task->sCoeff;
    if (sCoeffHint & FIT_Y_FIRST_ROW_ONLY) {
        block[0] = sCoeff;
        return FIT_STATUS_OK;
    }
    // The knot form has nx pieces, every other spline nx-1 cells.
    uint64_t order = static_cast<uint64_t>(task->sOrder);
    uint64_t stride =
        order * static_cast<uint64_t>(task->nx) - (task->sType == FIT_TYPE_KNOTS ? 0 : order);
    for (int64_t i = 0; i < ny; ++i)
        block[i] = ElementAt(sCoeff, i, stride);
    return FIT_STATUS_OK;
}

template int32_t SetCoefficientPointers<double>(FittingTask*, double*, int64_t);
template int32_t SetCoefficientPointers<float>(FittingTask*, float*, int64_t);

namespace {

bool Editable(const FittingTask* task) {
    return task->editable == 1;
}

template <typename T>
int32_t EditPPSpline(FitTaskHandle handle, int64_t sOrder, int64_t sType, int64_t bcType,
                     const T* bc, int64_t icType, const T* ic, T* sCoeff, int64_t sCoeffHint) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    // Each field is stored as soon as its own test passes: a later refusal leaves the
    // earlier fields changed.
    if (sOrder < 0) return FIT_STATUS_BAD_SPLINE_ORDER;
    if (sType < 0) return FIT_STATUS_BAD_SPLINE_TYPE;
    task->sOrder = sOrder;
    task->sType = sType;
    bool bcNeedsNoValues = bcType == FIT_BC_NONE || bcType == FIT_BC_NOT_A_KNOT ||
                           bcType == FIT_BC_FREE_END || bcType == FIT_BC_PERIODIC;
    if (!bcNeedsNoValues && bc == nullptr) return FIT_STATUS_BAD_BC;
    task->bcType = bcType;
    task->bc = bc;
    if (icType != FIT_IC_NONE && ic == nullptr) return FIT_STATUS_BAD_IC;
    if (icType == FIT_IC_NONE && ic != nullptr) return FIT_STATUS_BAD_IC_TYPE;
    task->icType = icType;
    task->ic = ic;
    if (sCoeff != nullptr) {
        if (task->ny == 0) return FIT_STATUS_BAD_NY;
        if (int32_t s = SetCoefficientPointers<T>(task, sCoeff, sCoeffHint)) return s;
    }
    task->sCoeffHint = sCoeffHint;
    return FIT_STATUS_OK;
}

template <typename T>
int32_t EditPtr(FitTaskHandle handle, int64_t id, const T* pointer) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    if (!Editable(task)) return FIT_STATUS_OK;
    switch (id) {
    case FIT_PARAM_X:
        if (pointer == nullptr) return FIT_STATUS_BAD_X;
        task->x = pointer;
        return FIT_STATUS_OK;
    case FIT_PARAM_Y:
        if (pointer == nullptr) return FIT_STATUS_BAD_Y;
        return SetFunctionPointers<T>(task, pointer, task->ny, task->yHint);
    case FIT_PARAM_IC:
        if (pointer == nullptr) return FIT_STATUS_BAD_IC;
        task->ic = pointer;
        return FIT_STATUS_OK;
    case FIT_PARAM_BC:
        if (pointer == nullptr) return FIT_STATUS_BAD_BC;
        task->bc = pointer;
        return FIT_STATUS_OK;
    case FIT_PARAM_SCOEFF:
        if (pointer == nullptr) return FIT_STATUS_BAD_COEFF_PTR;
        if (task->ny == 0) return FIT_STATUS_BAD_NY;
        return SetCoefficientPointers<T>(task, const_cast<T*>(pointer), task->sCoeffHint);
    default:
        return FIT_STATUS_BAD_PARAM_ID;
    }
}

int32_t EditIdxPtr(FitTaskHandle handle, int64_t id, int64_t index, const void* pointer) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    if (!Editable(task)) return FIT_STATUS_OK;
    if (id == FIT_PARAM_Y) {
        if (task->yHint == FIT_Y_COLUMNS) return FIT_STATUS_BAD_Y_HINT;
        if (index < 0 || index >= task->ny) return FIT_STATUS_BAD_INDEX;
        if (pointer == nullptr) return FIT_STATUS_BAD_Y;
        if (task->y == nullptr) return FIT_STATUS_BAD_Y;
        // ny raised after the block was made: no slot for the function yet.
        if (index >= task->ySlots) return FIT_STATUS_BAD_INDEX;
        task->y[index] = pointer;
        return FIT_STATUS_OK;
    }
    if (id == FIT_PARAM_SCOEFF) {
        if (index < 0 || index >= task->ny) return FIT_STATUS_BAD_INDEX;
        if (pointer == nullptr) return FIT_STATUS_BAD_COEFF_PTR;
        if (task->sCoeff == nullptr) return FIT_STATUS_BAD_COEFF_PTR;
        if (index >= task->sCoeffSlots) return FIT_STATUS_BAD_INDEX;
        task->sCoeff[index] = const_cast<void*>(pointer);
        return FIT_STATUS_OK;
    }
    return FIT_STATUS_BAD_PARAM_ID;
}

int32_t QueryPtr(FitTaskHandle handle, int64_t id, void** out) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    if (out == nullptr) return FIT_STATUS_NULL_OUT;
    if (!Editable(task)) return FIT_STATUS_OK;
    switch (id) {
    case FIT_PARAM_X:
        *out = const_cast<void*>(task->x);
        return FIT_STATUS_OK;
    case FIT_PARAM_Y:
        *out = task->y != nullptr ? const_cast<void*>(task->y[0]) : nullptr;
        return FIT_STATUS_OK;
    case FIT_PARAM_IC:
        *out = const_cast<void*>(task->ic);
        return FIT_STATUS_OK;
    case FIT_PARAM_BC:
        *out = const_cast<void*>(task->bc);
        return FIT_STATUS_OK;
    case FIT_PARAM_SCOEFF:
        *out = task->sCoeff != nullptr ? task->sCoeff[0] : nullptr;
        return FIT_STATUS_OK;
    default:
        return FIT_STATUS_BAD_PARAM_ID;
    }
}

int32_t QueryIdxPtr(FitTaskHandle handle, int64_t id, int64_t index, void** out) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    if (out == nullptr) return FIT_STATUS_NULL_OUT;
    // The bound is inclusive: index ny passes, as the existing interface has it, and
    // reads the null slot past the functions'. A slot that the block lacks (ny raised
    // after it was made) reads as null too.
    if (index < 0 || index > task->ny) return FIT_STATUS_BAD_INDEX;
    if (!Editable(task)) return FIT_STATUS_OK;
    if (id == FIT_PARAM_Y) {
        if (task->yHint == FIT_Y_COLUMNS) return FIT_STATUS_BAD_Y_HINT;
        *out = index < task->ySlots ? const_cast<void*>(task->y[index]) : nullptr;
        return FIT_STATUS_OK;
    }
    if (id == FIT_PARAM_SCOEFF) {
        *out = index < task->sCoeffSlots ? task->sCoeff[index] : nullptr;
        return FIT_STATUS_OK;
    }
    return FIT_STATUS_BAD_PARAM_ID;
}

bool KnownStorageHint(int64_t h) {
    return h == FIT_Y_NO_HINT || h == FIT_Y_ROWS || h == FIT_Y_COLUMNS || h == FIT_Y_FIRST_ROW_ONLY;
}

} // namespace

} // namespace brenn::fit

using namespace brenn::fit;

BRENN_EXPORT int32_t brenn_df_kernel_dEditPPSpline1D(FitTaskHandle task, int64_t sOrder,
                                                     int64_t sType, int64_t bcType,
                                                     const double* bc, int64_t icType,
                                                     const double* ic, double* sCoeff,
                                                     int64_t sCoeffHint) {
    return EditPPSpline<double>(task, sOrder, sType, bcType, bc, icType, ic, sCoeff, sCoeffHint);
}

BRENN_EXPORT int32_t brenn_df_kernel_sEditPPSpline1D(FitTaskHandle task, int64_t sOrder,
                                                     int64_t sType, int64_t bcType, const float* bc,
                                                     int64_t icType, const float* ic, float* sCoeff,
                                                     int64_t sCoeffHint) {
    return EditPPSpline<float>(task, sOrder, sType, bcType, bc, icType, ic, sCoeff, sCoeffHint);
}

BRENN_EXPORT int32_t brenn_df_kernel_dEditPtr(FitTaskHandle task, int64_t id,
                                              const double* pointer) {
    return EditPtr<double>(task, id, pointer);
}

BRENN_EXPORT int32_t brenn_df_kernel_sEditPtr(FitTaskHandle task, int64_t id,
                                              const float* pointer) {
    return EditPtr<float>(task, id, pointer);
}

BRENN_EXPORT int32_t brenn_df_kernel_iEditVal(FitTaskHandle handle, int64_t id, int64_t value) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    if (!Editable(task)) return FIT_STATUS_OK;
    switch (id) {
    case FIT_PARAM_NX:
        if (value < 2) return FIT_STATUS_BAD_NX;
        task->nx = value;
        return FIT_STATUS_OK;
    case FIT_PARAM_XHINT:
        if (value != FIT_X_NO_HINT && value != FIT_X_NON_UNIFORM && value != FIT_X_QUASI_UNIFORM &&
            value != FIT_X_UNIFORM)
            return FIT_STATUS_BAD_X_HINT;
        task->xHint = value;
        // Only this value rebuilds the table, from the current x and nx, into the
        // block that the task has: the one way to refresh it after x or nx changed.
        if (value == FIT_X_NON_UNIFORM && task->searchTable != nullptr) {
            if (task->isDouble)
                BuildSearchTable<double>(task);
            else
                BuildSearchTable<float>(task);
        }
        return FIT_STATUS_OK;
    case FIT_PARAM_NY:
        if (value <= 0) return FIT_STATUS_BAD_NY;
        task->ny = value;
        return FIT_STATUS_OK;
    case FIT_PARAM_YHINT:
        if (!KnownStorageHint(value)) return FIT_STATUS_BAD_Y_HINT;
        task->yHint = value;
        return FIT_STATUS_OK;
    case FIT_PARAM_SORDER:
        if (value < 0) return FIT_STATUS_BAD_SPLINE_ORDER;
        task->sOrder = value;
        return FIT_STATUS_OK;
    case FIT_PARAM_STYPE:
        if (!(value >= 0 && value <= 5) && value != 9) return FIT_STATUS_BAD_SPLINE_TYPE;
        task->sType = value;
        return FIT_STATUS_OK;
    case FIT_PARAM_ICTYPE:
        if (value != 0 && value != 1 && value != 2 && !(value & FIT_IC_KNOTS))
            return FIT_STATUS_BAD_IC_TYPE;
        task->icType = value;
        return FIT_STATUS_OK;
    case FIT_PARAM_BCTYPE:
        if (value < 0) return FIT_STATUS_BAD_BC_TYPE;
        task->bcType = value;
        return FIT_STATUS_OK;
    case FIT_PARAM_SCOEFFHINT:
        if (!KnownStorageHint(value)) return FIT_STATUS_BAD_COEFF_HINT;
        task->sCoeffHint = value;
        return FIT_STATUS_OK;
    case FIT_PARAM_FLAG:
        if (value != 0 && value != 1) return FIT_STATUS_BAD_FLAG;
        task->flagWord = static_cast<int32_t>(value);
        return FIT_STATUS_OK;
    default:
        return FIT_STATUS_BAD_PARAM_ID;
    }
}

BRENN_EXPORT int32_t brenn_df_kernel_dEditIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                                 const double* pointer) {
    return EditIdxPtr(task, id, index, pointer);
}

BRENN_EXPORT int32_t brenn_df_kernel_sEditIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                                 const float* pointer) {
    return EditIdxPtr(task, id, index, pointer);
}

BRENN_EXPORT int32_t brenn_df_kernel_dQueryPtr(FitTaskHandle task, int64_t id, double** pointer) {
    return QueryPtr(task, id, reinterpret_cast<void**>(pointer));
}

BRENN_EXPORT int32_t brenn_df_kernel_sQueryPtr(FitTaskHandle task, int64_t id, float** pointer) {
    return QueryPtr(task, id, reinterpret_cast<void**>(pointer));
}

BRENN_EXPORT int32_t brenn_df_kernel_iQueryVal(FitTaskHandle handle, int64_t id, int64_t* value) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    if (value == nullptr) return FIT_STATUS_NULL_OUT;
    if (!Editable(task)) return FIT_STATUS_OK;
    switch (id) {
    case FIT_PARAM_NX:
        *value = task->nx;
        return FIT_STATUS_OK;
    case FIT_PARAM_XHINT:
        *value = task->xHint;
        return FIT_STATUS_OK;
    case FIT_PARAM_NY:
        *value = task->ny;
        return FIT_STATUS_OK;
    case FIT_PARAM_YHINT:
        *value = task->yHint;
        return FIT_STATUS_OK;
    case FIT_PARAM_SORDER:
        *value = task->sOrder;
        return FIT_STATUS_OK;
    case FIT_PARAM_STYPE:
        *value = task->sType;
        return FIT_STATUS_OK;
    case FIT_PARAM_ICTYPE:
        *value = task->icType;
        return FIT_STATUS_OK;
    case FIT_PARAM_BCTYPE:
        *value = task->bcType;
        return FIT_STATUS_OK;
    case FIT_PARAM_SCOEFFHINT:
        *value = task->sCoeffHint;
        return FIT_STATUS_OK;
    case FIT_PARAM_FLAG:
        *value = task->flagWord;
        return FIT_STATUS_OK;
    default:
        return FIT_STATUS_BAD_PARAM_ID;
    }
}

BRENN_EXPORT int32_t brenn_df_kernel_dQueryIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                                  double** pointer) {
    return QueryIdxPtr(task, id, index, reinterpret_cast<void**>(pointer));
}

BRENN_EXPORT int32_t brenn_df_kernel_sQueryIdxPtr(FitTaskHandle task, int64_t id, int64_t index,
                                                  float** pointer) {
    return QueryIdxPtr(task, id, index, reinterpret_cast<void**>(pointer));
}
