"""The built library carries the protections of its platform and needs system libraries only.

usage: check_hardening.py LIBRARY OBJDUMP
"""
import re
import subprocess
import sys

WINDOWS_LIBRARIES = {"KERNEL32.dll", "msvcrt.dll", "RPCRT4.dll"}


def main(library, objdump):
    headers = subprocess.run([objdump, "-p", library], check=True, capture_output=True, text=True).stdout
    if library.endswith(".dll"):
        required = ["HIGH_ENTROPY_VA", "DYNAMIC_BASE", "NX_COMPAT"]
        foreign = set(re.findall(r"DLL Name: (\S+)", headers)) - WINDOWS_LIBRARIES
    else:
        required = [r"RELRO", r"STACK .*\n.*flags rw-", r"FLAGS\s+0x0*8\b", r"SONAME\s+libKoStyle\.so\.\d+"]
        foreign = set()
    missing = [pattern for pattern in required if not re.search(pattern, headers)]
    if missing or foreign:
        sys.exit(f"{library}: missing {missing}, needs {sorted(foreign)}")


main(*sys.argv[1:])
