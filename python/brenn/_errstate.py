"""Handling of the element statuses of brenn.vm calls, after numpy.errstate.

A vector-math call returns one status: the code of the last element it reported, in
vector order. Its category (``invalid`` for a domain error, ``divide`` for a pole,
``over``, ``under``) is then ignored, warned about (RuntimeWarning), raised
(FloatingPointError), passed to the function set by :func:`seterrcall` or printed,
as the setting of the current context says. The settings live in a context variable,
so threads and asyncio tasks each have their own.
"""
import contextvars
import sys
import warnings

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
    """Sets the function the ``"call"`` handling calls as ``func(category, status)``;
    returns the old one."""
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
    function of ``"call"``."""

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


def report(status: int, name: str) -> None:
    """Handles the element status a vector-math call of ``name`` returned."""
    category = _STATUS_CATEGORY.get(status)
    if category is None:
        return
    handling, call = _settings.get()
    action = handling[category]
    if action == "ignore":
        return
    message = f"{_STATUS_TEXT[status]} encountered in {name}"
    if action == "warn":
        warnings.warn(message, RuntimeWarning, stacklevel=3)
    elif action == "raise":
        raise FloatingPointError(message)
    elif action == "call":
        if call is None:
            raise ValueError(f"no error call set for {category} (brenn.seterrcall)")
        call(category, status)
    else:
        print(f"Warning: {message}", file=sys.stderr)
