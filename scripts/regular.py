"""Which functions of the public headers are regular, for the faces of other languages: those that return a status and
take arrays of as many elements as one count says, numbers, and addresses for single results."""
import re

import public_headers

# The library writes what these point to, and reads nothing there.
RESULT = re.compile(r"^(where the|where its|where to store the)\b")
COUNTS = ("len", "srcLen", "dstLen")
SIZE = re.compile(r"(?<!\d )`(\w+)` (?:\w+ )?(?:elements|reals|integers|samples|numbers|bytes)")
# Objects and states have their face by hand.
OBJECT = re.compile(r"Spec|State")
CONSTANT = re.compile(r"tarns(Add|Sub|Mul|Div|And|Or|Xor|LShift|RShift)C(Rev)?_")


class Irregular(Exception):
    """Tells what is not regular about a function."""


def words(function):
    """tarnsAddC_16s_ISfs is Add, tarnsThreshold_LTVal_32f is ThresholdLTVal."""
    parts = public_headers.stem(function.name).removeprefix("tarns").split("_")
    joined = "".join(part[0].upper() + part[1:] for part in parts)
    joined = re.sub(r"^10Log10", "TenLog10", joined)
    if CONSTANT.match(function.name):
        joined = re.sub(r"C(Rev)?$", lambda match: match[1] or "", joined)
    return joined


def kinds(function):
    """For each argument by its name: array, result, count or value."""
    if re.search(r"24[us]", function.name):
        raise Irregular("three bytes an element")
    found = {}
    count = None
    names = [argument.name for argument in function.arguments]
    for argument in function.arguments:
        if argument.depth == 0:
            found[argument.name] = "value"
            continue
        if argument.depth > 1 or OBJECT.search(argument.type) or argument.type in ("void", "char"):
            raise Irregular(f"{argument.type}{'*' * argument.depth} {argument.name}")
        size = SIZE.search(argument.doc)
        if size and size[1] in COUNTS and size[1] in names:
            if count not in (None, size[1]):
                raise Irregular("two counts")
            count = size[1]
            found[argument.name] = "array"
        elif RESULT.match(argument.doc) and not argument.const:
            found[argument.name] = "result"
        else:
            raise Irregular(f"{argument.name}: {argument.doc}")
    if count is None or function.result != "TarnStatus":
        raise Irregular("no count" if count is None else "no status")
    found[count] = "count"
    return found


def types_in_name(function):
    return re.search(r"_((?:[0-9]+[a-z]+)+)", function.name)[1]


def parameter_name(name):
    return name[1].lower() + name[2:] if re.match(r"p[A-Z]", name) else name
