"""brenn.rng.Stream's continuous draws: the same variates as the library's C entries
called on a stream of the same seed (bit for bit, both precisions, every method),
refusals raised before anything is drawn, and the dtype and shape rules."""
import ctypes

import numpy as np
import pytest

import brenn  # noqa: F401  (loads libbrenn, found below among the mapped files)
from brenn import rng


def _libbrenn():
    with open("/proc/self/maps") as maps:
        for line in maps:
            path = line.split()[-1]
            if "/libbrenn.so" in path:
                return ctypes.CDLL(path)
    raise RuntimeError("libbrenn is not loaded")


_C = _libbrenn()

# name, the Python call, its C entry's parameters after (stream, method, n, r), methods.
_CASES = [
    ("gaussian", lambda s, m, dt: s.gaussian(1025, 1.5, 0.25, m, dt), (1.5, 0.25), 3),
    ("lognormal", lambda s, m, dt: s.lognormal(1025, 0.5, 0.75, -1.0, 2.0, m, dt),
     (0.5, 0.75, -1.0, 2.0), 2),
    ("exponential", lambda s, m, dt: s.exponential(1025, 2.0, -3.0, dt), (-3.0, 2.0), 1),
    ("gumbel", lambda s, m, dt: s.gumbel(1025, 1.0, 3.0, dt), (1.0, 3.0), 1),
    ("laplace", lambda s, m, dt: s.laplace(1025, -1.0, 0.5, dt), (-1.0, 0.5), 1),
    ("rayleigh", lambda s, m, dt: s.rayleigh(1025, 2.0, 1.0, dt), (1.0, 2.0), 1),
    ("weibull", lambda s, m, dt: s.weibull(1025, 1.5, 0.5, 2.0, dt), (1.5, 0.5, 2.0), 1),
    ("cauchy", lambda s, m, dt: s.cauchy(1025, 0.5, 4.0, dt), (0.5, 4.0), 1),
]


def _c_draw(name, brng, seed, method, n, parameters, dtype):
    stream = ctypes.c_void_p()
    assert _C.brenn_rng_new(ctypes.byref(stream), brng, ctypes.c_uint32(seed)) == 0
    try:
        out = np.empty(n, dtype)
        real = ctypes.c_double if dtype == np.float64 else ctypes.c_float
        entry = getattr(_C, f"brenn_rng_{name}_{'f64' if dtype == np.float64 else 'f32'}")
        status = entry(stream, method, n, out.ctypes.data_as(ctypes.c_void_p),
                       *(real(p) for p in parameters))
        assert status == 0
        return out
    finally:
        _C.brenn_rng_delete(ctypes.byref(stream))


@pytest.mark.parametrize("family", ["MCG59", "MT19937"])
@pytest.mark.parametrize("dtype", [np.float64, np.float32])
@pytest.mark.parametrize("name,call,parameters,methods", _CASES, ids=[c[0] for c in _CASES])
def test_python_equals_the_c_entry(family, dtype, name, call, parameters, methods):
    brng = rng._FAMILY_IDS[family]
    for method in range(methods):
        ours = call(rng.Stream(family, seed=2026), method, dtype)
        assert ours.dtype == dtype and ours.shape == (1025,)
        theirs = _c_draw(name, brng, 2026, method, 1025, parameters, dtype)
        assert ours.tobytes() == theirs.tobytes(), (name, method)


def test_method_names_are_the_ids():
    for name, mid in [("boxmuller", 0), ("boxmuller2", 1), ("ICDF", 2)]:
        a = rng.Stream("MCG59", seed=5).gaussian(100, method=name)
        b = rng.Stream("MCG59", seed=5).gaussian(100, method=mid)
        assert a.tobytes() == b.tobytes()
    a = rng.Stream("MCG59", seed=5).lognormal(50, method="icdf")
    assert a.tobytes() == rng.Stream("MCG59", seed=5).lognormal(50, method=1).tobytes()
    z = rng.Stream("MT19937", seed=3).standard_normal((4, 5), dtype=np.float32)
    assert z.shape == (4, 5) and z.dtype == np.float32
    assert z.tobytes() == rng.Stream("MT19937", seed=3).gaussian(20, dtype=np.float32).tobytes()


@pytest.mark.parametrize("bad", [
    lambda s: s.gaussian(10, 0.0, 0.0), lambda s: s.gaussian(10, np.nan, 1.0),
    lambda s: s.gaussian(10, method=3), lambda s: s.gaussian(10, method="polar"),
    lambda s: s.standard_normal(10, method=-1), lambda s: s.lognormal(10, scale=-1.0),
    lambda s: s.lognormal(10, method=2), lambda s: s.exponential(10, scale=np.inf),
    lambda s: s.gumbel(10, loc=-np.inf), lambda s: s.laplace(10, scale=-0.0),
    lambda s: s.rayleigh(10, scale=5e-324 * -1), lambda s: s.weibull(10, 0.0),
    lambda s: s.cauchy(10, scale=np.nan), lambda s: s.gaussian(-1),
    lambda s: s.gaussian(10, sigma=1e300, dtype=np.float32),
])
def test_refusals_raise_before_drawing(bad):
    s, fresh = rng.Stream("MCG59", seed=9), rng.Stream("MCG59", seed=9)
    with pytest.raises(ValueError):
        bad(s)
    assert s.uniform(16).tobytes() == fresh.uniform(16).tobytes()


def test_only_float_dtypes():
    with pytest.raises(TypeError):
        rng.Stream().gaussian(4, dtype=np.int32)
    with pytest.raises(TypeError):
        rng.Stream().exponential(4, dtype=np.complex128)
