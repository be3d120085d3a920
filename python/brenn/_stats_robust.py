"""Robust and derived covariance estimates of brenn.stats: the minimum covariance
determinant (:func:`robust_covariance`), BACON's outliers (:func:`outliers`), the
normal model with missing values (:func:`missing_values`), partial and pooled
covariance, the nearest correlation matrix and Mahalanobis distances. Observations
lie along ``axis`` (default 0: one observation a row, numpy's ``rowvar=False``);
arrays are float32 or float64 and the results have x's dtype."""
import collections
import numbers

import numpy as np

from . import _brenn

RobustCovariance = collections.namedtuple("RobustCovariance", "location covariance")
MissingValues = collections.namedtuple(
    "MissingValues", "mean covariance imputed imputed_means completed")
PartialCovariance = collections.namedtuple("PartialCovariance", "covariance correlation")
PooledCovariance = collections.namedtuple(
    "PooledCovariance", "mean covariance group_means group_covariances")


def _view(x, axis, what):
    """(x as an array, data, p, n, observations_in_rows) for a 1-D (one variable) or
    2-D x with its observations along axis."""
    from .stats import _axis, _floats, _matrix
    x = _floats(x, what)
    if x.ndim == 2 and axis is None:
        raise ValueError("axis must be 0 or 1 for a 2-D x")
    data, p, n, in_rows = _matrix(x, 0 if x.ndim == 1 else _axis(x, axis))
    return x, data, p, n, in_rows


def _params(values, dtype):
    return np.ascontiguousarray(values, dtype=dtype)


def _whole(v, name):
    if not isinstance(v, numbers.Integral) or isinstance(v, bool):
        raise TypeError(f"{name} must be an integer")
    return int(v)


