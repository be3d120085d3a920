"""brenn.stats order statistics against numpy and scipy: quantiles within 4 ulps of
the larger neighbour (numpy rounds its interpolation its own way), sort bit for bit,
the median absolute deviation within 1 ulp, the weighted median by hand and against
numpy.median, streaming quantiles within eps N in rank, and the refusals."""
import numpy as np
import pytest
import scipy.stats

from brenn import stats

ORDERS = [0.0, 1e-9, 0.01, 0.25, 0.5, 0.75, 0.99, 1.0 - 2**-40, 1.0]


def _data(shape, dtype=np.float64, seed=3, ties=False):
    g = np.random.default_rng(seed)
    x = g.standard_normal(shape) * 1e3
    if ties:
        x = np.round(x / 300) + 0.0  # no -0.0: its place among the +0.0s is unspecified
    return x.astype(dtype)


def _near(got, x, q, axis, dtype):
    """Each quantile within 4 ulps of max(|a|, |c|) of numpy's, a and c the two
    sorted values the order falls between."""
    q = np.asarray(q, dtype=dtype).astype(np.float64)
    xs = np.sort(x.astype(np.float64), axis=axis)
    if axis is None:
        xs = xs.reshape(-1, 1)
        axis = 0
    xs = np.moveaxis(xs, axis, 0)
    n = xs.shape[0]
    want = np.quantile(xs, q, axis=0, method="linear").reshape(q.shape + xs.shape[1:])
    j = np.floor(q * (n - 1)).astype(int)
    a, c = xs[j], xs[np.minimum(j + 1, n - 1)]
    a = a.reshape(want.shape)
    c = c.reshape(want.shape)
    tol = 4 * np.spacing(np.maximum(abs(a), abs(c)).astype(dtype)).astype(np.float64)
    got = np.asarray(got, dtype=np.float64).reshape(want.shape)
    assert np.all(np.abs(got - want) <= tol), np.max(np.abs(got - want) / tol)


@pytest.mark.parametrize("dtype", [np.float64, np.float32])
@pytest.mark.parametrize("n", [1, 2, 3, 10, 1001, 100000])
def test_quantile_one_variable(dtype, n):
    for ties in (False, True):
        x = _data(n, dtype, seed=n, ties=ties)
        got = stats.quantile(x, ORDERS)
        assert got.dtype == dtype and got.shape == (len(ORDERS),)
        _near(got, x, ORDERS, None, dtype)
        assert got[0] == x.min() and got[-1] == x.max()
        assert stats.quantile(x, 0.5).shape == ()


@pytest.mark.parametrize("dtype", [np.float64, np.float32])
def test_quantile_axes_orders_and_shapes(dtype):
    x = _data((1200, 7), dtype)
    for y in (x, np.asfortranarray(x), x[::3], x.T.copy()):
        for axis in (None, 0, 1, -1):
            got = stats.quantile(y, ORDERS, axis=axis)
            assert got.shape == np.quantile(y, ORDERS, axis=axis).shape
            _near(got, y, ORDERS, None if axis is None else axis % 2, dtype)
            kept = stats.quantile(y, 0.3, axis=axis, keepdims=True)
            assert kept.shape == np.quantile(y, 0.3, axis=axis, keepdims=True).shape
    before = x.copy()
    stats.quantile(x, [0.5], axis=0)
    np.testing.assert_array_equal(x, before)


def test_quantile_extremes_and_refusals():
    big = np.array([np.finfo(np.float64).max, -np.finfo(np.float64).max, 5e-324, 0.0])
    np.testing.assert_array_equal(stats.quantile(big, [0, 1]), [big.min(), big.max()])
    # Between the two largest finite values, without overflow.
    top = np.array([np.finfo(np.float64).max, np.finfo(np.float64).max * 0.5])
    assert np.isfinite(stats.quantile(top, 0.5))
    with pytest.raises(TypeError):
        stats.quantile(np.arange(10), 0.5)
    with pytest.raises(TypeError):
        stats.quantile(np.ones(3, np.float16), 0.5)
    for bad in (-1e-300, 1.0000001, np.nan):
        with pytest.raises(ValueError):
            stats.quantile(np.ones(3), bad)
    with pytest.raises(ValueError):
        stats.quantile(np.ones((2, 2, 2)), 0.5)
    with pytest.raises(ValueError):
        stats.quantile(np.ones((2, 2)), 0.5, axis=2)
    with pytest.raises(ValueError):
        stats.quantile(np.ones(0), 0.5)


