"""Functions of vectors: one for each stem of the library's names, which chooses by the types of its arguments."""
import functools

import numpy as np

from ._arrays import DTYPE_OF, dtype_name, number, pointer, value, vector
from ._library import check, ffi, lib
from ._plans import NOT_FOR_PLANS, plan
from ._table import DOCS, FUNCTIONS

#: What has a default: the scale factor, the hint at speed or accuracy, and rounding to nearest.
_OPTIONS = {"scale": 0, "hint": 0, "rnd_mode": 1}


class _Candidate:
    """A function of the C interface: which arguments it wants, and how it is called."""

    def __init__(self, name, parameters):
        self.name = name
        self.parameters = parameters
        self.inputs = [p for p in parameters if p[0] in ("in", "inout", "value") and p[1] not in _OPTIONS]
        self.key = tuple("value" if kind == "value" else DTYPE_OF[c] for kind, _, c in self.inputs)
        self.names = tuple(own for _, own, _ in self.inputs)
        self.results = [p for p in parameters if p[0] == "result"]
        self.outputs = [p for p in parameters if p[0] in ("out", "inout")]
        self.scaled = any(own == "scale" for _, own, _ in parameters)
        self.in_place = any(kind == "inout" for kind, _, _ in parameters)

    @functools.cached_property
    def call(self):
        """Looked up with its first call: there are many that a program never calls."""
        return getattr(lib, self.name)

    def answers(self, dtypes):
        """Whether these are the types of its outputs."""
        return len(dtypes) == len(self.outputs) and all(
            dtype is None or dtype == DTYPE_OF[c] for dtype, (_, _, c) in zip(dtypes, self.outputs))

    def __call__(self, given, out, size, options):
        count = next((len(array) for array in given if isinstance(array, np.ndarray)), size)
        arrays = iter(given)
        outs = iter(out or [None] * len(self.outputs))
        arguments, outputs, results, back = [], [], [], []
        for kind, own, c in self.parameters:
            if kind == "count":
                arguments.append(count)
            elif kind == "result":
                results.append((ffi.new(c + "*"), c))
                arguments.append(results[-1][0])
            elif kind == "value" and own in _OPTIONS:
                arguments.append(int(options.get(own, _OPTIONS[own])))
            elif kind == "value":
                arguments.append(value(next(arrays), c))
            else:
                source = next(arrays) if kind in ("in", "inout") else None
                if source is not None and len(source) != count:
                    raise ValueError(f"{own} has {len(source)} elements, and {count} are wanted")
                if kind != "in":
                    source = self._output(source, next(outs), count, DTYPE_OF[c], given, back)
                    outputs.append(source)
                arguments.append(pointer(source, c))
        check(self.call(*arguments))
        for target, array in back:
            target[...] = array
        outputs = [next((target for target, array in back if array is output), output) for output in outputs]
        answers = [number(address[0], c) for address, c in results] or outputs
        return answers[0] if len(answers) == 1 else tuple(answers)

    @staticmethod
    def _output(source, target, count, dtype, given, back):
        """The array that the library writes: the caller's own where it can, a new one otherwise."""
        if target is None:
            return np.empty(count, dtype) if source is None else source.copy()
        if target.dtype != dtype or target.shape != (count,):
            raise ValueError(f"out is {target.dtype}{target.shape}, and {dtype}{(count,)} is wanted")
        if not target.flags.writeable:
            raise ValueError("out is read-only")
        if source is not None and target.flags.c_contiguous and not any(
                array is not source and np.may_share_memory(array, target)
                for array in given if isinstance(array, np.ndarray)):
            if source is not target:
                target[...] = source
            return target
        overlaps = any(np.may_share_memory(array, target) for array in given if isinstance(array, np.ndarray))
        if target.flags.c_contiguous and not overlaps:
            return target
        array = np.empty(count, dtype) if source is None else source.copy()
        back.append((target, array))
        return array


def _arguments(name, positional, named, names):
    """Positional arguments, with named ones in their places."""
    arguments = list(positional)
    for own in names[len(arguments):]:
        if own in named:
            arguments.append(named.pop(own))
    if named:
        raise TypeError(f"{name}() has no argument {next(iter(named))}")
    return arguments


