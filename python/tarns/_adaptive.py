"""Objects that learn, split bands, and decode trellis codes."""
import numpy as np

from ._arrays import complex_int16, complex_int32, number, pointer, value, vector
from ._library import check, ffi, lib
from ._objects import _create, _out


def _size(array, size, what="samples"):
    if len(array) != size:
        raise ValueError(f"{size} {what} are wanted, not {len(array)}")
    return array


class LMS:
    """A filter whose taps follow a reference by least mean squares, over a stream that comes in blocks.

    y[n] = sum of h[k] x[n - k], and then h[k] += 2 mu (reference[n] - y[n]) x[n - k]. `taps` are those to begin with, or
    their number. Samples are float32 or int16; of the latter taps count 2 ** -16.
    """

    def __init__(self, taps, dtype=np.float32):
        self.dtype = np.dtype(dtype)
        if self.dtype not in (np.float32, np.int16):
            raise TypeError(f"float32 or int16 is wanted, not {self.dtype}")
        tail, self._c = ("_32f", "Tarn32f") if self.dtype == np.float32 else ("32f_16s", "Tarn16s")
        taps = np.zeros(taps, np.float32) if np.ndim(taps) == 0 else vector(taps, np.float32)
        self.size = len(taps)
        self._state = _create(getattr(lib, "tarnsFIRLMSInitAlloc" + tail), getattr(lib, "tarnsFIRLMSFree" + tail),
                              "TarnsFIRLMSState" + tail, pointer(taps, "Tarn32f"), len(taps), ffi.NULL, 0)
        self._call, self._get_taps, self._get, self._set = (
            getattr(lib, "tarnsFIRLMS" + name + tail) for name in ("", "GetTaps", "GetDlyLine", "SetDlyLine"))

    def __call__(self, samples, reference, mu, out=None):
        """The filtered samples; `reference - out` is the error."""
        samples = vector(samples, self.dtype)
        reference = _size(vector(reference, self.dtype), len(samples))
        if out is not None and (np.may_share_memory(samples, out) or np.may_share_memory(reference, out)):
            samples, reference = samples.copy(), reference.copy()
        out = _out(out, len(samples), self.dtype)
        check(self._call(pointer(samples, self._c), pointer(reference, self._c), pointer(out, self._c), len(samples),
                         float(mu), self._state))
        return out

    @property
    def taps(self):
        """The taps as they are now, that of the newest sample first."""
        values = np.empty(self.size, np.float32)
        check(self._get_taps(self._state, pointer(values, "Tarn32f")))
        return values

    @property
    def delay_line(self):
        """The samples before the next one as a ring, and where the oldest one is."""
        line, index = np.empty(self.size, self.dtype), ffi.new("int*")
        check(self._get(self._state, pointer(line, self._c), index))
        return line, index[0]

    @delay_line.setter
    def delay_line(self, line_and_index):
        line, index = line_and_index
        check(self._set(self._state, pointer(_size(vector(line, self.dtype), self.size), self._c), index))


class FixedLMS:
    """A filter of integers that learns by steps of their own: an output for a sample, and an error when it is known.

    Samples are int16, or pairs of them with taps of type `complex_int32`; the upper 16 bits of a tap filter. `mu` is the
    step size times 2 ** 15, `tap_step` the distance of the samples that taps apply to, `update_delay` how many samples
    after its output an error is told.
    """

    def __init__(self, taps, mu, tap_step=1, update_delay=0):
        taps = np.asarray(taps)
        self._complex = taps.dtype == complex_int32
        self.tap_dtype = complex_int32 if self._complex else np.dtype(np.int32)
        taps = vector(taps, self.tap_dtype)
        self.size = len(taps)
        tail, self._c, self._wide = ("32sc_16sc", "Tarn16sc", "Tarn32sc") if self._complex else (
            "32s_16s", "Tarn16s", "Tarn32s")
        self.dtype = complex_int16 if self._complex else np.dtype(np.int16)
        self._state = _create(getattr(lib, "tarnsFIRLMSMRInitAlloc" + tail), getattr(lib, "tarnsFIRLMSMRFree" + tail),
                              "TarnsFIRLMSMRState" + tail, pointer(taps, self._wide), len(taps), ffi.NULL, 0, tap_step,
                              update_delay, mu)
        self._put, self._one, self._update, self._set_mu, self._get_taps, self._set_taps = (
            getattr(lib, f"tarnsFIRLMSMR{name}{tail}") for name in (
                "PutVal", "One", "UpdateTaps", "SetMu", "GetTaps", "SetTaps"))

    def put(self, sample):
        """Puts a sample into the delay line."""
        check(self._put(value(sample, self._c), self._state))

    def output(self):
        """An output of the samples that were put in."""
        answer = ffi.new(self._wide + "*")
        check(self._one(answer, self._state))
        return number(answer[0], self._wide)

    def __call__(self, sample):
        """Puts a sample in, and answers an output."""
        self.put(sample)
        return self.output()

    def update(self, error):
        """Changes the taps by the error of the output of `update_delay` samples ago."""
        check(self._update(value(error, self._wide), self._state))

    def set_mu(self, mu):
        """Another step size, times 2 ** 15."""
        check(self._set_mu(self._state, int(mu)))

    @property
    def taps(self):
        """The taps as they are now, that of the newest sample first."""
        values = np.empty(self.size, self.tap_dtype)
        check(self._get_taps(self._state, pointer(values, self._wide)))
        return values

    @taps.setter
    def taps(self, values):
        values = _size(vector(values, self.tap_dtype), self.size, "taps")
        check(self._set_taps(self._state, pointer(values, self._wide)))


