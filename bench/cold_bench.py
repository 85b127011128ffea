#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Cold-cache benchmark of the duplicate-file engine: first scans of a disk.

Before every run the page cache is dropped (`sync; echo 3 > /proc/sys/vm/drop_caches`,
so it needs root). Per round, on the same tree:
  - the floor: `find TREE -type f -printf ''` (the walk), io_probe_mt's sampled reads of
    the same-size candidates in inode order at 1, 16 and 64 readers, and its whole reads
    of the true group members at the best of those counts;
  - the command line's sampled and full scans (`--no-cache`, `--select none`), with
    `--io auto` unless told otherwise;
  - jdupes (`-r -q`), when installed.
It prints each tool's seconds and the ratios the targets are set in: sampled against the
walk plus the best sampled probe, full against that plus the best whole-read probe, and
both against jdupes.

usage: cold_bench.py TREE [--truth TREE.truth.json] [--cli PATH] [--rounds 3]
                     [--io auto|ssd|hdd] [--work DIR]
Trees come from ../shared/bench/make_tree.py (see bench/README_duplicates.md).
"""
import argparse
import os
import subprocess
import sys
import tempfile
import time

HERE = os.path.dirname(os.path.abspath(__file__))
SHARED_BENCH = os.path.normpath(os.path.join(HERE, "..", "..", "shared", "bench"))


def drop_caches():
    subprocess.run(["sync"], check=True)
    with open("/proc/sys/vm/drop_caches", "w") as f:
        f.write("3\n")


def timed(cmd, env=None):
    """Seconds cmd takes on a cold cache; its standard output."""
    drop_caches()
    start = time.monotonic()
    done = subprocess.run(cmd, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, env=env)
    return time.monotonic() - start, done.stdout


def inode_sorted(list_path, out_path):
    with open(list_path, "rb") as f:
        paths = [p for p in f.read().split(b"\0") if p]
    paths.sort(key=lambda p: os.lstat(p).st_ino)
    with open(out_path, "wb") as f:
        f.write(b"\0".join(paths) + b"\0")
    return len(paths)


def main():
    ap = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    ap.add_argument("tree")
    ap.add_argument("--truth")
    ap.add_argument("--cli", default=os.path.join(HERE, "..", "build",
                                                  "veltrine-duplicate-finder-cli"))
    ap.add_argument("--rounds", type=int, default=3)
    ap.add_argument("--io", default="auto")
    ap.add_argument("--work", default=tempfile.gettempdir())
    a = ap.parse_args()
    if os.geteuid() != 0:
        sys.exit("cold_bench.py drops the page cache: run it as root")
    truth = a.truth or a.tree.rstrip("/") + ".truth.json"
    probe = os.path.join(a.work, "io_probe_mt")
    subprocess.run(["cc", "-O2", "-pthread", "-o", probe,
                    os.path.join(SHARED_BENCH, "io_probe_mt.c")], check=True)
    limits = os.path.join(SHARED_BENCH, "read_limits.py")
    candidates = os.path.join(a.work, "cold-candidates.list")
    members = os.path.join(a.work, "cold-members.list")
    with open(candidates, "wb") as out:
        subprocess.run([sys.executable, limits, "list", a.tree], stdout=out, check=True)
    with open(members, "wb") as out:
        subprocess.run([sys.executable, limits, "list", a.tree, "--truth", truth, "--members"],
                       stdout=out, check=True)
    count = inode_sorted(candidates, candidates + ".ino")
    inode_sorted(members, members + ".ino")
    print(f"tree {a.tree}: {count} same-size candidates")
    # The program's data and settings go to a private place: no key cache, no settings.
    home = tempfile.mkdtemp(prefix="cold-bench-", dir=a.work)
    env = dict(os.environ, XDG_DATA_HOME=home, XDG_CONFIG_HOME=home, XDG_CACHE_HOME=home)
    cli = [os.path.abspath(a.cli), "scan", "--no-cache", "--select", "none", "--io", a.io]
    for r in range(1, a.rounds + 1):
        t = {}
        t["walk"], _ = timed(["find", a.tree, "-type", "f", "-printf", ""])
        for n in (1, 16, 64):
            t[f"pread{n}"], _ = timed([probe, "pread", str(n), candidates + ".ino"])
        best = min((1, 16, 64), key=lambda n: t[f"pread{n}"])
        t["whole"], _ = timed([probe, "full", str(best), members + ".ino"])
        t["sampled"], _ = timed(cli + ["--method", "sampled", a.tree], env)
        t["full"], _ = timed(cli + ["--method", "full", a.tree], env)
        have_jdupes = subprocess.run(["sh", "-c", "command -v jdupes"],
                                     stdout=subprocess.DEVNULL).returncode == 0
        if have_jdupes:
            t["jdupes"], _ = timed(["jdupes", "-r", "-q", a.tree])
        floor_sampled = t["walk"] + t[f"pread{best}"]
        floor_full = floor_sampled + t["whole"]
        line = " ".join(f"{k} {v:.2f}" for k, v in t.items())
        print(f"round {r}: {line}")
        ratios = (f"  sampled/floor {t['sampled'] / floor_sampled:.2f} "
                  f"(floor {floor_sampled:.2f}, {best} readers), "
                  f"full/floor {t['full'] / floor_full:.2f} (floor {floor_full:.2f})")
        if have_jdupes:
            ratios += (f", sampled/jdupes {t['sampled'] / t['jdupes']:.2f}, "
                       f"full/jdupes {t['full'] / t['jdupes']:.2f}")
        print(ratios, flush=True)


if __name__ == "__main__":
    main()
