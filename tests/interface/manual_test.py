#!/usr/bin/env python3
"""Looks at the built manual as a reader would: no dead link, pictures that are there, topics that begin
with their purpose, functions found by their ideas.

    manual_test.py HTML_DIRECTORY [CHROMIUM]

The exit code 77 tells that there is no manual to look at. Without Chromium the search is left out.
"""
import html.parser
import pathlib
import re
import subprocess
import sys
import urllib.parse

SEARCHES = {
    "Hann": "tarnsWinHann", "FFT": "tarnsFFTFwd_CToC", "resample": "tarnsFIRMRInitAlloc", "decibel": "tarns10Log10",
    "goertzel": "tarnsGoertz", "biquad": "tarnsIIRInitAlloc_BiQuad", "ulaw": "tarnsMuLawToLin", "clip": "tarnsThreshold",
    "moving average": "tarnsFIR", "sample rate conversion": "tarnsFIRMRInitAlloc", "echo canceller": "tarnsFIRLMS",
    "olarToC": "tarnsPolarToCart", "no-such-idea": "nothing",
}


class Page(html.parser.HTMLParser):
    """The places that a page has, and those that it leads to."""

    def __init__(self, path):
        super().__init__()
        self.places, self.links, self.pictures = set(), [], []
        self.feed(path.read_text(errors="replace"))

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        self.places.update(filter(None, (attributes.get("id"), attributes.get("name"))))
        if tag == "a" and attributes.get("href"):
            self.links.append(attributes["href"])
        if tag in ("img", "object", "embed"):
            self.pictures.append(attributes.get("src") or attributes.get("data") or "")


def problems(directory):
    """Links that lead nowhere, and pictures that cannot be shown."""
    pages = {path.name: Page(path) for path in directory.glob("*.html")}
    for name, page in sorted(pages.items()):
        for link in page.links + page.pictures:
            parts = urllib.parse.urlparse(link)
            if parts.scheme or parts.netloc or link.startswith("javascript"):
                continue
            target = urllib.parse.unquote(parts.path) or name
            if not (directory / target).exists():
                yield f"{name}: {link}: no such file"
            elif parts.fragment and target in pages and urllib.parse.unquote(
                    parts.fragment) not in pages[target].places:
                yield f"{name}: {link}: no such place there"
        for picture in page.pictures:
            begin = (directory / picture).read_bytes()[:200] if (directory / picture).is_file() else b""
            if picture.endswith((".png", ".svg")) and not (begin.startswith(b"\x89PNG") or b"<svg" in begin or
                                                          b"<?xml" in begin):
                yield f"{name}: {picture} is no picture"
    for topic in sorted(directory.glob("group__*.html")):
        text = topic.read_text()
        if not 0 <= text.find("Purpose</h2>") < text.find('class="memberdecls"'):
            yield f"{topic.name} does not begin with its purpose"
    pictures = sum(len([p for p in page.pictures if not p.startswith(("doxygen", "search/"))]) for page in pages.values())
    if pictures < 20:
        yield f"only {pictures} pictures in the whole manual"


def found(chromium, directory, words):
    """The functions that the page offers for some words, best first."""
    page = f"file://{directory}/find.html?q={urllib.parse.quote_plus(words)}"
    command = [chromium, "--headless", "--no-sandbox", "--disable-gpu", "--virtual-time-budget=3000", "--dump-dom", page]
    text = subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=120).stdout
    text = re.sub(r"<script>.*?</script>", "", text.decode(), flags=re.DOTALL)
    return re.findall(r"<dt>(?:<a[^>]*>)?(\w+)", text)


def main():
    directory = pathlib.Path(sys.argv[1]).resolve()
    if not (directory / "find.html").exists():
        print("the manual is not built")
        sys.exit(77)
    wrong = list(problems(directory))
    if len(sys.argv) > 2:
        for words, function in SEARCHES.items():
            answers = found(sys.argv[2], directory, words)
            if function not in answers[:5]:
                wrong.append(f"{words}: {function} is not among the first of {answers[:5]}")
    else:
        print("no Chromium: the search is left out")
    print("\n".join(wrong))
    sys.exit(1 if wrong else 0)


main()
