"""Transforms and filters as objects, and functions whose arrays have lengths of their own."""
import numpy as np

from ._arrays import pointer, vector
from ._library import check, ffi, lib

_KINDS = {"f": "32f", "d": "64f", "F": "32fc", "D": "64fc"}
_C = {"32f": "Tarn32f", "64f": "Tarn64f", "32fc": "Tarn32fc", "64fc": "Tarn64fc", "16s": "Tarn16s"}
#: Where the factor 1 / N of a pair of transforms goes, by the names that NumPy's `norm` has for it.
_NORMS = {"forward": 1, "backward": 2, "ortho": 4, "none": 8}


def _kind(dtype):
    kind = _KINDS.get(np.dtype(dtype).char)
    if kind is None:
        raise TypeError(f"float32, float64, complex64 or complex128 is wanted, not {np.dtype(dtype)}")
    return kind


def _out(out, size, dtype):
    if out is None:
        return np.empty(size, dtype)
    if out.dtype != dtype or out.shape != (size,) or not out.flags.c_contiguous:
        raise ValueError(f"out is to be contiguous {np.dtype(dtype)}{(size,)}")
    return out


def _create(function, free, c_type, *arguments):
    """An object of the library, freed with the last reference to it."""
    address = ffi.new(c_type + "**")
    check(function(address, *arguments))
    return ffi.gc(address[0], free)


class FFT:
    """The Fourier transform of `size` elements of a type, any number of them.

    Real signals have the bins 0 to size // 2, as numpy.fft.rfft() gives them. `norm` is "backward" (the default),
    "forward" or "ortho", as NumPy has it, or "none".
    """

    def __init__(self, size, dtype=np.float32, norm="backward"):
        self.dtype = np.dtype(dtype)
        kind = _kind(dtype)
        self.size = size
        self.real = self.dtype.kind == "f"
        tail = ("R_" if self.real else "C_") + kind
        self._c = _C[kind]
        self._spec = _create(getattr(lib, "tarnsDFTInitAlloc_" + tail), getattr(lib, "tarnsDFTFree_" + tail),
                             "TarnsDFTSpec_" + tail, size, _NORMS[norm], 0)
        forward, inverse = ("RToCCS", "CCSToR") if self.real else ("CToC", "CToC")
        self._forward = getattr(lib, f"tarnsDFTFwd_{forward}_{kind}")
        self._inverse = getattr(lib, f"tarnsDFTInv_{inverse}_{kind}")
        self.bin_dtype = np.dtype("F" if self.dtype.char in "fF" else "D")
        self.bins = size // 2 + 1 if self.real else size

    def _pointer(self, array):
        return pointer(array.view(self.dtype), self._c)

    def forward(self, samples, out=None):
        """The bins of the samples."""
        samples = vector(samples, self.dtype)
        if len(samples) != self.size:
            raise ValueError(f"{self.size} samples are wanted, not {len(samples)}")
        out = _out(out, self.bins, self.bin_dtype)
        check(self._forward(pointer(samples, self._c), self._pointer(out), self._spec, ffi.NULL))
        return out

    def inverse(self, bins, out=None):
        """The samples of the bins."""
        bins = vector(bins, self.bin_dtype)
        if len(bins) != self.bins:
            raise ValueError(f"{self.bins} bins are wanted, not {len(bins)}")
        out = _out(out, self.size, self.dtype)
        check(self._inverse(self._pointer(bins), pointer(out, self._c), self._spec, ffi.NULL))
        return out


class DCT:
    """The orthonormal cosine transform of type II of `size` elements, and its inverse."""

    def __init__(self, size, dtype=np.float32):
        self.size, self.dtype = size, np.dtype(dtype)
        kind = _kind(dtype)
        self._c = _C[kind]
        self._specs = [_create(getattr(lib, f"tarnsDCT{way}InitAlloc_{kind}"), getattr(lib, f"tarnsDCT{way}Free_{kind}"),
                               f"TarnsDCT{way}Spec_{kind}", size, 0) for way in ("Fwd", "Inv")]
        self._calls = [getattr(lib, f"tarnsDCT{way}_{kind}") for way in ("Fwd", "Inv")]

    def _run(self, way, values, out):
        values = vector(values, self.dtype)
        if len(values) != self.size:
            raise ValueError(f"{self.size} elements are wanted, not {len(values)}")
        out = _out(out, self.size, self.dtype)
        check(self._calls[way](pointer(values, self._c), pointer(out, self._c), self._specs[way], ffi.NULL))
        return out

    def forward(self, samples, out=None):
        """The coefficients of the samples."""
        return self._run(0, samples, out)

    def inverse(self, coefficients, out=None):
        """The samples of the coefficients."""
        return self._run(1, coefficients, out)


