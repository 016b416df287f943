#!/usr/bin/env python3
"""Filters a long recording in chunks on a Dask cluster and averages its spectrum: cluster.py --help

A chunk is what one task reads, filters, writes and analyses. Filters with finite responses need no more than the samples
in front of a chunk, which are its delay line, so all chunks run side by side. Recursive filters hand their delay line on
from chunk to chunk; what runs beside them is everything else. Either way the bits are those of one run.
"""
import argparse
import functools
import sys

import numpy as np
import tarns

#: A stream is filtered in blocks of so many samples, counted from its beginning: chunks are whole numbers of them, so
#: that it does not show where one ends.
BLOCK = 16384
#: Blocks of the spectrum, which overlap by half under a Hann window.
SIZE = 4096


# %% Sources: functions of where a part begins and ends, small enough to be sent to any worker.
@functools.lru_cache(maxsize=4)
def _opened(path):
    from scipy.io import wavfile
    rate, samples = wavfile.read(path, mmap=True)
    return rate, samples if samples.ndim == 1 else samples[:, 0]


class Recording:
    """The first channel of a WAV file that every worker can open."""

    def __init__(self, path):
        self.path = path
        self.rate, samples = _opened(path)
        self.size = len(samples)

    def __call__(self, start, stop):
        part = np.ascontiguousarray(_opened(self.path)[1][start:stop])
        if part.dtype != np.int16 or len(part) == 0:
            return part.astype(np.float32, copy=False)
        return tarns.mul(tarns.convert(part, dtype=np.float32), 1 / 32768)


