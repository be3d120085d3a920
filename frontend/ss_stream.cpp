// Streaming quantiles: a summary owning one statistics task whose dimension, count,
// layout and streaming fields point into it. Each feed hands the service the block
// with its last observation held back, and a read feeds that observation with the
// service's feed-then-read method: the service answers only after a feed, and the
// sequence of observations it sees is the caller's, so the answers do not depend on
// the blocks.
#include <cmath>
#include <cstring>
#include <new>

#include "brenn_ss_stream.h"
#include "frontend/export.h"
#include "frontend/ss_task.h"
#include "platform/threader.h"

namespace {

template <class T>
struct StreamState {
    void* task = nullptr;
    // The words the task reads through its pointers.
    int64_t p = 0, n = 0, layout = BRENN_SS_VARIABLES_IN_ROWS, orderCount = 0, paramCount = 1;
    T eps = 0;
    T noOrder = 0, noResult = 0; // orders and results of a feed: never read nor written
    T* held = nullptr;           // p values: the last observation fed, not yet passed on
    bool holding = false;
    int64_t fed = 0;
    T* scratch = nullptr; // the first n - 1 observations of a block of variables in rows
    int64_t scratchSize = 0;
};

} // namespace

struct brenn_ss_stream_f64 : StreamState<double> {};
struct brenn_ss_stream_f32 : StreamState<float> {};

namespace {

template <class T>
void Free(StreamState<T>* s) {
    if (s->task != nullptr) _qesSSDeleteTask(&s->task);
    delete[] s->held;
    delete[] s->scratch;
}

template <class T, class S>
void Delete(S** s) {
    if (s == nullptr || *s == nullptr) return;
    Free<T>(*s);
    delete *s;
    *s = nullptr;
}

template <class S, class T>
int New(S** out, int64_t p, T eps) {
    if (out == nullptr) return BRENN_ERR_NULL_POINTER;
    *out = nullptr;
    if (p < 1) return BRENN_ERR_BAD_SIZE;
    if (!(eps > 0 && eps <= 1)) return BRENN_ERR_BAD_ARGUMENT;
    S* s = new (std::nothrow) S;
    if (s == nullptr) return BRENN_ERR_NO_MEMORY;
    s->p = p;
    s->eps = eps;
    s->held = new (std::nothrow) T[p];
    int status = s->held == nullptr ? BRENN_ERR_NO_MEMORY : BRENN_OK;
    if (status == BRENN_OK)
        status = brenn::fe::SsEntries<T>::newTask(&s->task, &s->p, &s->n, &s->layout, nullptr,
                                                  nullptr, nullptr, 1);
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::editStream(s->task, &s->orderCount, &s->noOrder,
                                                     &s->noResult, &s->paramCount, &s->eps);
    if (status != BRENN_OK) {
        Delete<T>(&s);
        return status;
    }
    *out = s;
    return BRENN_OK;
}

// One call of the service on n observations at x; a read when quantiles is given.
template <class T>
int Pass(StreamState<T>* s, int64_t n, int64_t layout, const T* x, int64_t m = 0,
         const T* orders = nullptr, T* quantiles = nullptr) {
    s->n = n;
    s->layout = layout;
    s->orderCount = m;
    int status = brenn::fe::SsEntries<T>::edit(s->task, BRENN_SS_ED_OBSERV, x);
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::editStream(
            s->task, nullptr, orders ? const_cast<T*>(orders) : &s->noOrder,
            quantiles ? quantiles : &s->noResult, nullptr, nullptr);
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::stream(s->task, BRENN_SS_STREAM_QUANTS,
                                                 quantiles ? BRENN_SS_METHOD_STREAM_READ
                                                           : BRENN_SS_METHOD_STREAM_FEED,
                                                 brenn_serv_pool_threader());
    return status;
}

// Passes on the observation held back, if any.
template <class T>
int PassHeld(StreamState<T>* s) {
    if (!s->holding) return BRENN_OK;
    int status = Pass(s, 1, BRENN_SS_VARIABLES_IN_ROWS, s->held);
    if (status == BRENN_OK) s->holding = false;
    return status;
}

template <class T>
int Feed(StreamState<T>* s, int64_t n, int64_t layout, const T* x) {
    if (s == nullptr || x == nullptr) return BRENN_ERR_NULL_POINTER;
    if (n < 0) return BRENN_ERR_BAD_SIZE;
    if (layout != BRENN_SS_VARIABLES_IN_ROWS && layout != BRENN_SS_OBSERVATIONS_IN_ROWS)
        return BRENN_ERR_BAD_ARGUMENT;
    if (n == 0) return BRENN_OK;
    const int64_t p = s->p, rest = n - 1;
    const bool rows = layout == BRENN_SS_VARIABLES_IN_ROWS;
    // The first n - 1 observations of variables in rows lie with a stride of n: they
    // are gathered at a stride of n - 1 for the service.
    if (rest > 0 && rows && p > 1 && s->scratchSize < p * rest) {
        T* bigger = new (std::nothrow) T[p * rest];
        if (bigger == nullptr) return BRENN_ERR_NO_MEMORY;
        delete[] s->scratch;
        s->scratch = bigger;
        s->scratchSize = p * rest;
    }
    if (int status = PassHeld(s)) return status;
    if (rest > 0) {
        const T* first = x;
        if (rows && p > 1) {
            for (int64_t j = 0; j < p; ++j)
                std::memcpy(s->scratch + j * rest, x + j * n, sizeof(T) * rest);
            first = s->scratch;
        }
        if (int status = Pass(s, rest, layout, first)) return status;
    }
    for (int64_t j = 0; j < p; ++j)
        s->held[j] = rows ? x[j * n + rest] : x[rest * p + j];
    s->holding = true;
    s->fed += n;
    return BRENN_OK;
}

template <class T>
int Read(StreamState<T>* s, int64_t m, const T* orders, T* quantiles) {
    if (s == nullptr || orders == nullptr || quantiles == nullptr) return BRENN_ERR_NULL_POINTER;
    if (m < 0) return BRENN_ERR_BAD_SIZE;
    for (int64_t k = 0; k < m; ++k)
        if (!(orders[k] >= 0 && orders[k] <= 1)) return BRENN_ERR_BAD_ARGUMENT;
    if (!s->holding) return BRENN_ERR_NOT_AVAILABLE;
    int status = Pass(s, 1, BRENN_SS_VARIABLES_IN_ROWS, s->held, m, orders, quantiles);
    if (status == BRENN_OK) s->holding = false;
    return status;
}

} // namespace

