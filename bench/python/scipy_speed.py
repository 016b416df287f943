#!/usr/bin/env python3
"""Calls of the Python package beside those of NumPy and SciPy: microseconds each, medians, and the quotient."""
import statistics
import time

import numpy as np
import tarns
from scipy import fft, signal


def median_time(call, seconds=0.15):
    """Microseconds of a call, the median of many batches."""
    call()
    begin = time.perf_counter()
    call()
    batch = max(1, int(0.003 / max(time.perf_counter() - begin, 1e-7)))
    times = []
    while sum(times) < seconds:
        begin = time.perf_counter()
        for _ in range(batch):
            call()
        times.append(time.perf_counter() - begin)
    return statistics.median(times) / batch * 1e6


def show(title, rows, places):
    print(f"| {title} | tarns | NumPy, SciPy | ratio |\n| --- | ---: | ---: | ---: |")
    for name, ours, theirs in rows:
        own, other = median_time(ours), median_time(theirs)
        print(f"| {name} | {own:.{places}f} | {other:.{places}f} | {own / other:.2f} |")


def main():
    generator = np.random.default_rng(1)
    x = generator.standard_normal(16384).astype(np.float32)
    y = generator.standard_normal(16384).astype(np.float32)
    out = np.empty_like(x)
    a = generator.integers(-32768, 32768, 16384).astype(np.int16)
    b = generator.integers(-32768, 32768, 16384).astype(np.int16)
    taps = signal.firwin(64, 0.3).astype(np.float32)
    sos = signal.butter(8, 0.3, output="sos")
    wide = x.astype(np.float64)
    transform, band, cascade = tarns.FFT(16384), tarns.FIR(taps), tarns.Biquads(sos)
    rows = [
        ("add float32", lambda: tarns.add(x, y, out=out), lambda: np.add(x, y, out=out)),
        ("add int16, saturated", lambda: tarns.add(a, b),
         lambda: np.clip(a.astype(np.int32) + b, -32768, 32767).astype(np.int16)),
        ("exp float32", lambda: tarns.exp(x, out=out), lambda: np.exp(x, out=out)),
        ("sum float32", lambda: tarns.total(x), lambda: np.sum(x)),
        ("int16 to float32", lambda: tarns.convert(a, dtype=np.float32), lambda: a.astype(np.float32)),
        ("real transform of 16384", lambda: transform.forward(x), lambda: fft.rfft(x)),
        ("real transform of 15000", lambda t=tarns.FFT(15000): t.forward(x[:15000]), lambda: fft.rfft(x[:15000])),
        ("FIR of 64 taps", lambda: band(x), lambda: signal.lfilter(taps, np.float32(1), x)),
        ("four biquads float64", lambda: cascade(wide), lambda: signal.sosfilt(sos, wide)),
        ("median of 5", lambda: tarns.filter_median(x, 5), lambda: signal.medfilt(x, 5)),
        ("convolution 16384 x 1000", lambda: tarns.convolve(x, y[:1000]), lambda: signal.fftconvolve(x, y[:1000])),
    ]
    show("16384 elements", rows, 1)
    x, y, out, a, b, wide = x[:64].copy(), y[:64].copy(), out[:64].copy(), a[:64].copy(), b[:64].copy(), wide[:64].copy()
    transform = tarns.FFT(64)
    show("64 elements", [
        ("add float32", lambda: tarns.add(x, y), lambda: np.add(x, y)),
        ("add float32, `out=`", lambda: tarns.add(x, y, out=out), lambda: np.add(x, y, out=out)),
        ("add int16, saturated", lambda: tarns.add(a, b),
         lambda: np.clip(a.astype(np.int32) + b, -32768, 32767).astype(np.int16)),
        ("sum float32", lambda: tarns.total(x), lambda: np.sum(x)),
        ("int16 to float32", lambda: tarns.convert(a, dtype=np.float32), lambda: a.astype(np.float32)),
        ("real transform", lambda: transform.forward(x), lambda: fft.rfft(x)),
        ("four biquads float64", lambda: cascade(wide), lambda: signal.sosfilt(sos, wide)),
    ], 2)


main()
