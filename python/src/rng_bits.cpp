// numpy bit generators over front-end streams. A BitSource draws its stream's outputs a
// block at a time and serves numpy's bit-generator record (bitgen_t, handed over in a
// capsule named "BitGenerator") from the block. The family's form says what an element
// of the block is and how numpy's 32-bit words, 64-bit words and doubles are made:
//  - Words: the stream's 32-bit words (MT19937, MT2203, SFMT19937, ARS5, PHILOX4X32X10);
//  - Top32: the same words of MCG59 (bits 27 to 58 of its 59-bit outputs), cut here
//    from the raw outputs with SSE, which saves the service's pass through a scratch
//    block (1.2 against 1.3 ns a 64-bit word);
//  - Uniforms: the stream's double uniforms on [0, 1), for the families without full
//    32-bit words (MCG31M1, R250, MRG32K3A, WH).
// An element is one output of the generator, so jumps and leapfrog count elements. The
// elements drawn but not read yet belong to the source's state: copies, jumps and saved
// images count from the elements already read.
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>
#include <smmintrin.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
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

// The first block's elements: large enough that a refill's call is spread thin, small
// enough to stay in the first-level cache. Blocks double up to the family's cap.
constexpr size_t kBlock = 4096;
// ARS5 asks the processor for AES at every call, which a hypervisor may trap at tens of
// microseconds: its blocks grow to 4 MB, where that cost falls below 0.2 ns a word.
constexpr size_t kArs5Block = size_t{1} << 20;

// The 32-bit words of a stream; 64-bit words join two, the first the high half, and
// doubles take 27 and 26 bits of a 64-bit word (numpy's MT19937 forms them the same way).
struct Words {
    using Element = uint32_t;
    static constexpr size_t kSpace = 1; // elements of storage an element's draw needs

    int Fill(brenn_stream* s, int n, uint32_t* out) const { return brenn_rng_bits_u32(s, n, out); }
    template <class B>
    uint32_t Next32(B& b) const {
        return b.Take();
    }
    template <class B>
    uint64_t Next64(B& b) const {
        if (__builtin_expect(b.Left() >= 2, 1)) {
            uint64_t v;
            std::memcpy(&v, b.Advance(2), sizeof v);
            return v << 32 | v >> 32; // the first word, at the lower address, goes high
        }
        const uint64_t hi = b.Take();
        return hi << 32 | b.Take();
    }
    template <class B>
    double NextDouble(B& b) const {
        const uint64_t w = Next64(b);
        const int64_t a = static_cast<int64_t>(w >> 37),
                      c = static_cast<int64_t>((w >> 6) & 0x3FFFFFF);
        return static_cast<double>(a * 67108864 + c) * (1.0 / 9007199254740992.0);
    }
    template <class B>
    uint64_t Raw(B& b) const {
        return b.Take();
    }
};

// MCG59's 32-bit words, bits 27 to 58 of its outputs. The raw outputs fill the block
// and are cut down in place, four a step, each word written over the first half of
// the space its output took.
struct Top32 : Words {
    static constexpr size_t kSpace = 2;

    int Fill(brenn_stream* s, int n, uint32_t* out) const {
        const int status = brenn_rng_bits_raw(s, n, out);
        if (status < 0) return status;
        int i = 0;
        for (; i + 4 <= n; i += 4) {
            const __m128i lo =
                _mm_srli_epi64(_mm_loadu_si128(reinterpret_cast<__m128i*>(out + 2 * i)), 27);
            const __m128i hi =
                _mm_srli_epi64(_mm_loadu_si128(reinterpret_cast<__m128i*>(out + 2 * i + 4)), 27);
            const __m128 words =
                _mm_shuffle_ps(_mm_castsi128_ps(lo), _mm_castsi128_ps(hi), _MM_SHUFFLE(2, 0, 2, 0));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(out + i), _mm_castps_si128(words));
        }
        for (; i < n; ++i) {
            uint64_t w;
            std::memcpy(&w, out + 2 * i, sizeof w);
            out[i] = static_cast<uint32_t>(w >> 27);
        }
        return status;
    }
};

