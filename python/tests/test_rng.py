"""brenn.rng: the bit generators inside numpy.random.Generator (numpy's MT19937
reproduced where seeds map, the library's own words, the forms made from the uniforms
of the families without full 32-bit words), jumps, leapfrog, pickling in the middle
of a block, and the streams' bulk draws."""
import pickle

import numpy as np
import pytest

import brenn
from brenn import rng


def _numpy_mt(seed_words):
    m = np.random.MT19937()
    m._legacy_seeding(seed_words)
    return m


@pytest.mark.parametrize("seed", [0, 1, 7, 2**32 - 1])
def test_mt19937_is_numpys_sequence(seed):
    ours, theirs = rng.MT19937(seed), _numpy_mt([seed])
    np.testing.assert_array_equal(ours.random_raw(2000), theirs.random_raw(2000))
    g, h = np.random.Generator(rng.MT19937(seed)), np.random.Generator(_numpy_mt([seed]))
    np.testing.assert_array_equal(g.random(3000), h.random(3000))
    np.testing.assert_array_equal(g.integers(0, 10**12, 500), h.integers(0, 10**12, 500))
    np.testing.assert_array_equal(g.standard_normal(2000), h.standard_normal(2000))
    np.testing.assert_array_equal(g.random(7, dtype=np.float32), h.random(7, dtype=np.float32))


# Bits of the field each uniform makes, for the families served through their uniforms.
UNIFORM_BITS = {"MCG31M1": 31, "R250": 32, "MRG32K3A": 32, "WH": 32}
WORD_FAMILIES = sorted(set(rng.FAMILIES) - set(UNIFORM_BITS))


@pytest.mark.parametrize("name", WORD_FAMILIES)
def test_words_are_the_streams_own(name):
    words = rng.Stream(name, seed=[5, 6]).bits32(3000)
    np.testing.assert_array_equal(rng.FAMILIES[name]([5, 6]).random_raw(3000), words)


class _Forms:
    """numpy's draws as the module's description makes them from a stream's uniforms:
    a double is a uniform; a word is the top bits of successive uniforms' fields."""

    def __init__(self, u, bits):
        self.u, self.bits, self.at = u, bits, 0

    def _next(self):
        self.at += 1
        return self.u[self.at - 1]

    def double(self):
        return self._next()

    def raw(self):
        return int(self._next() * 2.0**self.bits)

    def word(self, want):
        acc, have = 0, 0
        while have < want:
            take = min(self.bits, want - have)
            acc = acc << take | self.raw() >> (self.bits - take)
            have += take
        return acc


@pytest.mark.parametrize("name", sorted(set(UNIFORM_BITS) & set(rng.FAMILIES)))
def test_uniform_families_through_their_forms(name):
    ref = _Forms(rng.Stream(name, seed=[5, 6]).uniform(30000), UNIFORM_BITS[name])
    g = np.random.Generator(rng.FAMILIES[name]([5, 6]))
    draws = {"double": (lambda n: g.random(n), ref.double),
             "32": (lambda n: g.integers(0, 2**32, n, dtype=np.uint32), lambda: ref.word(32)),
             "64": (lambda n: g.integers(0, 2**64, n, dtype=np.uint64), lambda: ref.word(64)),
             "raw": (lambda n: g.bit_generator.random_raw(n), ref.raw)}
    # Interleaved, and across the first block's end (4096 uniforms).
    for kind, n in [("double", 7), ("32", 5), ("64", 3), ("raw", 2), ("double", 1),
                    ("64", 3000), ("32", 1), ("raw", 3), ("double", 2)]:
        ours, expected = draws[kind][0](n), [draws[kind][1]() for _ in range(n)]
        np.testing.assert_array_equal(ours, np.array(expected, dtype=ours.dtype), err_msg=kind)
    if name == "MCG31M1":  # the fields are the generator's words: x, a x, a^2 x, ...
        np.testing.assert_array_equal(rng.MCG31M1(0).random_raw(3),
                                      [1, 1132489760, 1132489760**2 % (2**31 - 1)])


@pytest.mark.parametrize("name", sorted(rng.FAMILIES))
def test_jumped_and_pickled_mid_block(name):
    b = rng.FAMILIES[name](11)
    head = b.random_raw(700)  # inside the first block of words
    for skip in (0, 5, 324, 2000):
        try:
            j = b.jumped(skip)
        except NotImplementedError:
            assert skip > 324  # words already drawn serve a short jump of any family
            continue
        ahead = rng.FAMILIES[name](11).random_raw(700 + skip + 10)[700 + skip:]
        np.testing.assert_array_equal(j.random_raw(10), ahead)
    # Pickled in the first block, and after several refills (whose blocks may grow).
    for read in (0, 20000):
        b.random_raw(read)
        clone = pickle.loads(pickle.dumps(b))
        assert type(clone) is type(b)
        np.testing.assert_array_equal(clone.random_raw(2000), b.random_raw(2000))
    state = b.state
    after = b.random_raw(50)
    b.state = state
    np.testing.assert_array_equal(b.random_raw(50), after)
    assert head.max() < 2**32
    with pytest.raises(ValueError):
        b.state = dict(state, unread=np.zeros((2, 2)))


