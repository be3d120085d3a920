// Random numbers for Python: Stream, the bulk distribution calls of a front-end
// stream (the continuous ones in rng_continuous.cpp), and BitSource, a stream read word by word
// through numpy's bit-generator record (bitgen_t, handed over in a capsule named "BitGenerator"). A
// BitSource draws its words in blocks; the words drawn but not yet read belong to its state, so
// copies, jumps and saved images count from the words already read.
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <vector>

#include "python/src/bindings.h"
#include "python/src/rng_stream.h"

namespace py = pybind11;

namespace brenn_py {
namespace {

// numpy's bit-generator record (numpy/random/bitgen.h), the documented interface.
struct bitgen_t {
    void* state;
    uint64_t (*next_uint64)(void* st);
    uint32_t (*next_uint32)(void* st);
    double (*next_double)(void* st);
    uint64_t (*next_raw)(void* st);
};

} // namespace

StreamHandle NewStream(int brng, const std::vector<uint32_t>& seed) {
    StreamHandle s;
    int status = seed.size() == 1
                     ? brenn_rng_new(s.out(), brng, seed[0])
                     : brenn_rng_new_ex(s.out(), brng, static_cast<int>(seed.size()), seed.data());
    Check(status, "stream");
    return s;
}

namespace {

StreamHandle CopyStream(const StreamHandle& from) {
    StreamHandle s;
    Check(brenn_rng_copy(s.out(), from.get()), "copy");
    return s;
}

py::bytes Image(const StreamHandle& s) {
    int64_t size = 0;
    Check(brenn_rng_image_size(s.get(), &size), "image size");
    std::string image(static_cast<size_t>(size), '\0');
    Check(brenn_rng_save_memory(s.get(), image.data(), size), "save");
    return py::bytes(image);
}

StreamHandle Load(const py::bytes& image) {
    std::string_view v = image;
    StreamHandle s;
    Check(brenn_rng_load_memory(s.out(), v.data(), static_cast<int64_t>(v.size())), "load");
    return s;
}

// Words drawn a block at a time: large enough that the refill's cost is spread thin,
// small enough to stay in the first-level cache.
constexpr size_t kBlock = 4096;

class BitSource {
  public:
    BitSource(StreamHandle s, std::vector<uint32_t> unread) : s_(std::move(s)) {
        words_.resize(std::max(kBlock, unread.size()));
        std::copy(unread.begin(), unread.end(), words_.begin());
        at_ = words_.data();
        end_ = at_ + unread.size();
        bitgen_ = {this, &Next64, &Next32, &NextDouble, &NextRaw};
        // The stream must give 32-bit words: refuse now rather than inside numpy.
        uint32_t probe;
        StreamHandle trial = CopyStream(s_);
        Check(brenn_rng_bits_u32(trial.get(), 1, &probe), "32-bit words of this generator");
    }
    BitSource(BitSource&& o) noexcept
        : s_(std::move(o.s_)), words_(std::move(o.words_)), at_(o.at_),
          end_(o.end_), bitgen_{this, &Next64, &Next32, &NextDouble, &NextRaw} {}
    BitSource(const BitSource&) = delete;
    BitSource& operator=(const BitSource&) = delete;
    // The record carries this object's address, fixed once it lies in its Python
    // object; numpy copies the record when a Generator is made.
    py::capsule Capsule() {
        bitgen_.state = this;
        return py::capsule(static_cast<void*>(&bitgen_), "BitGenerator");
    }
    int Brng() const {
        int id = 0;
        Check(brenn_rng_get_brng(s_.get(), &id), "generator id");
        return id;
    }
    // The words drawn from the stream and not read yet.
    std::vector<uint32_t> Unread() const { return std::vector<uint32_t>(at_, end_); }
    py::bytes Image() const { return brenn_py::Image(s_); }
    // A new source nskip words further on.
    BitSource Jumped(uint64_t nskip) const {
        std::vector<uint32_t> unread = Unread();
        StreamHandle s = CopyStream(s_);
        if (nskip <= unread.size()) {
            unread.erase(unread.begin(), unread.begin() + static_cast<std::ptrdiff_t>(nskip));
        } else {
            Check(brenn_rng_skip_ahead(s.get(), nskip - unread.size()), "skip ahead");
            unread.clear();
        }
        return BitSource(std::move(s), std::move(unread));
    }
    void Leapfrog(int k, int nstreams) {
        if (at_ != end_)
            throw py::value_error("leapfrog is only taken before the first word is read");
        Check(brenn_rng_leapfrog(s_.get(), k, nstreams), "leapfrog");
    }
    py::array_t<uint64_t> Raw(int64_t n) {
        if (n < 0) throw py::value_error("size must not be negative");
        py::array_t<uint64_t> r(n);
        uint64_t* p = r.mutable_data();
        py::gil_scoped_release release;
        for (int64_t i = 0; i < n; ++i)
            p[i] = Word();
        return r;
    }

