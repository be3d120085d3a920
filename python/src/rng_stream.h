// The Python Stream of the bindings: one front-end stream with its bulk draws, and
// Fill, which runs a draw of any length into a new numpy array without the GIL; the
// stream helpers (rng.cpp). Shared by the stream's uniform and discrete draws (rng.cpp),
// its continuous ones (rng_continuous.cpp) and numpy's bit generators (rng_bits.cpp).
#pragma once

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <memory>
#include <vector>

#include "python/src/bindings.h"

namespace brenn_py {

// A new stream of a generator id seeded by the words given.
StreamHandle NewStream(int brng, const std::vector<uint32_t>& seed);
// A new stream with the state of another.
StreamHandle CopyStream(const StreamHandle& from);
// The saved image of a stream, and a stream loaded from one.
pybind11::bytes Image(const StreamHandle& s);
StreamHandle Load(const pybind11::bytes& image);
// The generator id of a stream.
int BrngOf(const StreamHandle& s);

class Stream {
  public:
    Stream(int brng, const std::vector<uint32_t>& seed) : s_(NewStream(brng, seed)) {}
    explicit Stream(StreamHandle s) : s_(std::move(s)) {}
    // A stream that needs `keep` (an abstract stream's buffer) while it lives.
    Stream(StreamHandle s, std::shared_ptr<void> keep) : keep_(std::move(keep)), s_(std::move(s)) {}
    const StreamHandle& handle() const { return s_; }
    brenn_stream* get() const { return s_.get(); }

  private:
    std::shared_ptr<void> keep_; // declared first: it goes after the stream
    StreamHandle s_;
};

// Raises again the exception an abstract stream's refill raised in the last draw of
// this thread, if any (rng_abstract.cpp).
void RaiseRefillFailure();

// Fills n elements by calls of at most INT_MAX elements, without the GIL.
template <class T, class F>
pybind11::array_t<T> Fill(int64_t n, F draw) {
    if (n < 0) throw pybind11::value_error("size must not be negative");
    pybind11::array_t<T> r(n);
    T* p = r.mutable_data();
    int status = BRENN_OK;
    {
        pybind11::gil_scoped_release release;
        for (int64_t at = 0; at < n && status >= 0; at += INT_MAX)
            status = draw(static_cast<int>(std::min<int64_t>(n - at, INT_MAX)), p + at);
    }
    RaiseRefillFailure();
    Check(status, "draw");
    return r;
}

// Adds the continuous distributions' draws to the Stream class.
void AddContinuous(pybind11::class_<Stream>& stream);

// Adds abstract_stream(refill, size, kind, low, high): a Stream fed by a callable.
void AddAbstract(pybind11::module_& rng);

// Adds BitSource: a stream served to numpy through its bit-generator record.
void AddBitSources(pybind11::module_& rng);

} // namespace brenn_py