class Noise:
    """Hum under noise, for those who have no long recording; each block has a seed of its own."""

    rate = 48000

    def __init__(self, seconds):
        self.size = int(seconds * self.rate) // BLOCK * BLOCK

    def __call__(self, start, stop):
        parts = []
        for block in range(start // BLOCK, -(-stop // BLOCK)):
            generator = np.random.default_rng(block)
            hum = np.sin(2 * np.pi * 50 / self.rate * (block * BLOCK + np.arange(BLOCK)))
            parts.append((0.5 * hum + 0.1 * generator.standard_normal(BLOCK)).astype(np.float32))
        first = start // BLOCK * BLOCK
        return np.concatenate(parts)[start - first:stop - first] if parts else np.empty(0, np.float32)


# %% Filters: each takes a chunk and the delay line in front of it, and gives the line behind it.
class Finite:
    """A band by a FIR filter. The line of any chunk is read from the recording."""

    serial = False

    def __init__(self, low, high, taps=513):
        self.taps = tarns.firwin(taps, low=low, high=high).astype(np.float32)

    def __call__(self, source, start, stop, line=None):
        stream = tarns.FIR(self.taps)
        before = source(max(start - stream.size, 0), start)[::-1]
        line = np.zeros(stream.size, np.float32)
        line[:len(before)] = before
        stream.delay_line = line
        return _in_blocks(stream, source(start, stop)), None


class Recursive:
    """A band by biquads. The line of a chunk is what the chunk in front of it leaves."""

    serial = True

    def __init__(self, sos):
        self.sos = np.asarray(sos, np.float64)

    def __call__(self, source, start, stop, line=None):
        stream = tarns.Biquads(self.sos)
        if line is not None:
            stream.delay_line = line
        filtered = _in_blocks(stream, source(start, stop).astype(np.float64))
        return filtered.astype(np.float32), stream.delay_line


def _in_blocks(stream, samples):
    return np.concatenate([stream(samples[at:at + BLOCK]) for at in range(0, len(samples), BLOCK)])


# %% The step that a task is, and what is made of all of them.
HALF = SIZE // 2


def spectrum(filtered):
    """Adds up the power of the blocks within these samples, and counts them."""
    transform = tarns.FFT(SIZE)
    power = np.zeros(transform.bins, np.float32)
    starts = range(0, len(filtered) - SIZE + 1, HALF)
    for start in starts:
        tarns.add(power, tarns.power_spectr(transform.forward(tarns.win_hann(filtered[start:start + SIZE]))), out=power)
    return power.astype(np.float64), len(starts)


def do_chunk(source, band, start, stop, line, out):
    """Filters one chunk, writes and analyses it. Samples stay where they are: what travels is the spectrum, the delay
    line for the next chunk, and both ends of the outputs, for the blocks of the spectrum that reach across."""
    filtered, line = band(source, start, stop, line)
    if out:
        np.lib.format.open_memmap(out, "r+")[start:stop] = filtered
    return (spectrum(filtered), filtered[:HALF].copy(), filtered[-HALF:].copy()), line


def level(parts):
    """Levels in dB of the bins, averaged over all blocks, in the order of the chunks."""
    sums = [part[0] for part in parts]
    sums += [spectrum(np.concatenate([before[2], after[1]])) for before, after in zip(parts, parts[1:])]
    power = sum(power for power, count in sums)
    return 10 * np.log10(power / sum(count for power, count in sums) * (4 / SIZE) ** 2 + 1e-14)


# %% The run: the same steps called one after the other, or left to a cluster.
def run(source, band, chunk, client=None, out=None):
    """The averaged spectrum of what passes the band; the signal itself goes to the array file `out`, if given."""
    if chunk % BLOCK:
        raise ValueError(f"chunks are multiples of {BLOCK} samples")
    if out:
        np.lib.format.open_memmap(out, "w+", np.float32, (source.size,)).flush()
    step, result = do_chunk, level
    if client is not None:
        from dask import delayed
        step, result = delayed(do_chunk, nout=2, pure=False), delayed(level, pure=False)
    parts, line = [], None
    for start in range(0, source.size, chunk):
        # Where chunks do not need each other, none waits for another one's line.
        part, line = step(source, band, start, min(start + chunk, source.size), line if band.serial else None, out)
        parts.append(part)
    levels = result(parts)
    return levels if client is None else client.compute(levels).result()


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("recording", nargs="?", help="WAV file; noise under hum without one")
    arguments.add_argument("--out", help="where the filtered signal goes, as a .npy file")
    arguments.add_argument("--seconds", type=float, default=60, help="of noise (60)")
    arguments.add_argument("--recursive", action="store_true", help="a band of biquads, designed by SciPy")
    arguments.add_argument("--chunk", type=int, default=64, help=f"blocks of {BLOCK} samples in a chunk (64)")
    arguments.add_argument("--workers", type=int, default=2, help="processes of a local cluster; 0 for none (2)")
    arguments.add_argument("--scheduler", help="address of a running cluster, in place of a local one")
    options = arguments.parse_args()

    source = Recording(options.recording) if options.recording else Noise(options.seconds)
    low, high = 300 / source.rate, 3400 / source.rate
    if options.recursive:
        from scipy import signal
        band = Recursive(signal.butter(4, [2 * low, 2 * high], "band", output="sos"))
    else:
        band = Finite(low, high)
    if options.workers == 0 and not options.scheduler:
        levels = run(source, band, options.chunk * BLOCK, None, options.out)
    else:
        try:
            from distributed import Client, LocalCluster
        except ImportError:
            sys.exit("no Dask here: install python3-dask and python3-distributed, or say --workers 0")
        # One thread a worker: the library shares its long calls out to threads by itself.
        cluster = options.scheduler or LocalCluster(n_workers=options.workers, threads_per_worker=1,
                                                    dashboard_address=None)
        with Client(cluster) as client:
            levels = run(source, band, options.chunk * BLOCK, client, options.out)
    loudest = np.argmax(levels) * source.rate / SIZE
    print(f"{source.size / source.rate:.1f} s at {source.rate} Hz; "
          f"the loudest part of the band is at {loudest:.0f} Hz, {max(levels):.1f} dB")


if __name__ == "__main__":
    main()
