// Large Add/Sub/Mul/Sqr calls take the streaming-store path (y of a mebibyte or
// more, no aliasing): every element right, nothing written around y at any offset,
// and the aliasing copies still right at the same sizes.
#include <functional>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "tests/vecmath/kernels.h"

namespace {

using namespace brenn::test;

template <class T>
void CheckBinary(const char* row, const std::function<T(T, T)>& op) {
    const int n = int((size_t(1) << 20) / sizeof(T)) + 37; // past the streaming threshold
    std::mt19937_64 rng(11);
    std::uniform_real_distribution<T> dist(-1e3, 1e3);
    std::vector<T> a(n), b(n);
    for (int i = 0; i < n; ++i) {
        a[i] = dist(rng);
        b[i] = dist(rng);
    }
    auto kernel = As<Binary<T>>(Slot(row, 1));
    ASSERT_NE(kernel, nullptr) << row;
    const T guard = T(-12345.5);
    for (int offset = 0; offset < 4; ++offset) {
        std::vector<T> y(n + 8, guard);
        T* out = y.data() + offset + 1;
        kernel(n, a.data(), b.data(), out);
        for (int i = 0; i < n; ++i)
            ASSERT_TRUE(SameValue(out[i], op(a[i], b[i]))) << row << " offset " << offset << " i " << i;
        for (int i = 0; i <= offset; ++i) EXPECT_EQ(y[i], guard) << row;
        for (size_t i = size_t(offset + 1 + n); i < y.size(); ++i) EXPECT_EQ(y[i], guard) << row;
    }
    // In place over each input: the plain-store copies.
    std::vector<T> ya = a, yb = b;
    kernel(n, ya.data(), b.data(), ya.data());
    kernel(n, a.data(), yb.data(), yb.data());
    for (int i = 0; i < n; ++i) {
        ASSERT_TRUE(SameValue(ya[i], op(a[i], b[i]))) << row << " y = a, i " << i;
        ASSERT_TRUE(SameValue(yb[i], op(a[i], b[i]))) << row << " y = b, i " << i;
    }
}

TEST(StreamingStores, BinaryRowsAtLargeSizes) {
    ASSERT_EQ(brenn_zar_kernel_GetTTableIndex(), 1); // also keeps the library linked in
    CheckBinary<float>("sAdd", [](float x, float y) { return x + y; });
    CheckBinary<double>("dAdd", [](double x, double y) { return x + y; });
    CheckBinary<float>("sSub", [](float x, float y) { return x - y; });
    CheckBinary<double>("dSub", [](double x, double y) { return x - y; });
    CheckBinary<float>("sMul", [](float x, float y) { return x * y; });
    CheckBinary<double>("dMul", [](double x, double y) { return x * y; });
}

TEST(StreamingStores, SqrAtLargeSizes) {
    const int n = int((size_t(1) << 20) / sizeof(double)) + 5;
    std::vector<double> a(n), y(n + 4, 7.0);
    for (int i = 0; i < n; ++i) a[i] = 0.001 * i - 3.0;
    auto kernel = As<Unary<double>>(Slot("dSqr", 2));
    ASSERT_NE(kernel, nullptr);
    kernel(n, a.data(), y.data() + 1);
    EXPECT_EQ(y[0], 7.0);
    for (int i = 0; i < n; ++i) ASSERT_EQ(y[i + 1], a[i] * a[i]) << i;
    for (size_t i = size_t(n) + 1; i < y.size(); ++i) EXPECT_EQ(y[i], 7.0);
}

} // namespace
