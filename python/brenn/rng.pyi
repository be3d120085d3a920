"""Stub of brenn.rng (the family classes are made for the generators built)."""
import threading
from typing import Any, Callable, Optional, Sequence, Union

import numpy as np
from numpy.typing import DTypeLike, NDArray

Seed = Union[int, Sequence[int]]

class BitGenerator:
    """A library generator as a numpy bit generator."""
    lock: threading.Lock
    capsule: Any
    def __init__(self, seed: Seed = ..., member: int = ...) -> None: ...
    @property
    def brng(self) -> int:
        """The generator id of the stream."""
    def random_raw(self, size: Optional[Union[int, tuple[int, ...]]] = ...) -> Union[int, NDArray[np.uint64]]:
        """The next raw outputs: 32-bit words, or the fields of the uniforms."""
    def jumped(self, nskip: int = ...) -> "BitGenerator":
        """A new bit generator nskip outputs further on."""
    def leapfrog(self, k: int, nstreams: int) -> None:
        """Takes outputs k, k + nstreams, ... of the sequence."""
    @property
    def state(self) -> dict[str, Any]:
        """The stream's image and the outputs drawn but not read."""
    @state.setter
    def state(self, value: dict[str, Any]) -> None: ...

class MT19937(BitGenerator):
    """The MT19937 generator of the library."""
class MT2203(BitGenerator):
    """The MT2203 generators of the library (member 0 ..)."""
class SFMT19937(BitGenerator):
    """The SFMT19937 generator of the library."""
class MCG59(BitGenerator):
    """The MCG59 generator of the library."""
class PHILOX4X32X10(BitGenerator):
    """The Philox4x32-10 generator of the library."""
class ARS5(BitGenerator):
    """The ARS-5 generator of the library."""
class MCG31M1(BitGenerator):
    """The MCG31M1 generator of the library (through its uniforms, 31-bit fields)."""
class R250(BitGenerator):
    """The R250 generator of the library (through its uniforms, 32-bit fields)."""
class MRG32K3A(BitGenerator):
    """The MRG32K3A generator of the library (through its uniforms, 32-bit fields)."""
class WH(BitGenerator):
    """The WH generators of the library (members 0 ..; through their uniforms)."""

FAMILIES: dict[str, type[BitGenerator]]

class Stream:
    """A stream of the library with its bulk draws."""
    def __init__(self, family: Union[str, int] = ..., seed: Seed = ..., member: int = ...) -> None: ...
    @classmethod
    def abstract(cls, refill: Callable[[NDArray[np.floating]], None], size: int = ...,
                 dtype: DTypeLike = ..., low: float = ..., high: float = ...) -> "Stream":
        """A stream whose numbers come from a buffer that refill(out) fills."""
    @property
    def brng(self) -> int:
        """The generator id."""
    def copy(self) -> "Stream":
        """A new stream with this one's state."""
    def skip_ahead(self, nskip: int) -> None:
        """Skips nskip outputs."""
    def leapfrog(self, k: int, nstreams: int) -> None:
        """Serves outputs k, k + nstreams, ..."""
    def uniform(self, size: int, low: float = ..., high: float = ..., dtype: DTypeLike = ...,
                accurate: bool = ...) -> NDArray[np.floating]:
        """Uniform floats on [low, high)."""
    def integers(self, size: int, low: int, high: int) -> NDArray[np.int32]:
        """Uniform integers on [low, high)."""
    def bits32(self, size: int) -> NDArray[np.uint32]:
        """Words of 32 uniform bits."""
    def bits64(self, size: int) -> NDArray[np.uint64]:
        """Words of 64 uniform bits."""
    def bernoulli(self, size: int, p: float) -> NDArray[np.int32]:
        """Bernoulli variates."""
    def geometric(self, size: int, p: float) -> NDArray[np.int32]:
        """Geometric variates."""
    def gaussian(self, size: Union[int, tuple[int, ...]], mean: float = ..., sigma: float = ...,
                 method: Union[str, int] = ..., dtype: DTypeLike = ...) -> NDArray[np.floating]:
        """Gaussian variates mean + sigma z ("boxmuller", "boxmuller2", "icdf")."""
    def standard_normal(self, size: Union[int, tuple[int, ...]], dtype: DTypeLike = ...,
                        method: Union[str, int] = ...) -> NDArray[np.floating]:
        """Standard normal variates."""
    def lognormal(self, size: Union[int, tuple[int, ...]], mean: float = ..., sigma: float = ...,
                  loc: float = ..., scale: float = ..., method: Union[str, int] = ...,
                  dtype: DTypeLike = ...) -> NDArray[np.floating]:
        """Lognormal variates loc + scale exp(mean + sigma z)."""
    def exponential(self, size: Union[int, tuple[int, ...]], scale: float = ..., loc: float = ...,
                    dtype: DTypeLike = ...) -> NDArray[np.floating]:
        """Exponential variates loc - scale ln u."""
    def gumbel(self, size: Union[int, tuple[int, ...]], loc: float = ..., scale: float = ...,
               dtype: DTypeLike = ...) -> NDArray[np.floating]:
        """Gumbel variates loc + scale ln(-ln u) (the minimum form)."""
    def laplace(self, size: Union[int, tuple[int, ...]], loc: float = ..., scale: float = ...,
                dtype: DTypeLike = ...) -> NDArray[np.floating]:
        """Laplace variates loc +- scale ln u."""
    def rayleigh(self, size: Union[int, tuple[int, ...]], scale: float = ..., loc: float = ...,
                 dtype: DTypeLike = ...) -> NDArray[np.floating]:
        """Rayleigh variates loc + scale sqrt(-ln u)."""
    def weibull(self, size: Union[int, tuple[int, ...]], shape: float, loc: float = ...,
                scale: float = ..., dtype: DTypeLike = ...) -> NDArray[np.floating]:
        """Weibull variates loc + scale (-ln u)^(1/shape)."""
    def cauchy(self, size: Union[int, tuple[int, ...]], loc: float = ..., scale: float = ...,
               dtype: DTypeLike = ...) -> NDArray[np.floating]:
        """Cauchy variates loc + scale tan(v)."""
