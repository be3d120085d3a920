"""brenn.rng.Stream.abstract: a stream fed by a Python callable. A double stream fed
an MT19937 stream's uniforms gives that stream's own Gaussians, whatever the buffer's
size; float streams give the floats fed; the callable's exceptions come out of the
draw; bad arguments are refused."""
import numpy as np
import pytest

from brenn import rng


@pytest.mark.parametrize("size", [1, 7, 1000])
def test_fed_uniforms_give_the_sources_gaussians(size):
    dtype = np.float64
    source = rng.Stream("MT19937", seed=77)
    calls = []

    def refill(out):
        calls.append(out.size)
        out[:] = source.uniform(out.size, dtype=dtype)

    fed = rng.Stream.abstract(refill, size=size, dtype=dtype)
    direct = rng.Stream("MT19937", seed=77)
    for n in (1, 1000, 3):
        for method in ("boxmuller2", "icdf"):
            a = direct.gaussian(n, 2.0, 0.5, method=method, dtype=dtype)
            b = fed.gaussian(n, 2.0, 0.5, method=method, dtype=dtype)
            assert a.tobytes() == b.tobytes()
    assert calls and max(calls) <= size


def test_float_stream_gives_the_floats_fed():
    values = np.random.default_rng(5).random(40).astype(np.float32)
    at = [0]

    def refill(out):
        out[:] = values[at[0]:at[0] + out.size]
        at[0] += out.size

    s = rng.Stream.abstract(refill, size=7, dtype=np.float32)
    np.testing.assert_array_equal(s.uniform(30, dtype=np.float32), values[:30])
    with pytest.raises(RuntimeError):
        s.uniform(3)  # a float stream serves float draws only


def test_refill_exceptions_come_out_of_the_draw():
    def refill(out):
        raise KeyError("no more numbers")

    s = rng.Stream.abstract(refill, size=4)
    with pytest.raises(KeyError):
        s.uniform(10)


def test_refusals():
    for dtype in (np.int64, np.uint32):
        with pytest.raises(TypeError):
            rng.Stream.abstract(lambda out: None, dtype=dtype)
    with pytest.raises(TypeError):
        rng.Stream.abstract(None)
    with pytest.raises(ValueError):
        rng.Stream.abstract(lambda out: None, size=0)
    for low, high in ((1.0, 1.0), (0.0, np.inf), (np.nan, 1.0)):
        with pytest.raises(ValueError):
            rng.Stream.abstract(lambda out: None, low=low, high=high)
