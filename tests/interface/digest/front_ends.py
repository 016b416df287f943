#!/usr/bin/env python3
"""Lists the functions that the public headers declare, for the digest: front_ends.py OUTPUT INCLUDE_DIRECTORY

One line each, FRONT_END(name, "its declaration").
"""
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[3] / "scripts"))
import public_headers

output, directory = sys.argv[1:]
lines = [f'FRONT_END({function.name}, "{function.declaration}")\n' for function in public_headers.read(directory)]
if not lines:
    sys.exit("no declaration found in " + directory)
pathlib.Path(output).write_text("".join(lines))
