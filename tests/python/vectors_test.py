"""Functions of vectors through the Python package, beside NumPy."""
import threading
import time
import unittest
import warnings

import numpy as np
import tarns


class Vectors(unittest.TestCase):
    def setUp(self):
        generator = np.random.default_rng(1)
        self.x = generator.standard_normal(1000).astype(np.float32)
        self.y = generator.standard_normal(1000).astype(np.float32)
        self.a = generator.integers(-32768, 32768, 1000).astype(np.int16)
        self.b = generator.integers(-32768, 32768, 1000).astype(np.int16)

    def test_chooses_by_types(self):
        np.testing.assert_array_equal(tarns.add(self.x, self.y), self.x + self.y)
        np.testing.assert_array_equal(tarns.mul(self.x.astype("f8"), self.y.astype("f8")),
                                      self.x.astype("f8") * self.y.astype("f8"))
        wide = self.a.astype(np.int32) + self.b
        np.testing.assert_array_equal(tarns.add(self.a, self.b), np.clip(wide, -32768, 32767))
        np.testing.assert_array_equal(tarns.add(self.a, self.b, scale=1), np.rint(wide / 2))
        self.assertEqual(tarns.add(self.a, self.b, dtype=np.float32).dtype, np.float32)
        z = (self.x + 1j * self.y).astype(np.complex64)
        np.testing.assert_allclose(tarns.magnitude(z), np.abs(z), rtol=1e-6)
        np.testing.assert_array_equal(tarns.add(self.x, 1.5), self.x + np.float32(1.5))
        np.testing.assert_array_equal(tarns.bit_and(self.a.view(np.uint16), self.b.view(np.uint16)),
                                      (self.a & self.b).view(np.uint16))
        np.testing.assert_array_equal(tarns.filter_median(self.a, 3)[1:-1],
                                      np.median([self.a[:-2], self.a[1:-1], self.a[2:]], axis=0))

    def test_complex_integers_are_records(self):
        pairs = np.zeros(3, tarns.complex_int16)
        pairs["re"], pairs["im"] = [1, 2, 3], [-1, -2, -3]
        double = tarns.add(pairs, pairs, scale=0)
        np.testing.assert_array_equal(double["im"], [-2, -4, -6])

    def test_results(self):
        self.assertAlmostEqual(tarns.total(self.x), float(self.x.sum()), places=3)
        self.assertAlmostEqual(tarns.mean(self.x), float(self.x.mean()), places=6)
        self.assertEqual(tarns.max_indx(self.x), (self.x.max(), int(self.x.argmax())))
        self.assertAlmostEqual(tarns.dot_prod(self.x.astype("f8"), self.y.astype("f8")), float(self.x.astype("f8") @ self.y))

    def test_out(self):
        out = np.empty(1000, np.float32)
        self.assertIs(tarns.sub(self.x, self.y, out=out), out)
        fresh = tarns.sub(self.x, self.y)
        np.testing.assert_array_equal(out, fresh)
        place = self.x.copy()
        tarns.sub(place, self.y, out=place)
        np.testing.assert_array_equal(place, fresh)
        place = self.y.copy()
        tarns.sub(self.x, place, out=place)
        np.testing.assert_array_equal(place, fresh)
        place = self.x.copy()
        np.testing.assert_array_equal(tarns.flip(place, out=place), self.x[::-1])
        every = np.zeros(2000, np.float32)
        tarns.add(self.x, self.y, out=every[::2])
        np.testing.assert_array_equal(every[::2], self.x + self.y)
        self.assertFalse(every[1::2].any())
        part = np.arange(10, dtype=np.float32)
        tarns.copy(part[:9], out=part[1:])  # overlapping: as if there were two arrays
        np.testing.assert_array_equal(part, [0, 0, 1, 2, 3, 4, 5, 6, 7, 8])

    def test_plans_know_what_they_cannot_do(self):
        """The second call of a kind takes a short way: what the first one refused or copied is the same there."""
        for _ in range(3):
            np.testing.assert_array_equal(tarns.add(self.x, self.y), self.x + self.y)
            np.testing.assert_array_equal(tarns.add(self.x[::2], self.y[1::2]), self.x[::2] + self.y[1::2])
            np.testing.assert_array_equal(tarns.add(self.a, self.b, scale=2), np.rint((self.a.astype(int) + self.b) / 4))
            np.testing.assert_array_equal(tarns.add(self.x, 0.5), self.x + np.float32(0.5))
            self.assertEqual(tarns.max_indx(self.x), (self.x.max(), int(self.x.argmax())))
            self.assertEqual(tarns.convert(self.a, dtype=np.float32).dtype, np.float32)
            with self.assertRaisesRegex(ValueError, "src2 has 3 elements"):
                tarns.add(self.x, self.y[:3])
            with self.assertRaises(TypeError):
                tarns.add(self.x.reshape(10, 100), self.y.reshape(10, 100))
            with self.assertRaises(tarns.Error):
                tarns.add(self.x[:0], self.y[:0])
            out = np.empty(1000, np.float32)
            self.assertIs(tarns.sub(self.x, self.y, out=out), out)
            np.testing.assert_array_equal(out, tarns.sub(self.x, self.y))
            place = self.y.copy()
            self.assertIs(tarns.sub(self.x, place, out=place), place)
            np.testing.assert_array_equal(place, out)
            part = np.arange(10, dtype=np.float32)
            tarns.copy(part[:9], out=part[1:])
            np.testing.assert_array_equal(part, [0, 0, 1, 2, 3, 4, 5, 6, 7, 8])
            part = np.arange(10, dtype=np.float32)
            tarns.sub(part[:9], part[1:], out=part[1:])
            np.testing.assert_array_equal(part[1:], np.ones(9))
            fixed = np.empty(1000, np.float32)
            fixed.flags.writeable = False
            with self.assertRaisesRegex(ValueError, "read-only"):
                tarns.add(self.x, self.y, out=fixed)
            with self.assertRaisesRegex(ValueError, "is wanted"):
                tarns.add(self.x, self.y, out=out[:3])
            with self.assertWarns(tarns.Warning) as caught:
                tarns.div(np.zeros(1000, np.float32), self.x)
            self.assertEqual(caught.filename, __file__)

    def test_strides_and_lists(self):
        np.testing.assert_array_equal(tarns.add(self.x[::2], self.y[::-2]), self.x[::2] + self.y[::-2])
        np.testing.assert_array_equal(tarns.sqr([1.0, 2.0]), [1, 4])

    def test_without_sources(self):
        np.testing.assert_array_equal(tarns.zero(size=3, dtype=np.int16), np.zeros(3, np.int16))
        np.testing.assert_array_equal(tarns.fill(2.5, size=3, dtype=np.float64), [2.5] * 3)
        np.testing.assert_array_equal(tarns.vector_ramp(1, 2, size=4, dtype=np.float32), [1, 3, 5, 7])
        with self.assertRaises(TypeError):
            tarns.zero()

    def test_errors(self):
        with self.assertRaisesRegex(TypeError, r"takes no \(float32, int16\); it takes .*\(int16, int16\)"):
            tarns.add(self.x, self.a)
        with self.assertRaisesRegex(ValueError, "src2 has 3 elements, and 1000 are wanted"):
            tarns.add(self.x, self.y[:3])
        with self.assertRaises(tarns.Error) as caught:
            tarns.total(self.x[:0])
        self.assertLess(caught.exception.status, 0)
        with self.assertRaises(TypeError):
            tarns.add(self.x, self.y, scale=1)
        with self.assertRaises(TypeError):
            tarns.add(self.x, self.y, out=np.empty(1000))
        with self.assertRaises(TypeError):
            tarns.add(self.x, self.y, loud=1)
        with self.assertRaises(TypeError):
            tarns.add(self.x.reshape(10, 100), self.y)
        with warnings.catch_warnings(record=True) as seen:
            warnings.simplefilter("always")
            tarns.div(np.zeros(1000, np.float32), self.x)  # the first is the divisor
        self.assertEqual(seen[0].category, tarns.Warning)
        self.assertEqual(seen[0].filename, __file__)

    def test_other_threads_run(self):
        """A long call lets another thread count meanwhile."""
        long = np.zeros(1 << 24, np.float32)
        counted = 0
        done = threading.Event()

        def call():
            for _ in range(5):
                tarns.exp(long)
            done.set()

        caller = threading.Thread(target=call)
        caller.start()
        longest, last = 0.0, time.perf_counter()
        while not done.is_set():
            counted += 1
            time.sleep(0)
            now = time.perf_counter()
            longest, last = max(longest, now - last), now
        caller.join()
        self.assertGreater(counted, 20)

    def test_every_function_has_its_documentation(self):
        names = [name for name in dir(tarns) if callable(getattr(tarns, name)) and not name.startswith("_")]
        self.assertGreater(len(names), 100)
        for name in names:
            self.assertTrue(getattr(tarns, name).__doc__, name)
        self.assertIn("tarnsAdd_16s_Sfs", tarns.add.__doc__)


if __name__ == "__main__":
    unittest.main()
