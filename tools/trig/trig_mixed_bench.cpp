// Time-stamp-counter ticks per element of the trigonometric kernels at n = 1000 on
// small arguments only (|x| < 10), on the same with one huge argument (1e30 single,
// 1e300 double) in every 64 elements and in every 8, and on huge arguments only. Huge
// lanes are reduced in vector form inside their block (no scalar call per lane), so a
// block with one huge lane costs the short path plus one vector large path. Prints a
// markdown table; with --check exits 1 when the one-in-64 figure is above twice the
// small one.
#include <x86intrin.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <vector>

#include "frame/dispatch.h"

namespace {

using brenn::frame::RowIndex;

struct RowCase {
    const char* name;
    RowIndex row;
    bool dbl;
    bool two;
};

const RowCase kRows[] = {
    {"sSin", brenn::frame::Row_sSin, false, false},
    {"sCos", brenn::frame::Row_sCos, false, false},
    {"sTan", brenn::frame::Row_sTan, false, false},
    {"sSinCos", brenn::frame::Row_sSinCos, false, true},
    {"dSin", brenn::frame::Row_dSin, true, false},
    {"dCos", brenn::frame::Row_dCos, true, false},
    {"dTan", brenn::frame::Row_dTan, true, false},
    {"dSinCos", brenn::frame::Row_dSinCos, true, true},
};

constexpr int kN = 1000;

template <class T>
double Ticks(BrennKernel k, bool two, const std::vector<T>& a) {
    std::vector<T> y(a.size()), z(a.size());
    uint64_t best = UINT64_MAX;
    for (int r = 0; r < 300; ++r) {
        uint64_t t0 = __rdtsc();
        if (two)
            reinterpret_cast<void (*)(int, const T*, T*, T*)>(k)(kN, a.data(), y.data(), z.data());
        else
            reinterpret_cast<void (*)(int, const T*, T*)>(k)(kN, a.data(), y.data());
        best = std::min<uint64_t>(best, __rdtsc() - t0);
    }
    return double(best) / kN;
}

template <class T>
void Inputs(std::vector<T>& small, std::vector<T>& sparse, std::vector<T>& mixed,
            std::vector<T>& huge) {
    std::mt19937 gen(5);
    std::uniform_real_distribution<T> s(-10, 10), h(1, 10);
    const T big = sizeof(T) == 4 ? T(1e30) : T(1e300);
    for (int i = 0; i < kN; ++i) {
        small.push_back(s(gen));
        huge.push_back(h(gen) * big);
        mixed.push_back(i % 8 == 3 ? huge.back() : small.back());
        sparse.push_back(i % 64 == 29 ? huge.back() : small.back());
    }
}

} // namespace

int main(int argc, char** argv) {
    bool check = argc > 1 && strcmp(argv[1], "--check") == 0;
    std::vector<float> fin[4];
    std::vector<double> din[4];
    Inputs(fin[0], fin[1], fin[2], fin[3]);
    Inputs(din[0], din[1], din[2], din[3]);
    const char* level[3] = {"LA", "HA", "EP"};
    printf("| Row | Level | small only | one huge in 64 | one huge in 8 | huge only | "
           "1/64 over small | 1/8 over small |\n");
    printf("|---|---|---|---|---|---|---|---|\n");
    int bad = 0;
    for (const RowCase& rc : kRows) {
        for (int slot = 0; slot < 3; ++slot) {
            BrennKernel k = (&BrennDispatchTable[rc.row].kernelLA)[slot];
            if (!k) continue;
            double t[4];
            for (int i = 0; i < 4; ++i)
                t[i] = rc.dbl ? Ticks(k, rc.two, din[i]) : Ticks(k, rc.two, fin[i]);
            bad += t[1] / t[0] > 2.0;
            printf("| %s | %s | %.2f | %.2f | %.2f | %.2f | %.2f | %.2f |\n", rc.name, level[slot],
                   t[0], t[1], t[2], t[3], t[1] / t[0], t[2] / t[0]);
        }
    }
    return check && bad ? 1 : 0;
}
