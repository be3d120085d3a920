"""Every function of brenn.vm against mpmath at 40 digits, at each accuracy level
and on both precisions, on samples of the row's interesting range (read from the
accuracy tool's row list): HA within 1 ulp, LA 4 ulps, EP 26 correct bits in double
and 11 in single. Exact rows must match their reference bit for bit."""
import math
import os
import re
import zlib

import mpmath as mp
import numpy as np
import pytest

import brenn

ROWS_DEF = os.path.join(os.path.dirname(__file__), "..", "..", "tools", "accuracy", "rows.def")
QUICK = os.environ.get("BRENN_PYTEST_QUICK") == "1"
mp.mp.dps = 40


def _rows():
    rows = {}
    pat = re.compile(r"^ROW\((\w), (\w+),\s+(\w+),\s+(\w+),\s+(\w+),\s+([-\d.e]+),\s+([-\d.e]+),"
                     r"\s+([-\d.e]+),\s+([-\d.e]+),.*\"([^\"]*)\"\)\s*$")
    with open(ROWS_DEF) as f:
        for line in f:
            m = pat.match(line)
            if m:
                t, name, ref, rule, dom = m.group(1, 2, 3, 4, 5)
                lo, hi, blo, bhi = (float(m.group(i)) for i in range(6, 10))
                rows[(t, name)] = (ref, rule, dom, lo, hi, blo, bhi, m.group(10))
    return rows


ROWS = _rows()
CEILINGS_DEF = os.path.join(os.path.dirname(ROWS_DEF), "ceilings.def")
with open(CEILINGS_DEF) as _f:
    CEILED = set(re.findall(r"^CEILING\((\w+),", _f.read(), re.M))


def _round_half_away(x):
    return mp.sign(x) * mp.floor(abs(x) + mp.mpf(0.5))


def _nint_even(x):
    return mp.nint(x)


# References by the accuracy tool's reference names: functions of mpmath numbers.
UNARY = {
    "Inv": lambda x: 1 / x, "Sqrt": mp.sqrt, "InvSqrt": lambda x: 1 / mp.sqrt(x),
    "Cbrt": mp.cbrt, "InvCbrt": lambda x: 1 / mp.cbrt(x), "Exp": mp.exp, "Ln": mp.log,
    "Log10": mp.log10, "Log2": lambda x: mp.log(x, 2), "Cos": mp.cos, "Sin": mp.sin,
    "Tan": mp.tan, "Acos": mp.acos, "Acosh": mp.acosh, "Asin": mp.asin, "Asinh": mp.asinh,
    "Atan": mp.atan, "Atanh": mp.atanh, "Cosh": mp.cosh, "Sinh": mp.sinh, "Tanh": mp.tanh,
    "Erf": mp.erf, "Erfc": mp.erfc, "ErfInv": mp.erfinv, "ErfcInv": lambda x: mp.erfinv(1 - x),
    "Expm1": mp.expm1, "Log1p": mp.log1p, "Pow3o2": lambda x: x * mp.sqrt(x),
    "Pow2o3": lambda x: mp.cbrt(x * x), "CdfNorm": mp.ncdf,
    "CdfNormInv": lambda x: mp.sqrt(2) * mp.erfinv(2 * x - 1),
    "LGamma": lambda x: mp.log(abs(mp.gamma(x))), "TGamma": mp.gamma, "ExpInt1": mp.e1,
    "Sinpi": mp.sinpi, "Cospi": mp.cospi, "Tanpi": lambda x: mp.sinpi(x) / mp.cospi(x),
    "Acospi": lambda x: mp.acos(x) / mp.pi, "Asinpi": lambda x: mp.asin(x) / mp.pi,
    "Atanpi": lambda x: mp.atan(x) / mp.pi, "Exp2": lambda x: mp.power(2, x),
    "Exp10": lambda x: mp.power(10, x), "Sind": lambda x: mp.sinpi(x / 180),
    "Cosd": lambda x: mp.cospi(x / 180), "Tand": lambda x: mp.sinpi(x / 180) / mp.cospi(x / 180),
    "Logb": lambda x: mp.floor(mp.log(abs(x), 2)), "Ceil": mp.ceil, "Floor": mp.floor,
    "Trunc": lambda x: mp.sign(x) * mp.floor(abs(x)), "Rint": _nint_even,
    "NearbyInt": _nint_even, "Round": _round_half_away, "Abs": abs, "Sqr": lambda x: x * x,
    "Frac": lambda x: x - mp.sign(x) * mp.floor(abs(x)),
}
BINARY = {
    "Div": lambda x, y: x / y, "Pow": mp.power, "Powr": mp.power, "Atan2": mp.atan2,
    "Atan2pi": lambda x, y: mp.atan2(x, y) / mp.pi, "Hypot": mp.hypot,
    "Add": lambda x, y: x + y, "Sub": lambda x, y: x - y, "Mul": lambda x, y: x * y,
    "CopySign": lambda x, y: abs(x) * (1 if y >= 0 else -1),
    "Fdim": lambda x, y: x - y if x > y else mp.mpf(0), "Fmax": max, "Fmin": min,
    "MaxMag": lambda x, y: x if abs(x) > abs(y) else y if abs(y) > abs(x) else max(x, y),
    "MinMag": lambda x, y: x if abs(x) < abs(y) else y if abs(y) < abs(x) else min(x, y),
    "Fmod": lambda x, y: x - y * (mp.sign(x / y) * mp.floor(abs(x / y))), "Remainder": lambda x, y: x - y * mp.nint(x / y),
}
TWO = {"SinCos": (mp.sin, mp.cos), "Modf": (lambda x: mp.sign(x) * mp.floor(abs(x)),
                                           lambda x: x - mp.sign(x) * mp.floor(abs(x)))}
