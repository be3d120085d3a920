"""Stub of brenn._errstate."""
from typing import Callable, Literal, Optional

Handling = Literal["ignore", "warn", "raise", "call", "print"]
ErrCall = Callable[[str, int], object]

def geterr() -> dict[str, str]:
    """The current handling of each category."""
def seterr(all: Optional[Handling] = ..., divide: Optional[Handling] = ..., over: Optional[Handling] = ...,
           under: Optional[Handling] = ..., invalid: Optional[Handling] = ...) -> dict[str, str]:
    """Sets the handling of categories in the current context; returns the old one."""
def seterrcall(func: Optional[ErrCall]) -> Optional[ErrCall]:
    """Sets the function of the "call" handling; returns the old one."""
def report(status: int, name: str) -> None:
    """Handles the element status a vector-math call returned."""

class errstate:
    """Context manager of the handling of vector-math element statuses."""
    def __init__(self, *, call: Optional[ErrCall] = ..., all: Optional[Handling] = ...,
                 divide: Optional[Handling] = ..., over: Optional[Handling] = ...,
                 under: Optional[Handling] = ..., invalid: Optional[Handling] = ...) -> None: ...
    def __enter__(self) -> "errstate": ...
    def __exit__(self, *exc: object) -> bool: ...