// The stream's double uniforms u on [0, 1), each read as a field of `bits` bits,
// floor(u 2^bits): for MCG31M1 (31 bits) and R250 (32) that is the generator's word
// itself. numpy's doubles are the uniforms; its 32-bit and 64-bit words are the top 32
// or 64 bits of the fields of successive uniforms written one after another, the first
// highest (for MCG31M1, two fields make a 32-bit word and three a 64-bit one); its raw
// outputs are the fields.
struct Uniforms {
    using Element = double;
    static constexpr size_t kSpace = 1;
    int bits;
    double scale; // 2^bits

    explicit Uniforms(int fieldBits) : bits(fieldBits), scale(std::ldexp(1.0, fieldBits)) {}

    int Fill(brenn_stream* s, int n, double* out) const {
        return brenn_rng_uniform_f64(s, 0, n, out, 0.0, 1.0);
    }
    uint64_t Field(double u) const { return static_cast<uint64_t>(u * scale); }
    template <class B>
    uint64_t Top(B& b, int want) const {
        uint64_t acc = 0;
        for (int have = 0; have < want;) {
            const int take = std::min(bits, want - have);
            acc = acc << take | Field(b.Take()) >> (bits - take);
            have += take;
        }
        return acc;
    }
    template <class B>
    uint32_t Next32(B& b) const {
        return static_cast<uint32_t>(Top(b, 32));
    }
    template <class B>
    uint64_t Next64(B& b) const {
        return Top(b, 64);
    }
    template <class B>
    double NextDouble(B& b) const {
        return b.Take();
    }
    template <class B>
    uint64_t Raw(B& b) const {
        return Field(b.Take());
    }
};

// What Python holds of a source, whatever its form.
class Source {
  public:
    explicit Source(StreamHandle s) : stream_(std::move(s)) {}
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
    virtual ~Source() = default;

    int Brng() const { return BrngOf(stream_); }
    py::bytes Image() const { return brenn_py::Image(stream_); }
    void Leapfrog(int k, int nstreams) {
        if (Pending() != 0)
            throw py::value_error("leapfrog is only taken before the first word is read");
        Check(brenn_rng_leapfrog(stream_.get(), k, nstreams), "leapfrog");
    }
    // The record carries this object's address, fixed while Python holds it; numpy
    // copies the record when a Generator is made.
    virtual py::capsule Capsule() = 0;
    // The elements drawn from the stream and not read yet.
    virtual py::array Unread() const = 0;
    // A new source nskip elements further on.
    virtual std::unique_ptr<Source> Jumped(uint64_t nskip) const = 0;
    // numpy's random_raw: the next n raw outputs.
    virtual py::array_t<uint64_t> Raw(int64_t n) = 0;

  protected:
    virtual size_t Pending() const = 0;
    StreamHandle stream_;
};

template <class Form>
class BitSource final : public Source {
  public:
    using Element = typename Form::Element;

    BitSource(StreamHandle s, std::vector<Element> unread, Form form, size_t cap)
        : Source(std::move(s)), form_(form), cap_(cap), block_(std::move(unread)) {
        at_ = block_.data();
        end_ = at_ + block_.size();
        bitgen_ = {this, &Next64, &Next32, &NextDouble, &NextRaw};
        // Refuse a stream without this form's outputs now rather than inside numpy.
        Element probe[Form::kSpace];
        StreamHandle trial = CopyStream(stream_);
        Check(form_.Fill(trial.get(), 1, probe), "32-bit words or uniforms of this generator");
    }

    py::capsule Capsule() override {
        return py::capsule(static_cast<void*>(&bitgen_), "BitGenerator");
    }
    py::array Unread() const override {
        return py::array_t<Element>(static_cast<py::ssize_t>(end_ - at_), at_);
    }
    std::unique_ptr<Source> Jumped(uint64_t nskip) const override {
        std::vector<Element> unread(at_, end_);
        StreamHandle s = CopyStream(stream_);
        if (nskip <= unread.size()) {
            unread.erase(unread.begin(), unread.begin() + static_cast<std::ptrdiff_t>(nskip));
        } else {
            Check(brenn_rng_skip_ahead(s.get(), nskip - unread.size()), "skip ahead");
            unread.clear();
        }
        return std::make_unique<BitSource>(std::move(s), std::move(unread), form_, cap_);
    }
    py::array_t<uint64_t> Raw(int64_t n) override {
        if (n < 0) throw py::value_error("size must not be negative");
        py::array_t<uint64_t> r(n);
        uint64_t* p = r.mutable_data();
        py::gil_scoped_release release;
        for (int64_t i = 0; i < n; ++i)
            p[i] = form_.Raw(*this);
        return r;
    }

