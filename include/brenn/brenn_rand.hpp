/** @file brenn_rand.hpp
 * Random numbers in C++: brenn::rng::stream owns one stream (movable, not copyable;
 * copy() makes an independent copy), fills spans through the distributions built
 * (the continuous ones described in brenn_rand_cont.hpp), saves and loads itself, and
 * is a std::uniform_random_bit_generator of 32-bit words, so the standard library's
 * distributions can draw from it. */
#ifndef BRENN_RAND_HPP
#define BRENN_RAND_HPP

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "brenn_rand.h"
#include "brenn_rand_cont.hpp"
#include "brenn_result.hpp"

namespace brenn::rng {

/** Uniform on [a, b) for float, double and int32 spans (method 0 or
 * QES_RNG_METHOD_UNIFORM_ACCURATE for the real ones). */
template <class T>
struct uniform {
    T a = T(0);     /**< left end */
    T b = T(1);     /**< right end, above a */
    int method = 0; /**< the method word */
};
uniform(double, double)->uniform<double>;
uniform(float, float)->uniform<float>;
uniform(int, int)->uniform<std::int32_t>;
/** 32 uniformly random bits a word (uint32 spans). */
struct bits32 {};
/** 64 uniformly random bits a word (uint64 spans). */
struct bits64 {};
/** 1 with probability p, else 0 (int32 spans). */
struct bernoulli {
    double p; /**< in [0, 1] */
};
/** Failures before the first success, success with probability p (int32 spans). */
struct geometric {
    double p; /**< in (0, 1) */
};

namespace detail {
inline status too_long(std::size_t n) {
    return status{n > 0x7FFFFFFF ? BRENN_ERR_TOO_LONG : BRENN_OK};
}
} // namespace detail

/** A stream of a basic generator, owned. */
class stream {
  public:
    /** The words operator() gives: 32 uniform bits. */
    using result_type = std::uint32_t;
    /** @return 0 */
    static constexpr result_type min() { return 0; }
    /** @return 2^32 - 1 */
    static constexpr result_type max() { return 0xFFFFFFFFu; }

    /** An empty stream: every draw from it is refused with BRENN_ERR_NULL_POINTER. */
    stream() noexcept = default;
    /** Makes a stream of a generator id seeded by one word. */
    static result<stream> make(int brng, std::uint32_t seed) {
        result<stream> r;
        r.stat.code = brenn_rng_new(&r.value.s_, brng, seed);
        return r;
    }
    /** Makes a stream of a generator id seeded by several words. */
    static result<stream> make(int brng, std::span<const std::uint32_t> seed) {
        result<stream> r;
        r.stat = detail::too_long(seed.size());
        if (r.stat.ok())
            r.stat.code =
                brenn_rng_new_ex(&r.value.s_, brng, static_cast<int>(seed.size()), seed.data());
        return r;
    }
    ~stream() { brenn_rng_delete(&s_); }
    stream(stream&& other) noexcept
        : s_(std::exchange(other.s_, nullptr)), composed_(other.composed_) {}
    stream& operator=(stream&& other) noexcept {
        if (this != &other) {
            brenn_rng_delete(&s_);
            s_ = std::exchange(other.s_, nullptr);
            composed_ = other.composed_;
        }
        return *this;
    }
    stream(const stream&) = delete;
    stream& operator=(const stream&) = delete;

    /** An independent stream in the same state. */
    result<stream> copy() const {
        result<stream> r;
        r.stat.code = brenn_rng_copy(&r.value.s_, s_);
        r.value.composed_ = composed_;
        return r;
    }
    /** @return whether the stream holds a generator */
    explicit operator bool() const noexcept { return s_ != nullptr; }
    /** @return the C handle, still owned by this object */
    brenn_stream* get() const noexcept { return s_; }
    /** @return the generator id, or -1 for an empty stream */
    int brng() const noexcept {
        int id = -1;
        brenn_rng_get_brng(s_, &id);
        return id;
    }