@pytest.mark.parametrize("name", sorted(rng.FAMILIES))
def test_leapfrog_takes_every_nth_word(name):
    cls = rng.FAMILIES[name]
    try:
        cls(3).leapfrog(0, 3)
    except NotImplementedError:
        pytest.skip(f"{name} has no leapfrog")
    whole = cls(3).random_raw(40)
    for k in range(3):
        b = cls(3)
        b.leapfrog(k, 3)
        np.testing.assert_array_equal(b.random_raw(10), whole[k::3][:10])
    b = cls(3)
    b.random_raw(1)
    with pytest.raises(ValueError):
        b.leapfrog(0, 2)
    with pytest.raises(ValueError):
        cls(3).leapfrog(3, 3)


def test_members_and_seeds():
    for name, member in (("MT2203", 5), ("WH", 272)):
        if name in rng.FAMILIES:
            a, b = rng.FAMILIES[name](1), rng.FAMILIES[name](1, member=member)
            assert b.brng == a.brng + member
            assert not np.array_equal(a.random_raw(20), b.random_raw(20))
    # A legacy id is served in the form of its family, and pickled state given as a
    # list serves as well as the array.
    for legacy, name, member in ((0, "MCG31M1", 0), (3, "MCG59", 0), (11, "WH", 7)):
        if name in rng.FAMILIES:
            b = rng.FAMILIES[name](5, member=member)
            b.random_raw(3)
            source = brenn._brenn.rng.BitSource(legacy, [5])
            source.random_raw(3)
            source = brenn._brenn.rng.BitSource.load(source.image(), list(source.unread()))
            np.testing.assert_array_equal(source.random_raw(5000), b.random_raw(5000))
    # A seed beyond 32 bits is its words, low first.
    np.testing.assert_array_equal(rng.MT19937(2**32 + 3).random_raw(5), rng.MT19937([3, 1]).random_raw(5))
    for bad in (-1, [2**32], []):
        with pytest.raises(ValueError):
            rng.MT19937(bad)
    with pytest.raises(ValueError):
        rng.Stream("NOSUCH")


@pytest.mark.parametrize("name", sorted(rng.FAMILIES))
def test_every_family_serves_a_generator(name):
    # R250 seeded by one word starts with its low bit positions nearly empty (each
    # position is a shift register of its own): it is given a full ring here.
    seed = np.random.default_rng(9).integers(0, 2**32, 250) if name == "R250" else 9
    g = np.random.Generator(rng.FAMILIES[name](seed))
    x = g.random(20000)
    assert 0.0 <= x.min() and x.max() < 1.0 and abs(x.mean() - 0.5) < 0.01
    assert g.bit_generator.lock is not None
    # Every bit of numpy's words varies (a constant bit would skew its ziggurat and
    # its bounded integers): each is set in 50 % +- 5 sigma of the draws.
    n = 20000
    for width, dtype in ((32, np.uint32), (64, np.uint64)):
        w = g.integers(0, 2**width, n, dtype=dtype)
        ones = ((w[:, None] >> np.arange(width, dtype=dtype)) & dtype(1)).mean(axis=0)
        assert np.abs(ones - 0.5).max() < 5 * 0.5 / np.sqrt(n), width
    z = g.standard_normal(n)
    assert abs(z.mean()) < 0.04 and abs(z.std() - 1.0) < 0.03


def test_stream_draws():
    s = rng.Stream("MT19937", 4)
    u = s.uniform(100000, -2.0, 3.0)
    assert u.dtype == np.float64 and u.min() >= -2.0 and u.max() < 3.0
    assert abs(u.mean() - 0.5) < 0.02
    f = s.uniform(1000, dtype=np.float32)
    assert f.dtype == np.float32
    i = s.integers(100000, -3, 4)
    assert set(np.unique(i)) == set(range(-3, 4))
    assert abs(s.bernoulli(100000, 0.25).mean() - 0.25) < 0.01
    assert abs(s.geometric(100000, 0.5).mean() - 1.0) < 0.03
    c = s.copy()
    np.testing.assert_array_equal(c.bits32(10), s.bits32(10))
    p = pickle.loads(pickle.dumps(s))
    np.testing.assert_array_equal(p.uniform(10), s.uniform(10))
    t = s.copy()
    t.skip_ahead(5)
    np.testing.assert_array_equal(t.bits32(3), s.bits32(8)[5:])
    with pytest.raises(ValueError):
        s.uniform(10, 2.0, 1.0)
    with pytest.raises(ValueError):
        s.bernoulli(10, 1.5)
    with pytest.raises(TypeError):
        s.uniform(10, dtype=np.int32)
    assert s.uniform(0).shape == (0,)
