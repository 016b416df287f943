"""The library tarns for NumPy: arrays in, arrays out.

Functions of vectors have the names of the C interface without their types, in small letters: `tarnsAdd_16s_Sfs` is
`tarns.add`. The type of the arrays chooses the function; `scale`, where a function has it, scales by 2 ** -scale;
`out` takes the results, `dtype` chooses their type where there is more than one. Errors are `tarns.Error`, warnings
`tarns.Warning`. Other threads of Python run during every call.
"""
from ._adaptive import LMS, FixedLMS, TrellisDecoder, WaveletJoin, WaveletSplit
from ._arrays import complex_int8, complex_int16, complex_int32, complex_int64
from ._library import Error, Warning, ffi, lib
from ._objects import DCT, FFT, FIR, IIR, Biquads, Resampler, convolve, correlate, firwin, hilbert
from ._vectors import functions as _functions

globals().update(_functions())


def version():
    """The library's own record: its name, version and level."""
    record = lib.tarnsGetLibVersion()
    return {"name": ffi.string(record.name).decode(), "version": ffi.string(record.version).decode(),
            "level": ffi.string(record.targetCpu).decode()}