def robust_covariance(x, support_fraction=None, starts=500, max_steps=100, seed=1, axis=0):
    """The minimum covariance determinant estimate of location and scatter by
    FAST-MCD (Rousseeuw and Van Driessen 1999): among subsets of h observations the
    one whose covariance has the least determinant, scaled to consistency at the
    normal and reweighted (observations within the 97.5 % chi-square quantile of the
    raw estimate give the result; covariance divisor count - 1).

    ``support_fraction``: h / n in (0, 1], h at least p + 1; default None, h =
    floor((n + p + 1) / 2). ``starts``: random starts (500); ``max_steps``: limit of
    concentration steps (100); ``seed``: of the MT19937 stream (0 to 2**32 - 1):
    the same seed gives the same result on any number of threads. Observations
    with a value that is not finite are left out. Returns
    ``RobustCovariance(location, covariance)``. RuntimeError for an exact fit (h or
    more observations on a hyperplane) or a singular estimate."""
    x, data, p, n, in_rows = _view(x, axis, "robust covariance")
    if support_fraction is None:
        # The default h, for the finite observations, as a fraction floor() keeps.
        rows = np.isfinite(data.reshape((n, p) if in_rows else (p, n)))
        m = int(np.count_nonzero(rows.all(axis=1 if in_rows else 0)))
        support_fraction = ((m + p + 1) // 2 + 0.5) / m if m else 1.0
    params = _params([support_fraction, _whole(starts, "starts"),
                      _whole(max_steps, "max_steps"), _whole(seed, "seed")], x.dtype)
    mean, cov = _brenn.stats.robust_covariance(data, p, n, in_rows, params)
    return RobustCovariance(mean, cov)


def outliers(x, alpha=0.05, start="mahalanobis", c=4, axis=0):
    """The outliers of x by BACON (Billor, Hadi and Velleman 2000): from a basic
    subset of ceil(c p) observations near the centre (``start`` "mahalanobis": by
    distance from the mean and covariance, "median": by Euclidean distance from
    the medians), the subset grows to the observations within the corrected
    chi-square distance of level ``alpha / n`` until it repeats. Needs n above
    3p + 1. Returns a boolean array of n: True for an outlier (and for an
    observation with a value that is not finite)."""
    x, data, p, n, in_rows = _view(x, axis, "outliers")
    starts = {"mahalanobis": 1, "median": 2}
    if start not in starts:
        raise ValueError(f"start must be 'mahalanobis' or 'median', not {start!r}")
    params = _params([alpha, starts[start], c], x.dtype)
    return _brenn.stats.outliers(data, p, n, in_rows, params) == 0


def missing_values(x, imputations=0, max_iter=1000, tol=1e-6, steps=10, seed=1, axis=0):
    """Estimates with missing values: NaN (quiet or signalling) marks a missing
    entry. EM for the multivariate normal gives the maximum-likelihood mean and
    covariance (divisor n; with nothing missing, ``numpy.cov(x, rowvar=False,
    bias=True)``), stopping when no mean moves by more than ``tol`` standard
    deviations (at most ``max_iter`` iterations). Then ``imputations`` data sets
    by data augmentation (Schafer 1997, Jeffreys prior), ``steps`` steps apart on
    one chain from the EM estimate, drawn from an MT19937 stream of ``seed``.

    Returns ``MissingValues(mean, covariance, imputed, imputed_means, completed)``:
    ``imputed`` (imputations, K) the drawn values of the K missing entries in the
    order of ``numpy.isnan(x)``'s True entries, ``imputed_means`` (imputations, p)
    each completed set's means and ``completed`` (imputations,) + x.shape the
    completed data sets, observed entries unchanged."""
    x, data, p, n, in_rows = _view(x, axis, "missing values")
    params = _params([_whole(max_iter, "max_iter"), tol, _whole(steps, "steps"),
                      _whole(seed, "seed")], x.dtype)
    imputations = _whole(imputations, "imputations")
    mean, cov, drawn, means = _brenn.stats.missing_values(data, p, n, in_rows, params,
                                                          imputations)
    # The library's entries lie in data's memory order; put them back into x's shape.
    flat = data.reshape(-1)
    completed = np.repeat(flat.reshape(1, -1), imputations, axis=0)
    completed[:, np.isnan(flat)] = drawn
    inner = (n, p) if in_rows else (p, n)
    completed = completed.reshape((imputations,) + inner)
    if x.ndim == 1:
        completed = completed.reshape(imputations, n)
    elif (axis % 2 == 0) != in_rows:
        completed = completed.transpose(0, 2, 1)
    imputed = completed[:, np.isnan(x)]
    return MissingValues(mean, cov, imputed, means, completed)


def partial_covariance(x, given, of=None, weights=None, axis=0):
    """The covariance of the variables ``of`` given the variables ``given`` (index
    sequences, disjoint; ``of`` default: all the others), the Schur complement
    S_YY - S_YZ S_ZZ^-1 S_ZY of the unbiased (weighted) covariance S of x, by a
    Cholesky factor; and its correlation. The results follow the order of ``of``.
    Returns ``PartialCovariance(covariance, correlation)``. RuntimeError when
    S_ZZ is not positive definite."""
    x, data, p, n, in_rows = _view(x, axis, "partial covariance")
    given = [int(j) % p if -p <= int(j) < p else p for j in np.atleast_1d(given)]
    of = [j for j in range(p) if j not in given] if of is None else \
        [int(j) % p if -p <= int(j) < p else p for j in np.atleast_1d(of)]
    if max(given + of, default=0) >= p or len(set(of)) != len(of) or set(of) & set(given):
        raise ValueError("given and of must be distinct variables of x")
    roles = np.zeros(p, dtype=np.int64)
    roles[given] = -1
    roles[of] = 1
    w = None if weights is None else np.ascontiguousarray(weights, dtype=x.dtype).reshape(-1)
    cov, cor = _brenn.stats.partial_covariance(data, p, n, in_rows, roles, w)
    # The library's order is the variables'; put it in of's.
    order = np.searchsorted(np.sort(of), of)
    pick = np.ix_(order, order)
    return PartialCovariance(cov[pick], cor[pick])


def pooled_covariance(x, labels, groups=None, axis=0):
    """Group and pooled covariance of observations labelled 0 to ``groups`` - 1
    (default max(labels) + 1): each group's mean and unbiased covariance (as
    ``numpy.cov(x[labels == k], rowvar=False)``), the mean of all observations and
    the pooled covariance, the groups' summed cross-products over n - groups.
    Returns ``PooledCovariance(mean, covariance, group_means,
    group_covariances)``; an empty group gives NaNs, a group of one a NaN
    covariance."""
    x, data, p, n, in_rows = _view(x, axis, "pooled covariance")
    labels = np.asarray(labels)
    if labels.dtype.kind not in "iub" or labels.shape != (n,):
        raise ValueError("labels must be one integer an observation")
    labels = np.ascontiguousarray(labels, dtype=np.int64)
    if groups is None:
        groups = int(labels.max()) + 1 if n else 1
    gm, gc, mean, cov = _brenn.stats.pooled_covariance(data, p, n, in_rows,
                                                       _whole(groups, "groups"), labels)
    return PooledCovariance(mean, cov, gm, gc)


def nearest_correlation(a, weights=None, tol=None, max_iter=10000):
    """The nearest correlation matrix to the symmetric matrix ``a`` in the weighted
    Frobenius norm ||W^1/2 (A - X) W^1/2||, W = diag(``weights``) (default I), by
    alternating projections with Dykstra's correction (Higham 2002). The result has
    a unit diagonal exactly and eigenvalues at or above -``tol`` (default 1e-12,
    float32 1e-5); a correlation matrix comes back unchanged up to rounding.
    RuntimeError when ``max_iter`` iterations do not reach ``tol``."""
    a = np.asarray(a)
    if a.dtype not in (np.float32, np.float64):
        raise TypeError(f"nearest correlation takes float32 or float64, not {a.dtype}")
    if a.ndim != 2 or a.shape[0] != a.shape[1]:
        raise ValueError("a must be a square matrix")
    p = a.shape[0]
    if tol is None:
        tol = 1e-12 if a.dtype == np.float64 else 1e-5
    w = None if weights is None else np.ascontiguousarray(weights, dtype=a.dtype).reshape(-1)
    params = _params([tol, _whole(max_iter, "max_iter")], a.dtype)
    return _brenn.stats.nearest_correlation(np.ascontiguousarray(a), p, w, params)


def mahalanobis(x, mean, cov, axis=0):
    """The Mahalanobis distance sqrt((x_i - mean)' cov^-1 (x_i - mean)) of each
    observation of x, by a Cholesky factor of ``cov`` and a triangular solve (no
    inverse), as ``scipy.spatial.distance.mahalanobis(x_i, mean, inv(cov))``.
    RuntimeError when cov is not positive definite."""
    x, data, p, n, in_rows = _view(x, axis, "mahalanobis")
    mean = np.ascontiguousarray(mean, dtype=x.dtype).reshape(-1)
    cov = np.ascontiguousarray(cov, dtype=x.dtype)
    return _brenn.stats.mahalanobis(data, p, n, in_rows, mean, cov)
