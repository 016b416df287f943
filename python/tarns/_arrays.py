"""The way from NumPy's arrays to pointers and back."""
import numpy as np

from ._library import ffi
from ._table import DTYPES


def _pair(kind):
    return np.dtype([("re", kind), ("im", kind)])


#: Complex integers, which NumPy has no type for: records of two.
complex_int8, complex_int16, complex_int32, complex_int64 = (_pair(kind) for kind in ("i1", "i2", "i4", "i8"))
_PAIRS = {"complex_int8": complex_int8, "complex_int16": complex_int16, "complex_int32": complex_int32,
          "complex_int64": complex_int64}

DTYPE_OF = {c: _PAIRS.get(name) or np.dtype(name) for c, name in DTYPES.items()}
_POINTER = {c: ffi.typeof(c + "[]") for c in DTYPES}


def dtype_name(dtype):
    """int16, or complex_int16 where NumPy would spell out the record."""
    return next((name for name, pair in _PAIRS.items() if pair == dtype), str(dtype))


def pointer(array, c_type):
    """The address of a contiguous array, which lives as long as the pointer does."""
    return ffi.from_buffer(_POINTER[c_type], array)


def vector(values, dtype=None):
    """One dimension, contiguous; the array itself where it is that already."""
    array = np.asarray(values, dtype=dtype)
    if array.ndim != 1:
        raise TypeError(f"an array of one dimension is wanted, this has {array.ndim}")
    return np.ascontiguousarray(array)


def value(number, c_type):
    """A number as C takes it; complex ones are pairs."""
    dtype = DTYPE_OF.get(c_type)
    if dtype is None or c_type == "int":
        return int(number)
    if dtype.kind == "c":
        number = complex(number)
        return ffi.new(c_type + "*", (number.real, number.imag))[0]
    if dtype.kind == "V":
        return ffi.new(c_type + "*", (int(number[0]), int(number[1])))[0]
    return int(number) if dtype.kind in "iu" else float(number)


def number(result, c_type):
    """A result as Python has it."""
    dtype = DTYPE_OF[c_type]
    if dtype.kind == "c":
        return complex(result.re, result.im)
    if dtype.kind == "V":
        return result.re, result.im
    return result
