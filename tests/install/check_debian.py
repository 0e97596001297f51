"""The Debian packages serve hosts in C and Python where they are installed, and Debian's own check finds no fault.

usage: check_debian.py FORM PACKAGES SOURCE CC

FORM is one of `lintian`, `folder` (unpacked into one), `clean-root` (installed by dpkg into a system made by
debootstrap, which needs root and a network). PACKAGES is the folder that holds the packages.
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

from hosts import Hosts, lists_of_names, require, run, skip

NAMES_BY_PYTHON = """
import kostyle, sys
with kostyle.Manager("host", sys.argv[1], sys.argv[1]) as manager:
    manager.read()
    for style in manager.system_styles:
        print(style.name)
"""
MIRROR = "http://deb.debian.org/debian"
# What hosts are built and run with.
HOST_PACKAGES = ["g++", "libc6-dev", "pkgconf", "cmake", "make", "python3"]
DOCUMENTED = "/usr/share/doc/libkostyle-dev/examples"
STYLES = f"{DOCUMENTED}/styles/system"


def packages_in(folder, source):
    names = {"libkostyle1", "libkostyle-dev", "kostyle"}
    if (source / "bindings" / "python").is_dir():
        names.add("python3-kostyle")
    packages = {path.name.split("_")[0]: path for path in folder.glob("*.deb")}
    if packages.keys() != names:
        sys.exit(f"{folder} has {sorted(packages)}, not {sorted(names)}")
    return packages


def check_lintian(packages, source, compiler, folder):
    run(["lintian", "--allow-root", "--fail-on", "error,warning", *packages.values()],
        env={**os.environ, "LC_ALL": "C.UTF-8"})


def check_folder(packages, source, compiler, folder):
    root = folder / "root späce"
    for package in packages.values():
        run(["dpkg-deb", "-x", package, root])
    tree = root / "usr"
    require(tree, ["include/kostyle/kostyle.h", "share/man/man1/kostyle.1.gz", "share/kostyle/kostyle.schema.json",
                   "share/bash-completion/completions/kostyle", "share/zsh/vendor-completions/_kostyle",
                   "share/fish/vendor_completions.d/kostyle.fish",
                   "share/doc/libkostyle1/copyright", "share/doc/libkostyle-dev/docs/format.md",
                   "share/doc/python3-kostyle/README.md", "lib/python3/dist-packages/kostyle/py.typed"])
    hosts = Hosts(source, compiler, "", [], folder)
    library = next(tree.glob("lib/*/libKoStyle.so.1")).parent
    # As the loader finds it by itself in a system.
    hosts.environment.update(LD_LIBRARY_PATH=str(library), PYTHONPATH=str(tree / "lib/python3/dist-packages"))
    hosts.expect_tool_works(tree)
    hosts.expect_cmake_finds(tree)
    hosts.expect_pkg_config_finds(tree)
    if "python3-kostyle" in packages:
        hosts.expect_names(hosts.started("/usr/bin/python3", "-B", "-c", NAMES_BY_PYTHON,
                                         source / "examples" / "styles" / "system"))


class CleanRoot:
    """A small Debian of the release that this machine runs."""

    def __init__(self, folder, cache):
        self.folder = folder / "root"
        if os.geteuid() != 0:
            skip("a clean root needs root")
        cache.mkdir(exist_ok=True)
        release = platform_release()
        # What debootstrap mounts in it is seen by nobody else, so that it can be deleted afterwards.
        self.apart = ["unshare", "--mount", "--propagation", "private"]
        made = subprocess.run([*self.apart, "debootstrap", "--variant=minbase", f"--cache-dir={cache}",
                               "--include=" + ",".join(HOST_PACKAGES), release, self.folder, MIRROR],
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if made.returncode != 0:
            skip(f"debootstrap makes no clean root here:\n{made.stdout[-2000:]}")

    def run(self, *command, **options):
        environment = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL": "C.UTF-8",
                       "DEBIAN_FRONTEND": "noninteractive"}
        return run([*self.apart, "chroot", self.folder, *command], env=environment, stdout=subprocess.PIPE,
                   **options).stdout


def platform_release():
    lines = pathlib.Path("/etc/os-release").read_text(encoding="utf-8").splitlines()
    return dict(line.split("=", 1) for line in lines if "=" in line)["VERSION_CODENAME"]


def check_clean_root(packages, source, compiler, folder):
    root = CleanRoot(folder, next(iter(packages.values())).parent.parent / "debootstrap-cache")
    check_installing(root, packages)
    hosts = Hosts(source, compiler, "", [], folder)
    if not root.run("kostyle", "--version").startswith("kostyle 1."):
        sys.exit("the tool does not tell its version")
    root.run("cmake", "-S", DOCUMENTED, "-B", "/tmp/by-cmake")
    root.run("cmake", "--build", "/tmp/by-cmake")
    for program in lists_of_names(root.folder / "tmp" / "by-cmake"):
        hosts.expect_names(root.run(f"/tmp/by-cmake/{program.name}", STYLES))
    root.run("sh", "-c", f"gcc {DOCUMENTED}/list_names.c -o /tmp/by-pkg-config $(pkg-config --cflags --libs kostyle)")
    hosts.expect_names(root.run("/tmp/by-pkg-config", STYLES))
    if "python3-kostyle" in packages:
        hosts.expect_names(root.run("python3", "-c", NAMES_BY_PYTHON, STYLES))
    check_purging(root, packages)


def check_installing(root, packages):
    """With what they depend on, which dpkg insists on."""
    (root.folder / "packages").mkdir()
    for package in packages.values():
        shutil.copy(package, root.folder / "packages")
    root.run("dpkg", "--install", *(f"/packages/{package.name}" for package in packages.values()))
    if "libKoStyle.so.1" not in root.run("ldconfig", "-p"):
        sys.exit("the loader was not told of the library")


def check_purging(root, packages):
    root.run("dpkg", "--purge", *packages)
    left = [path for path in (root.folder / "usr").rglob("*") if "kostyle" in path.name.lower()]
    if left:
        sys.exit(f"left after purging: {left}")


def main(form, packages, source, compiler):
    source = pathlib.Path(source)
    check = {"lintian": check_lintian, "folder": check_folder, "clean-root": check_clean_root}[form]
    with tempfile.TemporaryDirectory() as folder:
        check(packages_in(pathlib.Path(packages), source), source, compiler, pathlib.Path(folder))


if __name__ == "__main__":
    main(*sys.argv[1:])