@pytest.mark.parametrize("dtype", [np.float64, np.float32])
def test_sort_bit_for_bit(dtype):
    x = _data((513, 6), dtype)
    x[3, 1] = np.finfo(dtype).max
    x[4, 2] = np.finfo(dtype).tiny / 8  # subnormal
    x[5, 3] = -np.finfo(dtype).max
    for y in (x, np.asfortranarray(x), _data((300, 4), dtype, ties=True)):
        before = y.copy()
        for axis in (-1, 0, None):
            got = stats.sort(y, axis=axis)
            want = np.sort(y, axis=axis)
            assert got.shape == want.shape and got.dtype == want.dtype
            np.testing.assert_array_equal(np.ascontiguousarray(got).view(f"u{y.itemsize}"),
                                          np.ascontiguousarray(want).view(f"u{y.itemsize}"))
        np.testing.assert_array_equal(y, before)


def test_sort_signed_zeros_are_equal_values():
    x = np.array([0.0, -0.0, 1.0, -0.0, 0.0, -1.0] * 20)
    np.testing.assert_array_equal(stats.sort(x), np.sort(x))


def test_sort_keeps_every_value_with_nans():
    x = _data(1000)
    x[::97] = np.nan
    got = stats.sort(x)
    assert np.isnan(got).sum() == np.isnan(x).sum()
    np.testing.assert_array_equal(np.sort(got[~np.isnan(got)]), np.sort(x[~np.isnan(x)]))


@pytest.mark.parametrize("dtype", [np.float64, np.float32])
def test_mad_equals_scipy(dtype):
    for shape in ((1,), (2,), (999,), (1000, 5)):
        x = _data(shape, dtype, seed=len(shape))
        got = stats.median_abs_deviation(x)
        want = scipy.stats.median_abs_deviation(x.astype(np.float64), axis=0).astype(dtype)
        assert got.dtype == dtype
        ulps = np.abs(got.astype(np.float64) - want) / np.spacing(np.abs(want).astype(dtype))
        assert np.all(ulps <= 1), ulps.max()
    x = _data((400, 3))
    np.testing.assert_allclose(stats.median_abs_deviation(x, axis=1, scale="normal"),
                               scipy.stats.median_abs_deviation(x, axis=1, scale="normal"),
                               rtol=4e-16)
    assert stats.median_abs_deviation(np.full(17, 3.25)) == 0
    np.testing.assert_array_equal(stats.median_abs_deviation(np.full((5, 2), -1.5)), [0, 0])
    with pytest.raises(ValueError):
        stats.median_abs_deviation(x, scale="cauchy")


def test_weighted_median_unit_weights_is_numpy_median():
    for n in (1, 2, 3, 4, 1000, 1001):
        x = _data(n, seed=n, ties=n > 500)
        assert stats.weighted_median(x) == np.median(x)
        assert stats.weighted_median(x, np.ones(n)) == np.median(x)
    x = _data((301, 4), np.float32)
    np.testing.assert_array_equal(stats.weighted_median(x, axis=0), np.median(x, axis=0))
    np.testing.assert_array_equal(stats.weighted_median(x.T, axis=1), np.median(x, axis=0))


