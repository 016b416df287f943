"""Chunks of a long recording on a local Dask cluster, whose delay lines are handed on, give the bits of one run."""
import os
import pathlib
import sys
import tempfile
import unittest

import numpy as np
import tarns

EXAMPLES = str(pathlib.Path(__file__).resolve().parents[2] / "examples" / "python")
sys.path.insert(0, EXAMPLES)
# The workers are processes of their own.
os.environ["PYTHONPATH"] = os.pathsep.join([EXAMPLES, os.environ.get("PYTHONPATH", "")])
import cluster  # noqa: E402  from the examples

try:
    from distributed import Client, LocalCluster
except ImportError:
    LocalCluster = None

# Two sections of a low-pass, so that no SciPy is needed.
SECTIONS = [[0.1, 0.2, 0.1, 1, -0.9, 0.3], [0.2, 0.1, 0.2, 1, -1.1, 0.6]]


def one_stream(source, stream, dtype):
    """The whole signal through one filter, in the blocks of the run."""
    samples = source(0, source.size).astype(dtype)
    return np.concatenate([stream(samples[at:at + cluster.BLOCK]) for at in range(0, len(samples), cluster.BLOCK)])


class Chunks(unittest.TestCase):
    """Without a cluster."""

    def check(self, band, expected, source, client):
        with tempfile.TemporaryDirectory() as directory:
            out = directory + "/filtered.npy"
            levels = cluster.run(source, band, 3 * cluster.BLOCK, client, out)
            np.testing.assert_array_equal(np.load(out).view(np.uint32), expected.view(np.uint32))
        serial = cluster.run(source, band, 3 * cluster.BLOCK)
        np.testing.assert_array_equal(levels.view(np.uint64), serial.view(np.uint64))
        # Blocks of the spectrum reach across the ends of chunks, so all of them are there, however it is cut.
        whole = cluster.run(source, band, (source.size // cluster.BLOCK + 1) * cluster.BLOCK)
        np.testing.assert_allclose(levels, whole, atol=1e-3)

    def check_bands(self, client=None):
        source = cluster.Noise(5)
        for taps in (31, 513): # on the direct road, and through transforms
            band = cluster.Finite(0.01, 0.1, taps)
            self.check(band, one_stream(source, tarns.FIR(band.taps), np.float32), source, client)
        band = cluster.Recursive(SECTIONS)
        expected = one_stream(source, tarns.Biquads(band.sos), np.float64).astype(np.float32)
        self.check(band, expected, source, client)

    def test_serial(self):
        self.check_bands()

    def test_one_call(self):
        source = cluster.Noise(1)
        band = cluster.Finite(0.01, 0.1, 31) # direct: the cuts do not show at all
        filtered, _ = band(source, cluster.BLOCK, source.size)
        whole = tarns.FIR(band.taps)(source(0, source.size))
        np.testing.assert_array_equal(filtered.view(np.uint32), whole[cluster.BLOCK:].view(np.uint32))

    def test_chunks_are_whole_blocks(self):
        with self.assertRaisesRegex(ValueError, "multiples"):
            cluster.run(cluster.Noise(1), cluster.Recursive(SECTIONS), cluster.BLOCK + 1)

    @unittest.skipIf(LocalCluster is None, "no Dask: Debian has it in python3-dask and python3-distributed")
    def test_cluster(self):
        with LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None) as workers:
            with Client(workers) as client:
                self.check_bands(client)


if __name__ == "__main__":
    unittest.main(verbosity=2)
