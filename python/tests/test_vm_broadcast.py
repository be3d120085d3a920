"""brenn.vm's operands as numpy's ufuncs take them: broadcast shapes, the dtype of
mixed operands, strided, reversed and Fortran-ordered inputs and results, overlaps
of out with an input; and where reported elements are (flat indices, positions,
counts) in the warning, the exception and the call handler of brenn.errstate."""
import warnings

import numpy as np
import pytest

import brenn
from brenn import vm

RNG = np.random.default_rng(11)


def _binary_families(letter):
    shapes = {name: shape for _, _, name, shape, ok in brenn._brenn.vm.rows() if ok}
    return sorted(f for f, rows in vm.FAMILIES.items()
                  if shapes[rows[0][2:]] == "Binary" and any(r[1] == letter for r in rows))


def _values(shape, dtype, lo=0.5, hi=2.0):
    return RNG.uniform(lo, hi, shape).astype(dtype)


@pytest.mark.parametrize("sa,sb", [((3, 1), (1, 4)), ((5,), ()), ((), (2, 3)),
                                   ((2, 1, 3), (4, 1)), ((0, 3), (1, 3)), ((1,), (7,))])
def test_binary_families_broadcast_as_numpy(sa, sb):
    # Each value is the kernel's on the operands expanded: bit for bit, numpy's shape.
    for dtype in (np.float32, np.float64):
        a, b = _values(sa, dtype), _values(sb, dtype)
        ea, eb = (np.ascontiguousarray(x) for x in np.broadcast_arrays(a, b))
        for name in _binary_families("s" if dtype == np.float32 else "d"):
            f = getattr(vm, name)
            got = f(a, b)
            assert got.shape == np.broadcast_shapes(sa, sb) and got.dtype == dtype, name
            np.testing.assert_array_equal(got, f(ea, eb), err_msg=name)
    np.testing.assert_array_equal(vm.add(np.arange(3.0)[:, None], 10.0 * np.arange(4.0)),
                                  np.add.outer(np.arange(3.0), 10.0 * np.arange(4.0)))


F32, F64 = np.float32, np.float64


@pytest.mark.parametrize("a,b", [
    (np.ones(3, F32), 2.0),                     # Python float: the array's dtype
    (2, np.ones(3, F32)),                       # Python int beside a float array
    (np.ones(3, F32), np.ones(3, F64)),         # two float dtypes: the wider
    (np.ones(3, F32), np.float64(2.5)),         # a numpy scalar: value-based, as numpy 1.x
    (np.ones(3, F32), np.array(1e300)),         # a 0-d array whose value does not fit
    (np.ones(3, F64), np.float32(2.0)),
    (np.ones(3, F32), 1 + 2j),                  # a complex number: the complex row
    (np.ones((2, 1), np.complex64), np.ones(3, F64)),
    (1.5, 2.5),                                 # numbers only: float64, a 0-d result
])
def test_mixed_operands_take_numpys_dtype(a, b):
    want = np.add(a, b)
    got = vm.add(a, b)
    assert got.dtype == want.dtype and got.shape == np.shape(want)
    np.testing.assert_array_equal(got, want)


@pytest.mark.parametrize("a,b", [(np.ones(3, F32), np.arange(3)), (np.ones(3), np.float16(1)),
                                 (np.ones(3), np.array([True])), (1, 2)])
def test_other_operand_dtypes_are_refused(a, b):
    with pytest.raises(TypeError):
        vm.add(a, b)


def test_powx_takes_a_python_scalar():
    for dtype in (F32, F64):
        a = _values((2, 3), dtype)
        for b in (1.75, np.float32(1.75), np.array(1.75)):
            np.testing.assert_array_equal(vm.powx(a, b), vm.pow(a, dtype(1.75)))
    with pytest.raises(TypeError):
        vm.powx(np.ones(3), np.ones(3))
    with pytest.raises(TypeError):
        vm.powx(np.ones(3), 1j)  # a complex power on a real row


def _views(x):
    """Non-contiguous views of a 2-D array: strided, reversed, transposed, Fortran."""
    return [x[:, ::2], x[::-1], x[::-2, ::-3], x.T, np.asfortranarray(x), x[1:, 1:]]


