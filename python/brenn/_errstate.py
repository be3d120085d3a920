"""Handling of the element statuses of brenn.vm calls, after numpy.errstate.

A vector-math call gathers the elements it reported: how many of each status, and the
flat indices (in the result's C order) and statuses of the first
:data:`ElementReport.KEPT` of them. Each category that occurred (``divide`` for a
pole, ``over``, ``under``, ``invalid`` for a domain error, in that order) is then
ignored, warned about (:class:`ElementWarning`, a RuntimeWarning), raised
(:class:`ElementError`, a FloatingPointError), passed to the function set by
:func:`seterrcall` or printed, as the setting of the current context says; the
warning, the exception and the function get the category's :class:`ElementReport`.
The settings live in a context variable, so threads and asyncio tasks each have
their own.
"""
import contextvars
import sys
import warnings

import numpy as np

from . import _brenn

_CATEGORIES = ("divide", "over", "under", "invalid")
_ACTIONS = ("ignore", "warn", "raise", "call", "print")
# Front-end element statuses (brenn_types.h) and their categories.
_STATUS_CATEGORY = {1: "invalid", 2: "divide", 3: "over", 4: "under"}
_STATUS_TEXT = {1: "invalid value (domain error)", 2: "divide by zero (singularity)",
                3: "overflow", 4: "underflow"}

_DEFAULT = {"divide": "warn", "over": "warn", "under": "ignore", "invalid": "warn"}
_settings = contextvars.ContextVar("brenn_errstate", default=(dict(_DEFAULT), None))


def geterr() -> dict:
    """The current handling of each category, as ``numpy.geterr()`` gives it."""
    return dict(_settings.get()[0])


def _merge(current: dict, all=None, divide=None, over=None, under=None, invalid=None) -> dict:
    new = dict(current)
    if all is not None:
        for c in _CATEGORIES:
            new[c] = all
    for c, v in (("divide", divide), ("over", over), ("under", under), ("invalid", invalid)):
        if v is not None:
            new[c] = v
    for c, v in new.items():
        if v not in _ACTIONS:
            raise ValueError(f"{c}: the handling must be one of {_ACTIONS}, not {v!r}")
    return new


def seterr(all=None, divide=None, over=None, under=None, invalid=None) -> dict:
    """Sets the handling of categories in the current context; returns the old one."""
    old, call = _settings.get()
    _settings.set((_merge(old, all, divide, over, under, invalid), call))
    return dict(old)


def seterrcall(func):
    """Sets the function the ``"call"`` handling calls as ``func(category, status,
    report)`` (``report`` an :class:`ElementReport`); returns the old one."""
    if func is not None and not callable(func):
        raise TypeError("the error call must be callable or None")
    handling, old = _settings.get()
    _settings.set((handling, func))
    return old


class errstate:
    """Context manager of the handling of vector-math element statuses.

    ``with brenn.errstate(over="raise"): brenn.vm.exp(a)`` raises
    FloatingPointError when an element overflows. Keywords as ``numpy.errstate``:
    ``all``, ``divide``, ``over``, ``under``, ``invalid`` with ``"ignore"``,
    ``"warn"``, ``"raise"``, ``"call"`` or ``"print"``, and ``call`` for the
    function of ``"call"``, called as ``call(category, status, report)`` with the
    category's :class:`ElementReport` (where the elements are)."""

    def __init__(self, *, call=None, all=None, divide=None, over=None, under=None,
                 invalid=None):
        self._call = call
        _merge(_DEFAULT, all, divide, over, under, invalid)  # refuses unknown handlings now
        self._given = dict(all=all, divide=divide, over=over, under=under, invalid=invalid)
        self._tokens = []

    def __enter__(self):
        handling, call = _settings.get()
        new = _merge(handling, **self._given)
        self._tokens.append(_settings.set((new, self._call if self._call is not None else call)))
        return self

    def __exit__(self, *exc):
        _settings.reset(self._tokens.pop())
        return False


class ElementReport:
    """The elements of one category that a vector-math call reported.

    ``count``: how many reported (None when the call could not gather them: more
    threads in vector-math calls at once than the package has callback slots);
    ``indices``: flat indices, in the result's C order, of the first of them (at most
    :data:`KEPT` over all categories of the call), ascending; ``statuses``: their
    codes (1 domain, 2 singularity, 3 overflow, 4 underflow); ``positions``: the
    indices as ``numpy.unravel_index`` gives them for the result's ``shape``."""

    KEPT = _brenn.vm.REPORTS_KEPT
    __slots__ = ("function", "category", "shape", "count", "indices", "statuses")

    def __init__(self, function, category, shape, count, indices, statuses):
        self.function, self.category, self.shape = function, category, tuple(shape)
        self.count, self.indices, self.statuses = count, indices, statuses

    @property
    def positions(self):
        return np.unravel_index(self.indices, self.shape)

    def first(self):
        """The position of the first element reported (None when none is known)."""
        if self.indices.size == 0:
            return None
        if len(self.shape) == 1:
            return int(self.indices[0])
        return tuple(int(p[0]) for p in self.positions)

    def __repr__(self):
        return (f"ElementReport({self.function}, {self.category}, count={self.count}, "
                f"indices={self.indices.tolist()})")


class _Reported:
    """What the warning and the exception of a report carry."""

    def __init__(self, message, report):
        super().__init__(message)
        self.report = report

    category = property(lambda self: self.report.category)
    count = property(lambda self: self.report.count)
    indices = property(lambda self: self.report.indices)
    positions = property(lambda self: self.report.positions)
    statuses = property(lambda self: self.report.statuses)


class ElementWarning(_Reported, RuntimeWarning):
    """The warning of reported elements; ``report`` and its fields as attributes."""


class ElementError(_Reported, FloatingPointError):
    """The exception of reported elements; ``report`` and its fields as attributes."""


_CODES = {c: s for s, c in _STATUS_CATEGORY.items()}
_NONE = np.empty(0, dtype=np.int64)


def _reports(status, name, shape, elements):
    """The ElementReport of each category reported, in numpy's order."""
    if elements is None:
        category = _STATUS_CATEGORY.get(status)
        if category is None:
            return []
        return [ElementReport(name, category, shape, None, _NONE, _NONE.astype(np.int32))]
    counts, indices, codes = elements
    out = []
    for category in _CATEGORIES:
        code = _CODES[category]
        if counts[code]:
            mine = codes == code
            out.append(ElementReport(name, category, shape, counts[code], indices[mine],
                                     codes[mine]))
    return out


def report(status: int, name: str, shape=(), elements=None) -> None:
    """Handles the elements a vector-math call of ``name`` reported: its status, and
    ``elements`` as the call gathered them (counts by code, flat indices, codes)."""
    handling, call = _settings.get()
    for rep in _reports(status, name, shape, elements):
        action = handling[rep.category]
        if action == "ignore":
            continue
        code = _CODES[rep.category]
        where = "" if rep.count is None else f" at {rep.count} element(s), first {rep.first()}"
        message = f"{_STATUS_TEXT[code]} encountered in {name}{where}"
        if action == "warn":
            warnings.warn(ElementWarning(message, rep), stacklevel=3)
        elif action == "raise":
            raise ElementError(message, rep)
        elif action == "call":
            if call is None:
                raise ValueError(f"no error call set for {rep.category} (brenn.seterrcall)")
            call(rep.category, code, rep)
        else:
            print(f"Warning: {message}", file=sys.stderr)
