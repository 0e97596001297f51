"""Packs a folder so that the same files give the same archive: in order, all of the time SOURCE_DATE_EPOCH.

usage: pack_zip.py FOLDER ARCHIVE
"""
import os
import pathlib
import sys
import time
import zipfile


def main(folder, archive):
    folder = pathlib.Path(folder)
    moment = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
    files = {path.relative_to(folder.parent).as_posix(): path for path in folder.rglob("*") if path.is_file()}
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
        for name in sorted(files):
            entry = zipfile.ZipInfo(name, moment)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = (0o100755 if name.endswith((".exe", ".dll")) else 0o100644) << 16
            packed.writestr(entry, files[name].read_bytes())


main(*sys.argv[1:])
