"""brenn: the front-end of the brenn numeric library on numpy arrays.

Submodules:

- :mod:`brenn.vm`: element-wise vector mathematics at three accuracy levels
  (``accuracy="ha"``, ``"la"``, ``"ep"``), one function a row family;
- :mod:`brenn.rng`: the library's generators as numpy bit generators
  (``numpy.random.Generator(brenn.rng.MT19937(7))``) and bulk draws of its streams;
- :mod:`brenn.stats`: summary statistics in one call (:func:`brenn.stats.summary`),
  quantiles, sort, median absolute deviation, weighted median, streaming quantiles;
- :mod:`brenn.fit`: splines (:class:`brenn.fit.Spline`).

Element statuses of :mod:`brenn.vm` calls are handled as :class:`errstate` says,
as numpy's floating-point errors are by ``numpy.errstate``; the warning
(:class:`ElementWarning`), the exception (:class:`ElementError`) and the call
handler get an :class:`ElementReport` of where the elements are.
"""
from . import _brenn
from ._errstate import (ElementError, ElementReport, ElementWarning, errstate, geterr, seterr,
                        seterrcall)
from . import vm, rng, stats, fit

__all__ = ["vm", "rng", "stats", "fit", "errstate", "geterr", "seterr", "seterrcall",
           "ElementError", "ElementReport", "ElementWarning", "set_num_threads", "status_name"]


def set_num_threads(limit: int) -> int:
    """Bounds the threads the library's parallel work uses, the calling one included.

    ``0`` restores as many as the hardware has. Returns the previous bound."""
    return _brenn.set_num_threads(int(limit))


def status_name(status: int) -> str:
    """The library's short name of a status code, e.g. ``"BRENN_STATUS_OVERFLOW"``."""
    return _brenn.status_name(int(status))
