#!/usr/bin/env python3
"""Compiles the examples of the documentation, and holds the topics of the manual to their form.

    snippets_test.py SOURCE WORK LIBRARY CC -- CXX     with the flags that each compiler takes

Every topic opens with what it is for, an example, its accuracy, its cost and a link to its guide. The examples of topics
are run: what they print is what the comments behind their printf() say. Those of the pages are compiled, with what
`<!-- given: ... -->` in front of one declares as arguments; whole programs are run. Every function has a topic, and a
description whose first sentence says what it does.
"""
import pathlib
import re
import subprocess
import sys

SOURCE, WORK, LIBRARY = (pathlib.Path(path) for path in sys.argv[1:4])
SPLIT = sys.argv.index("--")
CC, CXX = sys.argv[4:SPLIT], sys.argv[SPLIT + 1:]
sys.path.insert(0, str(SOURCE / "scripts"))
import public_headers  # noqa: E402  pylint: disable=wrong-import-position

HEAD = "#include <math.h>\n#include <stddef.h>\n#include <stdio.h>\n#include <tarns.h>\n"
TOPIC = re.compile(r"/\*\* @defgroup (\w+) [^\n]*\n(.*?)@\{ \*/", re.DOTALL)
CODE = re.compile(r"    @code\{\.c\}\n(.*?)    @endcode\n", re.DOTALL)
PROMISE = re.compile(r"\bprintf\(.*?\); // (.*)")
FENCE = re.compile(r"(?:<!-- given: (?P<given>.*?) -->\n)?```(?P<language>\w*)\n(?P<code>.*?)```", re.DOTALL)
CALL_IN_TEXT = re.compile(r"^    .*\btarns?[A-Z]\w*\(.*\);", re.MULTILINE)
# First sentences begin with a verb. These words end as verbs do, and are none.
NO_VERBS = {"This", "Its", "Bits", "Bins", "Magnitudes", "Phases", "Roots", "Sums", "Norms", "Products"}

wrong = []


def topics():
    for path in [*sorted((SOURCE / "include").glob("*.h")), *sorted((SOURCE / "include/tarns").glob("*.h"))]:
        for match in TOPIC.finditer(path.read_text()):
            yield match[1], match[2]


def check_topic(name, text):
    """The order of what a topic begins with; answers its example."""
    wanted = [r"\A    [A-Z].*?\.\n", CODE.pattern, "    __Accuracy:__ ", "    __Cost:__ ", "    __Guide:__ "]
    place = 0
    for pattern in wanted:
        found = re.compile(pattern, re.DOTALL).search(text, place)
        if not found:
            wrong.append(f"topic {name}: {pattern} is missing, or stands elsewhere")
            return None
        place = found.end()
    guides = re.findall(r"\]\((docs/[\w-]+\.md)\)", text[place:])
    if not guides:
        wrong.append(f"topic {name}: no guide")
    wrong.extend(f"topic {name}: no {guide}" for guide in guides if not (SOURCE / guide).exists())
    example = CODE.search(text)[1]
    if not PROMISE.search(example):
        wrong.append(f"topic {name}: the example says nothing of what it prints")
    return example


def check_functions():
    functions = public_headers.read(SOURCE / "include")
    wrong.extend(f"{function.name} is in no topic" for function in functions if not function.group)
    for brief in sorted({function.brief for function in functions}):
        first = brief.split()[0]
        if not re.fullmatch(r"[A-Z][a-z-]+s", first) or first in NO_VERBS or not brief.endswith("."):
            wrong.append(f"does not tell what a function does: {brief}")


def compile_and_run(command, name, text, run=True):
    source, program = WORK / name, WORK / pathlib.Path(name).stem
    source.write_text(text)
    ending = ["-o", program, LIBRARY, f"-Wl,-rpath,{LIBRARY.parent}", "-lm"] if run else ["-fsyntax-only"]
    done = subprocess.run([*command, "-I", SOURCE / "include", source, *ending], stderr=subprocess.PIPE, text=True,
                          check=False)
    if done.returncode != 0:
        wrong.append(f"{name} does not compile:\n{done.stderr}")
        return ""
    if not run:
        return ""
    done = subprocess.run([program], stdout=subprocess.PIPE, text=True, timeout=60, check=False)
    if done.returncode != 0:
        wrong.append(f"{name} ends with {done.returncode}")
    return done.stdout