BRENN_FE_EXPORT int brenn_ss_stream_new_f64(brenn_ss_stream_f64** stream, int64_t p, double eps) {
    return New(stream, p, eps);
}
BRENN_FE_EXPORT int brenn_ss_stream_new_f32(brenn_ss_stream_f32** stream, int64_t p, float eps) {
    return New(stream, p, eps);
}
BRENN_FE_EXPORT int brenn_ss_stream_feed_f64(brenn_ss_stream_f64* stream, int64_t n, int64_t layout,
                                             const double* x) {
    return Feed<double>(stream, n, layout, x);
}
BRENN_FE_EXPORT int brenn_ss_stream_feed_f32(brenn_ss_stream_f32* stream, int64_t n, int64_t layout,
                                             const float* x) {
    return Feed<float>(stream, n, layout, x);
}
BRENN_FE_EXPORT int brenn_ss_stream_read_f64(brenn_ss_stream_f64* stream, int64_t m,
                                             const double* orders, double* quantiles) {
    return Read<double>(stream, m, orders, quantiles);
}
BRENN_FE_EXPORT int brenn_ss_stream_read_f32(brenn_ss_stream_f32* stream, int64_t m,
                                             const float* orders, float* quantiles) {
    return Read<float>(stream, m, orders, quantiles);
}
BRENN_FE_EXPORT int64_t brenn_ss_stream_count_f64(const brenn_ss_stream_f64* stream) {
    return stream == nullptr ? -1 : stream->fed;
}
BRENN_FE_EXPORT int64_t brenn_ss_stream_count_f32(const brenn_ss_stream_f32* stream) {
    return stream == nullptr ? -1 : stream->fed;
}
BRENN_FE_EXPORT void brenn_ss_stream_delete_f64(brenn_ss_stream_f64** stream) {
    Delete<double>(stream);
}
BRENN_FE_EXPORT void brenn_ss_stream_delete_f32(brenn_ss_stream_f32** stream) {
    Delete<float>(stream);
}
