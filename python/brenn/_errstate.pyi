"""Stub of brenn._errstate."""
from typing import Callable, ClassVar, Literal, Optional, Sequence

import numpy as np
from numpy.typing import NDArray

Handling = Literal["ignore", "warn", "raise", "call", "print"]
Category = Literal["divide", "over", "under", "invalid"]

class ElementReport:
    """The elements of one category that a vector-math call reported."""
    KEPT: ClassVar[int]
    function: str
    category: Category
    shape: tuple[int, ...]
    count: Optional[int]
    indices: NDArray[np.int64]
    statuses: NDArray[np.int32]
    @property
    def positions(self) -> tuple[NDArray[np.intp], ...]:
        """The indices as numpy.unravel_index gives them for the result's shape."""
    def first(self) -> Optional[int | tuple[int, ...]]:
        """The position of the first element reported."""

class _Reported:
    """What the warning and the exception of a report carry."""
    report: ElementReport
    category: Category
    count: Optional[int]
    indices: NDArray[np.int64]
    positions: tuple[NDArray[np.intp], ...]
    statuses: NDArray[np.int32]
    def __init__(self, message: str, report: ElementReport) -> None: ...

class ElementWarning(_Reported, RuntimeWarning):
    """The warning of reported elements."""

class ElementError(_Reported, FloatingPointError):
    """The exception of reported elements."""

ErrCall = Callable[[str, int, ElementReport], object]

def geterr() -> dict[str, str]:
    """The current handling of each category."""
def seterr(all: Optional[Handling] = ..., divide: Optional[Handling] = ..., over: Optional[Handling] = ...,
           under: Optional[Handling] = ..., invalid: Optional[Handling] = ...) -> dict[str, str]:
    """Sets the handling of categories in the current context; returns the old one."""
def seterrcall(func: Optional[ErrCall]) -> Optional[ErrCall]:
    """Sets the function of the "call" handling, called as func(category, status, report);
    returns the old one."""
def report(status: int, name: str, shape: Sequence[int] = ...,
           elements: Optional[tuple[list[int], NDArray[np.int64], NDArray[np.int32]]] = ...) -> None:
    """Handles the elements a vector-math call reported."""

class errstate:
    """Context manager of the handling of vector-math element statuses."""
    def __init__(self, *, call: Optional[ErrCall] = ..., all: Optional[Handling] = ...,
                 divide: Optional[Handling] = ..., over: Optional[Handling] = ...,
                 under: Optional[Handling] = ..., invalid: Optional[Handling] = ...) -> None: ...
    def __enter__(self) -> "errstate": ...
    def __exit__(self, *exc: object) -> bool: ...