#: The types of samples beside float32, by their names in C.
_BANKS = {"float32": "", "uint8": "8u", "int8": "8s", "uint16": "16u", "int16": "16s"}


class _Bank:
    def __init__(self, way, low, high, low_offset, high_offset, dtype):
        self.dtype = np.dtype(dtype)
        if str(self.dtype) not in _BANKS:
            raise TypeError(f"float32 or integers of 8 or 16 bits are wanted, not {self.dtype}")
        own = _BANKS[str(self.dtype)]
        tail = "_" + (own + "32f" if way == "Fwd" else "32f" + own)
        self._c = "Tarn" + own if own else "Tarn32f"
        low, high = vector(low, np.float32), vector(high, np.float32)
        self._state = _create(getattr(lib, f"tarnsWT{way}InitAlloc{tail}"), getattr(lib, f"tarnsWT{way}Free{tail}"),
                              f"TarnsWT{way}State{tail}", pointer(low, "Tarn32f"), len(low), low_offset,
                              pointer(high, "Tarn32f"), len(high), high_offset)
        self._call, self._get, self._set = (getattr(lib, f"tarnsWT{way}{name}{tail}") for name in (
            "", "GetDlyLine", "SetDlyLine"))
        self._delays = self._delay(len(low), low_offset), self._delay(len(high), high_offset)

    @property
    def delay_lines(self):
        """What outputs to come depend on in the low and in the high channel, the oldest first."""
        lines = [np.empty(max(size, 1), np.float32) for size in self._delays]
        check(self._get(self._state, *(pointer(line, "Tarn32f") for line in lines)))
        return tuple(line[:size] for line, size in zip(lines, self._delays))

    @delay_lines.setter
    def delay_lines(self, lines):
        lines = [_size(vector(line, np.float32), size) for line, size in zip(lines, self._delays)]
        lines = [line if len(line) else np.zeros(1, np.float32) for line in lines]
        check(self._set(self._state, *(pointer(line, "Tarn32f") for line in lines)))


