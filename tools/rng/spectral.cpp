// Shortest dual vector of a multiplicative congruential generator's lattice: LLL
// on an integer basis with Gram-Schmidt in double, then enumeration of all integer
// combinations inside the ball of the shortest basis vector.
#include "tools/rng/spectral.h"

#include <cmath>
#include <vector>

namespace brenn::tools {

namespace {

using Basis = std::vector<std::vector<int64_t>>;

int64_t Dot(const std::vector<int64_t>& x, const std::vector<int64_t>& y) {
    int64_t s = 0;
    for (size_t i = 0; i < x.size(); ++i)
        s += x[i] * y[i];
    return s;
}

struct GramSchmidt {
    std::vector<std::vector<double>> mu;
    std::vector<double> b; // squared lengths of the orthogonal vectors

    explicit GramSchmidt(const Basis& v)
        : mu(v.size(), std::vector<double>(v.size())), b(v.size()) {
        const size_t t = v.size();
        std::vector<std::vector<double>> star(t, std::vector<double>(t));
        for (size_t i = 0; i < t; ++i) {
            for (size_t k = 0; k < t; ++k)
                star[i][k] = static_cast<double>(v[i][k]);
            for (size_t j = 0; j < i; ++j) {
                double d = 0;
                for (size_t k = 0; k < t; ++k)
                    d += static_cast<double>(v[i][k]) * star[j][k];
                mu[i][j] = d / b[j];
                for (size_t k = 0; k < t; ++k)
                    star[i][k] -= mu[i][j] * star[j][k];
            }
            b[i] = 0;
            for (size_t k = 0; k < t; ++k)
                b[i] += star[i][k] * star[i][k];
        }
    }
};

void Lll(Basis& v) {
    const size_t t = v.size();
    size_t k = 1;
    while (k < t) {
        GramSchmidt g(v);
        for (size_t j = k; j-- > 0;) {
            double q = std::round(g.mu[k][j]);
            if (q != 0) {
                for (size_t c = 0; c < t; ++c)
                    v[k][c] -= static_cast<int64_t>(q) * v[j][c];
                g = GramSchmidt(v);
            }
        }
        if (g.b[k] >= (0.99 - g.mu[k][k - 1] * g.mu[k][k - 1]) * g.b[k - 1]) {
            ++k;
        } else {
            std::swap(v[k], v[k - 1]);
            k = k > 1 ? k - 1 : 1;
        }
    }
}

struct Search {
    const Basis& v;
    GramSchmidt g;
    int64_t best;
    std::vector<int64_t> x;

    void Level(int k, double partial) {
        const int t = static_cast<int>(v.size());
        if (k < 0) {
            std::vector<int64_t> s(t, 0);
            for (int i = 0; i < t; ++i)
                for (int c = 0; c < t; ++c)
                    s[c] += x[i] * v[i][c];
            int64_t len = Dot(s, s);
            if (len > 0 && len < best) best = len;
            return;
        }
        double c = 0;
        for (int j = k + 1; j < t; ++j)
            c -= static_cast<double>(x[j]) * g.mu[j][k];
        // A small margin keeps vectors on the sphere's edge despite rounding.
        double room = (static_cast<double>(best) * (1 + 1e-9) - partial) / g.b[k];
        if (room < 0) return;
        double r = std::sqrt(room);
        for (int64_t xi = static_cast<int64_t>(std::ceil(c - r));
             xi <= static_cast<int64_t>(std::floor(c + r)); ++xi) {
            x[k] = xi;
            double d = (static_cast<double>(xi) - c) * (static_cast<double>(xi) - c) * g.b[k];
            Level(k - 1, partial + d);
        }
        x[k] = 0;
    }
};

} // namespace

int64_t ShortestDualSquared(uint64_t a, uint64_t m, int t) {
    Basis v(t, std::vector<int64_t>(t, 0));
    v[0][0] = static_cast<int64_t>(m);
    uint64_t power = 1;
    for (int i = 1; i < t; ++i) {
        power = power * a % m;
        v[i][0] = -static_cast<int64_t>(power);
        v[i][i] = 1;
    }
    Lll(v);
    int64_t best = Dot(v[0], v[0]);
    for (const auto& row : v)
        if (Dot(row, row) < best) best = Dot(row, row);
    Search s{v, GramSchmidt(v), best, std::vector<int64_t>(t, 0)};
    s.Level(t - 1, 0);
    return s.best;
}

double BestDual(uint64_t m, int t) {
    static const double kGamma[9] = {0,
                                     0,
                                     std::sqrt(4.0 / 3.0),
                                     std::cbrt(2.0),
                                     std::sqrt(2.0),
                                     std::pow(8.0, 1.0 / 5),
                                     std::pow(64.0 / 3, 1.0 / 6),
                                     std::pow(64.0, 1.0 / 7),
                                     2.0};
    return std::sqrt(kGamma[t]) * std::pow(static_cast<double>(m), 1.0 / t);
}

} // namespace brenn::tools
