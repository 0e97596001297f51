#!/usr/bin/env python3
"""Reads a collection of style files on all cores, or on a cluster, and writes one table of what they hold.

usage: scan_collection.py [--scheduler ADDRESS] [--batch FILES] TABLE PATH...

A PATH is a style file, or a folder whose `.kostyle` files are read, in it and below, though not behind links to folders;
`-` reads paths from the standard input, one a line. TABLE, which is replaced, ends in `.csv`, or in `.parquet` where
pyarrow is installed. Needs Dask (dask and distributed). Without --scheduler the work is done by processes of this
machine; on a cluster, kostyle has to be installed on the workers, and they have to see the files under the same paths.

The table has a row for each file, in no order. A file that was refused or could not be read has the reason in its row;
so has a folder that cannot be listed. Texts are those of the files: a program that takes some of them for formulas has
to be told not to. When a worker dies its work is done by another; a batch that several workers died of is divided
until the one file that did it is found, and has its row too. The exit code is 0 when every file has its row.
"""
import argparse
import contextlib
import csv
import importlib.util
import itertools
import json
import os
import sys
import tempfile
from typing import Any, Callable, ContextManager, Dict, Iterable, Iterator, List, Optional

import distributed
import kostyle

LISTS = ("languages", "singer_groups", "singer_ids", "genres", "sub_genres", "colors")
CHAINS = ("audio_effects", "midi_effects")
COLUMNS = ("path", "id", "name", "vendor", *LISTS, *CHAINS, "refused", "code", "json_path", "line", "column")
# So many batches for each core are on their way at a time, so that no worker waits and memory stays bounded.
AHEAD = 4

Row = Dict[str, str]
WriteRows = Callable[[List[Row]], None]


def find_files(paths: Iterable[str]) -> Iterator[str]:
    """The files that the command line names."""
    for path in paths:
        if path == "-":
            yield from (os.fsdecode(line.rstrip(b"\n")) for line in sys.stdin.buffer)
        elif os.path.isdir(path):
            failures: List[OSError] = []
            for folder, _, names in os.walk(path, onerror=failures.append):
                yield from (os.path.join(folder, name) for name in names if name.endswith(".kostyle"))
            yield from (failure.filename for failure in failures)
        else:
            yield path


def batches(files: Iterable[str], size: int) -> Iterator[List[str]]:
    remaining = iter(files)
    return iter(lambda: list(itertools.islice(remaining, size)), [])


def as_json(values: Any) -> str:
    """Infinities, which a file may hold and JSON does not have, become texts."""
    text = json.dumps(values, ensure_ascii=False)
    if "Infinity" not in text:
        return text
    return json.dumps(json.loads(text, parse_constant=lambda name: name.lower()), ensure_ascii=False)


def row_of(record: kostyle.FileRecord) -> Row:
    """One row of the table; lists and chains are JSON."""
    row = dict.fromkeys(COLUMNS, "")
    row["path"] = record.path
    if record.style:
        style = record.style
        row.update({name: getattr(style, name) for name in ("id", "name", "vendor")})
        row.update({name: as_json(getattr(style, name)) for name in LISTS})
        row.update({name: as_json([[effect.id, dict(effect.parameters)] for effect in getattr(style, name)])
                    for name in CHAINS})
    elif record.refusal:
        refusal = record.refusal
        row["refused"], row["json_path"] = str(refusal), refusal.json_path
        for name, number in (("code", refusal.code), ("line", refusal.line), ("column", refusal.column)):
            row[name] = "" if number is None else str(int(number))
    # A table is UTF-8: bytes of paths that are not, and halves of surrogate pairs, are shown as "?".
    return {name: text.encode("utf-8", "replace").decode() for name, text in row.items()}


@contextlib.contextmanager
def csv_table(path: str) -> Iterator[WriteRows]:
    try:
        file = open(path, "w", encoding="utf-8", newline="")
    except OSError as error:
        sys.exit(str(error))
    with file:
        writer = csv.DictWriter(file, COLUMNS)
        writer.writeheader()
        yield writer.writerows


@contextlib.contextmanager
def parquet_table(path: str) -> Iterator[WriteRows]:
    import pyarrow
    import pyarrow.parquet
    schema = pyarrow.schema([(name, pyarrow.string()) for name in COLUMNS])
    with pyarrow.parquet.ParquetWriter(path, schema) as writer:
        yield lambda rows: writer.write_table(pyarrow.Table.from_pylist(rows, schema))


