#!/usr/bin/env python3
"""Lists the functions that the public headers declare, for the digest: front_ends.py OUTPUT HEADER...

One line each, FRONT_END(name, "its declaration"). The headers are C99 with one TARN_API a function, so that comments are
all that has to be taken away.
"""
import pathlib
import re
import sys

output, *headers = sys.argv[1:]
lines = []
for header in headers:
    text = pathlib.Path(header).read_text()
    text = re.sub(r"/\*.*?\*/|//[^\n]*|^[ \t]*#[^\n]*", " ", text, flags=re.DOTALL | re.MULTILINE)
    for declaration in re.findall(r"\bTARN_API\b([^;{]*);", text):
        declaration = " ".join(declaration.split())
        function = re.fullmatch(r"[^()=]*?\b(\w+) ?\(.*\)", declaration)
        if function:
            lines.append(f'FRONT_END({function.group(1)}, "{declaration}")\n')
if not lines:
    sys.exit("no declaration found in " + " ".join(headers))
pathlib.Path(output).write_text("".join(lines))
