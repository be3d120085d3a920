// Abstract streams for Python: a front-end stream whose doubles or floats come from a
// buffer that a Python callable refills. (The word form serves only the raw-bits
// draw, whose word size is the generator's, which the Python Stream leaves out.) The callable gets a writable numpy view of the part
// of the buffer to fill (twice when the part wraps round the buffer's end) and fills
// all of it; the draws that need it run without the GIL and take it back for the
// call. An exception raised by the callable ends the draw and is raised again by it.
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <memory>
#include <mutex>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "python/src/bindings.h"
#include "python/src/rng_stream.h"

namespace py = pybind11;

namespace brenn_py {
namespace {

// The callable of one abstract stream and its buffer, found by the stream's address
// when the service asks for a refill.
struct FeedBase {
    py::function refill;
};
template <class T>
struct Feed : FeedBase {
    std::vector<T> buffer;
};

std::mutex g_feedsLock;
std::unordered_map<const void*, FeedBase*> g_feeds;

// What a refill raised, for the draw to raise again once it has the GIL back.
thread_local std::unique_ptr<py::error_already_set> g_failure;

template <class T>
Feed<T>* FeedOf(const void* stream) {
    std::lock_guard<std::mutex> hold(g_feedsLock);
    auto it = g_feeds.find(stream);
    return it == g_feeds.end() ? nullptr : static_cast<Feed<T>*>(it->second);
}

// Calls the callable on buffer[from, from + count); false when it raised.
template <class T>
bool FillPart(Feed<T>* f, int32_t from, int32_t count) {
    if (count <= 0) return true;
    try {
        py::array_t<T> view({py::ssize_t(count)}, {py::ssize_t(sizeof(T))}, f->buffer.data() + from,
                            py::none());
        f->refill(view);
        return true;
    } catch (py::error_already_set& e) {
        g_failure = std::make_unique<py::error_already_set>(std::move(e));
        return false;
    }
}

// The service's refill: the largest count asked for, from the start index, wrapping.
template <class T>
int32_t Refill(void* stream, int32_t* size, T*, int32_t*, int32_t* maximum, int32_t* start) {
    Feed<T>* f = FeedOf<T>(stream);
    if (f == nullptr) return 0;
    py::gil_scoped_acquire gil;
    const int32_t first = std::min(*maximum, *size - *start);
    if (!FillPart(f, *start, first) || !FillPart(f, 0, *maximum - first)) return 0;
    return *maximum;
}

// Owns a feed and removes it from the registry when the stream it serves is gone.
template <class T>
struct FeedOwner {
    Feed<T> feed;
    const void* key = nullptr;
    ~FeedOwner() {
        std::lock_guard<std::mutex> hold(g_feedsLock);
        g_feeds.erase(key);
    }
};

template <class T>
int Make(brenn_stream** s, int size, T* buffer, double low, double high) {
    if constexpr (std::is_same_v<T, double>)
        return brenn_rng_new_abstract_f64(s, size, buffer, low, high, Refill<double>);
    else
        return brenn_rng_new_abstract_f32(s, size, buffer, float(low), float(high), Refill<float>);
}

template <class T>
Stream NewAbstract(const py::function& refill, int size, double low, double high) {
    auto owner = std::make_shared<FeedOwner<T>>();
    owner->feed.buffer.resize(size > 0 ? size_t(size) : 0);
    owner->feed.refill = refill;
    StreamHandle s;
    Check(Make<T>(s.out(), size, owner->feed.buffer.data(), low, high), "abstract stream");
    owner->key = s.get();
    {
        std::lock_guard<std::mutex> hold(g_feedsLock);
        g_feeds[owner->key] = &owner->feed;
    }
    return Stream(std::move(s), owner);
}

} // namespace

void RaiseRefillFailure() {
    if (g_failure) {
        std::unique_ptr<py::error_already_set> e = std::move(g_failure);
        throw std::move(*e);
    }
}

void AddAbstract(py::module_& r) {
    r.def(
        "abstract_stream",
        [](const py::function& refill, int size, const std::string& kind, double low, double high) {
            if (kind == "f64") return NewAbstract<double>(refill, size, low, high);
            if (kind == "f32") return NewAbstract<float>(refill, size, low, high);
            throw py::value_error("an abstract stream holds f64 or f32");
        },
        py::arg("refill"), py::arg("size"), py::arg("kind"), py::arg("low"), py::arg("high"));
}

} // namespace brenn_py