def table_of(path: str) -> Callable[[str], ContextManager[WriteRows]]:
    if not path.endswith(".parquet"):
        return csv_table
    if not importlib.util.find_spec("pyarrow"):
        sys.exit("a table in Parquet needs pyarrow; name one that ends in .csv")
    return parquet_table


class Progress:
    """A bar on the standard error, where that is a terminal; else a line for each percent."""

    def __init__(self, total: int) -> None:
        self.total = total
        self.done = self.refused = self.percent = 0
        self.terminal = sys.stderr.isatty()

    def add(self, rows: List[Row]) -> None:
        self.done += len(rows)
        self.refused += sum(bool(row["refused"]) for row in rows)
        text = f"{self.done} of {self.total} files, {self.refused} refused"
        percent = 100 * self.done // self.total
        if self.terminal:
            bar = "#" * (30 * self.done // self.total)
            end = "\n" if self.done == self.total else ""
            print(f"\r[{bar:30}] {text}", end=end, file=sys.stderr, flush=True)
        elif percent != self.percent:
            print(text, file=sys.stderr, flush=True)
        self.percent = percent


def scan_rows(batch: List[str]) -> List[Row]:
    """What a worker does."""
    return [row_of(record) for record in kostyle.scan(batch)]


Work = Callable[[List[str]], List[Row]]


def scan_on(client: distributed.Client, waiting: Iterator[List[str]], work: Work) -> Iterator[List[Row]]:
    """The rows of each batch as soon as a worker has them."""
    def submit(count: int) -> List[distributed.Future]:
        futures = []
        for batch in itertools.islice(waiting, count):
            futures.append(client.submit(work, batch, pure=False))
            batch_of[futures[-1].key] = batch
        return futures

    batch_of: Dict[str, List[str]] = {}
    suspects: List[List[str]] = []
    running = distributed.as_completed(submit(AHEAD * sum(client.ncores().values())))
    for future in running:
        batch = batch_of.pop(future.key)
        if future.exception() is None:
            yield future.result()
        else:
            suspects.append(batch)
        running.update(submit(1))
    yield from scan_suspects(client, suspects, work)


def scan_suspects(client: distributed.Client, suspects: List[List[str]], work: Work) -> Iterator[List[Row]]:
    """The rows of batches that failed: one at a time, since a worker takes all that it has been given along."""
    while suspects:
        batch = suspects.pop()
        future = client.submit(work, batch, pure=False)
        error = future.exception()
        if error is None:
            yield future.result()
        elif len(batch) > 1:
            middle = len(batch) // 2
            suspects += [batch[:middle], batch[middle:]]
        else:
            refusal = kostyle.Refusal(None, f"no worker could read it: {type(error).__name__}")
            yield [row_of(kostyle.FileRecord(batch[0], refusal=refusal))]


@contextlib.contextmanager
def connected(scheduler: Optional[str]) -> Iterator[distributed.Client]:
    if scheduler:
        try:
            client = distributed.Client(scheduler)
        except (OSError, ValueError) as error:
            sys.exit(f"{scheduler} is no scheduler: {error}")
        with client:
            client.wait_for_workers(1)
            yield client
    else:
        options = {"n_workers": os.cpu_count(), "threads_per_worker": 1, "dashboard_address": None}
        with tempfile.TemporaryDirectory() as folder, \
                distributed.LocalCluster(**options, local_directory=folder) as cluster, \
                distributed.Client(cluster) as client:
            yield client


def positive(text: str) -> int:
    number = int(text)
    if number < 1:
        raise ValueError(text)
    return number


def main() -> int:
    summary, usage, *_ = __doc__.split("\n\n")
    parser = argparse.ArgumentParser(usage=usage.replace("usage: ", ""), description=summary)
    parser.add_argument("--scheduler", metavar="ADDRESS", help="of a running Dask cluster, as tcp://host:8786")
    parser.add_argument("--batch", metavar="FILES", type=positive, default=500, help="a worker reads at a time (500)")
    parser.add_argument("table", metavar="TABLE")
    parser.add_argument("paths", metavar="PATH", nargs="+")
    arguments = parser.parse_args()
    open_table = table_of(arguments.table)
    files = list(find_files(arguments.paths))
    progress = Progress(len(files))
    with connected(arguments.scheduler) as client, open_table(arguments.table) as write:
        for rows in scan_on(client, batches(files, arguments.batch), scan_rows):
            write(rows)
            progress.add(rows)
    return 0 if progress.done == len(files) else 1


if __name__ == "__main__":
    sys.exit(main())
