"""Statistics of a matrix of observations in one call of the library: summary
estimates (:func:`summary`), quantiles (:func:`quantile`), sorting (:func:`sort`),
the median absolute deviation (:func:`median_abs_deviation`), the weighted median
(:func:`weighted_median`), streaming quantiles (:class:`StreamingQuantiles`), and
robust and derived covariance estimates (:func:`robust_covariance`,
:func:`outliers`, :func:`missing_values`, :func:`partial_covariance`,
:func:`pooled_covariance`, :func:`nearest_correlation`, :func:`mahalanobis`).
Arrays are float32 or float64 (other dtypes are a TypeError, never a silent cast),
1-D or 2-D; the library's call runs without the GIL."""
import numbers

import numpy as np

from . import _brenn

DEFAULT_ESTIMATES = ("mean", "variance", "skewness", "kurtosis", "covariance",
                     "correlation", "min", "max")
# Names of this module that the library knows by another.
_ALIASES = {"variance": "central_moment2"}
ESTIMATES = tuple(sorted(set(_brenn.stats.ESTIMATES) | set(_ALIASES)))


def _floats(x, what):
    """x as a 1-D or 2-D float32 or float64 array."""
    x = np.asarray(x)
    if x.dtype not in (np.float32, np.float64):
        raise TypeError(f"{what} take float32 or float64, not {x.dtype}")
    if x.ndim not in (1, 2):
        raise ValueError("x must be 1-D or 2-D")
    return x


def _axis(x, axis):
    """The axis of the observations of a 1-D or 2-D x as 0 or 1; None stays None."""
    if axis is None:
        return None
    if not isinstance(axis, numbers.Integral) or not -x.ndim <= axis < x.ndim:
        raise ValueError(f"axis {axis!r} is out of range for a {x.ndim}-D x")
    return int(axis) % x.ndim


def _matrix(x, axis):
    """The library's view of x with its observations along ``axis`` (None: all of x,
    one variable): (data, p, n, observations_in_rows), data C-contiguous. A 1-D x is
    one variable. Observations along axis 0 of a C-contiguous array lie one
    observation a row; a Fortran-ordered array is taken as its transpose, without a
    copy."""
    if axis is None or x.ndim == 1:
        data = np.ascontiguousarray(x).reshape(-1)
        return data, 1, data.size, False
    fortran = x.flags.f_contiguous and not x.flags.c_contiguous
    if axis == 0:
        n, p = x.shape
        in_rows = not fortran
        return np.ascontiguousarray(x if in_rows else x.T), p, n, in_rows
    p, n = x.shape
    return np.ascontiguousarray(x.T if fortran else x), p, n, fortran


class Summary:
    """The estimates of :func:`summary`, one attribute each (``mean``, ``covariance``,
    ...): an array of one value a variable, p x p for covariance and correlation."""

    def __init__(self, values):
        self._names = tuple(values)
        for name, value in values.items():
            setattr(self, name, value)

    def __iter__(self):
        return iter(self._names)

    def __repr__(self):
        return "Summary(" + ", ".join(self._names) + ")"


def summary(x, weights=None, axis=0, estimates=None):
    """Estimates of the variables of ``x`` (float32 or float64) in one pass of the library.

    ``axis`` is the axis of the observations, as in ``numpy.mean(x, axis)``: with
    the default 0, rows are observations and columns variables; a 1-D ``x`` is one
    variable. ``weights``: one non-negative weight an observation. ``estimates``:
    names from :data:`ESTIMATES` (default :data:`DEFAULT_ESTIMATES`).

    Normalisation: ``variance`` and ``covariance`` are unbiased (``ddof=1`` without
    weights, ``W / (W**2 - sum w**2)`` with them); third and fourth central moments
    divide by the weight sum; ``skewness`` is ``c3 / variance**1.5`` and
    ``kurtosis`` the excess ``c4 / variance**2 - 3`` of those; ``variation`` is
    the standard deviation over the mean.
    Returns a :class:`Summary` whose attributes are the estimates asked for."""
    x = _floats(x, "summary statistics")
    names = DEFAULT_ESTIMATES if estimates is None else tuple(estimates)
    for name in names:
        if name not in ESTIMATES:
            raise ValueError(f"no estimate named {name!r} (one of {ESTIMATES})")
    one = x.ndim == 1
    if axis is None:
        raise ValueError("axis must be 0 or 1 for a 2-D x")
    data, p, n, in_rows = _matrix(x, 0 if one else _axis(x, axis))
    w = None
    if weights is not None:
        w = np.ascontiguousarray(weights, dtype=x.dtype)
    wanted = [_ALIASES.get(name, name) for name in names]
    raw = _brenn.stats.compute(data, p, n, bool(in_rows), w, list(dict.fromkeys(wanted)))
    values = {}
    for name, key in zip(names, wanted):
        v = raw[key]
        values[name] = v.reshape(()) if one else v
    return Summary(values)


