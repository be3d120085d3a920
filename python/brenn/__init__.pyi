"""Stub of the brenn package."""
from . import fit as fit, rng as rng, stats as stats, vm as vm
from ._errstate import errstate as errstate, geterr as geterr, seterr as seterr, seterrcall as seterrcall
from ._errstate import ElementError as ElementError, ElementReport as ElementReport, ElementWarning as ElementWarning

def set_num_threads(limit: int) -> int:
    """Bounds the threads of the library's parallel work (0: all); returns the old bound."""

def status_name(status: int) -> str:
    """The library's short name of a status code."""