def hilbert(samples):
    """The analytic signal of real samples, as scipy.signal.hilbert() gives it, in single precision."""
    samples = vector(samples, np.float32)
    spec = _create(lib.tarnsHilbertInitAlloc_32f32fc, lib.tarnsHilbertFree_32f32fc, "TarnsHilbertSpec_32f32fc",
                   len(samples), 0)
    out = np.empty(len(samples), np.complex64)
    check(lib.tarnsHilbert_32f32fc(pointer(samples, "Tarn32f"), pointer(out, "Tarn32fc"), spec))
    return out


class _Stream:
    """What filters share: samples of one type, taps of another, and a state between the two."""

    def _types(self, dtype):
        self.dtype = np.dtype(dtype)
        self._scaled = self.dtype == np.int16
        kind = "16s" if self._scaled else _kind(dtype)
        self.tap_dtype = np.dtype(np.float32) if self._scaled else self.dtype
        self._c, self._tap_c = _C[kind], "Tarn32f" if self._scaled else _C[kind]
        return "32f_16s" if self._scaled else "_" + kind

    def _filter(self, samples, out, out_size, iterations, scale):
        arguments = (int(scale),) if self._scaled else ()
        if scale and not self._scaled:
            raise TypeError("only 16-bit samples have a scale")
        if out is samples and self._in_place is not None:
            out = _out(out, out_size, self.dtype)
            check(self._in_place(pointer(out, self._c), iterations, self._state, *arguments))
            return out
        if out is not None and np.may_share_memory(samples, out):
            samples = samples.copy()
        out = _out(out, out_size, self.dtype)
        check(self._call(pointer(samples, self._c), pointer(out, self._c), iterations, self._state, *arguments))
        return out


class FIR(_Stream):
    """y[n] = sum of taps[k] x[n - k], over a stream that comes in blocks of any length.

    Samples are float32, float64, complex64, complex128, or int16 with taps of type float32 and results that are scaled
    by 2 ** -scale.
    """

    def __init__(self, taps, dtype=np.float32):
        tail = self._types(dtype)
        taps = vector(taps, self.tap_dtype)
        self.size = len(taps)
        self._state = _create(getattr(lib, "tarnsFIRInitAlloc" + tail), getattr(lib, "tarnsFIRFree" + tail),
                              "TarnsFIRState" + tail, pointer(taps, self._tap_c), len(taps), ffi.NULL)
        self._call = getattr(lib, "tarnsFIR" + tail + ("_Sfs" if self._scaled else ""))
        self._in_place = getattr(lib, "tarnsFIR" + tail + ("_ISfs" if self._scaled else "_I"))
        self._get = getattr(lib, "tarnsFIRGetDlyLine" + tail)
        self._set = getattr(lib, "tarnsFIRSetDlyLine" + tail)

    def __call__(self, samples, out=None, scale=0):
        samples = vector(samples, self.dtype)
        return self._filter(samples, out, len(samples), len(samples), scale)

    @property
    def delay_line(self):
        """The samples before the next one, newest first, as many as there are taps."""
        line = np.empty(self.size, self.dtype)
        check(self._get(self._state, pointer(line, self._c)))
        return line

    @delay_line.setter
    def delay_line(self, samples):
        samples = vector(samples, self.dtype)
        if len(samples) != self.size:
            raise ValueError(f"{self.size} samples are wanted, not {len(samples)}")
        check(self._set(self._state, pointer(samples, self._c)))


class Resampler(_Stream):
    """Changes the rate by up / down through taps at `up` times the rate of the input, over a stream in blocks."""

    def __init__(self, taps, up, down, dtype=np.float32):
        tail = self._types(dtype)
        taps = vector(taps, self.tap_dtype)
        self.up, self.down = up, down
        self._state = _create(getattr(lib, "tarnsFIRMRInitAlloc" + tail), getattr(lib, "tarnsFIRFree" + tail),
                              "TarnsFIRState" + tail, pointer(taps, self._tap_c), len(taps), up, 0, down, 0, ffi.NULL)
        self._call = getattr(lib, "tarnsFIR" + tail + ("_Sfs" if self._scaled else ""))
        self._in_place = None

    def __call__(self, samples, out=None, scale=0):
        samples = vector(samples, self.dtype)
        iterations, rest = divmod(len(samples), self.down)
        if rest:
            raise ValueError(f"a multiple of {self.down} samples is wanted, not {len(samples)}")
        return self._filter(samples, out, iterations * self.up, iterations, scale)


