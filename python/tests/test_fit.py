"""brenn.fit.Spline against scipy: linear against numpy.interp, the C2 cubic with
each of scipy's bc_type forms against CubicSpline (values and derivatives, outside
the partition too), the Hermite cubic, integrals against CubicSpline.integrate,
single precision, and the refusals."""
import numpy as np
import pytest
from scipy.interpolate import CubicHermiteSpline, CubicSpline

from brenn import fit

X = np.sort(np.random.default_rng(1).uniform(0, 10, 40))
Y = np.sin(X) + 0.1 * X
SITES = np.linspace(-0.5, 10.5, 2001)


def test_linear_is_interp():
    s = fit.Spline(X, Y, kind="linear")
    inside = SITES[(SITES >= X[0]) & (SITES <= X[-1])]
    np.testing.assert_allclose(s(inside), np.interp(inside, X, Y), rtol=1e-14, atol=1e-14)
    np.testing.assert_allclose(s(inside, nu=1)[1:-1],
                               (np.diff(Y) / np.diff(X))[np.searchsorted(X, inside[1:-1]) - 1],
                               rtol=1e-9)


@pytest.mark.parametrize("bc", ["not-a-knot", "natural", "clamped", ((1, 0.5), (2, -1.0)),
                                ("natural", (1, 2.0)), "periodic"])
def test_cubic_equals_scipy(bc):
    y = Y.copy()
    if bc == "periodic":
        y[-1] = y[0]
    ours, theirs = fit.Spline(X, y, kind="cubic", bc=bc), CubicSpline(X, y, bc_type=bc)
    # scipy continues a periodic spline periodically; the library extends the end cells.
    sites = SITES[(SITES >= X[0]) & (SITES <= X[-1])] if bc == "periodic" else SITES
    for nu in range(4):
        want = theirs(sites, nu)
        np.testing.assert_allclose(ours(sites, nu=nu), want, rtol=1e-9,
                                   atol=1e-9 * np.abs(want).max())


def test_hermite_equals_scipy():
    d = np.cos(X)
    ours, theirs = fit.Spline(X, Y, kind="hermite", derivatives=d), CubicHermiteSpline(X, Y, d)
    for nu in range(3):
        np.testing.assert_allclose(ours(SITES, nu=nu), theirs(SITES, nu), rtol=1e-10, atol=1e-10)


def test_quadratic_passes_its_values():
    x = np.linspace(0, 4, 9)
    f = lambda t: 1.5 * t * t - t + 2
    mids = f((x[:-1] + x[1:]) / 2)
    s = fit.Spline(x, f(x), kind="quadratic", midpoints=mids)
    np.testing.assert_allclose(s(SITES[::10] * 0.4), f(SITES[::10] * 0.4), rtol=1e-12)


@pytest.mark.parametrize("kind", ["akima", "bessel", "hyman"])
def test_local_cubics_interpolate(kind):
    s = fit.Spline(X, Y, kind=kind)
    np.testing.assert_allclose(s(X), Y, rtol=1e-12, atol=1e-12)
    # C1: the derivative is continuous across the nodes.
    h = 1e-7
    np.testing.assert_allclose(s(X[1:-1] - h, nu=1), s(X[1:-1] + h, nu=1), rtol=1e-5, atol=1e-5)


def test_integrate_equals_scipy():
    ours, theirs = fit.Spline(X, Y, bc="natural"), CubicSpline(X, Y, bc_type="natural")
    rng = np.random.default_rng(5)
    a, b = rng.uniform(-1, 11, 300), rng.uniform(-1, 11, 300)
    a[:40] = b[:40] + rng.uniform(0, 1e-3, 40)  # short ones, the other way round
    for extrapolate in (True, False):
        want = np.array([theirs.integrate(p, q, extrapolate) for p, q in zip(a, b)])
        np.testing.assert_allclose(ours.integrate(a, b, extrapolate), want, rtol=1e-12,
                                   atol=1e-12, equal_nan=True)
    assert ours.integrate(b[7], a[7]) == -ours.integrate(a[7], b[7])
    assert ours.integrate(2.0, X.reshape(4, 10)).shape == (4, 10)
    s32 = fit.Spline(X.astype(np.float32), Y.astype(np.float32), bc="natural")
    r = s32.integrate(a, b)
    assert r.dtype == np.float32
    np.testing.assert_allclose(r, ours.integrate(a, b), rtol=1e-4, atol=1e-4)
    for bad in ((np.nan, 1.0, True), (0.0, [1.0, np.nan], True), (0.0, 1.0, "periodic")):
        with pytest.raises(ValueError):
            ours.integrate(*bad)


def test_single_precision_and_shapes():
    s32 = fit.Spline(X.astype(np.float32), Y.astype(np.float32), kind="cubic", bc="natural")
    s64 = fit.Spline(X, Y, kind="cubic", bc="natural")
    sites = SITES.reshape(1, 2001, 1)
    r = s32(sites)
    assert r.dtype == np.float32 and r.shape == sites.shape
    np.testing.assert_allclose(r.ravel(), s64(SITES), rtol=1e-4, atol=1e-4)
    assert s64(3.0).shape == ()


def test_refusals():
    with pytest.raises(ValueError):
        fit.Spline(X, Y, kind="septic")
    with pytest.raises(ValueError):
        fit.Spline(X[::-1], Y, kind="linear")
    with pytest.raises(ValueError):
        fit.Spline(X, Y[:-1], kind="linear")
    with pytest.raises(ValueError):
        fit.Spline(X, Y, bc="loose")
    with pytest.raises(TypeError):
        fit.Spline(X, Y + 1j)
    with pytest.raises(ValueError):
        fit.Spline(X, Y)(X, nu=4)
    with pytest.raises(ValueError):
        fit.Spline(X, Y)(np.array([np.nan]))
    with pytest.raises(ValueError):
        fit.Spline(X, Y, kind="quadratic")
