// What the drivers of the Python comparisons share: the case file and the answer file
// named by their two arguments, and reads of whole arrays from the case file.
#ifndef BRENN_TESTS_STATS_DRIVER_FILES_H
#define BRENN_TESTS_STATS_DRIVER_FILES_H

#include <cstdio>

namespace brenn::test {

// Reads n elements; an empty array (which may have no address) reads nothing.
template <typename V>
bool ReadArray(std::FILE* in, V* p, size_t n) {
    return n == 0 || std::fread(p, sizeof(V), n, in) == n;
}

// The two files of `driver CASES ANSWERS`; closed by their destructor.
struct DriverFiles {
    std::FILE* in = nullptr;
    std::FILE* out = nullptr;
    DriverFiles(int argc, char** argv) {
        if (argc != 3) return;
        in = std::fopen(argv[1], "rb");
        out = std::fopen(argv[2], "wb");
    }
    ~DriverFiles() {
        if (in != nullptr) std::fclose(in);
        if (out != nullptr) std::fclose(out);
    }
    bool ok() const { return in != nullptr && out != nullptr; }
};

} // namespace brenn::test

#endif
