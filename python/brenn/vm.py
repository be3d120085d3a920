"""Vector mathematics on numpy arrays: one function a row family of the library.

``brenn.vm.exp(a, out=None, accuracy="ha")`` runs the row of ``a``'s dtype: float32
the single row (vsExp), float64 the double one (vdExp), complex64 and complex128
the complex rows where the family has them. Other dtypes are a TypeError, never a
silent cast. The operands' dtype is resolved as numpy's ufuncs resolve it
(``numpy.result_type``): arrays of two float dtypes take the wider one, and a Python
number or a 0-d array takes an array's dtype when its value fits (numpy 1.x's
value-based casting: ``add(float32_array, 2.0)`` stays float32).

Operands broadcast as numpy's do (scalars, 0-d arrays, ``(n, 1)`` with ``(1, m)``);
the result has the broadcast shape and is C-contiguous, or goes into ``out`` (an
array, or a tuple of arrays for two results, of the result's dtype and shape, any
strides). Operands of the result's shape, dtype and C order are read in place;
others (broadcast, strided, reversed, Fortran-ordered) are walked in blocks through
buffers, never copied whole. An ``out`` that overlaps an input other than as the
same view gets the input copied first. The kernel runs without the GIL, long arrays
split over the library's threads. The elements the call reports are handled as
:class:`brenn.errstate` says, with their positions.

The functions are made from the library's row list when the package is imported:
every row family with kernels in this build, named by the row's name in lower case
(vdMulByConj is ``mulbyconj``). :data:`FAMILIES` maps each name to its rows. Packing
rows (strided gathers) are left to numpy's indexing.
"""
import numbers

import numpy as np

from . import _brenn
from ._errstate import report

ACCURACIES = {"la": 1, "ha": 2, "ep": 3}
_ELEM = {"s": np.dtype(np.float32), "d": np.dtype(np.float64),
         "c": np.dtype(np.complex64), "z": np.dtype(np.complex128)}
_REAL = {"s": _ELEM["s"], "d": _ELEM["d"], "c": _ELEM["s"], "z": _ELEM["d"]}
# Arguments of each shape: arrays in, scalars, and (for documentation) their names.
_SHAPES = {
    "Unary": (("a",), (), 1),
    "AbsArg": (("a",), (), 1),
    "Cis": (("a",), (), 1),
    "Binary": (("a", "b"), (), 1),
    "Powx": (("a",), ("b",), 1),
    "TwoRes": (("a",), (), 2),
    "LinFrac": (("a", "b"), ("scalea", "shifta", "scaleb", "shiftb"), 1),
}
_FLOATS = frozenset(_ELEM.values())


class _Row:
    __slots__ = ("index", "letter", "name", "shape")

    def __init__(self, index, letter, name, shape):
        self.index, self.letter, self.name, self.shape = index, letter, name, shape

    @property
    def in_dtype(self):
        return _REAL[self.letter] if self.shape == "Cis" else _ELEM[self.letter]

    @property
    def out_dtype(self):
        return _REAL[self.letter] if self.shape == "AbsArg" else _ELEM[self.letter]

    def __repr__(self):
        return f"v{self.letter}{self.name}"


def _accuracy(accuracy):
    try:
        return ACCURACIES[accuracy.lower()]
    except (AttributeError, KeyError):
        raise ValueError(f"accuracy must be one of 'ha', 'la', 'ep', not {accuracy!r}") from None


_PY_NUMBERS = (float, int, complex, bool)


def _is_number(x):
    """Whether x is a Python number (numpy scalars and arrays are not)."""
    return type(x) in _PY_NUMBERS or (isinstance(x, numbers.Number)
                                      and not isinstance(x, (np.ndarray, np.generic)))


def _operands(fname, rows, args):
    """The row, the operands (arrays of the row's dtype, or Python numbers), and the
    broadcast shape of a call."""
    ops = [x if _is_number(x) else np.asarray(x) for x in args]
    for a in ops:
        if type(a) is np.ndarray and a.dtype not in _FLOATS:
            raise TypeError(f"{fname}: no row for dtype {a.dtype} (float32, float64, "
                            f"complex64 or complex128)")
    dtype = np.result_type(*ops)
    row = rows.get(dtype)
    if row is None:
        have = ", ".join(str(d) for d in rows)
        raise TypeError(f"{fname}: no row for dtype {dtype} in this build (rows for {have})")
    shapes = [np.shape(a) for a in ops]
    try:
        # numpy.broadcast_shapes takes some microseconds: only where the shapes differ.
        shape = shapes[0] if shapes.count(shapes[0]) == len(shapes) else np.broadcast_shapes(*shapes)
    except ValueError:
        raise ValueError(f"{fname}: operands of shapes "
                         f"{' and '.join(str(np.shape(a)) for a in ops)} do not broadcast") from None
    return row, ops, shape


