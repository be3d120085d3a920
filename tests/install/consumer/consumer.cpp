// A C++ program built against an installed copy of the library through
// find_package(brenn): it runs with the version it was compiled for, and the
// Mersenne Twister gives the published reference output of the array key, through
// the kernel library's entries and through the C++ front-end's owned stream.
#include <cstdint>
#include <cstdio>
#include <cstring>

#include <brenn/brenn.hpp>
#include <brenn/brenn_version.h>
#include <brenn_rng.h>

int main() {
    int major = -1;
    const char* version = brenn_get_version(&major, nullptr, nullptr);
    if (std::strcmp(version, BRENN_VERSION_STRING) != 0 || major != BRENN_VERSION_MAJOR) {
        std::fprintf(stderr, "compiled for %s, running %s\n", BRENN_VERSION_STRING, version);
        return 1;
    }
#ifdef BRENN_HAVE_RNG
    void* stream = nullptr;
    const uint32_t key[4] = {0x123, 0x234, 0x345, 0x456};
    const uint32_t published[5] = {1067595299u, 955945823u, 477289528u, 4107218783u, 4228976476u};
    if (__qesNewStreamEx(&stream, QES_BRNG_MT19937, 4, key) != QES_STATUS_OK) {
        std::fprintf(stderr, "no MT19937 stream\n");
        return 1;
    }
    uint32_t words[5];
    int32_t status = _qesiRngUniformBits32(0, stream, 5, words);
    __qesDeleteStream(&stream);
    if (status != QES_STATUS_OK || std::memcmp(words, published, sizeof words) != 0) {
        std::fprintf(stderr, "MT19937 words differ from the published output (status %d)\n",
                     status);
        return 1;
    }
    auto s = brenn::rng::stream::make(QES_BRNG_MT19937, key);
    if (!s.stat.ok()) return std::fprintf(stderr, "front-end stream: %d\n", s.stat.code), 1;
    for (uint32_t want : published)
        if (s.value() != want) return std::fprintf(stderr, "front-end stream differs\n"), 1;
#endif
    std::printf("C++ consumer: brenn %s\n", version);
    return 0;
}