NUMPY_EXACT = {"NextAfter": np.nextafter}


def _bound(level, dtype, rule):
    if rule.startswith("Exact"):
        return 0.5  # the correctly rounded operation, or the exact value
    if rule == "Rounded" and level == "ha":
        return 0.5
    if level == "ha":
        return 1.0
    if level == "la":
        return 4.0
    return 2.0 ** (53 - 26) if dtype == np.float64 else 2.0 ** (24 - 11)


def _samples(rng, dom, lo, hi, n, dtype):
    x = rng.uniform(lo, hi, n)
    top = max(abs(lo), abs(hi), 1e-300)
    mags = 10.0 ** rng.uniform(-12, math.log10(top), n // 4)
    signs = np.where(rng.random(n // 4) < 0.5, -1.0, 1.0) if lo < 0 else 1.0
    x = np.concatenate([x, np.clip(mags * signs, lo, hi)])
    if dom == "Pos":
        x = np.abs(x)
    elif dom == "GeOne":
        x = np.maximum(x, 1.0)
    return x.astype(dtype)


def _ulps(y, ref, dtype):
    """Error of y against the mpmath value ref in ulps of dtype; None when ref lies
    outside dtype's range (the point says nothing about the row)."""
    r = float(ref)
    if not math.isfinite(r) or abs(r) > np.finfo(dtype).max:
        return None
    if not math.isfinite(float(y)):
        return math.inf
    spacing = float(np.spacing(np.abs(dtype(r)))) if r != 0 else float(np.finfo(dtype).smallest_subnormal)
    return float(abs(mp.mpf(float(y)) - ref)) / spacing


def _families():
    out = []
    for fname, rows in sorted(brenn.vm.FAMILIES.items()):
        for r in rows:
            t, name = r[1], r[2:]
            if t in "sd":
                out.append((fname, t, name))
    return out


@pytest.mark.parametrize("fname,t,name", _families())
def test_within_level_bound(fname, t, name):
    ref, rule, dom, lo, hi, blo, bhi, family = ROWS[(t, name)]
    if not family or (not rule.startswith("Exact") and t + name not in CEILED):
        # Kernels built but not yet entered in the accuracy tool's lists (its family
        # or its ceilings): a row in the making, reported here without failing.
        pytest.xfail(f"v{t}{name} has no ceilings in tools/accuracy/ceilings.def yet")
    dtype = np.float32 if t == "s" else np.float64
    rng = np.random.default_rng(zlib.crc32((t + name).encode()))
    n = 24 if QUICK else 120
    a = _samples(rng, dom, lo, hi, n, dtype)
    b = _samples(rng, "Any", blo, bhi, n, dtype) if blo != bhi else None
    f = getattr(brenn.vm, fname)
    if ref in NUMPY_EXACT:
        for level in ("ha", "la", "ep"):
            np.testing.assert_array_equal(f(a, b, accuracy=level), NUMPY_EXACT[ref](a, b))
        return
    if ref == "LinearFrac":
        b = (np.abs(b) / dtype(10)).astype(dtype)  # -1.5 b + 3 stays in [1.5, 3], off the pole
        # Numerator and denominator rounded as the row forms them; the quotient exact.
        num = a * dtype(2.0) + dtype(0.5)
        den = b * dtype(-1.5) + dtype(3.0)
        refs = [lambda x, y: x / y]
        call = lambda lv: (f(a, b, 2.0, 0.5, -1.5, 3.0, accuracy=lv),)
        inputs = [(x, y) for x, y in zip(num, den)]
    elif name == "Powx":
        power = dtype(1.75)
        refs = [lambda x: mp.power(x, mp.mpf(float(power)))]
        call = lambda lv: (f(a, power, accuracy=lv),)
        inputs = [(x,) for x in a]
    elif ref in TWO:
        refs = list(TWO[ref])
        call = lambda lv: f(a, accuracy=lv)
        inputs = [(x,) for x in a]
    elif ref in BINARY:
        refs = [BINARY[ref]]
        call = lambda lv: (f(a, b, accuracy=lv),)
        inputs = [(x, y) for x, y in zip(a, b)]
    elif ref in UNARY:
        refs = [UNARY[ref]]
        call = lambda lv: (f(a, accuracy=lv),)
        inputs = [(x,) for x in a]
    else:
        pytest.skip(f"no mpmath reference for {ref} yet")
    expected = []
    for r in refs:
        vals = []
        for args in inputs:
            try:
                vals.append(r(*[mp.mpf(float(v)) for v in args]))
            except (ValueError, ZeroDivisionError):
                vals.append(None)
        expected.append(vals)
    with brenn.errstate(all="ignore"):
        for level in ("ha", "la", "ep"):
            bound = _bound(level, dtype, rule)
            results = call(level)
            for out, vals in zip(results, expected):
                assert out.dtype == dtype
                for i, (y, ref_v) in enumerate(zip(out, vals)):
                    if ref_v is None or not isinstance(ref_v, mp.mpf):
                        continue
                    err = _ulps(y, ref_v, dtype)
                    if err is None:
                        continue
                    assert err <= bound + 1e-9, (
                        f"{fname} {t} {level}: {inputs[i]} gives {y!r}, error {err:.3g} ulp > {bound}")
