// Shared pieces of the Python bindings: the submodule initialisers, statuses turned
// into Python exceptions, and the owner of one front-end stream.
#pragma once

#include <pybind11/pybind11.h>

#include <cstdint>
#include <utility>

#include "brenn.h"

namespace brenn_py {

void InitVm(pybind11::module_& m);
void InitRng(pybind11::module_& m);
void InitStats(pybind11::module_& m);
void InitStatsOrder(pybind11::module_& stats);
void InitStatsRobust(pybind11::module_& m);
void InitFit(pybind11::module_& m);

// Raises the Python exception of a failed status (negative); other statuses pass.
// Refusals of arguments are ValueError, a missing piece of the build
// NotImplementedError, a failed allocation MemoryError, the rest RuntimeError.
void Check(int status, const char* what);

// One stream of the front-end, ended with its owner.
class StreamHandle {
  public:
    StreamHandle() = default;
    explicit StreamHandle(brenn_stream* s) : stream_(s) {}
    StreamHandle(const StreamHandle&) = delete;
    StreamHandle& operator=(const StreamHandle&) = delete;
    StreamHandle(StreamHandle&& o) noexcept : stream_(std::exchange(o.stream_, nullptr)) {}
    StreamHandle& operator=(StreamHandle&& o) noexcept {
        std::swap(stream_, o.stream_);
        return *this;
    }
    ~StreamHandle() { brenn_rng_delete(&stream_); }
    brenn_stream* get() const { return stream_; }
    brenn_stream** out() { return &stream_; }

  private:
    brenn_stream* stream_ = nullptr;
};

} // namespace brenn_py