def _reduced_shape(x, axis):
    """The shape of x without its observation axis (None: no axis left)."""
    if axis is None:
        return ()
    return tuple(d for i, d in enumerate(x.shape) if i != axis)


def _keep(r, x, axis, lead):
    """r (with `lead` leading axes) with x's observation axis put back as length 1."""
    if axis is None:
        return r.reshape(r.shape[:lead] + (1,) * x.ndim)
    return np.expand_dims(r, lead + axis)


def quantile(x, q, axis=None, keepdims=False):
    """The quantiles of order ``q`` of ``x`` along ``axis``, as
    ``numpy.quantile(x, q, axis, method="linear", keepdims=keepdims)`` gives them.

    For n values sorted, an order b in [0, 1] is read at h = b (n - 1): with j the
    integer part of h and f its fraction, the quantile is a (1 - f) + f c, a and c
    the j-th and (j + 1)-th smallest values; b = 0 is the minimum and 1 the maximum.
    The result can differ from numpy's in the last bits of that interpolation (by a
    few ulps of max(|a|, |c|)). ``x``: float32 or float64, 1-D or 2-D; ``axis``:
    None (all of x) or the axis of the observations; ``q``: an order or a sequence
    of orders, each in [0, 1] (else ValueError), taken in x's dtype. NaNs in x give
    unspecified values. The result has the shape of ``q`` followed by that of x
    without ``axis``, and x's dtype; x is not written."""
    x = _floats(x, "quantiles")
    axis = _axis(x, axis)
    orders = np.asarray(q, dtype=x.dtype)
    if orders.ndim > 1:
        raise ValueError("q must be an order or a 1-D sequence of orders")
    flat = np.ascontiguousarray(orders.reshape(-1))
    data, p, n, in_rows = _matrix(x, axis)
    raw = _brenn.stats.quantiles(data, p, n, in_rows, flat)
    r = raw.reshape(p, flat.size).T.reshape(flat.shape + _reduced_shape(x, axis))
    r = np.ascontiguousarray(r)
    if keepdims:
        r = _keep(r, x, axis, 1)
    return r[0] if orders.ndim == 0 else r


def sort(x, axis=-1):
    """``x`` sorted ascending along ``axis`` (None: all of x, flattened), as
    ``numpy.sort`` gives it, bit for bit for data without NaNs (where NaNs are,
    the order is unspecified but every value stays). ``x``: float32 or float64,
    1-D or 2-D; it is not written."""
    x = _floats(x, "sort")
    axis = _axis(x, axis)
    data, p, n, in_rows = _matrix(x, axis)
    out = _brenn.stats.sort(data, p, n, in_rows)
    if axis is None or x.ndim == 1:
        return out
    # The result lies as data does: one observation a row, or one variable a row.
    out = out.reshape((n, p) if in_rows else (p, n))
    return out if (axis == 0) == in_rows else out.T


def median_abs_deviation(x, axis=0, scale=1.0):
    """The median absolute deviation median(|x - median(x)|) along ``axis`` (None:
    all of x) divided by ``scale``, as ``scipy.stats.median_abs_deviation`` gives
    it: ``scale`` a positive number (default 1.0, the raw deviation) or
    ``"normal"`` (about 0.6745, which makes it estimate the standard deviation of a
    normal sample). Both medians are the quantile of order 0.5. ``x``: float32 or
    float64, 1-D or 2-D; it is not written. A constant variable gives 0."""
    x = _floats(x, "median absolute deviation")
    axis = _axis(x, axis)
    if isinstance(scale, str):
        if scale != "normal":
            raise ValueError(f"scale must be a number or 'normal', not {scale!r}")
        scale = 0.6744897501960817  # the normal distribution's quartile
    data, p, n, in_rows = _matrix(x, axis)
    r = _brenn.stats.mad(data, p, n, in_rows).reshape(_reduced_shape(x, axis))
    return r if scale == 1.0 else r / x.dtype.type(scale)