class _Choice:
    """All candidates of a name, and which of them serves which types."""

    def __init__(self, name):
        self.name = name
        self.candidates = [_Candidate(*entry) for entry in FUNCTIONS[name]]
        self.chosen = {}

    def names(self, count, named):
        longest = max(self.candidates, key=lambda candidate: len(candidate.names))
        fitting = [c.names for c in self.candidates if set(named) <= set(c.names) and
                   len(c.names) == count + len(named)]
        return fitting[0] if fitting else longest.names

    def choose(self, given, dtypes, in_place, scaled):
        key = (tuple(array.dtype if isinstance(array, np.ndarray) else None for array in given), dtypes, in_place,
               scaled)
        if key not in self.chosen:
            self.chosen[key] = self._search(given, dtypes, in_place, scaled)
        return self.chosen[key]

    def _search(self, given, dtypes, in_place, scaled):
        kinds = tuple(array.dtype if isinstance(array, np.ndarray) else "value" for array in given)
        fitting = [c for c in self.candidates if c.key == kinds]
        if not fitting:
            wanted = sorted({_words(c.key) for c in self.candidates})
            raise TypeError(f"{self.name}() takes no {_words(kinds)}; it takes {', '.join(wanted)}")
        if dtypes is not None:
            fitting = [c for c in fitting if c.results or c.answers(dtypes)]
            if not fitting:
                raise TypeError(f"{self.name}() answers no {', '.join(str(d) for d in dtypes)} for these arguments")
        if scaled and any(c.scaled for c in fitting):
            fitting = [c for c in fitting if c.scaled]
        elif scaled:
            raise TypeError(f"{self.name}() has no scale for these types")

        def preference(candidate):
            same = bool(candidate.outputs) and bool(candidate.key) and DTYPE_OF[candidate.outputs[0][2]] == next(
                (k for k in candidate.key if k != "value"), None)
            return (candidate.in_place != in_place, not same, candidate.scaled and not scaled)

        return min(fitting, key=preference)


def _words(kinds):
    """(int16, value): types as messages name them."""
    return "(" + ", ".join(dtype_name(kind) if isinstance(kind, np.dtype) else kind for kind in kinds) + ")"


def _make(name):
    choice = _Choice(name)
    plans = {}

    def function(*positional, out=None, dtype=None, size=None, **named):
        # What a call of these types came to once is known: the plan for it does without all that follows, or refuses.
        key = None
        if size is None and (not named or len(named) == 1 and "scale" in named):
            try:
                place = None
                if out is not None:
                    place = -1
                    for index, argument in enumerate(positional):
                        if argument is out:
                            place = index
                    place = (out.dtype, place)
                key = (tuple([getattr(argument, "dtype", None) for argument in positional]), dtype, not named, place)
                known = plans[key]
            except (KeyError, TypeError, AttributeError):  # new, or nothing that a key can be made of
                pass
            else:
                answer = known(*positional, out, named.get("scale"))
                if answer is not NOT_FOR_PLANS:
                    return answer
        options = {own: named.pop(own) for own in _OPTIONS if own in named}
        if named:
            positional = _arguments(name, positional, named, choice.names(len(positional), named))
        given = [_argument(argument) for argument in positional]
        outs = [out] if isinstance(out, np.ndarray) else out
        if outs is not None:
            dtypes = tuple(array.dtype for array in outs)
        else:
            dtypes = None if dtype is None else (np.dtype(dtype),)
        if size is None and outs is not None:
            size = len(outs[0])
        in_place = outs is not None and any(outs[0] is array for array in given)
        candidate = choice.choose(given, dtypes, in_place, "scale" in options)
        if size is None and not any(isinstance(array, np.ndarray) for array in given):
            raise TypeError(f"{name}() wants size= or out=")
        answer = candidate(given, outs, size, options)
        if key is not None and key not in plans and all(a is b for a, b in zip(given, positional)):
            plans[key] = plan(candidate, key, _OPTIONS)
        return answer

    function.__name__ = function.__qualname__ = name
    function.__doc__ = DOCS[name]
    return function


def _argument(argument):
    if isinstance(argument, np.ndarray) and argument.ndim > 0:
        return argument if argument.flags.c_contiguous and argument.ndim == 1 else vector(argument)
    if isinstance(argument, (list, range)):
        return vector(argument)
    return argument


def functions():
    """All of them, by name."""
    return {name: _make(name) for name in FUNCTIONS}
