"""brenn.vm's calling rules: dtypes as numpy's ufuncs take them (and TypeError for
the rest), out=, shapes and layouts, accuracies, the element statuses through
brenn.errstate, special inputs (signalling NaN, near overflow and underflow), the
complex rows against numpy, and calls from several threads at once. Broadcasting,
strided operands and where elements reported: test_vm_broadcast.py."""
import threading
import warnings

import numpy as np
import pytest

import brenn
from brenn import vm


def test_dtype_picks_the_row():
    for dtype in (np.float32, np.float64):
        a = np.linspace(-2, 2, 7, dtype=dtype)
        assert vm.exp(a).dtype == dtype
        assert vm.add(a, a).dtype == dtype
    z = (np.arange(4) + 1j).astype(np.complex64)
    assert vm.mul(z, z).dtype == np.complex64


@pytest.mark.parametrize("bad", [np.arange(4), np.arange(4, dtype=np.float16),
                                 np.array([True, False]), np.array(["a"]),
                                 np.arange(3, dtype=np.longdouble)])
def test_other_dtypes_are_refused(bad):
    with pytest.raises(TypeError):
        vm.exp(bad)


def test_family_without_a_complex_row_refuses_complex():
    # Cube roots have real rows only.
    with pytest.raises(TypeError, match="no row for dtype complex128"):
        vm.cbrt(np.ones(3, dtype=np.complex128))


def test_shapes_layouts_and_out():
    a = np.random.default_rng(1).uniform(-3, 3, (4, 5, 6))
    np.testing.assert_allclose(vm.exp(a), np.exp(a), rtol=3e-16)
    out = np.empty_like(a)
    assert vm.exp(a, out=out) is out
    np.testing.assert_array_equal(out, vm.exp(a))
    inplace = a.copy()
    vm.exp(inplace, out=inplace)
    np.testing.assert_array_equal(inplace, out)
    assert vm.exp(np.empty((0, 3))).shape == (0, 3)
    assert vm.exp(np.float64(1.0)).shape == ()
    s, c = vm.sincos(a)
    s2, c2 = np.empty_like(a), np.empty_like(a)
    assert vm.sincos(a, out=(s2, c2))[0] is s2
    np.testing.assert_array_equal(c, c2)


@pytest.mark.parametrize("out,error", [
    (np.empty(5, dtype=np.float32), TypeError),
    (np.empty(4), ValueError),
    (np.empty((1, 5)), ValueError),  # out does not broadcast: it is the result's shape
    (np.broadcast_to(np.empty(1), (5,)), ValueError),  # read-only
    ([0.0] * 5, TypeError),
])
def test_bad_out(out, error):
    with pytest.raises(error):
        vm.exp(np.ones(5), out=out)


def test_operands_that_do_not_broadcast_and_argument_counts():
    with pytest.raises(ValueError, match="do not broadcast"):
        vm.add(np.ones(3), np.ones(4))
    with pytest.raises(TypeError):
        vm.add(np.ones(3))
    with pytest.raises(ValueError):
        vm.exp(np.ones(3), accuracy="xx")
    assert vm.exp(np.ones(3), accuracy="EP").dtype == np.float64


def test_levels_differ_only_within_their_bounds():
    a = np.random.default_rng(2).uniform(-700, 700, 10000)
    ref = np.exp(a)
    for level, ulps in (("ha", 1), ("la", 4), ("ep", 2.0 ** 27)):
        err = np.abs(vm.exp(a, accuracy=level) - ref) / np.spacing(ref)
        assert err.max() <= ulps + 1  # numpy's own exp is within 1 ulp


