#!/usr/bin/env python3
"""Times the run of examples/python/cluster.py in one process and on local clusters: cluster_speed.py [MINUTES]

Prints seconds for a recording of 16 bits at 48 kHz, the start of the cluster apart from the run, and checks that all
runs give the same bits.
"""
import os
import pathlib
import sys
import tempfile
import time

EXAMPLES = str(pathlib.Path(__file__).resolve().parents[2] / "examples" / "python")
sys.path.insert(0, EXAMPLES)
os.environ["PYTHONPATH"] = os.pathsep.join([EXAMPLES, os.environ.get("PYTHONPATH", "")])
os.environ.setdefault("OMP_NUM_THREADS", "1")

import cluster  # noqa: E402
import numpy as np  # noqa: E402
from distributed import Client, LocalCluster  # noqa: E402
from scipy import signal  # noqa: E402
from scipy.io import wavfile  # noqa: E402


def timed(call):
    start = time.perf_counter()
    result = call()
    return time.perf_counter() - start, result


def main():
    minutes = float(sys.argv[1]) if len(sys.argv) > 1 else 20
    rate = 48000
    with tempfile.TemporaryDirectory() as directory:
        path = directory + "/recording.wav"
        generator = np.random.default_rng(1)
        second = (8000 * generator.standard_normal(rate)).clip(-32768, 32767).astype(np.int16)
        wavfile.write(path, rate, np.tile(second, int(60 * minutes)))
        source = cluster.Recording(path)
        sections = signal.butter(4, [600 / rate, 6800 / rate], "band", output="sos")
        bands = {"FIR, 513 taps": cluster.Finite(300 / rate, 3400 / rate), "biquads, 4": cluster.Recursive(sections)}
        chunk = 64 * cluster.BLOCK
        print(f"{minutes:g} minutes, {-(-source.size // chunk)} chunks")
        alone = {}
        for name, band in bands.items():
            alone[name] = timed(lambda: cluster.run(source, band, chunk))
            print(f"{name}, no cluster: {alone[name][0]:.2f} s")
        for workers in (1, 2):
            started, (local, client) = timed(lambda: start(workers))
            for name, band in bands.items():
                timed(lambda: cluster.run(source, band, source.size // workers // cluster.BLOCK * cluster.BLOCK, client))
                seconds, levels = timed(lambda: cluster.run(source, band, chunk, client))
                same = np.array_equal(levels, alone[name][1])
                print(f"{name}, {workers} workers: {seconds:.2f} s, {alone[name][0] / seconds:.2f} times as fast, "
                      f"{'the same' if same else 'OTHER'} bits; the cluster starts in {started:.1f} s")
            client.close()
            local.close()


def start(workers):
    local = LocalCluster(n_workers=workers, threads_per_worker=1, dashboard_address=None)
    return local, Client(local)


if __name__ == "__main__":
    main()
