"""Objects of the Python package that learn, split bands and decode."""
import unittest

import numpy as np
import tarns


class Adaptive(unittest.TestCase):
    def test_blocks(self):
        x = np.random.default_rng(5).uniform(-1, 1, 4000).astype(np.float32)
        wanted = np.convolve(x, [0.5, 0, -0.25])[:4000].astype(np.float32)
        whole, parts = tarns.LMS(3), tarns.LMS([0, 0, 0])
        y = whole(x, wanted, 0.05)
        np.testing.assert_allclose(whole.taps, [0.5, 0, -0.25], atol=1e-5)
        out = x.copy()
        np.testing.assert_array_equal(np.concatenate([parts(x[:700], wanted[:700], 0.05),
                                                      parts(out[700:], wanted[700:], 0.05, out=out[700:])]), y)
        parts.delay_line = whole.delay_line
        np.testing.assert_array_equal(parts(x, wanted, 0), whole(x, wanted, 0))
        # As the formula has it.
        taps, line, expected = np.zeros(3), np.zeros(3), []
        for sample, reference in zip(x[:200].astype(float), wanted[:200].astype(float)):
            line = np.concatenate([[sample], line[:2]])
            expected.append(taps @ line)
            taps += 2 * 0.05 * (reference - expected[-1]) * line
        np.testing.assert_allclose(y[:200], expected, atol=1e-5)
        words = tarns.LMS([65536.0], np.int16)
        np.testing.assert_array_equal(words([1, -2, 3], [0, 0, 0], 0), [1, -2, 3])
        for wrong in (lambda: whole(x, wanted[:3], 0), lambda: tarns.LMS(3, np.float64), lambda: tarns.LMS(0)):
            with self.assertRaises((ValueError, TypeError)):
                wrong()

    def test_fixed_point(self):
        filter_ = tarns.FixedLMS([0], 200000)
        for _ in range(100):
            output = filter_(10000) >> 15
            filter_.update(5000 - output)
        self.assertEqual(output, 5000)
        filter_.taps = [1 << 30]
        filter_.put(20000)
        self.assertEqual(filter_.output(), 20000 << 14)
        taps = np.zeros(1, tarns.complex_int32)
        taps["im"] = 1 << 16
        self.assertEqual(tarns.FixedLMS(taps, 0)((5, 7)), (-7, 5))
        with self.assertRaises(tarns.Error):
            tarns.FixedLMS([0], 0, tap_step=0)


class Banks(unittest.TestCase):
    def test_there_and_back(self):
        x = np.array([8, 16, 24, 8, 0, 8, 40, 8])
        for dtype in (np.float32, np.int8, np.uint8, np.int16, np.uint16):
            split, join = tarns.WaveletSplit([0.5, 0.5], [0.5, -0.5], dtype=dtype), tarns.WaveletJoin(
                [1, 1], [-1, 1], dtype=dtype)
            back = np.concatenate([join(*split(part)) for part in np.split(x.astype(dtype), 4)])
            np.testing.assert_array_equal(back[1:], x[:-1])
            self.assertEqual(back.dtype, dtype)
            np.testing.assert_array_equal(split.delay_lines, [[8], [8]])
            self.assertEqual(len(join.delay_lines[0]), 0)
            other = tarns.WaveletSplit([0.5, 0.5], [0.5, -0.5], dtype=dtype)
            other.delay_lines = split.delay_lines
            np.testing.assert_array_equal(other(x.astype(dtype)), split(x.astype(dtype)))
        with self.assertRaises(ValueError):
            split(np.zeros(3, np.uint16))
        with self.assertRaises(tarns.Error):
            tarns.WaveletSplit([1], [1], -2)
        with self.assertRaises(TypeError):
            tarns.WaveletSplit([1], [1], dtype=np.float64)

    def test_decoder(self):
        """An encoder whose branch's lowest bit is the register's, as the manual has it, without noise but for a unit."""
        row, column = np.divmod(np.arange(16), 4)
        subsets = np.where(row % 2 == 0, column % 2, 3 - column % 2)
        polynomials = (13, 3, 4)
        following = np.empty((16, 4), np.uint8)
        for state in range(16):
            for branch in range(4):
                entry, to = (state & 1) + 2 * branch, state >> 1
                for bit, polynomial in enumerate(polynomials):
                    to ^= polynomial if entry >> bit & 1 else 0
                following[state, branch] = to
        generator = np.random.default_rng(6)
        state, path, sent = 0, [], np.zeros(80, tarns.complex_int16)
        for n in range(40):
            branch = int(generator.integers(4))
            entry = (state & 1) + 2 * branch
            first = entry >> 2
            wanted = (first, (entry + first) & 3)
            if generator.integers(2):
                wanted = ((first + 2) & 3, (wanted[1] + 2) & 3)
            for half in (0, 1):
                at = generator.choice(np.flatnonzero(subsets == wanted[half]))
                sent[2 * n + half] = (256 * (at % 4) - 384, 256 * (at // 4) - 384)
            path.append(state)
            state = following[state, branch]
        received = sent.copy()
        received["re"] += generator.integers(-90, 91, 80).astype(np.int16)
        decoder = tarns.TrellisDecoder(16, subsets, following)
        decoder(received[:30])
        decoder(received[30:])
        points, states = decoder.points()
        np.testing.assert_array_equal(points, sent)
        np.testing.assert_array_equal(states, path)
        decoder.restart()
        self.assertEqual(len(decoder.points()[0]), 0)
        with self.assertRaises(ValueError):
            tarns.TrellisDecoder(8, subsets, following)


if __name__ == "__main__":
    unittest.main()
