"""Vector mathematics on numpy arrays: one function a row family of the library.

``brenn.vm.exp(a, out=None, accuracy="ha")`` runs the row of ``a``'s dtype: float32
the single row (vsExp), float64 the double one (vdExp), complex64 and complex128
the complex rows where the family has them. Other dtypes are a TypeError, never a
silent cast; operands of two float dtypes take the wider one, as numpy's ufuncs do,
and a Python number in an array's place takes the other operand's dtype. Arrays have
any shape; operands have one shape; results are C-contiguous, or go into ``out``
(an array, or a tuple of arrays for two results, of the result's dtype, shape and
contiguity). The kernel runs without the GIL, long arrays split over the library's
threads. The call's element status is handled as :class:`brenn.errstate` says.

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


def _is_number(x):
    return isinstance(x, numbers.Number) and not isinstance(x, (np.ndarray, np.generic))


def _operands(fname, rows, args):
    """The row and the C-contiguous operand arrays of a call."""
    arrays = [x if _is_number(x) else np.asarray(x) for x in args]
    typed = [a for a in arrays if not _is_number(a)]
    if not typed:
        raise TypeError(f"{fname}: at least one operand must be an array")
    for a in typed:
        if a.dtype not in _FLOATS:
            raise TypeError(f"{fname}: no row for dtype {a.dtype} (float32, float64, "
                            f"complex64 or complex128)")
    dtype = np.result_type(*[a.dtype for a in typed])
    row = rows.get(dtype)
    if row is None:
        have = ", ".join(str(d) for d in rows)
        raise TypeError(f"{fname}: no row for dtype {dtype} in this build (rows for {have})")
    shape = typed[0].shape
    out = []
    for a in arrays:
        if _is_number(a):
            out.append(np.full(shape, a, dtype=dtype))
            continue
        if a.shape != shape:
            raise ValueError(f"{fname}: operands of shapes {shape} and {a.shape}")
        out.append(np.ascontiguousarray(a, dtype=dtype))
    return row, out, shape


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
            raise ValueError(f"{fname}: out has shape {o.shape}, the operands {shape}")
        if not o.flags.c_contiguous or not o.flags.writeable:
            raise ValueError(f"{fname}: out must be a writeable C-contiguous array")
    return outs


def _make(fname, shape, rows):
    arrays, scalars, count = _SHAPES[shape]

    def function(*args, out=None, accuracy="ha"):
        if len(args) != len(arrays) + len(scalars):
            raise TypeError(f"{fname}() takes {len(arrays) + len(scalars)} positional "
                            f"arguments ({', '.join(arrays + scalars)})")
        acc = _accuracy(accuracy)
        row, ins, sh = _operands(fname, rows, args[:len(arrays)])
        outs = _results(fname, row, sh, out, count)
        status = _brenn.vm.call(row.index, acc, ins, list(args[len(arrays):]), list(outs),
                                int(ins[0].size))
        if status < 0:
            raise RuntimeError(f"{fname}: {_brenn.status_name(status)} ({status})")
        report(status, fname)
        return outs if count > 1 else outs[0]

    names = ", ".join(arrays + scalars)
    kinds = ", ".join(f"{r!r} ({d})" for d, r in rows.items())
    result = "a tuple of two arrays" if count > 1 else "an array"
    function.__name__ = function.__qualname__ = fname
    function.__doc__ = (
        f"{fname}({names}, out=None, accuracy='ha')\n\n"
        f"Element-wise {next(iter(rows.values())).name} by the rows {kinds}, chosen by "
        f"the operands' dtype.\nReturns {result}; ``out`` takes the result array(s). "
        f"``accuracy``: 'ha', 'la' or 'ep'.\nScalars ({', '.join(scalars) or 'none'}) "
        f"take the row's element type. Element statuses: brenn.errstate.")
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
