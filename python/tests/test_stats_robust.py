"""brenn.stats robust and derived covariance estimates against numpy, scipy and
sklearn: MCD beside sklearn's MinCovDet (divisor count - 1 against count), planted
outliers flagged, EM with nothing missing equal to numpy.cov(bias=True), imputations
by seed, partial covariance as the Schur complement, pooled as per-group numpy.cov,
Higham's nearest correlation example, Mahalanobis distances as scipy's; both
dtypes, both axes and the refusals."""
import numpy as np
import pytest
import scipy.spatial.distance
import scipy.stats

from brenn import stats


def _normal(n, p, seed=5):
    g = np.random.default_rng(seed)
    mix = np.eye(p) + 0.3 * g.standard_normal((p, p))
    return g.standard_normal((n, p)) @ mix + np.arange(p)


def _contaminated(n=200, p=3, bad=30):
    x = _normal(n, p)
    x[:bad] += 25  # far off the clean cloud
    return x


def test_robust_covariance_beside_min_cov_det():
    sklearn = pytest.importorskip("sklearn.covariance")
    x = _contaminated()
    ours = stats.robust_covariance(x)
    ref = sklearn.MinCovDet(random_state=0).fit(x)
    # Both search from random starts; ours may end in another h-subset, but never in
    # one of larger determinant than sklearn's (concentration steps from our estimate
    # reach it), and the far points are out of both.
    n, p = x.shape
    h = (n + p + 1) // 2
    loc, cov = ours.location, ours.covariance
    for _ in range(50):
        d2 = np.einsum("ij,jk,ik->i", x - loc, np.linalg.inv(cov), x - loc)
        subset = np.argsort(d2)[:h]
        loc, cov = x[subset].mean(axis=0), np.cov(x[subset], rowvar=False, bias=True)
    assert np.linalg.det(cov) <= np.linalg.det(ref.raw_covariance_) * (1 + 1e-9)
    assert not np.isin(np.arange(30), subset).any() and not ref.support_[:30].any()
    np.testing.assert_allclose(ours.location, ref.location_, atol=0.05)
    np.testing.assert_allclose(ours.covariance, ref.covariance_, atol=0.15)
    # The seed fixes the result; float32 is near double's; axis 1 and Fortran order too.
    again = stats.robust_covariance(x, seed=1)
    np.testing.assert_array_equal(again.covariance, ours.covariance)
    for y, axis in ((x.T, 1), (np.asfortranarray(x), 0)):
        np.testing.assert_array_equal(stats.robust_covariance(y, axis=axis).covariance,
                                      ours.covariance)
    single = stats.robust_covariance(x.astype(np.float32))
    assert single.covariance.dtype == np.float32
    np.testing.assert_allclose(single.covariance, ours.covariance, rtol=1e-4, atol=1e-5)


def test_outliers_flags_planted_ones():
    x = _contaminated()
    for dtype in (np.float64, np.float32):
        for start in ("mahalanobis", "median"):
            flagged = stats.outliers(x.astype(dtype), start=start)
            assert flagged.dtype == bool and flagged.shape == (200,)
            assert flagged[:30].all()
            assert np.count_nonzero(flagged[30:]) <= 3
    x[40, 1] = np.nan  # not finite: weight 0
    assert stats.outliers(x)[40]


def test_missing_values_em_and_imputations():
    x = _normal(300, 3)
    em = stats.missing_values(x)
    np.testing.assert_allclose(em.mean, x.mean(axis=0), rtol=1e-13, atol=1e-15)
    np.testing.assert_allclose(em.covariance, np.cov(x, rowvar=False, bias=True), rtol=1e-12)
    holed = x.copy()
    holed[::7, 2] = np.nan
    holed[3::11, 0] = np.nan
    r = stats.missing_values(holed, imputations=4, seed=3)
    mask = np.isnan(holed)
    assert r.imputed.shape == (4, np.count_nonzero(mask)) and r.imputed_means.shape == (4, 3)
    assert r.completed.shape == (4,) + holed.shape
    for k in range(4):
        np.testing.assert_array_equal(r.completed[k][~mask], holed[~mask])
        np.testing.assert_array_equal(r.completed[k][mask], r.imputed[k])
        np.testing.assert_allclose(r.imputed_means[k], r.completed[k].mean(axis=0), rtol=1e-12)
    same = stats.missing_values(holed, imputations=4, seed=3)
    np.testing.assert_array_equal(same.imputed, r.imputed)
    assert not np.array_equal(stats.missing_values(holed, imputations=4, seed=4).imputed,
                              r.imputed)
    # Observations along axis 1: the same entries, in x's order.
    t = stats.missing_values(np.ascontiguousarray(holed.T), imputations=4, seed=3, axis=1)
    np.testing.assert_array_equal(t.completed, r.completed.transpose(0, 2, 1))


