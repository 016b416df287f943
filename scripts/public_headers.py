"""Reads the public headers: every function with its arguments, and what the comment in front of it says of them.

The headers are regular C99: one TARN_API a function, a comment of Doxygen in front of each or of a group of them in
braces, `@defgroup` around those that belong together.
"""
import dataclasses
import pathlib
import re

TOKEN = re.compile(
    r"(?P<doc>/\*\*(?P<text>.*?)\*/)|(?P<open>///@\{)|(?P<close>///@\})|(?P<other>/\*.*?\*/|//[^\n]*)"
    r"|\bTARN_API\b(?P<function>[^;{]*);",
    re.DOTALL,
)


@dataclasses.dataclass
class Argument:
    type: str  # without const and stars
    depth: int  # number of stars
    const: bool
    name: str
    doc: str = ""


@dataclasses.dataclass
class Function:
    name: str
    result: str
    arguments: list
    brief: str
    doc: str  # the whole comment, its margin taken away
    group: str
    header: str
    declaration: str


def stem(name):
    """tarnsAdd_16s_Sfs is tarnsAdd; types inside a name, as in tarnsFIR32f_16s, go too."""
    name = re.sub(r"(?<=[a-zA-Z])(?:8|16|24|32|64)[usf]c?(?=_|$)", "", name)
    while True:
        shorter = re.sub(r"_(?:I|Sfs|ISfs|(?:\d+[a-z]+)+)$", "", name)
        shorter = re.sub(r"_(?:\d+[a-z]+)+(?=_)", "", shorter)
        if shorter == name:
            return name
        name = shorter


def _plain(text):
    lines = [line.strip() for line in text.strip().splitlines()]
    return "\n".join(lines)


def _commands(doc):
    """The text in front of the first command, and a list of (command, text)."""
    parts = re.split(r"^@(param(?:\[\w+\])?|return)\b", doc, flags=re.MULTILINE)
    return parts[0], list(zip(parts[1::2], (part.strip() for part in parts[2::2])))


def _arguments(text, documented):
    arguments = []
    for piece in text.split(","):
        piece = " ".join(piece.split())
        if piece == "void":
            continue
        stars = piece.count("*") + piece.count("[")
        words = re.findall(r"\w+", re.sub(r"\[\d*\]", "", piece))
        name = words.pop()
        const = "const" in words
        kind = " ".join(word for word in words if word not in ("const", "struct"))
        arguments.append(Argument(kind, stars, const, name, documented.get(name, "")))
    return arguments


def _function(declaration, doc, group, header):
    declaration = " ".join(declaration.split())
    match = re.fullmatch(r"(?P<result>[^()=]*?)\b(?P<name>\w+) ?\((?P<arguments>.*)\)", declaration)
    if not match:
        return None
    front, commands = _commands(doc)
    documented = {}
    for command, text in commands:
        if command.startswith("param"):
            names, _, meaning = text.partition(" ")
            for name in names.split(","):
                documented[name] = " ".join(meaning.split())
    front = " ".join(front.split())
    brief = re.split(r"(?<=[.:])(?:\s|$)", front, maxsplit=1)[0]
    brief = brief.removesuffix(":").removesuffix(".") + "." if brief else ""
    return Function(match["name"], match["result"].strip(), _arguments(match["arguments"], documented), brief, doc,
                    group, header, declaration)


def read(directory):
    """All functions below `directory`, header by header, in the order in which they stand there."""
    functions = []
    directory = pathlib.Path(directory)
    for path in sorted(directory.rglob("*.h")):
        doc = ""
        group = ""
        braces = False
        for token in TOKEN.finditer(path.read_text()):
            if token["doc"]:
                text = _plain(token["text"])
                if text.endswith("@}") or text == "@}":
                    group = ""
                    continue
                defined = re.match(r"@(?:defgroup|addtogroup) (\w+)", text)
                if defined:
                    group = defined[1]
                elif not braces:
                    doc = text
            elif token["open"]:
                braces = True
            elif token["close"]:
                braces = False
                doc = ""
            elif token["function"]:
                function = _function(token["function"], doc, group, path.relative_to(directory).as_posix())
                if function:
                    functions.append(function)
                if not braces:
                    doc = ""
    return functions
