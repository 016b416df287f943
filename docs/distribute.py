#!/usr/bin/env python3
# Input filter of Doxygen. Functions of one stem share one comment, written once before `///@{`; Doxygen's own
# distribution does not reach into topics, and calls an argument that only some of the functions have an error. So the
# comment is repeated here before each declaration, with the @param entries that fit it.
import re
import sys

ENTRY = re.compile(r"\s*@param(\[[a-z,]+\])?\s+(\w+(?:\s*,\s*\w+)*)")


def split_comment(lines):
    """The comment as a list of (argument names or None, lines): an entry ends at the next command or empty line."""
    parts = [(None, [])]
    for line in lines:
        entry = ENTRY.match(line)
        if entry:
            parts.append((re.split(r"\s*,\s*", entry.group(2)), []))
        elif parts[-1][0] is not None and (not line.strip() or re.match(r"\s*(@|\*/)", line)):
            parts.append((None, []))
        parts[-1][1].append(line)
    return parts


def comment_for(parts, arguments, used):
    text = []
    for names, lines in parts:
        if names is None:
            text += lines
            continue
        fitting = [name for name in names if name in arguments]
        used.update(fitting)
        if fitting:
            # The end of the comment may stand on the line of its last entry.
            text.append(ENTRY.sub(lambda m: " @param%s %s" % (m.group(1) or "", ",".join(fitting)), lines[0], count=1))
            text += lines[1:]
        elif lines[-1].rstrip().endswith("*/"):
            text.append(" */\n")
    return text


def distribute(lines):
    out, comment, block, used = [], [], None, set()
    declaration, collecting = [], False
    for number, line in enumerate(lines, 1):
        if line.startswith("/**"):
            comment, collecting = [], True
        if number == 1 and line.startswith("/* "):
            line = "/** @file\n" + line[2:] # Doxygen lists the functions of documented files only
        if collecting:
            comment.append(line)
            collecting = "*/" not in line
            if block is None:
                out.append(line)
            continue
        if line.strip() == "///@{" and comment:
            block, used = split_comment(comment), set()
            del out[len(out) - len(comment):]
        elif line.strip() == "///@}" and block is not None:
            declared = {n for names, _ in block if names for n in names}
            for unknown in sorted(declared - used):
                # Doxygen ignores a filter's own complaints, so let it find the fault.
                out.append(f"/** @param {unknown} Line {number}. */\nvoid no_function_of_group_has_{unknown}(void);\n")
            block, comment = None, []
        elif block is None:
            out.append(line)
            if line.strip():
                comment = []
        else:
            declaration.append(line)
            if not line.strip() or line.startswith("#"):
                out += declaration
                declaration = []
            elif ";" in line:
                text = "".join(declaration)
                out += comment_for(block, set(re.findall(r"\w+", text[text.find("("):])), used) + declaration
                declaration = []
    return out


with open(sys.argv[1], encoding="utf-8") as source:
    sys.stdout.write("".join(distribute(source.readlines())))
