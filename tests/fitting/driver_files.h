// The file plumbing of the fitting drivers that the numpy/scipy checks run: cases read
// from the file of the first argument, answers written to the file of the second.
#ifndef BRENN_TESTS_FITTING_DRIVER_FILES_H
#define BRENN_TESTS_FITTING_DRIVER_FILES_H

#include <cstdio>

namespace brenn::fittest {

template <typename V>
bool Read(FILE* in, V* p, size_t n) {
    return std::fread(p, sizeof(V), n, in) == n;
}

// Opens the two files of "driver cases answers"; false (after a usage line) if the
// arguments or a file are missing.
inline bool OpenDriverFiles(int argc, char** argv, FILE** in, FILE** out) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s cases answers\n", argv[0]);
        return false;
    }
    *in = std::fopen(argv[1], "rb");
    *out = std::fopen(argv[2], "wb");
    return *in != nullptr && *out != nullptr;
}

} // namespace brenn::fittest

#endif
