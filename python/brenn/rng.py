"""Random numbers: the library's generators as numpy bit generators, and streams.

Each generator family built into the library is a class here (``MT19937``,
``MCG59``, ...) usable as the bit generator of ``numpy.random.Generator``::

    g = numpy.random.Generator(brenn.rng.MT19937(7))
    g.standard_normal(10)

through numpy's documented interface: a ``capsule`` named "BitGenerator" holding
the ``bitgen_t`` record, and a ``lock``. The stream is drawn a block at a time; how
numpy's 32-bit words, 64-bit words and doubles come from its outputs depends on the
family:

- MT19937, MT2203, SFMT19937, ARS5, PHILOX4X32X10 and MCG59 give 32-bit words (MCG59's
  are bits 27 to 58 of its 59-bit outputs); ``random_raw`` gives them. A 64-bit word
  joins two, the first the high half, and a double takes 27 and 26 bits of two words,
  as numpy's MT19937 does, so ``MT19937(s)`` gives the sequence of numpy's
  ``MT19937`` seeded through the same words
  (``numpy.random.MT19937()._legacy_seeding([s])``, the reference initialisation by
  an array).
- MCG31M1, R250, MRG32K3A and WH, whose outputs have fewer than 32 random bits or are
  not full 32-bit words, serve the stream's double uniforms u on [0, 1)
  (``Stream(family, seed).uniform``) as numpy's doubles. Each uniform is also a field
  of ``bits`` bits, floor(u 2**bits), with ``bits`` 31 for MCG31M1 and 32 for the
  others; for MCG31M1 and R250 the field is the generator's own word. A 32-bit or
  64-bit word is the top 32 or 64 bits of the fields of successive uniforms written
  one after another, the first highest (MCG31M1: two fields a 32-bit word, three a
  64-bit word; the others: one and two); ``random_raw`` gives the fields. Each bit
  position of R250's words is a shift register of its own, and one seed word leaves
  the low positions nearly empty (bit 1 of its words is set in 17 % of the first 10**5
  words for seed 9, 46 % by 2 * 10**6): seed it with 250 words for numpy's draws.

``jumped(n)`` skips n outputs (words, or uniforms), ``leapfrog(k, m)`` takes every
m-th output from the k-th; pickling saves the stream's image and the outputs drawn
but not read yet.

:class:`Stream` gives the library's bulk draws (uniform, integers, raw bits,
Bernoulli, geometric, and the continuous distributions: Gaussian, lognormal,
exponential, Gumbel, Laplace, Rayleigh, Weibull, Cauchy) into numpy arrays, without
the GIL. Its Gaussian is the library's own fast path for normals::

    s = brenn.rng.Stream("MCG59", seed=7)
    z = s.standard_normal(10**6)                  # Box-Muller, both halves of each pair
    y = s.gaussian(1000, mean=2.0, sigma=0.5, method="icdf", dtype=np.float32)

The continuous draws check their parameters in the library (scales and shapes finite
and above 0, locations finite, a method the distribution has) and raise ValueError
with nothing drawn.
"""
import threading

import numpy as np

from . import _brenn

# First generator ids of the families (brenn_rng.h).
_FAMILY_IDS = {
    "MCG31M1": 0x100000, "R250": 0x200000, "MRG32K3A": 0x300000, "MCG59": 0x400000,
    "WH": 0x500000, "MT19937": 0x800000, "MT2203": 0x900000, "SFMT19937": 0xD00000,
    "ARS5": 0xF00000, "PHILOX4X32X10": 0x1000000,
}


def _seed_words(seed):
    """A seed as the generator's 32-bit words: an int (split into words, low first)
    or a sequence of ints below 2**32."""
    if isinstance(seed, (int, np.integer)):
        seed = int(seed)
        if seed < 0:
            raise ValueError("a seed must not be negative")
        words = []
        while True:
            words.append(seed & 0xFFFFFFFF)
            seed >>= 32
            if not seed:
                return words
    words = [int(w) for w in seed]
    if not words or any(w < 0 or w > 0xFFFFFFFF for w in words):
        raise ValueError("seed words must be integers in [0, 2**32)")
    return words


def _brng(family, member):
    if isinstance(family, str):
        try:
            family = _FAMILY_IDS[family.upper()]
        except KeyError:
            raise ValueError(f"no generator family named {family!r}") from None
    if member < 0:
        raise ValueError("member must not be negative")
    return int(family) + int(member)