@pytest.mark.parametrize("dtype", [np.float32, np.float64])
def test_statuses_follow_errstate(dtype):
    big = np.array([1.0, 1000.0], dtype=dtype)
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        with pytest.raises(RuntimeWarning, match="overflow"):
            vm.exp(big)
        with brenn.errstate(over="ignore"):
            assert np.isinf(vm.exp(big)[1])
    with brenn.errstate(all="raise"):
        with pytest.raises(FloatingPointError, match="overflow encountered in exp"):
            vm.exp(big)
        with pytest.raises(FloatingPointError, match="invalid"):
            vm.ln(np.array([-1.0], dtype=dtype))
        with pytest.raises(FloatingPointError, match="divide by zero"):
            vm.ln(np.array([0.0], dtype=dtype))
        with pytest.raises(FloatingPointError, match="underflow"):
            vm.exp(np.array([-1000.0], dtype=dtype))
        vm.exp(np.array([0.0], dtype=dtype))  # no status, nothing raised
    assert brenn.geterr()["over"] == "warn"  # restored on leaving


def test_errstate_nests_and_refuses_unknown_handlings():
    with brenn.errstate(all="ignore"):
        with brenn.errstate(over="raise"):
            assert brenn.geterr() == {"divide": "ignore", "over": "raise", "under": "ignore",
                                      "invalid": "ignore"}
        assert brenn.geterr()["over"] == "ignore"
    with pytest.raises(ValueError):
        brenn.errstate(over="loudly")


def test_special_inputs():
    for dtype, bits in ((np.float64, 0x7FF0000000000001), (np.float32, 0x7F800001)):
        snan = np.array([bits], dtype=np.uint64 if dtype == np.float64 else np.uint32).view(dtype)
        with brenn.errstate(all="ignore"):
            for f in (vm.exp, vm.ln, vm.sin, vm.sqrt):
                assert np.isnan(f(snan)[0])
        fi = np.finfo(dtype)
        # The last finite result and the smallest subnormal stay representable.
        edge = np.array([np.log(fi.max) * (1 - 4 * fi.eps)], dtype=dtype)
        assert np.isfinite(vm.exp(edge)[0])
        tiny = np.array([fi.smallest_subnormal], dtype=dtype)
        assert vm.sqrt(tiny)[0] == np.sqrt(tiny)[0]
        assert vm.mul(tiny, np.array([1.0], dtype=dtype))[0] == tiny[0]


@pytest.mark.parametrize("dtype", [np.complex64, np.complex128])
def test_complex_rows_against_numpy(dtype):
    rng = np.random.default_rng(3)
    a = (rng.uniform(-10, 10, 500) + 1j * rng.uniform(-10, 10, 500)).astype(dtype)
    b = (rng.uniform(-10, 10, 500) + 1j * rng.uniform(-10, 10, 500)).astype(dtype)
    eps = np.finfo(dtype).eps
    np.testing.assert_array_equal(vm.add(a, b), a + b)
    np.testing.assert_array_equal(vm.sub(a, b), a - b)
    np.testing.assert_array_equal(vm.conj(a), np.conj(a))
    for got, want in ((vm.mul(a, b), a.astype(complex) * b),
                      (vm.div(a, b), a.astype(complex) / b),
                      (vm.mulbyconj(a, b), a.astype(complex) * np.conj(b))):
        assert got.dtype == dtype
        assert np.max(np.abs(got - want) / np.abs(want)) < 4 * eps


def test_threads_call_at_once():
    a = np.random.default_rng(4).uniform(-50, 50, 200000)
    want = vm.exp(a)
    results = [None] * 4

    def work(i):
        results[i] = vm.exp(a)

    threads = [threading.Thread(target=work, args=(i,)) for i in range(4)]
    for t in threads:
        t.start()
    for t in threads:
        t.join()
    for r in results:
        np.testing.assert_array_equal(r, want)


def test_the_list_follows_the_row_list():
    built = {(letter, name) for _, letter, name, shape, ok in brenn._brenn.vm.rows()
             if ok and not shape.startswith(("Pack", "Unpack"))}
    listed = {(r[1], r[2:]) for rows in vm.FAMILIES.values() for r in rows}
    assert listed == built
    for name in vm.FAMILIES:
        assert callable(getattr(vm, name)) and getattr(vm, name).__doc__
