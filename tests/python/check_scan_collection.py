"""A collection is scanned by several processes as by one, also when a worker dies in the middle.

usage: check_scan_collection.py EXAMPLE.PY
"""
import contextlib
import csv
import importlib.util
import json
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest.mock

import dask
import distributed
import kostyle

FILES = 20_000
ROOM = 300_000_000  # of bytes


def load(path):
    spec = importlib.util.spec_from_file_location("scan_collection", path)
    module = importlib.util.module_from_spec(spec)
    sys.modules["scan_collection"] = module
    spec.loader.exec_module(module)
    return module


def folder_for_many_files():
    """In memory where there is room for them."""
    shared = "/dev/shm"
    roomy = os.path.isdir(shared) and shutil.disk_usage(shared).free > ROOM
    return tempfile.TemporaryDirectory(dir=shared if roomy else None)


def content_of(number):
    """Most are styles; some are refused, some have the identifier of another, and no two are the same."""
    generator = random.Random(number)
    if number % 50 == 0:
        return "{" + " " * (number % 7) + f'"id": "{number}",' + "\n" * (number % 3) + "?}"
    if number % 50 == 1:
        return json.dumps({"id": str(number), "audioEffect": {}})
    parameters = {f"p{place}": generator.choice([number, number / 7, f"text {number}", 1e300]) for place in range(4)}
    return json.dumps({"id": str(number % 19_000), "name": f"Style \u00fc {number}",
                       "filter": {"languages": [number % 5]}, "audioEffect": {"Gate": {"parameter": parameters}}},
                      ensure_ascii=number % 2 == 0)


def make_collection(folder):
    for number in range(FILES - 1):
        below = folder / str(number % 10)
        if number < 10:
            below.mkdir()
        (below / f"{number}.kostyle").write_text(content_of(number), encoding="utf-8")
    (folder / "gone.kostyle").symlink_to(folder / "nowhere")
    return [os.path.join(below, name) for below, _, names in os.walk(folder) for name in names]


@contextlib.contextmanager
def started(*command, **environment):
    """A process that is stopped in any case, by its id."""
    process = subprocess.Popen([sys.executable, *command], env={**os.environ, **environment}, stderr=subprocess.PIPE,
                               text=True, errors="replace")
    try:
        yield process
    finally:
        process.kill()
        process.communicate()


@contextlib.contextmanager
def cluster(folder):
    """A scheduler and two workers, on the loopback and ports that are free."""
    where = folder / "scheduler.json"
    loopback = ["--host", "127.0.0.1", "--no-dashboard"]
    worker = ["-m", "distributed.cli.dask_worker", *loopback, "--scheduler-file", str(where), "--no-nanny",
              "--nthreads", "1", "--local-directory"]
    with started("-m", "distributed.cli.dask_scheduler", *loopback, "--port", "0", "--scheduler-file",
                 str(where)) as scheduler:
        # A worker that is killed leaves files behind.
        place = {"TMPDIR": str(folder)}
        with started(*worker, str(folder / "first"), **place) as first, \
                started(*worker, str(folder / "second"), **place) as second:
            for _ in range(600):
                if where.exists():
                    break
                time.sleep(0.1)
            address = json.loads(where.read_text(encoding="utf-8"))["address"]
            with distributed.Client(address) as client:
                client.wait_for_workers(2, timeout=60)
            yield address, [scheduler, first, second]


def run_and_kill(example, address, victim, table, collection):
    """Kills a worker when a quarter is done."""
    with started(example, "--scheduler", address, "--batch", "200", str(table), str(collection)) as scanning:
        seen = ""
        while scanning.poll() is None or not seen.endswith("\n"):
            character = scanning.stderr.read(1)
            if not character:
                break
            seen += character
            done = re.findall(r"(\d+) of (\d+) files", seen[-60:])
            if victim.poll() is None and done and FILES // 4 <= int(done[-1][0]):
                if int(done[-1][0]) > FILES * 3 // 4:
                    sys.exit("it was too quick to be interrupted")
                os.kill(victim.pid, signal.SIGKILL)
                victim.wait()
        if scanning.wait() != 0:
            sys.exit(f"it ended with {scanning.returncode}: {seen[-2000:]}")
    return seen


def read_table(path):
    with open(path, encoding="utf-8", newline="") as file:
        return sorted(csv.DictReader(file), key=lambda row: row["path"])


def expect_same(found, expected):
    if len(found) != len(expected):
        sys.exit(f"{len(found)} rows for {len(expected)} files")
    wrong = [pair for pair in zip(found, expected) if pair[0] != pair[1]]
    if wrong:
        sys.exit(f"{len(wrong)} rows differ, first {wrong[0]}")


