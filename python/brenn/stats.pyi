"""Stub of brenn.stats."""
from typing import Iterator, Literal, NamedTuple, Optional, Sequence, Union

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

class RobustCovariance(NamedTuple):
    location: NDArray[np.floating]
    covariance: NDArray[np.floating]

class MissingValues(NamedTuple):
    mean: NDArray[np.floating]
    covariance: NDArray[np.floating]
    imputed: NDArray[np.floating]
    imputed_means: NDArray[np.floating]
    completed: NDArray[np.floating]

class PartialCovariance(NamedTuple):
    covariance: NDArray[np.floating]
    correlation: NDArray[np.floating]

class PooledCovariance(NamedTuple):
    mean: NDArray[np.floating]
    covariance: NDArray[np.floating]
    group_means: NDArray[np.floating]
    group_covariances: NDArray[np.floating]

def robust_covariance(x: ArrayLike, support_fraction: Optional[float] = ..., starts: int = ...,
                      max_steps: int = ..., seed: int = ..., axis: int = ...) -> RobustCovariance:
    """The minimum covariance determinant estimate (FAST-MCD), reweighted."""

def outliers(x: ArrayLike, alpha: float = ..., start: Literal["mahalanobis", "median"] = ...,
             c: float = ..., axis: int = ...) -> NDArray[np.bool_]:
    """BACON's outliers: True for an outlier."""

def missing_values(x: ArrayLike, imputations: int = ..., max_iter: int = ..., tol: float = ...,
                   steps: int = ..., seed: int = ..., axis: int = ...) -> MissingValues:
    """EM's mean and covariance with NaNs missing, and imputations by data augmentation."""

def partial_covariance(x: ArrayLike, given: Union[int, Sequence[int]],
                       of: Optional[Union[int, Sequence[int]]] = ...,
                       weights: Optional[ArrayLike] = ..., axis: int = ...) -> PartialCovariance:
    """The covariance and correlation of the variables `of` given the variables `given`."""

def pooled_covariance(x: ArrayLike, labels: ArrayLike, groups: Optional[int] = ...,
                      axis: int = ...) -> PooledCovariance:
    """Group covariances and their pooled covariance (divisor n - groups)."""

def nearest_correlation(a: ArrayLike, weights: Optional[ArrayLike] = ...,
                        tol: Optional[float] = ..., max_iter: int = ...) -> NDArray[np.floating]:
    """The nearest correlation matrix in the weighted Frobenius norm (Higham 2002)."""

def mahalanobis(x: ArrayLike, mean: ArrayLike, cov: ArrayLike,
                axis: int = ...) -> NDArray[np.floating]:
    """The Mahalanobis distance of each observation from mean under cov."""
