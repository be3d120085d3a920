// What the bad-input tests of the random-number service share beyond the cases of
// bad_cases.h: a stream record forged around any id, a count of the allocations that
// a call attempts, and temporary files.
#ifndef BRENN_TESTS_RNG_BAD_INPUT_H
#define BRENN_TESTS_RNG_BAD_INPUT_H

#include <stdint.h>

#include <functional>
#include <string>
#include <vector>

#include "brenn_rng.h"
#include "tests/rng/bad_cases.h"

namespace brenn::test {

// A record of `id` with a zeroed state as long as any generator's, for entries that
// take a stream; the stream of a family with no generator cannot be made otherwise.
class ForgedStream {
  public:
    explicit ForgedStream(int32_t id);
    ~ForgedStream();
    ForgedStream(const ForgedStream&) = delete;
    ForgedStream& operator=(const ForgedStream&) = delete;
    void* get() const { return record; }

  private:
    void* record;
};

// "id 0x..." for messages.
std::string IdName(int32_t id);

// How many allocations `call` attempted, failed or not.
int64_t AllocationsMadeBy(const std::function<void()>& call);

// A file in the test's temporary directory; removed by the destructor.
struct TempFile {
    explicit TempFile(const char* tag);
    ~TempFile();
    void Write(const std::vector<uint8_t>& bytes) const;
    std::string path;
};

} // namespace brenn::test

#endif
