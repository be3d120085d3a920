// The shared pieces of the bad-input tests: forged records, the allocation count and
// temporary files.
#include "tests/rng/bad_input.h"

#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <sstream>

#include <gtest/gtest.h>

#include "platform/serv.h"

namespace brenn::test {

namespace {

// The largest record of the built-in rows (Niederr), with room for the state copy of
// any of them.
constexpr size_t kForgedBytes = 84288 + 256;

} // namespace

ForgedStream::ForgedStream(int32_t id) : record(brenn_serv_allocate(kForgedBytes, 128)) {
    std::memset(record, 0, kForgedBytes);
    std::memcpy(record, &id, 4);
    static_cast<uint8_t*>(record)[4] = 1;
}

ForgedStream::~ForgedStream() {
    brenn_serv_deallocate(record);
}

std::string IdName(int32_t id) {
    std::ostringstream o;
    o << "id 0x" << std::hex << static_cast<uint32_t>(id);
    return o.str();
}

int64_t AllocationsMadeBy(const std::function<void()>& call) {
    constexpr int64_t kFar = int64_t{1} << 40;
    brenn_serv_fail_allocation(kFar);
    call();
    return kFar - brenn_serv_fail_allocation(0);
}

TempFile::TempFile(const char* tag)
    : path(std::string(::testing::TempDir()) + "brenn_bad_" + tag + "_" +
           std::to_string(getpid())) {}

TempFile::~TempFile() {
    std::remove(path.c_str());
}

void TempFile::Write(const std::vector<uint8_t>& bytes) const {
    FILE* f = std::fopen(path.c_str(), "wb");
    ASSERT_NE(f, nullptr);
    if (!bytes.empty()) std::fwrite(bytes.data(), bytes.size(), 1, f);
    std::fclose(f);
}

} // namespace brenn::test