def run_examples(examples):
    functions = "".join(f"\nstatic void example_{name}(void)\n{{\n{code}}}\n" for name, code in examples.items())
    calls = "".join(f'    puts("@@{name}");\n    example_{name}();\n' for name in examples)
    printed = compile_and_run([*CC, "-std=c99", "-Wall", "-Wextra", "-Werror"], "topics.c",
                              f"{HEAD}{functions}\nint main(void)\n{{\n{calls}    return 0;\n}}\n")
    parts = dict(part.split("\n", 1) for part in printed.split("@@")[1:])
    for name, code in examples.items():
        promised = [line.rstrip() for line in PROMISE.findall(code)]
        if parts.get(name, "").splitlines() != promised:
            wrong.append(f"topic {name} promises {promised} and prints {parts.get(name)}")


def page_snippet(number, given, code):
    """One that stands within a function, or one of functions; a program by itself answers None."""
    if re.search(r"^int main\(", code, re.MULTILINE):
        return None
    includes = "".join(re.findall(r"^#include.*\n", code, re.MULTILINE))
    code = re.sub(r"^#include.*\n", "", code, flags=re.MULTILINE)
    if re.search(r"^\w[^;{]*\)[^;{]*\n\{", code, re.MULTILINE):
        return f"{includes}{code}\n"
    return f"{includes}void snippet_{number}({given or 'void'})\n{{\n{code}}}\n"


def check_pages():
    """All of a language as one unit, so that there is one run of the compiler."""
    face = "#include <tarns.hpp>\n#include <cstdio>\n#include <vector>\n"
    texts = {"c": HEAD, "cpp": face, "results.cpp": "#define TARNS_NO_EXCEPTIONS\n" + face}
    commands = {"c": [*CC, "-std=c99", "-Werror=implicit-function-declaration", "-Werror=incompatible-pointer-types",
                      "-Werror=int-conversion"]}
    commands["cpp"] = commands["results.cpp"] = [*CXX, "-std=c++20", "-Wall", "-Wextra", "-Werror", "-Wno-psabi"]
    count = 0
    for page in [SOURCE / "README.md", SOURCE / "CONTRIBUTING.md", *sorted((SOURCE / "docs").glob("*.md"))]:
        text = page.read_text()
        if page.name != "CONTRIBUTING.md":  # which shows lines of the library's own
            wrong.extend(f"{page.name}: an example without a fence: {line.strip()}" for line in CALL_IN_TEXT.findall(
                FENCE.sub("", text)))
        for number, match in enumerate(FENCE.finditer(text)):
            language = match["language"]
            if language not in texts:
                continue
            if language == "cpp" and "::make(" in match["code"]:
                language = "results.cpp"
            count += 1
            line = text.count("\n", 0, match.start("code")) + 1
            snippet = page_snippet(f"{page.stem.replace('-', '_')}_{number}", match["given"], match["code"])
            if snippet is None:
                compile_and_run(commands[language], f"{page.stem}_{number}.{language}", match["code"])
            else:
                texts[language] += f'#line {line} "{page.name}"\n{snippet}'
    if count < 20:
        wrong.append(f"only {count} examples in all pages")
    for language, text in texts.items():
        compile_and_run(commands[language], f"pages.{language}", text, run=False)


def main():
    WORK.mkdir(parents=True, exist_ok=True)
    examples = {name: check_topic(name, text) for name, text in topics()}
    if len(examples) < 50:
        wrong.append(f"only {len(examples)} topics")
    check_functions()
    run_examples({name: code for name, code in examples.items() if code})
    check_pages()
    print("\n".join(wrong))
    sys.exit(1 if wrong else 0)


main()
