"""Stub of brenn.stats."""
from typing import Iterator, Literal, Optional, Sequence, Union

import numpy as np
from numpy.typing import ArrayLike, NDArray

DEFAULT_ESTIMATES: tuple[str, ...]
ESTIMATES: tuple[str, ...]

class Summary:
    """The estimates asked for, one attribute each."""
    mean: NDArray[np.floating]
    variance: NDArray[np.floating]
    skewness: NDArray[np.floating]
    kurtosis: NDArray[np.floating]
    covariance: NDArray[np.floating]
    correlation: NDArray[np.floating]
    min: NDArray[np.floating]
    max: NDArray[np.floating]
    variation: NDArray[np.floating]
    raw_moment2: NDArray[np.floating]
    raw_moment3: NDArray[np.floating]
    raw_moment4: NDArray[np.floating]
    central_moment2: NDArray[np.floating]
    central_moment3: NDArray[np.floating]
    central_moment4: NDArray[np.floating]
    def __iter__(self) -> Iterator[str]: ...

def summary(x: ArrayLike, weights: Optional[ArrayLike] = ..., axis: int = ...,
            estimates: Optional[Sequence[str]] = ...) -> Summary:
    """Estimates of the variables of x in one call of the library."""

def quantile(x: ArrayLike, q: Union[float, ArrayLike], axis: Optional[int] = ...,
             keepdims: bool = ...) -> NDArray[np.floating]:
    """Quantiles of order q along axis, as numpy.quantile(method="linear") gives them."""

def sort(x: ArrayLike, axis: Optional[int] = ...) -> NDArray[np.floating]:
    """x sorted ascending along axis, as numpy.sort gives it."""

def median_abs_deviation(x: ArrayLike, axis: Optional[int] = ...,
                         scale: Union[float, Literal["normal"]] = ...) -> NDArray[np.floating]:
    """median(|x - median(x)|) along axis, divided by scale, as scipy's."""

def weighted_median(x: ArrayLike, weights: Optional[ArrayLike] = ...,
                    axis: Optional[int] = ...) -> NDArray[np.floating]:
    """The weighted median along axis (unit weights: numpy.median)."""

class StreamingQuantiles:
    """Quantiles within eps N in rank of a stream fed block by block."""
    dtype: np.dtype
    eps: float
    p: int
    def __init__(self, eps: float = ..., p: int = ..., dtype: type = ...) -> None: ...
    @property
    def count(self) -> int:
        """The observations of each variable fed so far."""
    def feed(self, block: ArrayLike) -> None:
        """Feeds n observations: 1-D (p = 1) or (n, p)."""
    def quantile(self, q: Union[float, ArrayLike]) -> NDArray[np.floating]:
        """The quantiles of order q of all that was fed."""
