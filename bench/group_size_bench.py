#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Group-size benchmark: one group of N copies against eight groups of N/8 copies.

The same number of files, so every step whose cost grows with the number of files
alone takes about as long on both trees; a step that grows with a group's size squared
shows as a large ratio. Times the command line's text and JSON reports of a scan, a scan
with --save, each selection rule, `report` of the saved project and `remove --dry-run`,
each the median of a few runs with the key cache warm, and prints the ratio of the one
group's time to the eight groups'.
"""
import argparse
import os
import statistics
import subprocess
import sys
import tempfile
import time


def build(root, groups, files):
    if os.path.isdir(root):
        return
    per_group = files // groups
    for group in range(groups):
        for i in range(per_group):
            index = group * per_group + i
            folder = os.path.join(root, "d%03d" % (index // 1000))
            os.makedirs(folder, exist_ok=True)
            with open(os.path.join(folder, "f%d_%05d.bin" % (group, i)), "w") as out:
                out.write("content of group %d\n" % group)


def timed(command, env, runs):
    times = []
    for _ in range(runs):
        start = time.perf_counter()
        subprocess.run(command, env=env, check=True, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        times.append(time.perf_counter() - start)
    return statistics.median(times)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--cli", default=os.path.join(os.path.dirname(__file__), "..", "build",
                                                      "veltrine-duplicate-finder-cli"))
    parser.add_argument("--files", type=int, default=40000)
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("--work", default=os.path.join(tempfile.gettempdir(), "group-size-bench"))
    args = parser.parse_args()
    env = dict(os.environ, XDG_CONFIG_HOME=os.path.join(args.work, "config"),
               XDG_DATA_HOME=os.path.join(args.work, "data"))
    trees = {"one": 1, "eight": 8}
    for name, groups in trees.items():
        build(os.path.join(args.work, name), groups, args.files)
    steps = {
        "scan, text": lambda tree, project: ["scan", tree],
        "scan, JSON": lambda tree, project: ["scan", "--json", tree],
        "scan --save": lambda tree, project: ["scan", "--save", project, tree],
        "scan --select newest": lambda tree, project: ["scan", "--select", "newest", tree],
        "scan --select low-quality": lambda tree, project: ["scan", "--select", "low-quality",
                                                            tree],
        "scan --select all": lambda tree, project: ["scan", "--select", "all", tree],
        "report, text": lambda tree, project: ["report", project],
        "report, JSON": lambda tree, project: ["report", "--json", project],
        "remove --dry-run": lambda tree, project: ["remove", project, "--method", "trash",
                                                   "--dry-run"],
    }
    print("%-28s %10s %10s %7s" % ("step", "1 group", "8 groups", "ratio"))
    for step, arguments in steps.items():
        seconds = {}
        for name in trees:
            tree = os.path.join(args.work, name)
            project = os.path.join(args.work, name + ".dupproj")
            # Warm the key cache and make the project the later steps read.
            if not os.path.exists(project):
                subprocess.run([args.cli, "scan", "--save", project, tree], env=env, check=True,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            seconds[name] = timed([args.cli] + arguments(tree, project), env, args.runs)
        print("%-28s %9.2fs %9.2fs %7.2f" % (step, seconds["one"], seconds["eight"],
                                             seconds["one"] / seconds["eight"]))
        sys.stdout.flush()


if __name__ == "__main__":
    main()