@pytest.mark.parametrize("x, w, want", [
    ([1, 2, 3], [0, 5, 1], 2.0),                # no weight below k
    ([1, 2, 3], [1, 2, 1], 2.0),                # odd n, weight below = (S - w[k]) / 2
    ([1, 2, 3, 10], [1, 2, 1, 0], 1.5),         # the same with a zero weight: n even
    ([1, 2, 3, 4], [1, 3, 1, 1], lambda t: t(1) + (t(3) - t(1)) / t(3) * (t(2) - t(1))),
    ([1, 2, 3], [1, 1, 2], 2.0),                # exactly half, n odd
    ([0, 1, 2, 3], [0, 1, 1, 2], 2.5),          # exactly half, n even: the next mean
    ([4, 1, 3, 2], [2, 1, 0, 1], 3.0),          # exactly half: the next positive weight's
])
def test_weighted_median_by_hand(x, w, want):
    for dtype in (np.float64, np.float32):
        got = stats.weighted_median(np.array(x, dtype), np.array(w, dtype))
        assert got == (want(dtype) if callable(want) else dtype(want))


def test_weighted_median_refusals():
    with pytest.raises(ValueError):
        stats.weighted_median(np.ones(3), [1, -1, 1])
    with pytest.raises(ValueError):
        stats.weighted_median(np.ones(3), [1, np.inf, 1])
    with pytest.raises(ValueError):
        stats.weighted_median(np.ones(3), [1, 1])


def _rank_ok(sorted_x, value, order, eps):
    n = sorted_x.size
    lo = np.searchsorted(sorted_x, value, "left") + 1
    hi = np.searchsorted(sorted_x, value, "right")
    target = order * (n - 1) + 1
    return lo <= target + eps * n and hi >= target - eps * n


@pytest.mark.parametrize("dtype", [np.float64, np.float32])
def test_streaming_within_eps_and_blocks_do_not_matter(dtype):
    g = np.random.default_rng(11)
    x = g.standard_normal(200000).astype(dtype)
    orders = [0, 0.01, 0.25, 0.5, 0.99, 1]
    answers = []
    for cuts in (np.array([x.size]), np.full(x.size // 1000, 1000), g.integers(1, 5000, 100)):
        s = stats.StreamingQuantiles(eps=0.01, dtype=dtype)
        at = 0
        for c in cuts:
            s.feed(x[at:at + c])
            at += c
        s.feed(x[at:])
        assert s.count == x.size
        answers.append(s.quantile(orders))
        np.testing.assert_array_equal(s.quantile(orders), answers[-1])  # read again
        with pytest.raises(ValueError):
            s.quantile([0.3])
    for a in answers[1:]:
        assert a.tobytes() == answers[0].tobytes()
    xs = np.sort(x)
    for q, v in zip(orders, answers[0]):
        assert _rank_ok(xs, v, q, 0.01), (q, v)
    assert answers[0].dtype == dtype


def test_streaming_several_variables_and_refusals():
    x = _data((50000, 3))
    x[:, 2] = 7.0  # a constant variable
    s = stats.StreamingQuantiles(eps=0.001, p=3)
    for block in np.array_split(x, 13):
        s.feed(block)
    got = s.quantile([0.1, 0.9])
    assert got.shape == (2, 3)
    for j in range(3):
        xs = np.sort(x[:, j])
        for q, v in zip((0.1, 0.9), got[:, j]):
            assert _rank_ok(xs, v, q, 0.001)
    np.testing.assert_array_equal(got[:, 2], [7.0, 7.0])
    assert s.quantile([0.1, 0.9]).shape == (2, 3)
    with pytest.raises(TypeError):
        s.feed(x.astype(np.float32))
    with pytest.raises(ValueError):
        s.feed(x[:, :2])
    with pytest.raises(ValueError):
        stats.StreamingQuantiles(eps=0).feed(np.ones(3))
    with pytest.raises(ValueError):
        stats.StreamingQuantiles(eps=0.1).quantile(0.5)
    with pytest.raises(TypeError):
        stats.StreamingQuantiles(dtype=np.int64)
    fresh = stats.StreamingQuantiles(eps=0.1)
    fresh.feed(np.array([1.0, 2.0, 3.0]))
    with pytest.raises(ValueError):
        fresh.quantile(1.5)
    assert fresh.quantile(1.0) == 3.0
