"""The export table of the built library holds exactly the listed names, with the listed bindings.

usage: check_export_table.py EXPORTS.TXT LIBRARY NM OBJDUMP
"""
import collections
import re
import subprocess
import sys

EXPECTED_NAMES = 124


def listed(path):
    """The entry point of each name of the list."""
    entries = {}
    with open(path, encoding="ascii") as file:
        for line in file:
            if line.strip() and not line.startswith("#"):
                name, _, entry = line.strip().partition(" = ")
                entries[name] = entry or name
    return entries


def elf_exports(library, nm):
    """The address of each exported name."""
    output = subprocess.run([nm, "-D", "--defined-only", library], check=True, capture_output=True, text=True)
    return {line.split()[2]: line.split()[0] for line in output.stdout.splitlines()}


def pe_exports(library, objdump):
    output = subprocess.run([objdump, "-p", library], check=True, capture_output=True, text=True).stdout
    addresses = dict(re.findall(r"^\s*\[\s*(\d+)\] \+base\[\s*\d+\] ([0-9a-f]+) Export RVA", output, re.M))
    # One line a name, in the order of the ordinals that this linker gives: by name.
    names = re.findall(r"^\s*\[\s*(\d+)\] (?:\+base\[\s*\d+\]\s+)?(?:[0-9a-f]{4} )?(\w+)$", output, re.M)
    return {name: addresses[index] for index, name in names}


def main(list_path, library, nm, objdump):
    expected = listed(list_path)
    found = pe_exports(library, objdump) if library.endswith(".dll") else elf_exports(library, nm)
    if len(expected) != EXPECTED_NAMES:
        sys.exit(f"{list_path} lists {len(expected)} names instead of {EXPECTED_NAMES}")
    if set(found) != set(expected):
        sys.exit(f"missing: {sorted(set(expected) - set(found))}, too many: {sorted(set(found) - set(expected))}")
    groups = collections.defaultdict(set)
    for name, address in found.items():
        groups[address].add(expected[name])
    mixed = [sorted(entries) for entries in groups.values() if len(entries) > 1]
    if mixed or len(groups) != len(set(expected.values())):
        sys.exit(f"{len(groups)} addresses for {len(set(expected.values()))} entry points; mixed: {mixed}")
    print(f"{len(found)} names, {len(groups)} entry points")


main(*sys.argv[1:])
