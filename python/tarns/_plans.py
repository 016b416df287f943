"""Short ways into the library: what a call with arguments of certain types has to do, and nothing else.

A plan is a function that is written for one function of the C interface and one pattern of arguments, such as

    def plan(src1, src2, out, scale):
        shape = src1.shape
        if len(shape) != 1 or src2.shape != shape:
            return NOT_FOR_PLANS
        count = shape[0]
        try:
            at_src1 = buffer(src1)
            ...
        out = empty(count, dtype_dst)
        status = call(at_src1, at_src2, buffer(out), count)
        if status:
            check(status)
        return out

Arguments that it does not suit, strides or overlaps say, it leaves to the long way.
"""
import numpy as np

from ._arrays import DTYPE_OF, number, value
from ._library import check, ffi, lib

NOT_FOR_PLANS = object()
#: What the plans' texts refer to, beside what each has of its own.
_NAMES = {"NOT_FOR_PLANS": NOT_FOR_PLANS, "buffer": ffi.from_buffer, "empty": np.empty, "check": check, "new": ffi.new,
          "number": number, "value": value, "may_share_memory": np.may_share_memory}


def _pointer_type(candidate):
    """The C type of the function with addresses of any kind for arrays: buffers go in as they are."""
    types = {"count": "int", "in": "void*", "out": "void*", "inout": "void*"}
    return "int(*)(" + ", ".join(c + "*" if kind == "result" else types.get(kind, c)
                                 for kind, _, c in candidate.parameters) + ")"


def _number(own, c):
    """The text of a number's way into C."""
    dtype = DTYPE_OF.get(c)
    if dtype is None or c == "int" or dtype.kind in "iu":
        return f"int({own})"
    return f"float({own})" if dtype.kind == "f" else f"value({own}, {c!r})"


def _no_plan(*_):
    return NOT_FOR_PLANS


def plan(candidate, key, options):
    """The plan for the arguments of a key: their types, the type asked for, whether there is a scale, and `out`."""
    kinds, _, _, place = key
    arrays = [own for (_, own, _), kind in zip(candidate.inputs, kinds) if kind is not None]
    outputs = candidate.outputs
    if not arrays or len(outputs) > 1 or len(kinds) != len(candidate.inputs) or outputs and candidate.results:
        return _no_plan
    if any((kind is not None) != (p[0] in ("in", "inout")) for p, kind in zip(candidate.inputs, kinds)):
        return _no_plan
    in_place = candidate.in_place
    if place is not None and (not outputs or (place[1] >= 0) != in_place or
                              in_place and candidate.inputs[place[1]][0] != "inout"):
        return _no_plan
    names = dict(_NAMES, call=ffi.cast(_pointer_type(candidate), getattr(lib, candidate.name)))
    lines = [f"def plan({', '.join(own for _, own, _ in candidate.inputs)}, out, scale):", f"    shape = {arrays[0]}.shape"]
    unlike = ["len(shape) != 1"] + [f"{own}.shape != shape" for own in arrays[1:]]
    if place is not None:
        others = [own for own in arrays if not in_place or own != candidate.inputs[place[1]][1]]
        unlike += ["out.shape != shape"] if not in_place else []
        # Arrays that own what they hold are apart.
        unlike += [f"({own}.base is not None or out.base is not None) and may_share_memory({own}, out)" for own in others]
    lines += [f"    if {' or '.join(unlike)}:", "        return NOT_FOR_PLANS", "    count = shape[0]", "    try:"]
    arguments, after = [], []
    for kind, own, c in candidate.parameters:
        if kind == "count":
            arguments.append("count")
        elif kind == "result":
            names[f"type_{own}"] = ffi.typeof(c + "*")
            lines.append(f"        at_{own} = new(type_{own})")
            arguments.append(f"at_{own}")
            simple = DTYPE_OF[c].kind not in "cV"
            after.append(f"at_{own}[0]" if simple else f"number(at_{own}[0], {c!r})")
        elif kind == "value" and own in options:
            arguments.append("int(scale)" if own == "scale" and not key[2] else str(options[own]))
        elif kind == "value":
            arguments.append(_number(own, c))
        elif kind == "in":
            lines.append(f"        at_{own} = buffer({own})")
            arguments.append(f"at_{own}")
        else:
            names["dtype_out"] = DTYPE_OF[c]
            if place is not None:
                lines.append("        at_out = buffer(out, require_writable=True)")
            elif kind == "inout":
                lines += [f"        out = {own}.copy()", "        at_out = buffer(out)"]
            else:
                lines += ["        out = empty(count, dtype_out)", "        at_out = buffer(out)"]
            arguments.append("at_out")
            after.append("out")
    lines += ["    except (ValueError, TypeError, BufferError):", "        return NOT_FOR_PLANS",
              f"    status = call({', '.join(arguments)})", "    if status:", "        check(status)",
              "    return " + ", ".join(after)]
    exec("\n".join(lines), names)  # pylint: disable=exec-used
    return names["plan"]
