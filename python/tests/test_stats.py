"""brenn.stats.summary against numpy and scipy: every estimate, with and without
weights, both axes and memory orders, single precision, and the refusals."""
import numpy as np
import pytest
import scipy.stats

from brenn import stats


def _data(dtype=np.float64, n=5000, p=6, seed=1):
    g = np.random.default_rng(seed)
    return (g.standard_normal((n, p)) * np.arange(1, p + 1) + np.arange(p) * 10).astype(dtype)


def _check(r, x, rtol, w=None):
    mean = np.average(x, axis=0, weights=w)
    np.testing.assert_allclose(r.mean, mean, rtol=rtol)
    cov = np.cov(x, rowvar=False, aweights=w)
    np.testing.assert_allclose(r.covariance, cov, rtol=rtol * 10)
    np.testing.assert_allclose(r.variance, np.diag(cov), rtol=rtol * 10)
    np.testing.assert_allclose(r.correlation, cov / np.sqrt(np.outer(np.diag(cov), np.diag(cov))),
                               rtol=rtol * 10, atol=rtol * 10)
    np.testing.assert_array_equal(r.min, x.min(axis=0))
    np.testing.assert_array_equal(r.max, x.max(axis=0))
    if w is None:
        # The library divides the third and fourth central sums by n and the
        # second by n - 1: scipy's biased forms scaled by ((n - 1) / n)^(k/2).
        n = len(x)
        np.testing.assert_allclose(r.skewness, scipy.stats.skew(x, axis=0) * ((n - 1) / n) ** 1.5,
                                   rtol=rtol * 1e3, atol=rtol * 100)
        np.testing.assert_allclose(r.kurtosis + 3, (scipy.stats.kurtosis(x, axis=0) + 3) * ((n - 1) / n) ** 2,
                                   rtol=rtol * 1e3, atol=rtol * 100)


def test_default_estimates_equal_numpy_and_scipy():
    x = _data()
    r = stats.summary(x)
    assert tuple(r) == stats.DEFAULT_ESTIMATES
    _check(r, x, 1e-12)


def test_weights():
    x = _data(n=3000)
    w = np.random.default_rng(2).uniform(0, 3, len(x))
    _check(stats.summary(x, weights=w), x, 1e-12, w)
    with pytest.raises(ValueError):
        stats.summary(x, weights=-w)
    with pytest.raises(ValueError):
        stats.summary(x, weights=w[:-1])


def test_axes_and_orders_agree():
    x = _data()
    want = stats.summary(x)
    for y, axis in ((np.asfortranarray(x), 0), (x.T.copy(), 1), (np.asfortranarray(x.T), 1),
                    (x[::2], 0)):
        got = stats.summary(y, axis=axis)
        ref = want if y.shape[axis] == x.shape[0] else stats.summary(x[::2])
        np.testing.assert_allclose(got.covariance, ref.covariance, rtol=1e-12)
        np.testing.assert_allclose(got.mean, ref.mean, rtol=1e-13)


def test_single_precision_and_one_variable():
    x = _data(np.float32)
    r = stats.summary(x, estimates=["mean", "covariance", "min", "max"])
    assert r.mean.dtype == np.float32
    _mean = x.astype(np.float64).mean(axis=0)
    np.testing.assert_allclose(r.mean, _mean, rtol=1e-5)
    np.testing.assert_allclose(r.covariance, np.cov(x.astype(np.float64), rowvar=False), rtol=1e-4, atol=1e-3)
    one = stats.summary(x[:, 2].astype(np.float64), estimates=["mean", "variance"])
    assert one.mean.shape == () and one.mean == pytest.approx(x[:, 2].astype(np.float64).mean())


def test_moments_and_variation():
    x = _data()
    r = stats.summary(x, estimates=["raw_moment2", "central_moment3", "central_moment4", "variation"])
    np.testing.assert_allclose(r.raw_moment2, (x ** 2).mean(axis=0), rtol=1e-12)
    d = x - x.mean(axis=0)
    np.testing.assert_allclose(r.central_moment3, (d ** 3).mean(axis=0), rtol=1e-9, atol=1e-9)
    np.testing.assert_allclose(r.central_moment4, (d ** 4).mean(axis=0), rtol=1e-11)
    np.testing.assert_allclose(r.variation, x.std(axis=0, ddof=1) / x.mean(axis=0), rtol=1e-12)


def test_refusals():
    with pytest.raises(TypeError):
        stats.summary(np.arange(10))
    with pytest.raises(ValueError):
        stats.summary(np.ones((3, 3)), estimates=["median"])
    with pytest.raises(ValueError):
        stats.summary(np.ones((2, 2, 2)))
    with pytest.raises(ValueError):
        stats.summary(np.ones((3, 3)), axis=2)
