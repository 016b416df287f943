# The types of the package, for editors and type checkers. Functions of vectors follow, written by scripts/python-face.
from typing import Any, Optional, Sequence, Tuple

import numpy as np
from numpy.typing import ArrayLike, DTypeLike, NDArray

complex_int8: np.dtype[Any]
complex_int16: np.dtype[Any]
complex_int32: np.dtype[Any]
complex_int64: np.dtype[Any]
ffi: Any
lib: Any

class Error(ValueError):
    status: int

class Warning(RuntimeWarning): ...

def version() -> dict[str, str]: ...

class FFT:
    size: int
    bins: int
    dtype: np.dtype[Any]
    bin_dtype: np.dtype[Any]
    def __init__(self, size: int, dtype: DTypeLike = ..., norm: str = ...) -> None: ...
    def forward(self, samples: ArrayLike, out: Optional[NDArray[Any]] = ...) -> NDArray[Any]: ...
    def inverse(self, bins: ArrayLike, out: Optional[NDArray[Any]] = ...) -> NDArray[Any]: ...

class DCT:
    size: int
    dtype: np.dtype[Any]
    def __init__(self, size: int, dtype: DTypeLike = ...) -> None: ...
    def forward(self, samples: ArrayLike, out: Optional[NDArray[Any]] = ...) -> NDArray[Any]: ...
    def inverse(self, coefficients: ArrayLike, out: Optional[NDArray[Any]] = ...) -> NDArray[Any]: ...

class _Stream:
    dtype: np.dtype[Any]
    def __call__(self, samples: ArrayLike, out: Optional[NDArray[Any]] = ..., scale: int = ...) -> NDArray[Any]: ...

class FIR(_Stream):
    size: int
    delay_line: NDArray[Any]
    def __init__(self, taps: ArrayLike, dtype: DTypeLike = ...) -> None: ...

class Resampler(_Stream):
    up: int
    down: int
    def __init__(self, taps: ArrayLike, up: int, down: int, dtype: DTypeLike = ...) -> None: ...

class IIR(_Stream):
    delay_line: NDArray[Any]
    def __init__(self, b: ArrayLike, a: ArrayLike, dtype: DTypeLike = ...) -> None: ...

class Biquads(_Stream):
    delay_line: NDArray[Any]
    def __init__(self, sos: ArrayLike, dtype: DTypeLike = ...) -> None: ...

def hilbert(samples: ArrayLike) -> NDArray[np.complex64]: ...
def convolve(a: ArrayLike, b: ArrayLike, scale: int = ...) -> NDArray[Any]: ...
def correlate(a: ArrayLike, b: ArrayLike, size: int, low_lag: int) -> NDArray[Any]: ...
def firwin(
    size: int, low: Optional[float] = ..., high: Optional[float] = ..., window: str = ..., stop: bool = ...
) -> NDArray[np.float64]: ...