class BitGenerator:
    """A library generator as a numpy bit generator (base of the family classes).

    ``Family(seed=0, member=0)``: ``seed`` an int or a sequence of 32-bit words,
    ``member`` the member of a family of several generators (MT2203, WH)."""

    _family = None

    def __init__(self, seed=0, member=0):
        self._adopt(_brenn.rng.BitSource(_brng(self._family, member), _seed_words(seed)))

    def _adopt(self, source):
        self._source = source
        self.lock = threading.Lock()
        self.capsule = source.capsule()

    @classmethod
    def _from(cls, source):
        obj = cls.__new__(cls)
        obj._adopt(source)
        return obj

    @property
    def brng(self) -> int:
        """The generator id of the stream (family id plus member)."""
        return self._source.brng

    def random_raw(self, size=None):
        """The next raw outputs, as uint64 (numpy's random_raw): the stream's 32-bit
        words, or the fields of its uniforms (see the module's description)."""
        n = 1 if size is None else int(np.prod(size))
        with self.lock:
            words = self._source.random_raw(n)
        return int(words[0]) if size is None else words.reshape(size)

    def jumped(self, nskip=1):
        """A new bit generator ``nskip`` outputs further on; this one is unchanged."""
        with self.lock:
            return type(self)._from(self._source.jumped(int(nskip)))

    def leapfrog(self, k, nstreams):
        """Makes this generator give outputs k, k + nstreams, k + 2 nstreams, ... of its
        sequence; only before its first output is read."""
        with self.lock:
            self._source.leapfrog(int(k), int(nstreams))

    @property
    def state(self) -> dict:
        """The stream's saved image and the outputs drawn but not read yet."""
        with self.lock:
            return {"bit_generator": type(self).__name__, "image": self._source.image(),
                    "unread": self._source.unread()}

    @state.setter
    def state(self, value):
        if value.get("bit_generator") != type(self).__name__:
            raise ValueError(f"the state is not one of {type(self).__name__}")
        with self.lock:
            self._adopt(_brenn.rng.BitSource.load(value["image"], value["unread"]))

    def __getstate__(self):
        return self.state

    def __setstate__(self, state):
        self._adopt(_brenn.rng.BitSource.load(state["image"], state["unread"]))

    def __repr__(self):
        return f"{type(self).__name__}(brng={self.brng:#x})"