def check_cluster(example, module, folder):
    collection = folder / "collection"
    collection.mkdir()
    paths = make_collection(collection)
    expected = sorted(map(module.row_of, kostyle.scan(paths)), key=lambda row: row["path"])
    refused = sum(bool(row["refused"]) for row in expected)
    if len(expected) != FILES or refused != FILES // 50 * 2 + 1:
        sys.exit(f"{len(expected)} files, {refused} refused")
    with cluster(folder) as (address, (scheduler, first, second)):
        run_and_kill(example, address, first, folder / "table.csv", collection)
        if first.returncode != -signal.SIGKILL or scheduler.poll() is not None or second.poll() is not None:
            sys.exit("another process than the victim ended")
    expect_same(read_table(folder / "table.csv"), expected)
    print(f"{FILES} files as by one process, {refused} refused, one of two workers killed")


def check_embedded(example, folder):
    """Without a cluster of one's own."""
    small = folder / "small"
    small.mkdir()
    for number in range(100):
        shutil.copy(folder / "collection" / str(number % 10) / f"{number}.kostyle", small)
    subprocess.run([sys.executable, example, str(folder / "small.csv"), str(small)], check=True,
                   stderr=subprocess.DEVNULL)
    if len(read_table(folder / "small.csv")) != 100:
        sys.exit("the embedded scheduler lost files")


def check_refusals(example, module, folder):
    """What cannot be done is said in a line, before a table of an earlier run is touched."""
    table = folder / "earlier.csv"
    table.write_text("an earlier table")
    nowhere = {"DASK_DISTRIBUTED__COMM__TIMEOUTS__CONNECT": "1s"}
    for options, said in [(["--scheduler", "tcp://127.0.0.1:9"], "is no scheduler"), (["--batch", "0"], "--batch")]:
        done = subprocess.run([sys.executable, example, *options, str(table), str(folder / "small")], text=True,
                              stderr=subprocess.PIPE, env={**os.environ, **nowhere})
        if done.returncode == 0 or said not in done.stderr or "Traceback" in done.stderr:
            sys.exit(f"with {options} it said {done.stderr}")
    if table.read_text() != "an earlier table":
        sys.exit("a table is gone, and no other is in its place")
    try:
        with module.csv_table(str(folder / "none" / "table.csv")):
            sys.exit("a table was made nowhere")
    except SystemExit as stopped:
        if os.strerror(2) not in str(stopped):
            raise


def check_found_files(module, folder):
    """In the folders that are named and below; a folder that cannot be listed is not passed over in silence."""
    closed = folder / "closed"
    closed.mkdir()
    real = os.scandir

    def listed(path):
        if os.fspath(path) == str(closed):
            raise PermissionError(13, os.strerror(13), str(closed))
        return real(path)

    with unittest.mock.patch("os.scandir", listed):
        found = set(module.find_files([str(folder), "any"]))
    if not {str(closed), "any", str(folder / "small" / "0.kostyle")} <= found:
        sys.exit(f"found were {sorted(found)[:20]}")
    piped = unittest.mock.Mock(buffer=[b"a\xff\n", b" b"])
    with unittest.mock.patch("sys.stdin", piped):
        if list(map(os.fsencode, module.find_files(["-"]))) != [b"a\xff", b" b"]:
            sys.exit("paths of the standard input are others")


def check_parquet(example, folder):
    """Where pyarrow is, the table holds the same; else that is said before the work begins."""
    table = folder / "small.parquet"
    done = subprocess.run([sys.executable, example, str(table), str(folder / "small")], text=True,
                          stderr=subprocess.PIPE)
    try:
        import pyarrow.parquet
    except ImportError:
        if done.returncode == 0 or "needs pyarrow" not in done.stderr or table.exists():
            sys.exit(f"without pyarrow it said {done.stderr}")
        print("no pyarrow here: tables in Parquet are not tried")
        return
    rows = sorted(pyarrow.parquet.read_table(table).to_pylist(), key=lambda row: row["path"])
    expect_same(rows, read_table(folder / "small.csv"))


def check_deadly_file(module):
    """A file of which every worker dies costs its own row only."""
    def work(batch):
        if "deadly" in batch:
            os._exit(1)
        return module.scan_rows(batch)

    paths = ["a", "b", "deadly", "c"]
    with dask.config.set({"distributed.scheduler.allowed-failures": 0}), tempfile.TemporaryDirectory() as folder, \
            distributed.LocalCluster(n_workers=1, threads_per_worker=1, dashboard_address=None, silence_logs=50,
                                     local_directory=folder) as local, distributed.Client(local) as client:
        rows = [row for rows in module.scan_on(client, iter([paths]), work) for row in rows]
    reasons = {row["path"]: row["refused"] for row in rows}
    if sorted(reasons) != sorted(paths) or "no worker could read it" not in reasons["deadly"] or \
            {reasons[path] for path in "abc"} != {os.strerror(2)}:
        sys.exit(f"of a deadly file remains {reasons}")


def main(example):
    module = load(example)
    with folder_for_many_files() as name:
        folder = pathlib.Path(name)
        check_cluster(example, module, folder)
        check_embedded(example, folder)
        check_refusals(example, module, folder)
        check_found_files(module, folder)
        check_parquet(example, folder)
    check_deadly_file(module)


if __name__ == "__main__":
    main(*sys.argv[1:])