def _results(fname, row, shape, out, count):
    if out is None:
        return tuple(np.empty(shape, dtype=row.out_dtype) for _ in range(count))
    outs = out if isinstance(out, tuple) else (out,)
    if len(outs) != count:
        raise ValueError(f"{fname}: out must hold {count} array(s)")
    for o in outs:
        if not isinstance(o, np.ndarray):
            raise TypeError(f"{fname}: out must be a numpy array")
        if o.dtype != row.out_dtype:
            raise TypeError(f"{fname}: out has dtype {o.dtype}, the row gives {row.out_dtype}")
        if o.shape != shape:
            raise ValueError(f"{fname}: out has shape {o.shape}, the operands broadcast to {shape}")
        if not o.flags.writeable:
            raise ValueError(f"{fname}: out must be writeable")
    return outs


def _same_view(a, o):
    return (a.shape == o.shape and a.strides == o.strides
            and a.__array_interface__["data"][0] == o.__array_interface__["data"][0])


def _inputs(ops, dtype, shape, outs, given):
    """The input arrays of a call and whether they (and the results) are walked."""
    direct = all(type(a) is np.ndarray and a.dtype == dtype and a.shape == shape
                 and a.flags.c_contiguous for a in ops)
    direct = direct and all(o.flags.c_contiguous for o in outs)
    ins = ops if direct else [np.broadcast_to(np.asarray(a, dtype=dtype), shape) for a in ops]
    if given:
        # An input that overlaps a result other than as the same view would be read
        # after the kernel wrote its memory.
        ins = [a.copy() if any(np.may_share_memory(a, o) and not _same_view(a, o) for o in outs)
               else a for a in ins]
    return ins, not direct


def _scalars(fname, row, values):
    kind = complex if row.letter in "cz" else float
    try:
        return [kind(v) for v in values]
    except TypeError:
        raise TypeError(f"{fname}: the scalar arguments must be {kind.__name__} numbers") from None


def _make(fname, shape, rows):
    arrays, scalars, count = _SHAPES[shape]

    def function(*args, out=None, accuracy="ha"):
        if len(args) != len(arrays) + len(scalars):
            raise TypeError(f"{fname}() takes {len(arrays) + len(scalars)} positional "
                            f"arguments ({', '.join(arrays + scalars)})")
        acc = _accuracy(accuracy)
        row, ops, sh = _operands(fname, rows, args[:len(arrays)])
        outs = _results(fname, row, sh, out, count)
        ins, walked = _inputs(ops, row.in_dtype, sh, outs, out is not None)
        status, elements = _brenn.vm.call(row.index, acc, ins,
                                          _scalars(fname, row, args[len(arrays):]),
                                          list(outs), list(sh), walked)
        if status < 0:
            raise RuntimeError(f"{fname}: {_brenn.status_name(status)} ({status})")
        if status or elements is not None:
            report(status, fname, sh, elements)
        return outs if count > 1 else outs[0]

    names = ", ".join(arrays + scalars)
    kinds = ", ".join(f"{r!r} ({d})" for d, r in rows.items())
    result = "a tuple of two arrays" if count > 1 else "an array"
    function.__name__ = function.__qualname__ = fname
    function.__doc__ = (
        f"{fname}({names}, out=None, accuracy='ha')\n\n"
        f"Element-wise {next(iter(rows.values())).name} by the rows {kinds}, chosen by "
        f"the operands' dtype as numpy's ufuncs resolve it.\n"
        f"Array operands broadcast; returns {result} of the broadcast shape; ``out`` "
        f"takes the result array(s) (that dtype and shape, any strides). "
        f"``accuracy``: 'ha', 'la' or 'ep'.\nScalars ({', '.join(scalars) or 'none'}) "
        f"are Python numbers taken in the row's element type. Reported elements: "
        f"brenn.errstate.")
    return function


def _build():
    families = {}
    for index, letter, name, shape, built in _brenn.vm.rows():
        if not built or shape not in _SHAPES:
            continue
        row = _Row(index, letter, name, shape)
        families.setdefault(name.lower(), {})[row.in_dtype] = row
    functions = {}
    for fname, rows in sorted(families.items()):
        shapes = {r.shape for r in rows.values()}
        # A family mixing shapes (Abs: real Unary and complex AbsArg) shares one runner
        # signature: the array and scalar counts agree.
        shape = sorted(shapes)[0]
        functions[fname] = _make(fname, shape, rows)
    return families, functions


_families, _functions = _build()
FAMILIES = {name: tuple(repr(r) for r in rows.values()) for name, rows in _families.items()}
"""Every function of this module and the rows (``"vdExp"``, ...) behind it."""
globals().update(_functions)
__all__ = sorted(_functions) + ["FAMILIES", "ACCURACIES"]
