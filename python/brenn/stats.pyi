"""Stub of brenn.stats."""
from typing import Iterator, Optional, Sequence

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
