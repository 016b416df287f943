"""No call leaves the upper halves of registers set: a caller's code of 128 bits would wait for them.

    upper_halves_test.py OBJDUMP NM LIBRARY

Follows every function of the library through its jumps, and fails for an exported one that can return, or jump to
another function, after an instruction that wrote a register of 256 or 512 bits without a vzeroupper behind it."""

import re
import subprocess
import sys

# Only the first sixteen registers are those of narrower code.
WIDE = re.compile(r"%[yz]mm(?:[0-9]|1[0-5])(?:\{[^}]*\})*$")
JUMP = re.compile(r"(?:bnd |notrack )*(j[a-z]+)\s+(?:([0-9a-f]+) <|\*)")
CALL = re.compile(r"(?:bnd |notrack )*call\s+([0-9a-f]+) <")


def output(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, encoding="ascii").stdout


class Function:
    def __init__(self, name):
        self.name = name
        self.code = {}  # address: (instruction, address of the next one)
        self.tables = []  # where jumps through a table of its own may lead


def functions(objdump, library):
    """The functions, each with its cold part, and whose every address is."""
    found, owner, current, last = {}, {}, None, None
    for line in output(objdump, "-d", "--no-show-raw-insn", "--section=.text", library).splitlines():
        start = re.match(r"[0-9a-f]+ <(.+)>:$", line)
        if start:
            name = re.sub(r"\.cold(\.\d+)?$", "", start[1])
            current, last = found.setdefault(name, Function(name)), None
            continue
        code = re.match(r"\s*([0-9a-f]+):\s+(\S.*?)\s*(?:#.*)?$", line)
        if code and current:
            address = int(code[1], 16)
            if last is not None:
                current.code[last] = (current.code[last][0], address)
            current.code[address] = (code[2], None)
            owner[address] = current
            last = address
    return found, owner


def exit_of(function, starts, owner, leaves_set):
    """The first instruction by which a function can leave with upper halves set, or None."""
    seen = set()
    todo = [(address, False) for address in starts]
    while todo:
        address, dirty = todo.pop()
        while address is not None and (address, dirty) not in seen:
            seen.add((address, dirty))
            text, following = function.code[address]
            call = CALL.match(text)
            jump = JUMP.match(text)
            if text.startswith(("vzeroupper", "vzeroall")):
                dirty = False
            elif call:
                callee = owner.get(int(call[1], 16))
                dirty = dirty or (callee is not None and callee.name in leaves_set)
            elif re.match(r"(?:repz |bnd )*ret", text):
                if dirty:
                    return address
                break
            elif jump:
                target = int(jump[2], 16) if jump[2] else None
                callee = owner.get(target)
                if target is not None and callee is function:
                    todo.append((target, dirty))
                elif target is None and jump[1] == "jmp" and "*%" in text and "(" not in text and function.tables:
                    # Through a table of the function's own: to anywhere in it.
                    todo += [(place, dirty) for place in function.tables]
                elif dirty or (callee is not None and callee.name in leaves_set):
                    return address
                if jump[1] == "jmp":
                    break
            elif WIDE.search(text):
                dirty = True
            address = following
    return None


def main():
    objdump, nm, library = sys.argv[1:]
    found, owner = functions(objdump, library)
    exported = {line.split()[-1] for line in output(nm, "-D", "--defined-only", library).splitlines() if " T " in line}
    exported = {name.split("@")[0] for name in exported}
    for function in found.values():
        # Blocks that nothing falls or jumps into are reached through a table of addresses.
        reached = {int(m[2], 16) for text, _ in function.code.values() if (m := JUMP.match(text)) and m[2]}
        starts, before = [], None
        for address, (text, _) in function.code.items():
            ends = before is not None and re.match(r"(?:repz |bnd |notrack )*(ret|jmp)", before)
            if ends and address not in reached and not re.match(r"(data16|cs |nop|xchg\s+%ax)", text):
                starts.append(address)
            before = text
        function.tables = starts
    # Helpers may hand on what is in wide registers: what they leave is their callers' to clear.
    leaves_set, before = set(), None
    exits = {}
    while before != len(leaves_set):
        before = len(leaves_set)
        for function in found.values():
            if function.name not in leaves_set and function.code:
                where = exit_of(function, [next(iter(function.code))], owner, leaves_set)
                if where is not None:
                    leaves_set.add(function.name)
                    exits[function.name] = where
    wrong = sorted(leaves_set & exported)
    for name in wrong:
        print(f"{name} can leave at {exits[name]:x} with upper halves set")
    wide = sum(any(WIDE.search(text) for text, _ in found[name].code.values()) for name in exported if name in found)
    print(f"{wide} exported functions use wide registers, {len(wrong)} of them leave upper halves set")
    # A library without any was not looked at rightly.
    return 1 if wrong or wide < 100 else 0


if __name__ == "__main__":
    sys.exit(main())