def test_strided_inputs_and_results():
    for dtype in (F32, F64, np.complex128):
        x = (RNG.uniform(-3, 3, (6, 9)) + (1j if dtype == np.complex128 else 0)).astype(dtype)
        y = _values((6, 9), dtype)
        for v in _views(x):
            np.testing.assert_array_equal(vm.exp(v), vm.exp(np.ascontiguousarray(v)))
            w = _views(y)[0][: v.shape[0], : v.shape[1]] if v.shape[1] <= 5 else v[::-1]
            np.testing.assert_array_equal(vm.mul(v, w), vm.mul(v.copy(), w.copy()))
            out = np.zeros((v.shape[0], 2 * v.shape[1]), dtype)[:, ::-2]
            assert vm.exp(v, out=out) is out
            np.testing.assert_array_equal(out, vm.exp(v.copy()))
    s, c = vm.sincos(np.arange(12.0)[::-3], out=(np.empty(8)[::2], np.empty(4)))
    np.testing.assert_array_equal(s, vm.sincos(np.array([11.0, 8, 5, 2]))[0])


def test_out_overlapping_an_input():
    x = RNG.uniform(-3, 3, 1000)
    for reads, writes in ((slice(None, -1), slice(1, None)), (slice(1, None), slice(None, -1)),
                          (slice(None, None, -1), slice(None))):
        a = x.copy()
        want = vm.exp(a[reads].copy())
        vm.exp(a[reads], out=a[writes])
        np.testing.assert_array_equal(a[writes], want)
    a = x.copy()
    vm.add(a, a[::-1], out=a)
    np.testing.assert_array_equal(a, x + x[::-1])


def _rec(**kw):
    seen = []
    return seen, brenn.errstate(call=lambda cat, status, rep: seen.append((cat, status, rep)), **kw)


@pytest.mark.parametrize("dtype", [F32, F64])
def test_reported_elements_are_located(dtype):
    a = np.zeros((40, 50), dtype)
    hot = [(0, 7), (3, 0), (39, 49)]
    for p in hot:
        a[p] = 1000
    with brenn.errstate(over="raise"):
        with pytest.raises(brenn.ElementError, match=r"overflow .* 3 element\(s\), first \(0, 7\)") as e:
            vm.exp(a)
    assert e.value.count == 3 and e.value.category == "over"
    assert list(zip(*e.value.positions)) == hot
    np.testing.assert_array_equal(e.value.indices, [7, 150, 1999])
    np.testing.assert_array_equal(e.value.statuses, [3, 3, 3])
    with warnings.catch_warnings(record=True) as w:
        warnings.simplefilter("always")
        vm.exp(a[::-1, ::-1])  # walked: indices of the result, not of the memory
    assert [list(zip(*x.message.positions)) for x in w] == [[(0, 0), (36, 49), (39, 42)]]
    # Many reports: the first KEPT in index order, all counted, over a split call.
    big = np.zeros(3 * 10**6, dtype)
    big[::1000] = -1
    seen, state = _rec(invalid="call")
    with state:
        vm.sqrt(big)
    (cat, status, rep), = seen
    assert (cat, status, rep.count) == ("invalid", 1, 3000)
    np.testing.assert_array_equal(rep.indices, 1000 * np.arange(brenn.ElementReport.KEPT))


def test_each_category_is_handled_in_numpys_order():
    seen, state = _rec(all="call")
    x = np.array([[1.0, -1.0], [0.0, -2.0]])
    with state:
        vm.ln(x)
        vm.exp(np.array([1.0, 2.0]))  # nothing reported: no call
        vm.pow(np.array([[10.0], [-1.0]]), np.array([400.0, 0.5, -400.0]))  # broadcast
    assert [(c, s, r.count, r.indices.tolist()) for c, s, r in seen] == [
        ("divide", 2, 1, [2]), ("invalid", 1, 2, [1, 3]),
        ("over", 3, 1, [0]), ("under", 4, 1, [2]), ("invalid", 1, 1, [4])]
    with brenn.errstate(divide="ignore", invalid="raise"):
        with pytest.raises(FloatingPointError, match="invalid .* 2 element"):
            vm.ln(x)
