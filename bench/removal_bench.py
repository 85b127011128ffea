#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Removal benchmark: the command line's `remove` against `xargs rm -f` and `gio trash`.

Builds a tree of small duplicate pairs with the shared generator, scans it once in the
full mode and saves the project; then, on a fresh copy of the tree each time, removes the
project's selection with `remove --method permanent` and `remove --method trash` (every
check included: stamps, a separate kept copy, whole-content comparison, the journal) and
the same list of paths with `xargs -0 rm -f` and `xargs -0 gio trash`, alternately, in
the same run. Prints median wall times and the ratios.

A second part checks the reading: after a sampled scan, `remove --dry-run` under strace
must open each selected file and each kept copy exactly once.
"""
import argparse
import collections
import json
import os
import shutil
import statistics
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
SHARED = os.path.join(HERE, "..", "..", "shared", "bench")


def run(command, env=None, **kwargs):
    return subprocess.run(command, env=env, check=True, **kwargs)


def timed(command, env, stdin=None):
    start = time.perf_counter()
    subprocess.run(command, env=env, stdin=stdin, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)
    return time.perf_counter() - start


def build_tree(root, files, seed):
    if not os.path.isdir(root):
        run([sys.executable, os.path.join(SHARED, "make_tree.py"), "--files", str(files),
             "--dup-fraction", "0.99", "--copies-min", "2", "--copies-mean", "2",
             "--copies-max", "2", "--median-size", "2K", "--max-size", "64K",
             "--empty-fraction", "0", "--traps", "none", "--seed", str(seed), "-q", root])


def fresh_copy(master, tree, data):
    shutil.rmtree(tree, ignore_errors=True)
    shutil.rmtree(os.path.join(data, "Trash"), ignore_errors=True)
    run(["cp", "-a", master, tree])
    # Same folder cache state for every contender, and the copy's writes on disk before
    # the clock starts, so that no contender pays for the copy.
    run(["find", tree, "-type", "f", "-size", "-1"], stdout=subprocess.DEVNULL)
    run(["sync"])


def selected_paths(cli, project, env):
    report = json.loads(run([cli, "report", "--json", project], env=env,
                            capture_output=True).stdout)
    paths = []
    for group in report["groups"]:
        paths.extend(group["selected"])
    return paths


def write_list(paths, path):
    with open(path, "wb") as out:
        for item in paths:
            out.write(os.fsencode(item) + b"\0")


def speed(cli, work, files, rounds):
    master = os.path.join(work, "master")
    tree = os.path.join(work, "tree")
    data = os.path.join(work, "data")
    env = dict(os.environ, XDG_CONFIG_HOME=os.path.join(work, "config"), XDG_DATA_HOME=data)
    build_tree(master, files, 5)
    project = os.path.join(work, "full.dupproj")

    def scan():
        # Every copy of the tree has new inodes, which the removal's checks would take for
        # replaced files: each fresh copy is scanned (untimed) before the program removes.
        run([cli, "scan", "--method", "full", "--save", project, tree], env=env,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    fresh_copy(master, tree, data)
    scan()
    paths = selected_paths(cli, project, env)
    listing = os.path.join(work, "selected.list")
    write_list(paths, listing)
    contenders = {
        "remove --method permanent": lambda: timed(
            [cli, "remove", project, "--method", "permanent"], env),
        "xargs rm -f": lambda: timed(
            ["xargs", "-0", "rm", "-f", "--"], env, stdin=open(listing, "rb")),
        "remove --method trash": lambda: timed(
            [cli, "remove", project, "--method", "trash"], env),
        "xargs gio trash": lambda: timed(
            ["xargs", "-0", "gio", "trash", "--"], env, stdin=open(listing, "rb")),
    }
    times = collections.defaultdict(list)
    for _ in range(rounds):
        for name, contender in contenders.items():
            fresh_copy(master, tree, data)
            selection = paths
            if name.startswith("remove"):
                scan()
                # Files of one name in a group may be chosen in another order by each
                # scan: the check follows this round's own selection.
                selection = selected_paths(cli, project, env)
                run(["sync"])
            times[name].append(contender())
            left = sum(os.path.lexists(p) for p in selection[:2000])
            if left:
                print(f"warning: {name} left {left} of the first 2000 selected files")
    medians = {name: statistics.median(values) for name, values in times.items()}
    print(f"{len(paths)} selected files of {files} ({rounds} rounds, median wall time)")
    for name, value in medians.items():
        print(f"  {name:28s} {value:8.3f} s")
    print(f"  permanent / rm     {medians['remove --method permanent'] / medians['xargs rm -f']:.2f}")
    print(f"  trash / gio trash  {medians['remove --method trash'] / medians['xargs gio trash']:.2f}")


def reads(cli, work, files):
    tree = os.path.join(work, "reads")
    env = dict(os.environ, XDG_CONFIG_HOME=os.path.join(work, "config"),
               XDG_DATA_HOME=os.path.join(work, "data"))
    shutil.rmtree(tree, ignore_errors=True)
    build_tree(tree, files, 6)
    project = os.path.join(work, "sampled.dupproj")
    run([cli, "scan", "--method", "sampled", "--save", project, tree], env=env,
        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    report = json.loads(run([cli, "report", "--json", project], env=env,
                            capture_output=True).stdout)
    trace = os.path.join(work, "opens.trace")
    run(["strace", "-f", "-qq", "-xx", "-e", "trace=openat", "-o", trace, cli, "remove", project,
         "--method", "permanent", "--dry-run"], env=env, stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL)
    opens = collections.Counter()
    with open(trace, "rb") as lines:
        for line in lines:
            start = line.find(b'"')
            end = line.find(b'"', start + 1)
            if start >= 0 and b"O_RDONLY" in line and b"O_DIRECTORY" not in line:
                # -xx writes every byte of the name as \xHH.
                opens[bytes.fromhex(line[start + 1:end].replace(b"\\x", b"").decode())] += 1
    members = [os.fsencode(p) for g in report["groups"] for p in g["files"]]
    counts = collections.Counter(opens[m] for m in members)
    print(f"sampled scan, dry-run removal of {sum(len(g['selected']) for g in report['groups'])}"
          f" selected files: opens per group member {dict(sorted(counts.items()))}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--cli", default=os.path.join(HERE, "..", "build",
                                                      "veltrine-duplicate-finder-cli"))
    parser.add_argument("--work", default="/tmp/veltrine-removal-bench")
    parser.add_argument("--files", type=int, default=205000)
    parser.add_argument("--rounds", type=int, default=3)
    parser.add_argument("--read-files", type=int, default=4000)
    args = parser.parse_args()
    os.makedirs(args.work, exist_ok=True)
    speed(args.cli, args.work, args.files, args.rounds)
    reads(args.cli, args.work, args.read_files)


if __name__ == "__main__":
    main()
