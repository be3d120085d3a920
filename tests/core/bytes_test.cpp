// Checked byte counts: products and sums that pass the ceiling, negative counts and
// every count type a service sizes blocks from are refused; the exact ceiling is not.
#include <climits>
#include <cstdint>

#include <gtest/gtest.h>

#include "platform/bytes.h"

namespace {

TEST(Bytes, ProductsAtTheEdgeOfTheCeiling) {
    size_t bytes = 7;
    EXPECT_TRUE(BytesFor<int64_t>(0, 8, &bytes));
    EXPECT_EQ(bytes, 0u);
    EXPECT_TRUE(BytesFor<int64_t>(kBytesCeiling / 8, 8, &bytes));
    EXPECT_EQ(bytes, kBytesCeiling / 8 * 8);
    bytes = 7;
    EXPECT_FALSE(BytesFor<int64_t>(kBytesCeiling / 8 + 1, 8, &bytes));
    EXPECT_EQ(bytes, 7u) << "a refused size leaves the output alone";
    // Counts whose product wraps 64 bits to something small.
    for (int64_t count : {int64_t(1) << 61, (int64_t(1) << 62) + 1, INT64_MAX})
        EXPECT_FALSE(BytesFor(count, 8, &bytes)) << count;
    EXPECT_FALSE(BytesFor<uint64_t>(UINT64_MAX, 1, &bytes));
    EXPECT_TRUE(BytesFor<int>(INT_MAX, 4, &bytes));
}

TEST(Bytes, NegativeCountsOfEveryTypeAreRefused) {
    size_t bytes;
    EXPECT_FALSE(BytesFor<int>(-1, 1, &bytes));
    EXPECT_FALSE(BytesFor<int>(INT_MIN, 8, &bytes));
    EXPECT_FALSE(BytesFor<int64_t>(INT64_MIN, 0, &bytes)) << "even of width zero";
    EXPECT_FALSE(BytesFor<long long>(-1, 0, &bytes));
}

TEST(Bytes, SumsOfBlocks) {
    size_t total = 64;
    EXPECT_TRUE(AddBytesFor<int64_t>(&total, 10, 8));
    EXPECT_EQ(total, 144u);
    EXPECT_FALSE(AddBytes(&total, kBytesCeiling));
    EXPECT_EQ(total, 144u);
    EXPECT_FALSE(AddBytesFor<int64_t>(&total, int64_t(1) << 61, 16));
    EXPECT_FALSE(AddBytesFor<int64_t>(&total, -3, 16));
    total = kBytesCeiling - 8;
    EXPECT_TRUE(AddBytes(&total, 8));
    EXPECT_FALSE(AddBytes(&total, 1));
}

} // namespace
