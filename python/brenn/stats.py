"""Summary statistics of a matrix of observations in one call of the library."""
import numpy as np

from . import _brenn

DEFAULT_ESTIMATES = ("mean", "variance", "skewness", "kurtosis", "covariance",
                     "correlation", "min", "max")
# Names of this module that the library knows by another.
_ALIASES = {"variance": "central_moment2"}
ESTIMATES = tuple(sorted(set(_brenn.stats.ESTIMATES) | set(_ALIASES)))


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
    x = np.asarray(x)
    if x.dtype not in (np.float32, np.float64):
        raise TypeError(f"summary statistics take float32 or float64, not {x.dtype}")
    if x.ndim not in (1, 2):
        raise ValueError("x must be 1-D or 2-D")
    names = DEFAULT_ESTIMATES if estimates is None else tuple(estimates)
    for name in names:
        if name not in ESTIMATES:
            raise ValueError(f"no estimate named {name!r} (one of {ESTIMATES})")
    one = x.ndim == 1
    if one:
        x = x.reshape(-1, 1)
        axis = 0
    if axis not in (0, 1, -1, -2):
        raise ValueError("axis must be 0 or 1 for a 2-D x")
    axis %= 2
    # Observations along axis 0 of a C-contiguous array lie one observation a row;
    # a Fortran-ordered array is taken as its transpose, without a copy.
    if axis == 0:
        n, p = x.shape
        in_rows = not (x.flags.f_contiguous and not x.flags.c_contiguous)
        data = np.ascontiguousarray(x if in_rows else x.T)
    else:
        p, n = x.shape
        in_rows = x.flags.f_contiguous and not x.flags.c_contiguous
        data = np.ascontiguousarray(x.T if in_rows else x)
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