    /** Fills a span with uniform variates. */
    status fill(std::span<double> r, uniform<double> u = {}) {
        if (status s = detail::too_long(r.size()); !s.ok()) return s;
        return {
            brenn_rng_uniform_f64(s_, u.method, static_cast<int>(r.size()), r.data(), u.a, u.b)};
    }
    /** Fills a span with uniform variates. */
    status fill(std::span<float> r, uniform<float> u = {}) {
        if (status s = detail::too_long(r.size()); !s.ok()) return s;
        return {
            brenn_rng_uniform_f32(s_, u.method, static_cast<int>(r.size()), r.data(), u.a, u.b)};
    }
    /** Fills a span with uniform integers on [a, b). */
    status fill(std::span<std::int32_t> r, uniform<std::int32_t> u) {
        if (status s = detail::too_long(r.size()); !s.ok()) return s;
        return {
            brenn_rng_uniform_i32(s_, u.method, static_cast<int>(r.size()), r.data(), u.a, u.b)};
    }
    /** Fills a span with Bernoulli variates. */
    status fill(std::span<std::int32_t> r, bernoulli d) {
        if (status s = detail::too_long(r.size()); !s.ok()) return s;
        return {brenn_rng_bernoulli_i32(s_, static_cast<int>(r.size()), r.data(), d.p)};
    }
    /** Fills a span with geometric variates. */
    status fill(std::span<std::int32_t> r, geometric d) {
        if (status s = detail::too_long(r.size()); !s.ok()) return s;
        return {brenn_rng_geometric_i32(s_, static_cast<int>(r.size()), r.data(), d.p)};
    }
    /** Fills a span with 32 random bits a word. */
    status fill(std::span<std::uint32_t> r, bits32 = {}) {
        if (status s = detail::too_long(r.size()); !s.ok()) return s;
        return {brenn_rng_bits_u32(s_, static_cast<int>(r.size()), r.data())};
    }
    /** Fills a span with 64 random bits a word. */
    status fill(std::span<std::uint64_t> r, bits64 = {}) {
        if (status s = detail::too_long(r.size()); !s.ok()) return s;
        return {brenn_rng_bits_u64(s_, static_cast<int>(r.size()), r.data())};
    }

    /** Fills a float or double span from a continuous distribution (gaussian,
     * lognormal, exponential, gumbel, laplace, rayleigh, weibull, cauchy of
     * brenn_rand_cont.hpp); the span's element type is the description's. */
    template <continuous_distribution D>
    status fill(std::type_identity_t<std::span<typename D::value_type>> r, const D& d) {
        if (status s = detail::too_long(r.size()); !s.ok()) return s;
        return {d.draw(s_, static_cast<int>(r.size()), r.data())};
    }

    /** One word of 32 uniform bits. A generator of fewer bits a word gives two
     * uniform 16-bit halves instead. An empty stream gives 0. */
    result_type operator()() {
        std::uint32_t w = 0;
        if (!composed_) {
            int s = brenn_rng_bits_u32(s_, 1, &w);
            if (s != QES_RNG_ERROR_BITS_NOT_SUPPORTED) return w;
            composed_ = true;
        }
        std::int32_t h[2] = {0, 0};
        brenn_rng_uniform_i32(s_, 0, 2, h, 0, 65536);
        return (static_cast<std::uint32_t>(h[0]) << 16) | static_cast<std::uint32_t>(h[1]);
    }

    /** Skips the stream ahead by n outputs. */
    status skip_ahead(std::uint64_t n) { return {brenn_rng_skip_ahead(s_, n)}; }
    /** Makes this stream the k-th of count interleaved ones. */
    status leapfrog(int k, int count) { return {brenn_rng_leapfrog(s_, k, count)}; }

    /** The stream's image, as bytes. */
    result<std::vector<std::byte>> save() const {
        result<std::vector<std::byte>> r;
        std::int64_t size = 0;
        r.stat.code = brenn_rng_image_size(s_, &size);
        if (r.stat.code != BRENN_OK) return r;
        r.value.resize(static_cast<std::size_t>(size));
        r.stat.code = brenn_rng_save_memory(s_, r.value.data(), size);
        if (r.stat.code < 0) r.value.clear();
        return r;
    }
    /** Saves the stream to a file. */
    status save(const std::string& path) const { return {brenn_rng_save_file(s_, path.c_str())}; }
    /** A stream from an image made by save(). */
    static result<stream> load(std::span<const std::byte> image) {
        result<stream> r;
        r.stat.code = brenn_rng_load_memory(&r.value.s_, image.data(),
                                            static_cast<std::int64_t>(image.size()));
        return r;
    }
    /** A stream from a file made by save(path). */
    static result<stream> load(const std::string& path) {
        result<stream> r;
        r.stat.code = brenn_rng_load_file(&r.value.s_, path.c_str());
        return r;
    }

  private:
    brenn_stream* s_ = nullptr;
    bool composed_ = false;
};

} // namespace brenn::rng

#endif
