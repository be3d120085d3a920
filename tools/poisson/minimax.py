"""Refines a Cornish-Fisher row by minimising its largest total variation distance to
the Poisson pmf over a grid of lambdas (row_model.RowGrid), by sequential linear
programming: at each step the count probabilities are linearised in the row's free
entries (forward differences), and the linear program

    minimise s  subject to  1/2 sum_k |err_jk + J_jk d| <= s  for every lambda j,
                            |d_i| <= the step bound of entry i

(the absolute values as pairs of inequalities) gives the step d; a step that does not
lower the true largest distance is halved, one that does widens the next bound. The
distance is not convex in the entries, so this finds a local minimax from the
least-squares row."""
import numpy as np
from scipy.optimize import linprog
from scipy.sparse import csr_matrix, hstack, identity, kron, vstack

STEPS = 30
FIRST_BOUND = 0.3  # in units of 1e-3 of the largest change of a probability
DIFFERENCE = 1e-7


def _jacobian(T, grid, free, base):
    cols = []
    for i in free:
        h = DIFFERENCE * max(1.0, abs(T[i]))
        moved = T.copy()
        moved[i] += h
        cols.append(((grid.errors(moved) - base) / h).reshape(-1))
    return np.stack(cols, -1)


def _step(err, J, bounds, lambdas):
    L, m = J.shape
    per = L // lambdas
    eye = identity(L, format="csr")
    zero = csr_matrix((L, 1))
    rows = kron(identity(lambdas), np.full((1, per), 0.5))
    A = vstack([hstack([csr_matrix(J), -eye, zero]),
                hstack([csr_matrix(-J), -eye, zero]),
                hstack([csr_matrix((lambdas, m)), rows, csr_matrix(-np.ones((lambdas, 1)))])])
    b = np.concatenate([-err, err, np.zeros(lambdas)])
    cost = np.zeros(m + L + 1)
    cost[-1] = 1.0
    box = [(-x, x) for x in bounds] + [(0, None)] * (L + 1)
    res = linprog(cost, A_ub=A.tocsr(), b_ub=b, bounds=box, method="highs")
    return res.x[:m]


def refine(T, grid, free):
    """The row T (23 entries) with the entries listed in `free` moved to lower its
    largest distance over `grid`; returns the row and that distance."""
    T = np.array(T, dtype=np.float64)
    free = list(free)
    worst = grid.tv(T).max()
    bound = FIRST_BOUND
    for _ in range(STEPS):
        base = grid.errors(T)
        J = _jacobian(T, grid, free, base)
        unit = 1e-3 / np.maximum(np.abs(J).max(0), 1e-30)
        while bound >= 1e-4:
            d = _step(base.reshape(-1), J, bound * unit, len(grid.ts))
            moved = T.copy()
            moved[free] += d
            new = grid.tv(moved).max()
            if new < worst:
                gain = worst - new
                T, worst, bound = moved, new, min(1.5 * bound, 10.0)
                break
            bound *= 0.5
        else:
            break
        if gain < 1e-4 * worst:
            break
    return T, worst
