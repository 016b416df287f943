"""Runs the examples of docs/python.md; what they print is what their comments say."""
import contextlib
import io
import pathlib
import re
import unittest

PAGES = pathlib.Path(__file__).resolve().parent.parent.parent / "docs"


class Pages(unittest.TestCase):
    def test_examples(self):
        found = re.findall(r"```python\n(.*?)```", (PAGES / "python.md").read_text(), re.DOTALL)
        self.assertTrue(found)
        for code in found:
            printed = io.StringIO()
            with contextlib.redirect_stdout(printed):
                exec(compile(code, "python.md", "exec"), {})  # pylint: disable=exec-used
            promised = re.findall(r"^print\(.*?\) +# ([^:\n]*)", code, re.MULTILINE)
            lines = [" ".join(line.split()) for line in printed.getvalue().splitlines()]
            self.assertEqual(lines, [" ".join(line.split()) for line in promised])


if __name__ == "__main__":
    unittest.main()
