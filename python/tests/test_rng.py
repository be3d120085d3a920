"""brenn.rng: the bit generators inside numpy.random.Generator (numpy's MT19937
reproduced where seeds map, the library's own words), jumps, leapfrog, pickling in
the middle of a block of words, and the streams' bulk draws."""
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


@pytest.mark.parametrize("name", sorted(rng.FAMILIES))
def test_words_are_the_streams_own(name):
    words = rng.Stream(name, seed=[5, 6]).bits32(3000)
    np.testing.assert_array_equal(rng.FAMILIES[name]([5, 6]).random_raw(3000), words)


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
    clone = pickle.loads(pickle.dumps(b))
    assert type(clone) is type(b)
    np.testing.assert_array_equal(clone.random_raw(2000), b.random_raw(2000))
    state = b.state
    after = b.random_raw(50)
    b.state = state
    np.testing.assert_array_equal(b.random_raw(50), after)
    assert head.max() < 2**32


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
    if "MT2203" in rng.FAMILIES:
        a, b = rng.MT2203(1, member=0), rng.MT2203(1, member=5)
        assert b.brng == a.brng + 5
        assert not np.array_equal(a.random_raw(20), b.random_raw(20))
    # A seed beyond 32 bits is its words, low first.
    np.testing.assert_array_equal(rng.MT19937(2**32 + 3).random_raw(5), rng.MT19937([3, 1]).random_raw(5))
    for bad in (-1, [2**32], []):
        with pytest.raises(ValueError):
            rng.MT19937(bad)
    with pytest.raises(ValueError):
        rng.Stream("NOSUCH")


def test_every_family_serves_a_generator():
    for name, cls in rng.FAMILIES.items():
        g = np.random.Generator(cls(9))
        x = g.random(20000)
        assert 0.0 <= x.min() and x.max() < 1.0 and abs(x.mean() - 0.5) < 0.01, name
        assert g.bit_generator.lock is not None


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
