"""Transforms and filters of the Python package, beside SciPy."""
import unittest

import numpy as np
import tarns

try:
    from scipy import fft, signal
except ImportError:
    signal = None


class Transforms(unittest.TestCase):
    def test_fourier(self):
        generator = np.random.default_rng(2)
        for size in (1, 2, 9, 16, 60, 101, 1024):
            for dtype, limit in ((np.float32, 1e-5), (np.float64, 1e-13)):
                x = generator.standard_normal(size).astype(dtype)
                real = tarns.FFT(size, dtype)
                expected = np.fft.rfft(x.astype("f8"))
                np.testing.assert_allclose(real.forward(x), expected, atol=limit * max(abs(expected)))
                np.testing.assert_allclose(real.inverse(real.forward(x)), x, atol=limit * max(abs(x)))
                z = (x + 1j * generator.standard_normal(size)).astype("F" if dtype == np.float32 else "D")
                for norm in ("backward", "forward", "ortho"):
                    expected = np.fft.fft(z.astype("D"), norm=norm)
                    np.testing.assert_allclose(tarns.FFT(size, z.dtype, norm).forward(z), expected,
                                               atol=limit * max(abs(expected)))
        with self.assertRaisesRegex(ValueError, "16 samples are wanted"):
            tarns.FFT(16).forward(np.zeros(15))
        with self.assertRaises(tarns.Error):
            tarns.FFT(0)
        with self.assertRaises(TypeError):
            tarns.FFT(16, np.int32)

    @unittest.skipIf(signal is None, "no SciPy")
    def test_cosine_and_analytic(self):
        x = np.random.default_rng(3).standard_normal(100)
        transform = tarns.DCT(100, np.float64)
        np.testing.assert_allclose(transform.forward(x), fft.dct(x, norm="ortho"), atol=1e-12)
        np.testing.assert_allclose(transform.inverse(transform.forward(x)), x, atol=1e-12)
        np.testing.assert_allclose(tarns.hilbert(x), signal.hilbert(x), atol=1e-5)


class Filters(unittest.TestCase):
    def setUp(self):
        self.x = np.random.default_rng(4).standard_normal(1000)

    def blocks(self, run):
        return np.concatenate([run(self.x[:300]), run(self.x[300:301]), run(self.x[301:])])

    @unittest.skipIf(signal is None, "no SciPy")
    def test_against_scipy(self):
        taps = signal.firwin(31, 0.3)
        np.testing.assert_allclose(self.blocks(tarns.FIR(taps, np.float64)), signal.lfilter(taps, 1, self.x), atol=1e-13)
        b, a = signal.butter(3, 0.2)
        np.testing.assert_allclose(self.blocks(tarns.IIR(b, a)), signal.lfilter(b, a, self.x), atol=1e-12)
        sos = signal.ellip(8, 0.5, 60, 0.3, output="sos")
        np.testing.assert_allclose(self.blocks(tarns.Biquads(sos)), signal.sosfilt(sos, self.x), atol=1e-11)
        resampler = tarns.Resampler(taps, 3, 2, np.float64)
        np.testing.assert_allclose(resampler(self.x), signal.upfirdn(taps, self.x, 3, 2)[:1500], atol=1e-13)
        np.testing.assert_allclose(tarns.convolve(self.x, taps), np.convolve(self.x, taps), atol=1e-12)
        np.testing.assert_allclose(tarns.firwin(31, high=0.15), signal.firwin(31, 0.3), atol=2e-3)

    def test_states_go_on(self):
        first = tarns.Biquads([[1, 0.5, 0, 1, -0.9, 0.2]])
        whole = first(self.x)
        second = tarns.Biquads([[1, 0.5, 0, 1, -0.9, 0.2]])
        begin = second(self.x[:500])
        third = tarns.Biquads([[1, 0.5, 0, 1, -0.9, 0.2]])
        third.delay_line = second.delay_line
        np.testing.assert_allclose(np.concatenate([begin, third(self.x[500:])]), whole, atol=1e-14)
        taps = [1, 2, 3]
        fir = tarns.FIR(taps, np.float64)
        fir([4.0, 5.0, 6.0])
        np.testing.assert_array_equal(fir.delay_line, [6, 5, 4])
        fir.delay_line = np.zeros(3)
        block = np.array([1.0, 0, 0, 0])
        self.assertIs(fir(block, out=block), block)
        np.testing.assert_array_equal(block, [1, 2, 3, 0])

    def test_integers(self):
        fir = tarns.FIR([1, 2, 3], np.int16)
        np.testing.assert_array_equal(fir(np.array([1, 2, 3], np.int16), scale=1), [0, 2, 5])
        with self.assertRaises(TypeError):
            tarns.FIR([1.0])(np.zeros(3), scale=1)

    def test_refusals(self):
        with self.assertRaises(tarns.Error):
            tarns.FIR([])
        with self.assertRaises(ValueError):
            tarns.Biquads(np.ones(7))
        with self.assertRaises(ValueError):
            tarns.Resampler([1.0], 1, 2)(np.zeros(3))
        with self.assertRaises(tarns.Error) as caught:
            tarns.IIR([1.0], [0.0, 1.0])
        self.assertIn("divide by zero", str(caught.exception))
        np.testing.assert_array_equal(tarns.correlate([1.0, -1.0], [1.0, 2.0, 3.0], 3, -1), [-1, -1, -1])


if __name__ == "__main__":
    unittest.main()
