"""Writes the type stub of brenn.vm from the functions the built package made from
the row list:  python3 gen_vm_stub.py OUT  (with the package on PYTHONPATH)."""
import os
import sys

# The package comes from PYTHONPATH (the build tree), not from beside this script.
sys.path = [p for p in sys.path if os.path.abspath(p or ".") != os.path.dirname(os.path.abspath(__file__))]
import brenn.vm as vm  # noqa: E402

SIGNATURES = {
    "Unary": "a: ArrayLike, /",
    "AbsArg": "a: ArrayLike, /",
    "Cis": "a: ArrayLike, /",
    "Binary": "a: ArrayLike, b: ArrayLike, /",
    "Powx": "a: ArrayLike, b: complex, /",  # b a Python number (the row's element type)
    "TwoRes": "a: ArrayLike, /",
    "LinFrac": "a: ArrayLike, b: ArrayLike, scalea: float, shifta: float, scaleb: float, "
               "shiftb: float, /",
}


def main(out):
    lines = [
        '"""Stub of brenn.vm, written from the row list of the build."""',
        "from typing import Literal, Optional, Tuple, Union",
        "",
        "import numpy as np",
        "from numpy.typing import ArrayLike, NDArray",
        "",
        "Accuracy = Literal['ha', 'la', 'ep', 'HA', 'LA', 'EP']",
        "ACCURACIES: dict[str, int]",
        "FAMILIES: dict[str, tuple[str, ...]]",
        "",
    ]
    for name in sorted(vm._families):
        row = next(iter(vm._families[name].values()))
        args = SIGNATURES[row.shape]
        if row.shape == "TwoRes":
            tail = ("out: Optional[Tuple[NDArray[np.inexact], NDArray[np.inexact]]] = ..., "
                    "accuracy: Accuracy = ...) -> Tuple[NDArray[np.inexact], NDArray[np.inexact]]")
        else:
            tail = "out: Optional[NDArray[np.inexact]] = ..., accuracy: Accuracy = ...) -> NDArray[np.inexact]"
        rows = ", ".join(vm.FAMILIES[name])
        lines.append(f"def {name}({args}, *, {tail}:")
        how = " (operands broadcast as numpy's)" if len(vm._SHAPES[row.shape][0]) > 1 else ""
        lines.append(f'    """Element-wise {row.name}{how} (rows {rows})."""')
        lines.append("")
    with open(out, "w") as f:
        f.write("\n".join(lines))


if __name__ == "__main__":
    main(sys.argv[1])