def test_partial_covariance_is_the_schur_complement():
    x = _normal(120, 4)
    s = np.cov(x, rowvar=False)
    y, z = [3, 0], [1, 2]
    want = s[np.ix_(y, y)] - s[np.ix_(y, z)] @ np.linalg.solve(s[np.ix_(z, z)], s[np.ix_(z, y)])
    r = stats.partial_covariance(x, given=z, of=y)
    np.testing.assert_allclose(r.covariance, want, rtol=1e-12)
    d = np.sqrt(np.diag(want))
    np.testing.assert_allclose(r.correlation, want / np.outer(d, d), rtol=1e-12)
    # Least-squares residuals of Y on [1, Z] have that covariance (divisor n - 1 - |Z|).
    a = np.column_stack([np.ones(120), x[:, z]])
    res = x[:, y] - a @ np.linalg.lstsq(a, x[:, y], rcond=None)[0]
    np.testing.assert_allclose(r.covariance, res.T @ res / 119, rtol=1e-10)
    with pytest.raises(ValueError):
        stats.partial_covariance(x, given=[1], of=[1, 2])


def test_pooled_covariance_is_per_group_cov():
    x = _normal(90, 3)
    labels = np.arange(90) % 4
    r = stats.pooled_covariance(x, labels)
    pooled = 0
    for k in range(4):
        xs = x[labels == k]
        np.testing.assert_allclose(r.group_means[k], xs.mean(axis=0), rtol=1e-13, atol=1e-15)
        np.testing.assert_allclose(r.group_covariances[k], np.cov(xs, rowvar=False), rtol=1e-12)
        pooled = pooled + (len(xs) - 1) * np.cov(xs, rowvar=False)
    np.testing.assert_allclose(r.covariance, pooled / (90 - 4), rtol=1e-12)
    np.testing.assert_allclose(r.mean, x.mean(axis=0), rtol=1e-13, atol=1e-15)
    with pytest.raises(ValueError):
        stats.pooled_covariance(x, labels, groups=3)


def test_nearest_correlation_higham_example():
    a = np.array([[1.0, 1, 0], [1, 1, 1], [0, 1, 1]])
    for dtype, tol in ((np.float64, 1e-4), (np.float32, 2e-4)):
        c = stats.nearest_correlation(a.astype(dtype))
        assert c.dtype == dtype
        np.testing.assert_array_equal(np.diag(c), 1)
        np.testing.assert_allclose(c[0, 1], 0.7607, atol=tol)
        np.testing.assert_allclose(c[0, 2], 0.1573, atol=tol)
        assert np.linalg.eigvalsh(c.astype(np.float64)).min() >= -1e-5
    r = np.corrcoef(_normal(50, 4), rowvar=False)
    np.testing.assert_allclose(stats.nearest_correlation(r), r, atol=1e-14)
    with pytest.raises(RuntimeError):
        stats.nearest_correlation(a, max_iter=1)
    np.testing.assert_array_equal(stats.nearest_correlation(a + np.triu(a, 1)),
                                  stats.nearest_correlation(a))  # the upper triangle unread
    with pytest.raises(ValueError):
        stats.nearest_correlation(np.where(a == 0, np.inf, a))


def test_mahalanobis_is_scipys():
    x = _normal(200, 4)
    mean, cov = x.mean(axis=0), np.cov(x, rowvar=False)
    vi = np.linalg.inv(cov)
    want = np.array([scipy.spatial.distance.mahalanobis(u, mean, vi) for u in x])
    np.testing.assert_allclose(stats.mahalanobis(x, mean, cov), want, rtol=1e-13)
    single = stats.mahalanobis(x.astype(np.float32), mean, cov)
    assert single.dtype == np.float32
    np.testing.assert_allclose(single, want, rtol=1e-4)
    with pytest.raises(RuntimeError):
        stats.mahalanobis(x, mean, np.ones((4, 4)))


@pytest.mark.parametrize("call", [
    lambda x: stats.robust_covariance(x, support_fraction=1.5),
    lambda x: stats.robust_covariance(x, seed=-1),
    lambda x: stats.outliers(x, alpha=0),
    lambda x: stats.outliers(x, start="mean"),
    lambda x: stats.missing_values(x, tol=0),
    lambda x: stats.mahalanobis(x, [0, 0], np.eye(3)),
    lambda x: stats.pooled_covariance(x, np.zeros(5, dtype=int)),
])
def test_refusals(call):
    with pytest.raises(ValueError):
        call(_normal(40, 3))


def test_types_refused():
    with pytest.raises(TypeError):
        stats.robust_covariance(np.ones((10, 2), dtype=np.int64))
    with pytest.raises(TypeError):
        stats.missing_values(_normal(10, 2), imputations=1.5)