class _Recursive(_Stream):
    def _make(self, function, joined, taps, number, delay_size, tail):
        self._state = _create(getattr(lib, function + joined), getattr(lib, "tarnsIIRFree" + tail),
                              "TarnsIIRState" + tail, pointer(taps, self._tap_c), number, ffi.NULL)
        self._delay_size = delay_size
        self._call = getattr(lib, "tarnsIIR" + tail + ("_Sfs" if self._scaled else ""))
        self._in_place = getattr(lib, "tarnsIIR" + tail + ("_ISfs" if self._scaled else "_I"))
        self._get = getattr(lib, "tarnsIIRGetDlyLine" + tail)
        self._set = getattr(lib, "tarnsIIRSetDlyLine" + tail)

    def __call__(self, samples, out=None, scale=0):
        samples = vector(samples, self.dtype)
        return self._filter(samples, out, len(samples), len(samples), scale)

    @property
    def delay_line(self):
        """The state of the transposed direct form II, as scipy.signal.lfilter() has it in `zi`."""
        line = np.empty(self._delay_size, self.tap_dtype)
        check(self._get(self._state, pointer(line, self._tap_c)))
        return line

    @delay_line.setter
    def delay_line(self, values):
        values = vector(values, self.tap_dtype)
        if len(values) != self._delay_size:
            raise ValueError(f"{self._delay_size} values are wanted, not {len(values)}")
        check(self._set(self._state, pointer(values, self._tap_c)))


class IIR(_Recursive):
    """a[0] y[n] = sum of b[k] x[n - k] - sum of a[k] y[n - k], over a stream in blocks. From order 5 on take Biquads."""

    def __init__(self, b, a, dtype=np.float64):
        tail = self._types(dtype)
        count = max(len(b), len(a))
        taps = np.zeros(2 * count, self.tap_dtype)
        taps[:len(b)] = b
        taps[count:count + len(a)] = a
        self._make("tarnsIIRInitAlloc", tail, taps, count - 1, count - 1, tail)


class Biquads(_Recursive):
    """A cascade of sections of order 2, rows of b0 b1 b2 a0 a1 a2, as scipy.signal has them in `sos`."""

    def __init__(self, sos, dtype=np.float64):
        tail = self._types(dtype)
        taps = vector(np.asarray(sos).reshape(-1), self.tap_dtype)
        number, rest = divmod(len(taps), 6)
        if rest:
            raise ValueError(f"six taps a section are wanted, not {len(taps)}")
        joined = "32f_BiQuad_16s" if self._scaled else "_BiQuad" + tail
        self._make("tarnsIIRInitAlloc", joined, taps, number, 2 * number, tail)


def _pair(a, b):
    a, b = np.asarray(a), np.asarray(b)
    dtype = np.result_type(a, b)
    return vector(a, dtype), vector(b, dtype), dtype


def convolve(a, b, scale=0):
    """The whole convolution, as numpy.convolve(): float32, float64, or int16 scaled by 2 ** -scale and saturated."""
    a, b, dtype = _pair(a, b)
    out = np.empty(max(len(a) + len(b) - 1, 0), dtype)
    scaled = dtype == np.int16
    kind = "16s" if scaled else _kind(dtype)
    call = getattr(lib, f"tarnsConv_{kind}" + ("_Sfs" if scaled else ""))
    check(call(pointer(a, _C[kind]), len(a), pointer(b, _C[kind]), len(b), pointer(out, _C[kind]),
               *((int(scale),) if scaled else ())))
    return out


def correlate(a, b, size, low_lag):
    """out[n] = sum of conj(a[k]) b[k + n + low_lag], for `size` lags from `low_lag` on."""
    a, b, dtype = _pair(a, b)
    kind = _kind(dtype)
    out = np.empty(size, dtype)
    check(getattr(lib, f"tarnsCrossCorr_{kind}")(pointer(a, _C[kind]), len(a), pointer(b, _C[kind]), len(b),
                                                 pointer(out, _C[kind]), size, low_lag))
    return out


def firwin(size, low=None, high=None, window="hamming", stop=False):
    """Taps of a linear-phase filter by windowing; edges are fractions of the sampling rate, up to 0.5.

    With `high` alone a low-pass, with `low` alone a high-pass, with both a band-pass, or a band-stop.
    """
    taps = np.empty(size)
    address = pointer(taps, "Tarn64f")
    kind = ["bartlett", "blackman", "hamming", "hann", "none"].index(window)
    if low is None and high is None:
        raise TypeError("an edge is wanted: low, high, or both")
    if low is None:
        check(lib.tarnsFIRGenLowpass_64f(high, address, size, kind, 1))
    elif high is None:
        check(lib.tarnsFIRGenHighpass_64f(low, address, size, kind, 1))
    elif stop:
        check(lib.tarnsFIRGenBandstop_64f(low, high, address, size, kind, 1))
    else:
        check(lib.tarnsFIRGenBandpass_64f(low, high, address, size, kind, 1))
    return taps
