"""The example in the description of the format is valid by the schema, and read as the description says.

usage: check_example.py TOOL SCHEMA FORMAT.MD
"""
import json
import pathlib
import re
import subprocess
import sys
import tempfile

import jsonschema

tool, schema, description = sys.argv[1:]
example = re.search(r"```json\n(.*?)```", pathlib.Path(description).read_text(encoding="utf-8"), re.S).group(1)
jsonschema.Draft202012Validator(json.loads(pathlib.Path(schema).read_text(encoding="utf-8"))).validate(json.loads(example))
with tempfile.TemporaryDirectory() as folder:
    file = pathlib.Path(folder) / "example.kostyle"
    file.write_text(example, encoding="utf-8")
    style = json.loads(subprocess.run([tool, "show", "--json", file], capture_output=True, check=True).stdout)
# Lists are sorted when they are read; so are parameters, whose order means nothing.
expected = json.loads(example)
for values in expected["filter"].values():
    values.sort()
if style != expected:
    sys.exit(f"expected {expected}, found {style}")
