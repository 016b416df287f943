#!/usr/bin/env python3
"""Filters a recording to the band of the telephone and draws spectra of before and after: recording.py [WAV [PICTURE]]

Reads like a notebook: run it cell by cell, or as a whole. Needs the package tarns, SciPy for WAV files, matplotlib.
"""
# %% The recording: one channel of 16-bit samples, as numbers from -1 to 1.
import sys

import matplotlib
import numpy as np
import tarns
from scipy.io import wavfile

matplotlib.use("Agg")
from matplotlib import pyplot  # noqa: E402  the backend comes first

source = sys.argv[1] if len(sys.argv) > 1 else "/usr/share/sounds/alsa/Front_Center.wav"
picture = sys.argv[2] if len(sys.argv) > 2 else "recording.png"
rate, samples = wavfile.read(source)
samples = samples if samples.ndim == 1 else np.ascontiguousarray(samples[:, 0])
speech = tarns.mul(tarns.convert(samples, dtype=np.float32), 1 / 32768)

# %% The filter: 300 to 3400 Hz, by windowing; then the stream in blocks, as it would come from a microphone.
taps = tarns.firwin(513, low=300 / rate, high=3400 / rate)
band = tarns.FIR(taps)
filtered = np.concatenate([band(block) for block in np.array_split(speech, 50)])

# %% Averaged spectra: blocks of 4096 samples that overlap by half, under a Hann window.
size = 4096
transform = tarns.FFT(size)


def spectrum(signal):
    """Levels in dB of the bins, averaged over the blocks."""
    power = np.zeros(transform.bins, np.float32)
    starts = range(0, len(signal) - size + 1, size // 2)
    for start in starts:
        block = tarns.win_hann(signal[start:start + size])
        tarns.add(power, tarns.power_spectr(transform.forward(block)), out=power)
    return 10 * np.log10(power / len(starts) * (4 / size) ** 2 + 1e-14)


# %% The picture.
frequencies = np.arange(transform.bins) * rate / size
for signal, label in ((speech, "before"), (filtered, "after")):
    pyplot.plot(frequencies, spectrum(signal), label=label)
pyplot.xlim(0, 8000)
pyplot.xlabel("Hz")
pyplot.ylabel("dB")
pyplot.grid()
pyplot.legend()
pyplot.savefig(picture)
loudest = frequencies[np.argmax(spectrum(filtered))]
print(f"{len(samples) / rate:.1f} s at {rate} Hz; the loudest part of the band is at {loudest:.0f} Hz: {picture}")
