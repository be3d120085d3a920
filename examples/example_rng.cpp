// Random numbers through the C++ front-end: an owned stream filling spans through the
// distributions, serving std::normal_distribution, copied, and saved and loaded.
#include <cstdio>
#include <random>
#include <vector>

#include <brenn/brenn.hpp>

int main() {
    auto made = brenn::rng::stream::make(QES_BRNG_MT19937, 2024);
    if (!made) return std::printf("no stream: %d\n", made.stat.code), 1;
    brenn::rng::stream s = std::move(made.value);
    std::vector<double> u(4);
    s.fill(std::span<double>(u), brenn::rng::uniform{-1.0, 1.0});
    std::printf("uniform on [-1, 1): %.6f %.6f %.6f %.6f\n", u[0], u[1], u[2], u[3]);
    std::vector<int32_t> dice(8), coins(8);
    s.fill(std::span<int32_t>(dice), brenn::rng::uniform{1, 7});
    s.fill(std::span<int32_t>(coins), brenn::rng::bernoulli{0.5});
    std::printf("dice:");
    for (int d : dice)
        std::printf(" %d", d);
    std::printf("\ncoins:");
    for (int c : coins)
        std::printf(" %d", c);
    std::normal_distribution<double> normal(10.0, 2.0);
    std::printf("\nstd::normal_distribution(10, 2) over the stream: %.4f\n", normal(s));

    auto image = s.save().or_throw(); // errors as values; or_throw() asks for an exception
    auto twin = brenn::rng::stream::load(image).or_throw();
    std::printf("next word of the stream and of its image (%zu bytes): %u %u\n", image.size(), s(),
                twin());
    auto bad = brenn::rng::stream::make(0x7FFFFFFF, 1);
    std::printf("an id outside the registry: %d\n", bad.stat.code);
    return 0;
}