class Stream:
    """A stream of the library with its bulk draws into numpy arrays.

    ``Stream(family, seed=0, member=0)``: ``family`` a name (``"MT19937"``) or a
    generator id. Draws release the GIL; a stream serves one thread at a time."""

    def __init__(self, family="MT19937", seed=0, member=0, *, _handle=None):
        self._s = _handle if _handle is not None else _brenn.rng.Stream(
            _brng(family, member), _seed_words(seed))

    @classmethod
    def abstract(cls, refill, size=1024, dtype=np.float64, low=0.0, high=1.0) -> "Stream":
        """A stream whose numbers come from a buffer of ``size`` elements that
        ``refill`` fills: ``refill(out)`` gets a writable array, a part of the buffer,
        and fills all of it (a part that wraps round the buffer's end comes as two
        calls). ``dtype``: float64 or float32, numbers of [low, high) mapped onto each
        draw's own range; a float64 stream serves the float64 draws, a float32 one the
        float32 draws. (The library's 32-bit word streams serve only its raw-bits
        draw, which this class leaves out.) The stream has no seed, jumps nor image.
        An exception raised by ``refill`` ends the draw and is raised by it."""
        dtype = np.dtype(dtype)
        kinds = {np.dtype(np.float64): "f64", np.dtype(np.float32): "f32"}
        if dtype not in kinds:
            raise TypeError(f"an abstract stream holds float64 or float32, not {dtype}")
        if not callable(refill):
            raise TypeError("refill must be callable")
        return cls(_handle=_brenn.rng.abstract_stream(refill, int(size), kinds[dtype],
                                                      float(low), float(high)))

    @property
    def brng(self) -> int:
        """The generator id."""
        return self._s.brng

    def copy(self) -> "Stream":
        """A new stream with this one's state."""
        return Stream(_handle=self._s.copy())

    def skip_ahead(self, nskip: int) -> None:
        """Skips nskip outputs."""
        self._s.skip_ahead(int(nskip))

    def leapfrog(self, k: int, nstreams: int) -> None:
        """Serves outputs k, k + nstreams, ... of the sequence."""
        self._s.leapfrog(int(k), int(nstreams))

    def uniform(self, size, low=0.0, high=1.0, dtype=np.float64, accurate=False):
        """``size`` uniform floats on [low, high) (float64 or float32); ``accurate``
        clamps them to [low, high]."""
        dtype = np.dtype(dtype)
        if not low < high:
            raise ValueError(f"uniform draws need low < high, not [{low}, {high})")
        if dtype == np.float64:
            return self._s.duniform(int(size), float(low), float(high), bool(accurate))
        if dtype == np.float32:
            return self._s.suniform(int(size), float(low), float(high), bool(accurate))
        raise TypeError(f"uniform draws are float32 or float64, not {dtype}")

    def integers(self, size, low, high):
        """``size`` int32 integers uniform on [low, high)."""
        return self._s.iuniform(int(size), int(low), int(high))

    def bits32(self, size):
        """``size`` words of 32 uniform bits (uint32)."""
        return self._s.bits32(int(size))

    def bits64(self, size):
        """``size`` words of 64 uniform bits (uint64)."""
        return self._s.bits64(int(size))

    def bernoulli(self, size, p):
        """``size`` Bernoulli variates (int32) with P(1) = p."""
        return self._s.bernoulli(int(size), float(p))

    def geometric(self, size, p):
        """``size`` geometric variates (int32): failures before the first success."""
        return self._s.geometric(int(size), float(p))

    def gaussian(self, size, mean=0.0, sigma=1.0, method="boxmuller2", dtype=np.float64):
        """Gaussian variates ``mean + sigma z`` (float64 or float32). ``method``:
        ``"boxmuller"`` (the sine half of each pair), ``"boxmuller2"`` (both halves, the
        fastest) or ``"icdf"`` (the inverse distribution function), or their ids 0, 1, 2."""
        return self._draw(size, dtype, self._s._gaussian, _method(method, _GAUSSIAN_METHODS),
                          mean, sigma)

    def standard_normal(self, size, dtype=np.float64, method="boxmuller2"):
        """Standard normal variates: ``gaussian(size, 0, 1, method, dtype)``."""
        return self.gaussian(size, 0.0, 1.0, method, dtype)

    def lognormal(self, size, mean=0.0, sigma=1.0, loc=0.0, scale=1.0, method="boxmuller2",
                  dtype=np.float64):
        """Lognormal variates ``loc + scale exp(mean + sigma z)``; ``method`` names the
        Gaussian drawn: ``"boxmuller2"`` (0) or ``"icdf"`` (1)."""
        return self._draw(size, dtype, self._s._lognormal, _method(method, _LOGNORMAL_METHODS),
                          mean, sigma, loc, scale)

    def exponential(self, size, scale=1.0, loc=0.0, dtype=np.float64):
        """Exponential variates ``loc - scale ln u`` (mean ``loc + scale``)."""
        return self._draw(size, dtype, self._s._exponential, loc, scale)

    def gumbel(self, size, loc=0.0, scale=1.0, dtype=np.float64):
        """Gumbel variates ``loc + scale ln(-ln u)``: the distribution of a minimum
        (numpy's ``gumbel`` is that of a maximum, the negative of this one)."""
        return self._draw(size, dtype, self._s._gumbel, loc, scale)

    def laplace(self, size, loc=0.0, scale=1.0, dtype=np.float64):
        """Laplace (double exponential) variates ``loc +- scale ln u``."""
        return self._draw(size, dtype, self._s._laplace, loc, scale)

    def rayleigh(self, size, scale=1.0, loc=0.0, dtype=np.float64):
        """Rayleigh variates ``loc + scale sqrt(-ln u)``, no factor 2 under the root
        (numpy's ``rayleigh(s)`` is this one with ``scale = s sqrt(2)``)."""
        return self._draw(size, dtype, self._s._rayleigh, loc, scale)

    def weibull(self, size, shape, loc=0.0, scale=1.0, dtype=np.float64):
        """Weibull variates ``loc + scale (-ln u)^(1/shape)``."""
        return self._draw(size, dtype, self._s._weibull, shape, loc, scale)

    def cauchy(self, size, loc=0.0, scale=1.0, dtype=np.float64):
        """Cauchy variates ``loc + scale tan(v)``, v uniform on [-pi/2, pi/2)."""
        return self._draw(size, dtype, self._s._cauchy, loc, scale)

    @staticmethod
    def _draw(size, dtype, draw, *parameters):
        """``size`` (an int or a shape) variates of a float dtype from one bulk call."""
        dtype = np.dtype(dtype)
        if dtype not in (np.float64, np.float32):
            raise TypeError(f"continuous draws are float32 or float64, not {dtype}")
        shape = (int(size),) if np.ndim(size) == 0 else tuple(int(d) for d in size)
        n = int(np.prod(shape, dtype=np.int64))
        r = draw(n, dtype == np.float32, *(p if isinstance(p, int) else float(p)
                                           for p in parameters))
        return r.reshape(shape) if np.ndim(size) else r

    def __getstate__(self):
        return {"image": self._s.image()}

    def __setstate__(self, state):
        self._s = _brenn.rng.Stream.load(state["image"])


_GAUSSIAN_METHODS = {"boxmuller": 0, "boxmuller2": 1, "icdf": 2}
_LOGNORMAL_METHODS = {"boxmuller2": 0, "icdf": 1}


def _method(method, names):
    """A method's id from its name or id; ids are checked by the library."""
    if isinstance(method, str):
        try:
            return names[method.lower()]
        except KeyError:
            raise ValueError(f"no method {method!r}; the methods are {sorted(names)}") from None
    return int(method)


def _families():
    """The family classes of the generators built."""
    made = {}
    for name, family in _FAMILY_IDS.items():
        if _brenn.rng.check_brng(family) != 0:
            continue
        try:
            _brenn.rng.BitSource(family, [1])
        except (ValueError, RuntimeError, NotImplementedError):
            continue
        made[name] = type(name, (BitGenerator,), {
            "_family": family, "__module__": __name__, "__qualname__": name,
            "__doc__": f"The {name} generator of the library as a numpy bit generator.\n\n"
                       f"{name}(seed=0, member=0); see :class:`BitGenerator`."})
    return made


FAMILIES = _families()
"""The bit-generator classes of this build, by family name."""
globals().update(FAMILIES)
__all__ = ["BitGenerator", "Stream", "FAMILIES"] + sorted(FAMILIES)
