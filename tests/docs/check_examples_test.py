"""The check of the pages passes what is right, and finds each kind of fault.

usage: check_examples_test.py SOURCE BUILD CC CXX
"""
import pathlib
import subprocess
import sys
import tempfile

HOST = '''```c
#include <stdio.h>
int main(void) { return printf("one\\ntwo\\n") != 8; }
```

'''
RIGHT = {
    "no code": "Nothing.\n",
    "text": HOST + "```text\none\ntwo\n```\n",
    "text with anything": HOST + "```text\no...\n...o\n```\n",
    "text in any order": HOST + "<!-- in any order -->\n```text\ntwo\none\n```\n",
    "fragment": "<!-- frame: manager -->\n```cpp\nstd::cout << manager.systemStyles().size() << '\\n';\n```\n\n"
                "```text\n7\n```\n",
    "fragment of Python": "<!-- frame: manager -->\n```python\nprint(len(manager.user_styles))\n```\n\n"
                          "```text\n5\n```\n",
    "commands": "```sh\necho three > file  # a comment\ncat file\n```\n\n```text\nthree\n```\n",
    "commands that are not run": "```sh\nscripts/demo && scripts/test\n```\n",
    "saved file": "<!-- file: a.json -->\n```json\n[]\n```\n\n```sh\ncat a.json\n```\n\n```text\n[]\n```\n",
    "the other platform's": "<!-- only: windows -->\n```c\n#error no\n```\n",
}
WRONG = {
    "unknown language": "```ruby\nputs 1\n```\n",
    "no language": "```\nputs 1\n```\n",
    "indented code": "Text.\n\n    code\n",
    "fence in a list": "- item\n  ```c\n  ```\n",
    "fence of tildes": "~~~c\n~~~\n",
    "fence without an end": "```sh\ntrue\n",
    "unknown comment": "<!-- skip -->\n```c\n#error no\n```\n",
    "unknown frame": "<!-- frame: none -->\n```c\n;\n```\n",
    "unknown platform": "<!-- only: beos -->\n```c\n;\n```\n",
    "json that nothing reads": "```json\n[]\n```\n",
    "text without a source": "```text\none\n```\n",
    "text of another section": HOST + "# Next\n\n```text\none\ntwo\n```\n",
    "another text": HOST + "```text\none\n```\n",
    "another order": HOST + "```text\ntwo\none\n```\n",
    "not C": "```c\nint main(void) { return x; }\n```\n",
    "warning": "```c\nint main(int argc, char* argv[]) { return 0; }\n```\n",
    "exit code": "```c\nint main(void) { return 1; }\n```\n",
    "error stream": '```python\nimport sys\nprint("no", file=sys.stderr)\n```\n',
    "not Python": "```python\nprint(\n```\n",
    "command that fails": "```sh\nfalse\ntrue\n```\n",
    "command behind one that is not run": "```sh\nscripts/demo && false\n```\n",
}


def passes(text, *arguments):
    with tempfile.TemporaryDirectory() as folder:
        page = pathlib.Path(folder) / "page.md"
        page.write_text(text, encoding="utf-8")
        check = pathlib.Path(__file__).with_name("check_examples.py")
        run = subprocess.run([sys.executable, "-B", check, page, *arguments], capture_output=True, text=True)
    if "Traceback" in run.stderr:
        sys.exit(run.stderr)
    return run.returncode == 0


def main(*arguments):
    wrong = [name for name, text in RIGHT.items() if not passes(text, *arguments)]
    wrong += [name for name, text in WRONG.items() if passes(text, *arguments)]
    if wrong:
        sys.exit(f"taken for the opposite: {wrong}")


if __name__ == "__main__":
    main(*sys.argv[1:])