def weighted_median(x, weights=None, axis=None):
    """The weighted median along ``axis`` (None: all of x), one non-negative finite
    weight an observation (default all 1, which gives ``numpy.median`` exactly).

    The values sorted with their weights w (total S): c, the weight summed up the
    sorted values, first reaches S / 2 at k. Above S / 2 the median is x[k] when the
    weight below k is 0, or when n is odd and that weight is (S - w[k]) / 2;
    otherwise it lies between x[k] and the nearest value below with a positive
    weight, in proportion to the weight missing below S / 2. At S / 2 exactly it is
    x[k] for odd n (or the last k), else the mean of x[k] and the next value with a
    positive weight. n counts zero weights too. ``x``: float32 or float64, 1-D or
    2-D; it is not written."""
    x = _floats(x, "weighted median")
    axis = _axis(x, axis)
    data, p, n, in_rows = _matrix(x, axis)
    w = None
    if weights is not None:
        w = np.ascontiguousarray(weights, dtype=x.dtype).reshape(-1)
    r = _brenn.stats.weighted_median(data, p, n, in_rows, w)
    return r.reshape(_reduced_shape(x, axis))


class StreamingQuantiles:
    """Quantiles of a stream of observations of ``p`` variables, fed block by block,
    in memory that grows as log2(eps N) / eps rather than with N.

    ``feed(block)`` takes n observations: a 1-D block for one variable, else an
    (n, p) array, one observation a row. ``quantile(q)`` gives, over everything fed,
    a value whose rank in the sorted data lies within ``eps`` N of q (N - 1) + 1, for
    each order q in [0, 1]: the shape of ``q``, followed by (p,) when p > 1. The
    answers depend only on the sequence of observations, not on the blocks. Ask for
    every order at once: a second ``quantile`` call with nothing fed since gives the
    same answer for the same orders, and ValueError for others. ``dtype``: float32
    or float64 (blocks must have it); a variable takes fewer than 2^31 observations.
    """

    def __init__(self, eps=0.01, p=1, dtype=np.float64):
        self.dtype = np.dtype(dtype)
        if self.dtype == np.float64:
            self._s = _brenn.stats.StreamQuantiles64(int(p), float(eps))
        elif self.dtype == np.float32:
            self._s = _brenn.stats.StreamQuantiles32(int(p), float(eps))
        else:
            raise TypeError(f"streaming quantiles take float32 or float64, not {self.dtype}")
        self.eps = eps
        self.p = int(p)
        self._last = None  # (orders, answer) of the last read, until the next feed

    @property
    def count(self):
        """The observations of each variable fed so far."""
        return self._s.count

    def feed(self, block):
        """Feeds n observations: 1-D (p = 1) or (n, p), one observation a row."""
        block = np.asarray(block)
        if block.dtype != self.dtype:
            raise TypeError(f"this stream takes {self.dtype} blocks, not {block.dtype}")
        if block.ndim == 1 and self.p == 1:
            n = block.size
        elif block.ndim == 2 and block.shape[1] == self.p:
            n = block.shape[0]
        else:
            raise ValueError(f"a block is (n, {self.p}), or 1-D for one variable")
        self._s.feed(np.ascontiguousarray(block), n, True)
        if n:
            self._last = None

    def quantile(self, q):
        """The quantiles of order q (an order or a 1-D sequence) of all that was fed."""
        orders = np.asarray(q, dtype=self.dtype)
        if orders.ndim > 1:
            raise ValueError("q must be an order or a 1-D sequence of orders")
        flat = np.ascontiguousarray(orders.reshape(-1))
        if self._last is not None:
            if not np.array_equal(self._last[0], flat):
                raise ValueError("nothing was fed since the last read: read every order at once")
            raw = self._last[1]
        elif self.count == 0:
            raise ValueError("nothing was fed yet")
        else:
            raw = self._s.read(flat)
            self._last = (flat.copy(), raw)
        r = raw.reshape(self.p, flat.size).T
        if self.p == 1:
            r = r.reshape(flat.shape)
        r = np.array(r)
        return r[0] if orders.ndim == 0 else r


from ._stats_robust import (MissingValues, PartialCovariance, PooledCovariance,  # noqa: E402
                            RobustCovariance, mahalanobis, missing_values,
                            nearest_correlation, outliers, partial_covariance,
                            pooled_covariance, robust_covariance)
