"""Loads the shared library, and turns its statuses into exceptions and warnings."""
import os
import warnings

from ._declarations import ffi


class Error(ValueError):
    """A call was refused; `status` is the library's number."""

    def __init__(self, status):
        super().__init__(ffi.string(lib.tarnGetStatusString(status)).decode())
        self.status = status


class Warning(RuntimeWarning):  # pylint: disable=redefined-builtin
    """A call did what it was asked to, and noticed something: a division by zero, say."""


def _load():
    wanted = os.environ.get("TARNS_LIBRARY")
    # By the name that programs load, which is there without what they are linked with.
    name = "libtarnst7.so.4"
    names = [wanted] if wanted else [os.path.join(os.path.dirname(__file__), name), name]
    problems = []
    for name in names:
        try:
            return ffi.dlopen(name)
        except OSError as problem:
            problems.append(str(problem))
    raise ImportError("the library tarns is not installed; TARNS_LIBRARY can name its file: " + "; ".join(problems))


lib = _load()


def check(status):
    """Raises what is below 0, and warns of what is above."""
    if status < 0:
        raise Error(status)
    if status > 0:
        warnings.warn(ffi.string(lib.tarnGetStatusString(status)).decode(), Warning, stacklevel=4)
