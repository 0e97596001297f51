"""Makes the packages once more, of a copy of the sources in another folder, and compares them bit for bit.

usage: check_reproducible.py FIRST...

Each FIRST is a folder with packages that this checkout has made. What differs inside a package is named.
"""
import hashlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import zipfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Not what this machine is set to, nor anything that a package may depend on.
ELSEWHERE = {"TZ": "Asia/Tokyo", "LC_ALL": "C"}


def digest(content):
    return hashlib.sha256(content).hexdigest()


def git(*arguments):
    return subprocess.run(["git", "-C", ROOT, *arguments], check=True, stdout=subprocess.PIPE).stdout.decode("utf-8")


def copy_sources(folder):
    """As an archive of a release has them: without git, all of the time of the last commit."""
    time = int(git("log", "-1", "--format=%ct"))
    for name in filter(None, git("ls-files", "-z", "-co", "--exclude-standard").split("\0")):
        if (ROOT / name).is_file():
            (folder / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(ROOT / name, folder / name)
            os.utime(folder / name, (time, time))


def content(package, folder):
    """The digest of each file in a package."""
    unpacked = pathlib.Path(tempfile.mkdtemp(dir=folder))
    if package.suffix == ".zip":
        zipfile.ZipFile(package).extractall(unpacked)
    else:
        subprocess.run(["dpkg-deb", "--raw-extract", package, unpacked / "files"], check=True)
    return {path.relative_to(unpacked): digest(path.read_bytes()) for path in unpacked.rglob("*") if path.is_file()}


def same(first, second, folder):
    """Whether two packages are equal; prints what each is, and the binaries in it or what differs."""
    equal = first.read_bytes() == second.read_bytes()
    print(f"{digest(first.read_bytes())}  {first.name}" + ("" if equal else "  DIFFERS"))
    before, after = content(first, folder), content(second, folder)
    for path in sorted(before.keys() | after.keys()):
        different = before.get(path) != after.get(path)
        if different or path.suffix in (".dll", ".exe") or path.parts[-3:] == ("usr", "bin", "kostyle") \
                or ".so." in path.name:
            print(f"{before.get(path)}    {path.name}" + ("  DIFFERS" if different else ""))
    return equal


def main(*folders):
    first = {path.name: path for folder in folders for path in pathlib.Path(folder).iterdir()
             if path.suffix in (".deb", ".zip")}
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(temporary) / "another pläce"
        folder.mkdir()
        copy_sources(folder)
        print("making the packages in another folder", flush=True)
        made = subprocess.run([folder / "scripts" / "package"], env={**os.environ, **ELSEWHERE}, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, errors="replace")
        if made.returncode != 0:
            sys.exit(made.stdout)
        second = {path.name: path for path in (folder / "build" / "packages").iterdir()}
        if not first or first.keys() != second.keys():
            sys.exit(f"{sorted(first)} here, {sorted(second)} there")
        results = [same(path, second[name], temporary) for name, path in sorted(first.items())]
    sys.exit(0 if all(results) else 1)


main(*sys.argv[1:])