    // The next element; the refill is kept out of line so that the common path is a
    // compare, a load and an increment.
    Element Take() {
        if (__builtin_expect(at_ == end_, 0)) Refill();
        return *at_++;
    }
    // The elements left in the block, and a read of n of them (no more than are left).
    size_t Left() const { return static_cast<size_t>(end_ - at_); }
    const Element* Advance(size_t n) {
        const Element* p = at_;
        at_ += n;
        return p;
    }

  private:
    size_t Pending() const override { return Left(); }
    __attribute__((noinline)) void Refill() {
        const size_t n = next_;
        if (block_.size() < n * Form::kSpace) block_.resize(n * Form::kSpace);
        // The construction's probe drew from this stream; a draw cannot fail later.
        form_.Fill(stream_.get(), static_cast<int>(n), block_.data());
        at_ = block_.data();
        end_ = at_ + n;
        next_ = std::min(2 * next_, cap_);
    }
    static uint32_t Next32(void* st) {
        auto* b = static_cast<BitSource*>(st);
        return b->form_.Next32(*b);
    }
    static uint64_t Next64(void* st) {
        auto* b = static_cast<BitSource*>(st);
        return b->form_.Next64(*b);
    }
    static double NextDouble(void* st) {
        auto* b = static_cast<BitSource*>(st);
        return b->form_.NextDouble(*b);
    }
    static uint64_t NextRaw(void* st) {
        auto* b = static_cast<BitSource*>(st);
        return b->form_.Raw(*b);
    }

    Form form_;
    size_t cap_;
    size_t next_ = kBlock; // elements of the next refill
    std::vector<Element> block_;
    const Element* at_ = nullptr;
    const Element* end_ = nullptr;
    bitgen_t bitgen_;
};

template <class Form>
std::unique_ptr<Source> Make(StreamHandle s, const py::object& unread, Form form,
                             size_t cap = kBlock) {
    using E = typename Form::Element;
    std::vector<E> words;
    if (!unread.is_none()) {
        auto a = py::array_t<E, py::array::c_style | py::array::forcecast>::ensure(unread);
        if (!a || a.ndim() != 1) throw py::value_error("unread elements must be a flat sequence");
        words.assign(a.data(), a.data() + a.size());
    }
    return std::make_unique<BitSource<Form>>(std::move(s), std::move(words), form, cap);
}

// The family of a generator id; the legacy ids below the first family's are those of
// the first five families.
int FamilyOf(int brng) {
    constexpr int kLegacyWh = 4, kLegacyEnd = 277;
    if (brng >= QES_BRNG_MCG31M1) return brng & ~0xFFFFF;
    if (brng >= kLegacyWh && brng < kLegacyEnd) return QES_BRNG_WH;
    return brng < kLegacyWh ? (brng + 1) << 20 : brng;
}

// A source of the form of its stream's family.
std::unique_ptr<Source> MakeSource(StreamHandle s, const py::object& unread) {
    switch (FamilyOf(BrngOf(s))) {
    case QES_BRNG_MCG31M1:
        return Make(std::move(s), unread, Uniforms{31});
    case QES_BRNG_R250:
    case QES_BRNG_MRG32K3A:
    case QES_BRNG_WH:
        return Make(std::move(s), unread, Uniforms{32});
    case QES_BRNG_MCG59:
        return Make(std::move(s), unread, Top32{});
    case QES_BRNG_ARS5:
        return Make(std::move(s), unread, Words{}, kArs5Block);
    default:
        return Make(std::move(s), unread, Words{});
    }
}

} // namespace

void AddBitSources(py::module_& rng) {
    py::class_<Source>(rng, "BitSource")
        .def(py::init([](int brng, const std::vector<uint32_t>& seed) {
                 return MakeSource(NewStream(brng, seed), py::none());
             }),
             py::arg("brng"), py::arg("seed"))
        .def_static("load",
                    [](const py::bytes& image, const py::object& unread) {
                        return MakeSource(Load(image), unread);
                    })
        .def("capsule", &Source::Capsule)
        .def_property_readonly("brng", &Source::Brng)
        .def("image", &Source::Image)
        .def("unread", &Source::Unread)
        .def("jumped", &Source::Jumped)
        .def("leapfrog", &Source::Leapfrog)
        .def("random_raw", &Source::Raw);
}

} // namespace brenn_py