  private:
    // The next word, from the block; the refill is kept out of line so that the
    // common path is a compare, a load and an increment.
    uint32_t Word() {
        if (__builtin_expect(at_ == end_, 0)) Refill();
        return *at_++;
    }
    __attribute__((noinline)) void Refill() {
        words_.resize(kBlock);
        // The generator was checked to give 32-bit words; a draw cannot fail later.
        brenn_rng_bits_u32(s_.get(), static_cast<int>(kBlock), words_.data());
        at_ = words_.data();
        end_ = at_ + kBlock;
    }
    static uint32_t Next32(void* st) { return static_cast<BitSource*>(st)->Word(); }
    static uint64_t NextRaw(void* st) { return static_cast<BitSource*>(st)->Word(); }
    // Two words, the first the high half (numpy's MT19937 forms them the same way).
    static uint64_t Next64(void* st) {
        auto* b = static_cast<BitSource*>(st);
        if (__builtin_expect(b->end_ - b->at_ >= 2, 1)) {
            const uint64_t hi = b->at_[0], lo = b->at_[1];
            b->at_ += 2;
            return hi << 32 | lo;
        }
        uint64_t hi = b->Word();
        return hi << 32 | b->Word();
    }
    // 27 and 26 bits of two words: a double on [0, 1) with 53 random bits.
    static double NextDouble(void* st) {
        const uint64_t w = Next64(st);
        const int64_t a = static_cast<int64_t>(w >> 37),
                      c = static_cast<int64_t>((w >> 6) & 0x3FFFFFF);
        return static_cast<double>(a * 67108864 + c) * (1.0 / 9007199254740992.0);
    }

    StreamHandle s_;
    std::vector<uint32_t> words_;
    const uint32_t* at_ = nullptr;
    const uint32_t* end_ = nullptr;
    bitgen_t bitgen_;
};

int MethodOf(bool accurate) {
    return accurate ? QES_RNG_METHOD_UNIFORM_ACCURATE : 0;
}

} // namespace

void InitRng(py::module_& m) {
    py::module_ r = m.def_submodule("rng", "Streams of the front-end");
    r.def("check_brng", &brenn_rng_check_brng, "Status of a generator id in this build.");

    py::class_<Stream> stream(r, "Stream");
    stream.def(py::init<int, std::vector<uint32_t>>(), py::arg("brng"), py::arg("seed"))
        .def_property_readonly("brng",
                               [](const Stream& s) {
                                   int id = 0;
                                   Check(brenn_rng_get_brng(s.get(), &id), "generator id");
                                   return id;
                               })
        .def("copy", [](const Stream& s) { return Stream(CopyStream(s.handle())); })
        .def("skip_ahead",
             [](Stream& s, uint64_t n) { Check(brenn_rng_skip_ahead(s.get(), n), "skip ahead"); })
        .def("leapfrog",
             [](Stream& s, int k, int n) { Check(brenn_rng_leapfrog(s.get(), k, n), "leapfrog"); })
        .def("image", [](const Stream& s) { return Image(s.handle()); })
        .def_static("load", [](const py::bytes& image) { return Stream(Load(image)); })
        .def("duniform",
             [](Stream& s, int64_t n, double a, double b, bool accurate) {
                 return Fill<double>(n, [&](int c, double* p) {
                     return brenn_rng_uniform_f64(s.get(), MethodOf(accurate), c, p, a, b);
                 });
             })
        .def("suniform",
             [](Stream& s, int64_t n, float a, float b, bool accurate) {
                 return Fill<float>(n, [&](int c, float* p) {
                     return brenn_rng_uniform_f32(s.get(), MethodOf(accurate), c, p, a, b);
                 });
             })
        .def("iuniform",
             [](Stream& s, int64_t n, int32_t a, int32_t b) {
                 return Fill<int32_t>(n, [&](int c, int32_t* p) {
                     return brenn_rng_uniform_i32(s.get(), 0, c, p, a, b);
                 });
             })
        .def("bits32",
             [](Stream& s, int64_t n) {
                 return Fill<uint32_t>(
                     n, [&](int c, uint32_t* p) { return brenn_rng_bits_u32(s.get(), c, p); });
             })
        .def("bits64",
             [](Stream& s, int64_t n) {
                 return Fill<uint64_t>(
                     n, [&](int c, uint64_t* p) { return brenn_rng_bits_u64(s.get(), c, p); });
             })
        .def("bernoulli",
             [](Stream& s, int64_t n, double p) {
                 return Fill<int32_t>(n, [&](int c, int32_t* r) {
                     return brenn_rng_bernoulli_i32(s.get(), c, r, p);
                 });
             })
        .def("geometric", [](Stream& s, int64_t n, double p) {
            return Fill<int32_t>(
                n, [&](int c, int32_t* r) { return brenn_rng_geometric_i32(s.get(), c, r, p); });
        });
    AddContinuous(stream);
    AddAbstract(r);

    py::class_<BitSource>(r, "BitSource")
        .def(py::init([](int brng, const std::vector<uint32_t>& seed) {
                 return BitSource(NewStream(brng, seed), {});
             }),
             py::arg("brng"), py::arg("seed"))
        .def_static("load",
                    [](const py::bytes& image, const std::vector<uint32_t>& unread) {
                        return BitSource(Load(image), unread);
                    })
        .def("capsule", &BitSource::Capsule)
        .def_property_readonly("brng", &BitSource::Brng)
        .def("image", &BitSource::Image)
        .def("unread", &BitSource::Unread)
        .def("jumped", &BitSource::Jumped)
        .def("leapfrog", &BitSource::Leapfrog)
        .def("random_raw", &BitSource::Raw);
}

} // namespace brenn_py
