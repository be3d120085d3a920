"""Stub of brenn.fit."""
from typing import Optional, Tuple, Union

import numpy as np
from numpy.typing import ArrayLike, NDArray

KINDS: tuple[str, ...]
EndCondition = Union[str, Tuple[int, float]]
BcType = Union[None, str, Tuple[EndCondition, EndCondition]]

class Spline:
    """A spline of the library through (x, y)."""
    x: NDArray[np.floating]
    y: NDArray[np.floating]
    kind: str
    order: int
    dtype: np.dtype
    def __init__(self, x: ArrayLike, y: ArrayLike, kind: str = ..., bc: BcType = ...,
                 derivatives: Optional[ArrayLike] = ..., knots: Optional[ArrayLike] = ...,
                 midpoints: Optional[ArrayLike] = ...) -> None: ...
    def __call__(self, sites: ArrayLike, nu: int = ...) -> NDArray[np.floating]:
        """Derivative nu (0 the value) at the sites."""
    def integrate(self, a: ArrayLike, b: ArrayLike,
                  extrapolate: bool = ...) -> NDArray[np.floating]:
        """The integral from a to b (arrays of limits broadcast together)."""
