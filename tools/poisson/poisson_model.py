"""The transforming Poisson methods as the library computes them (float32 where it
works in single), as distributions of the count over the normal or uniform input:
what the approximation report measures against the pmf. The Cornish-Fisher rows are
measured exactly through their quartics' roots (row_model.py), range C over a
partition of the normal into cells."""
import numpy as np
from scipy.special import ndtr
from scipy.stats import poisson

import row_model

f32 = np.float32
# Midpoints and masses of a fine partition of the normal's range.
_EDGES = np.linspace(-6.0, 6.0, 240001)
Z = f32((_EDGES[:-1] + _EDGES[1:]) / 2)
MASS = np.diff(ndtr(_EDGES))


def large_params(lam):
    q = 1.0 / lam
    mean = f32(lam - 0.6666957198 + q * (-0.01941020862 + q * (-0.001288719308 + q * 0.001645153709)))
    sigma = f32(np.sqrt(lam - 0.05580667628 + q * (-0.000975814817 + q * (-0.005534854444 + q * 0.00519830812))))
    k1 = f32(q * (0.00774710541609 + q * (-0.443911391797447 + q * (2.29098262740971 + q * (-3.85841212878712 + q * 2.02847035732762)))))
    k2 = f32(q * (0.168577008904505 + q * (0.0472242348292688 + q * (-0.228162379800275 + q * (0.358642226989579 + q * -0.185436433294704)))))
    k3 = f32(q * (-0.0001145865551857 + q * (-0.0126559989233446 + q * (0.0232257954288354 + q * (-0.0291113093667918 + q * 0.014389264627966)))))
    return mean, sigma, k1, k2, k3


def large_counts(lam, z, shifted):
    """Range C; `shifted` when z is already mean + sigma * normal (the method's own
    Gaussian), else z is standard and is moved as PoissonV does."""
    mean, sigma, k1, k2, k3 = large_params(lam)
    x = z if shifted else z * sigma + mean
    d = x - mean
    v = x + f32(1) + d * (k1 + d * (k2 + d * k3))
    return np.maximum(v, f32(0)).astype(np.int64)


def tv_of(counts, mass, lam):
    top = int(max(counts.max(), lam + 40 * np.sqrt(lam) + 40))
    got = np.bincount(counts, weights=mass, minlength=top + 1)
    want = poisson.pmf(np.arange(top + 1), lam)
    return 0.5 * (np.abs(got - want).sum() + max(0.0, 1.0 - want.sum()))


def tv_range_a(lam):
    c = np.cumsum([lam ** j / np.prod(np.arange(1, j + 1, dtype=float)) for j in range(11)])
    c = c.astype(f32).astype(np.float64)
    l = lam
    e = float(f32(0.99999999789769289 + l * (1.0000002352041819 + l * (0.49999555884885266 + l * (
        0.16669916415448055 + l * (0.041548796137890399 + l * (0.0085659307505906532 + l * (
            0.0011369805324212754 + l * 0.00033516415953945282))))))))
    edges = np.concatenate([[0.0], np.minimum(c, e), [e]])
    got = np.diff(edges) / e
    want = poisson.pmf(np.arange(12), lam)
    return 0.5 * (np.abs(got - want).sum() + poisson.sf(11, lam))


def tv_small_v(lam):
    """PoissonV below 1/16: u = |erf(z / sqrt 2)| is uniform on [0, 1)."""
    bound = 0.99999999789769289 + lam * (1.000000235204182 + lam * (0.49999555884885266 + lam * lam * 0.16669916415448055))
    sums, s, term = [1.0], 1.0, 1.0
    for k in range(1, 11):
        term *= lam / k
        s += term
        sums.append(s)
    # k is the first index with float(sum) >= bound u, else 11.
    cut = np.minimum(np.array([float(f32(x)) for x in sums]) / bound, 1.0)
    edges = np.concatenate([[0.0], cut, [1.0]])
    got = np.diff(edges)
    want = poisson.pmf(np.arange(12), lam)
    return 0.5 * (np.abs(got - want).sum() + poisson.sf(11, lam))


def tv_row(T, lam):
    """One row's own distance at lambda (taken as a float), whichever way the methods
    take there."""
    m, e = np.frexp(np.float64(f32(lam)))
    return row_model.RowGrid(int(e) - 1, [2.0 * m - 1.0]).tv(T, rounded=True)[0]


def tv_method1(rows, lam):
    if lam < 1:
        return tv_range_a(lam)
    if lam < 100:
        return tv_row(rows[_index(lam)], lam)
    mean, sigma = large_params(lam)[:2]
    return tv_of(large_counts(lam, Z * sigma + mean, True), MASS, lam)


def tv_poisson_v(rows, lam):
    if lam < 0.0625:
        return tv_small_v(lam)
    if lam < 100:
        return tv_row(rows[_index(lam)], lam)
    return tv_of(large_counts(lam, Z, False), MASS, lam)


def _index(lam):
    return int(np.frexp(np.float64(f32(lam)))[1]) - 1 + 4