class WaveletSplit(_Bank):
    """Splits a stream into a low and a high channel of half the rate: the filters that PyWavelets calls dec_lo, dec_hi.

    An offset delays by so many samples; -1 takes one that comes after. Samples are float32, or integers of 8 or 16 bits.
    """

    def __init__(self, low, high, low_offset=0, high_offset=0, dtype=np.float32):
        super().__init__("Fwd", low, high, low_offset, high_offset, dtype)

    @staticmethod
    def _delay(size, offset):
        return max(size + offset - 1, 0)

    def __call__(self, samples):
        """The low and the high channel of an even number of samples."""
        samples = vector(samples, self.dtype)
        if len(samples) % 2:
            raise ValueError(f"an even number of samples is wanted, not {len(samples)}")
        low, high = (np.empty(len(samples) // 2, np.float32) for _ in range(2))
        check(self._call(pointer(samples, self._c), pointer(low, "Tarn32f"), pointer(high, "Tarn32f"), len(low),
                         self._state))
        return low, high


class WaveletJoin(_Bank):
    """Joins a low and a high channel into a stream of twice their rate: rec_lo and rec_hi of PyWavelets."""

    def __init__(self, low, high, low_offset=0, high_offset=0, dtype=np.float32):
        super().__init__("Inv", low, high, low_offset, high_offset, dtype)

    @staticmethod
    def _delay(size, offset):
        return size // 2 if offset < 0 else (size - 1 + offset) // 2

    def __call__(self, low, high):
        """Twice as many samples as each channel has."""
        low = vector(low, np.float32)
        high = _size(vector(high, np.float32), len(low))
        out = np.empty(2 * len(low), self.dtype)
        check(self._call(pointer(low, "Tarn32f"), pointer(high, "Tarn32f"), len(low), pointer(out, self._c),
                         self._state))
        return out


class TrellisDecoder:
    """A Viterbi decoder for codes of 16, 32 or 64 states whose symbols are two points of a square constellation.

    `subsets` has the 2-D subset of each place of 4 x 4, `following` a row for each state with the states that its
    branches lead to. Points are pairs of int16 (`complex_int16`) at odd multiples of 128.
    """

    _RIGHT = np.array([0, 1, 1, 0, 0, 1, 2, 1, 2, -1, 0, -1])
    _UP = np.array([0, 0, 1, 1, 2, 2, 1, -1, 0, 0, -1, 1])

    def __init__(self, states, subsets, following):
        self.states = states
        self._subsets = vector(np.asarray(subsets).reshape(-1), np.uint8)
        self._following = vector(np.asarray(following).reshape(-1), np.uint8)
        if states not in (16, 32, 64) or len(self._subsets) != 16 or len(self._following) != states * states // 4:
            raise ValueError("16, 32 or 64 states are wanted, 16 subsets, and states / 4 branches for each state")
        self.restart()

    def restart(self, state=0):
        """Forgets all symbols; the encoder is in `state`, or in any if that is None."""
        self._metrics = np.full(self.states, 0 if state is None else 30000, np.uint16)
        if state is not None:
            self._metrics[state] = 0
        self._new = np.full(self.states, 65535, np.uint16)
        self._bases, self._survivors, self._best = [], [], 0

    def __call__(self, points):
        """Takes received points, two for each symbol."""
        points = vector(points, complex_int16)
        if len(points) % 2:
            raise ValueError("two points a symbol are wanted")
        bases = np.empty(len(points), complex_int16)
        survivors = np.zeros((len(points) // 2, self.states), np.uint32)
        errors, branches = np.empty(16, np.uint32), np.empty(32, np.uint32)
        least, best = ffi.new("Tarn16u*"), ffi.new("Tarn8u*")
        at, base = pointer(points, "Tarn16sc"), pointer(bases, "Tarn16sc")
        to_errors, to_branches = pointer(errors, "Tarn32u"), pointer(branches, "Tarn32u")
        metrics, new = pointer(self._metrics, "Tarn16u"), pointer(self._new, "Tarn16u")
        subsets, following = pointer(self._subsets, "Tarn8u"), pointer(self._following, "Tarn8u")
        rows = pointer(survivors, "Tarn32u") if len(survivors) else None
        for n in range(len(survivors)):
            for half in (0, 1):
                check(lib.tarnsGetVarPointDV_16sc(at + 2 * n + half, base + 2 * n + half, to_errors + 8 * half, subsets,
                                                  self.states))
            check(lib.tarnsBuildSymblTableDV4D_16sc(to_errors, to_branches, self.states, 0))
            check(lib.tarnsCalcStatesDV_16sc(metrics, following, new, to_branches, rows, self.states, n * self.states))
            check(lib.tarnsUpdatePathMetricsDV_16u(new, least, best, metrics, self.states))
            self._best = best[0]
        self._bases.append(bases)
        self._survivors.append(survivors)

    def points(self):
        """The sent points of all symbols so far, and the encoder's state before each symbol.

        Symbols of the last thirty or so may still change with those to come.
        """
        survivors = np.concatenate(self._survivors) if self._survivors else np.zeros((0, self.states), np.uint32)
        sent = np.concatenate(self._bases) if self._bases else np.zeros(0, complex_int16)
        path, numbers, state = np.empty(len(survivors), np.uint8), np.empty(len(sent), np.int64), self._best
        for n in reversed(range(len(survivors))):
            survivor = int(survivors[n, state])
            numbers[2 * n], numbers[2 * n + 1] = survivor & 0xFF, survivor >> 8 & 0xFF
            state = path[n] = survivor >> 16
        sent["re"] += (256 * self._RIGHT[numbers]).astype(np.int16)
        sent["im"] += (256 * self._UP[numbers]).astype(np.int16)
        return sent, path
