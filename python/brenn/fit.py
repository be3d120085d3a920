"""Splines of the library, built once, evaluated and integrated like scipy's splines."""
import numbers

import numpy as np

from . import _brenn

KINDS = tuple(_brenn.fit.KINDS)
"""Spline kinds: linear, quadratic, cubic (the C2 cubic with end conditions ``bc``),
natural, akima, bessel, hyman, hermite (node derivatives ``derivatives``) and
quadratic-knots (knots ``knots``)."""
_BC = _brenn.fit.BC
_END = {"natural": (2, 0.0), "clamped": (1, 0.0)}


def _end_condition(end, side):
    """The code bit and value of one end's condition: a name or (order, value)."""
    if isinstance(end, str):
        if end not in _END:
            raise ValueError(f"no end condition named {end!r} for one end")
        end = _END[end]
    order, value = end
    if order not in (1, 2):
        raise ValueError("an end condition gives derivative 1 or 2")
    bit = _BC[("first-" if order == 1 else "second-") + side]
    return bit, float(np.asarray(value).reshape(()))


def _conditions(bc):
    """scipy's bc_type as the library's codes and values."""
    if bc is None:
        return 0, None
    if isinstance(bc, str):
        if bc == "not-a-knot":
            return _BC["not-a-knot"], None
        if bc == "periodic":
            return _BC["periodic"], None
        if bc in _END:
            bc = (bc, bc)
        else:
            raise ValueError(f"no condition named {bc!r} (natural, not-a-knot, clamped, "
                             "periodic, or a pair of end conditions)")
    if len(bc) != 2:
        raise ValueError("bc is a name or a pair (left, right)")
    left, lv = _end_condition(bc[0], "left")
    right, rv = _end_condition(bc[1], "right")
    return left | right, [lv, rv]


class Spline:
    """A spline of the library through (x, y).

    ``Spline(x, y, kind="cubic", bc="not-a-knot", derivatives=None, knots=None)``:
    ``x`` strictly increasing; float32 when ``x`` and ``y`` both are, float64
    otherwise. ``bc`` takes scipy's ``bc_type``: ``"not-a-knot"``, ``"natural"``,
    ``"clamped"``, ``"periodic"``, or a pair of end conditions each a name or
    ``(order, value)`` (order 1 or 2); kinds other than cubic take ``bc=None`` unless
    the library's family has end conditions. ``derivatives``: the node derivatives of
    ``kind="hermite"``; ``knots``: the nx + 1 knots of ``kind="quadratic-knots"``; ``midpoints``: the
    values at the cells' midpoints that ``kind="quadratic"`` passes through.
    Sites outside [x[0], x[-1]] extend the end cells."""

    def __init__(self, x, y, kind="cubic", bc="not-a-knot", derivatives=None, knots=None,
                 midpoints=None):
        if kind not in _brenn.fit.KINDS:
            raise ValueError(f"no spline kind {kind!r} (one of {KINDS})")
        x, y = np.asarray(x), np.asarray(y)
        for a in (x, y):
            if not (np.issubdtype(a.dtype, np.floating) or np.issubdtype(a.dtype, np.integer)):
                raise TypeError(f"spline data must be real numbers, not {a.dtype}")
        single = x.dtype == np.float32 and y.dtype == np.float32
        self.dtype = np.dtype(np.float32 if single else np.float64)
        if kind != "cubic" and bc == "not-a-knot":
            bc = None
        code, values = _conditions(bc)
        if kind == "quadratic":
            if midpoints is None:
                raise ValueError("kind='quadratic' takes the values at the cells' midpoints")
            code, values = _BC["mid-value"], midpoints
        ic = derivatives if kind == "hermite" else knots if kind == "quadratic-knots" else None
        conv = lambda a: None if a is None else np.ascontiguousarray(a, dtype=self.dtype)
        make = _brenn.fit.SSpline if single else _brenn.fit.DSpline
        self.x, self.y = conv(x), conv(y)
        self.kind = kind
        self._s = make(_brenn.fit.KINDS[kind], self.x, self.y, code, conv(values), conv(ic))
        self.order = self._s.order

    def __call__(self, sites, nu=0):
        """Derivative ``nu`` (0 the value) at ``sites``, an array of their shape."""
        if not isinstance(nu, numbers.Integral) or not 0 <= nu < self.order:
            raise ValueError(f"nu must be an integer in [0, {self.order})")
        sites = np.asarray(sites, dtype=self.dtype)
        flat = np.ascontiguousarray(sites.reshape(-1))
        r = self._s.eval(flat, nu + 1)
        return r[:, nu].reshape(sites.shape)

    def integrate(self, a, b, extrapolate=True):
        """The integral from ``a`` to ``b``, as scipy's ``CubicSpline.integrate``: minus
        that from ``b`` to ``a`` when ``b < a``; beyond [x[0], x[-1]] the end cells
        extended, or NaN when ``extrapolate`` is false. ``a`` and ``b`` are numbers or
        arrays of limits, broadcast together; the result has their shape. Whole cells
        are summed pairwise from their closed forms, so the error does not grow with
        the limits' distance from x[0]."""
        if not isinstance(extrapolate, (bool, np.bool_)):
            raise ValueError("extrapolate must be True or False")
        a, b = np.broadcast_arrays(np.asarray(a, dtype=self.dtype),
                                   np.asarray(b, dtype=self.dtype))
        flat = lambda v: np.ascontiguousarray(v.reshape(-1))
        return self._s.integrate(flat(a), flat(b), bool(extrapolate)).reshape(a.shape)
