// Saving a stream to a named file and loading it back, through the C file calls.
// The name is either zero-terminated (a negative length) or a counted run of bytes,
// of which a terminated copy is made.
#include <stdio.h>
#include <sys/stat.h>

#include "frame/export.h"
#include "rng/core/persist.h"

namespace brenn::rng {

namespace {

// A terminated name: the caller's own when nameLength is negative, else a copy
// that the caller of this function frees with FreeName.
const char* MakeName(const char* name, int32_t nameLength, char** copy) {
    *copy = nullptr;
    if (nameLength < 0) return name;
    *copy = static_cast<char*>(
        brenn_serv_allocate(static_cast<size_t>(nameLength) + 1, kStreamAlignment));
    if (*copy == nullptr) return nullptr;
    memcpy(*copy, name, static_cast<size_t>(nameLength));
    (*copy)[nameLength] = '\0';
    return *copy;
}

struct FileSink {
    FILE* f;
    bool Put(const void* data, size_t bytes) {
        return bytes == 0 || fwrite(data, bytes, 1, f) == 1;
    }
};

// Counts down what a regular file still holds, so that a chunk's claimed size is
// weighed before anything is allocated for it. A pipe or a device cannot tell, and
// then the loader's bound on the image length is the only one.
struct FileSource {
    FILE* f;
    uint64_t left;

    explicit FileSource(FILE* file) : f(file), left(UINT64_MAX) {
        struct stat st;
        if (fstat(fileno(f), &st) == 0 && S_ISREG(st.st_mode) && st.st_size >= 0)
            left = static_cast<uint64_t>(st.st_size);
    }
    bool Get(void* data, size_t bytes) {
        if (bytes == 0) return true;
        if (fread(data, bytes, 1, f) != 1) return false;
        if (left != UINT64_MAX) left = bytes < left ? left - bytes : 0;
        return true;
    }
    uint64_t Left() const { return left; }
};

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesSaveStreamF(const void* stream, const char* name, int32_t nameLength) {
    // A stream that no image can hold leaves the file as it was.
    int32_t size = __qesGetStreamSize(stream);
    if (size < 0) return size;
    char* copy;
    const char* path = MakeName(name, nameLength, &copy);
    if (path == nullptr) return QES_STATUS_NO_MEMORY;
    int32_t status = QES_RNG_STATUS_FILE_OPEN;
    FILE* f = fopen(path, "wb");
    if (f != nullptr) {
        FileSink sink{f};
        status = image::WriteImage(sink, stream, QES_RNG_STATUS_FILE_WRITE);
        if (fclose(f) != 0) status = QES_RNG_STATUS_FILE_CLOSE;
    }
    brenn_serv_deallocate(copy);
    return status;
}

BRENN_EXPORT int32_t __qesLoadStreamF(void** stream, const char* name, int32_t nameLength) {
    *stream = nullptr;
    char* copy;
    const char* path = MakeName(name, nameLength, &copy);
    if (path == nullptr) return QES_STATUS_NO_MEMORY;
    FILE* f = fopen(path, "rb");
    if (f == nullptr) {
        brenn_serv_deallocate(copy);
        return QES_RNG_STATUS_FILE_OPEN;
    }
    FileSource source(f);
    void* made;
    int32_t status = image::ReadImage(source, &made, QES_RNG_STATUS_BAD_FILE_FORMAT);
    if (fclose(f) != 0) status = QES_RNG_STATUS_FILE_CLOSE;
    status = image::Conclude(stream, made, status);
    brenn_serv_deallocate(copy);
    return status;
}
