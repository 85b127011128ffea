#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Benchmark of the duplicate-file engine against fdupes, jdupes and rmlint.

Builds each tree with make_tree.py (fixed seed), runs the command line in every scan
method and the three peers on the same tree in the same run, checks every tool's groups
against the tree's ground truth with check_groups.py, and prints wall time, CPU time and
peak memory per tool, each also as a ratio to the fastest peer (and the sampled mode as a
ratio to a bare `find -type f -printf '%s'`).

usage: duplicate_bench.py [--preset medium] [--runs 3] [--work DIR] [--cli PATH] [--old-cli PATH]
                          [--tools LIST] [--keep-trees]
"""
import argparse
import json
import os
import random
import shutil
import statistics
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
SHARED_BENCH = os.path.normpath(os.path.join(HERE, "..", "..", "shared", "bench"))
SEEDS = {"small": 1, "medium": 2, "many-small": 3, "large-files": 4, "same-size": 5}
# make_tree.py's arguments for each tree: its own presets, and one where thousands of
# files share each size (sizes rounded to 256 bytes, big folders, many copies per group).
TREE_ARGS = {name: ["--preset", name] for name in ("small", "medium", "many-small", "large-files")}
TREE_ARGS["same-size"] = ["--files", "100000", "--files-per-dir", "6000", "--size-quantum", "256",
                          "--copies-mean", "26"]


def run_timed(cmd, stdout_path, before=None, env=None):
    """Runs cmd under /usr/bin/time (after before(), untimed); returns (wall s, cpu s, peak
    KiB, exit status, KiB read from the disk)."""
    if before:
        before()
    with tempfile.NamedTemporaryFile("r", suffix=".time") as timing, \
            open(stdout_path, "wb") as out:
        status = subprocess.call(["/usr/bin/time", "-f", "%e %U %S %M %I", "-o", timing.name] + cmd,
                                 stdout=out, stderr=subprocess.DEVNULL, env=env)
        fields = timing.read().split()[-5:]
    wall, user, system, peak, blocks = (float(x) for x in fields)
    return wall, user + system, peak, status, blocks / 2


def cli_json_to_fdupes(json_path, out_path):
    """Our JSON groups -> fdupes text (raw file-name bytes, blank line between groups)."""
    with open(json_path, encoding="utf-8", errors="surrogatepass") as f:
        doc = json.loads(f.read())
    with open(out_path, "wb") as out:
        for group in doc["groups"]:
            if group["kind"] != "files":
                continue
            for path in group["files"]:
                out.write(path.encode("utf-8", "surrogateescape") + b"\n")
            out.write(b"\n")
    return doc.get("scannedFiles", 0)


def check(truth, tree, output, fmt, mode):
    result = subprocess.run([sys.executable, os.path.join(SHARED_BENCH, "check_groups.py"),
                             "--truth", truth, "--root", tree, "--format", fmt, "--mode", mode,
                             "--json", output], capture_output=True, text=True)
    try:
        r = json.loads(result.stdout)
    except ValueError:
        return "error"
    if r["correct"]:
        return "yes"
    return "no (%d missing, %d extra, %d trap fails)" % (
        len(r["missing"]), len(r["extra"]), len(r["trap_fails"]))


def tool_commands(tool, tree, cli, old_cli=None):
    """(command, output format for check_groups, truth mode) of one tool.

    cli-METHOD reads every file (--no-cache); cli-METHOD-serial does too, but only after
    the walk (--no-overlap); cli-METHOD-first starts each run with an empty key cache (a
    first scan, which fills it); cli-METHOD-cached is a second scan of the unchanged tree
    (the warm-up run fills the cache). old-cli-... runs the same with the build given by
    --old-cli, so that a change can be timed against the build before it."""
    if tool.startswith("old-cli-"):
        return tool_commands(tool[4:], tree, old_cli)
    if tool.startswith("cli-"):
        method, _, variant = tool[4:].partition("-")
        extra = {"": ["--no-cache"], "serial": ["--no-cache", "--no-overlap"]}.get(variant, [])
        return ([cli, "scan", "--method", method, "--include-hidden", "--select", "none",
                 "--json", tree] + extra, "cli-json",
                {"sampled": "sampled", "full": "exact"}.get(method))
    if tool == "fdupes":
        return (["fdupes", "-r", "-n", "-q", tree], "fdupes", "exact")
    if tool == "jdupes":
        return (["jdupes", "-r", "-q", tree], "fdupes", "exact")
    if tool == "rmlint":
        return (["rmlint", "-T", "df", "-r", "-F", "-L", "-o", "json:stdout", tree],
                "rmlint-json", "exact")
    if tool == "find":
        return (["find", tree, "-type", "f", "-printf", "%s %p\n"], None, None)
    if tool == "floor":
        # The I/O floor as the shared tools measure it: a traversal, then the sampled
        # reads of the same-size candidates, one after the other on one thread.
        probe, listing = io_floor_inputs(tree)
        script = 'find "$1" -type f -printf "%s\\n" > /dev/null && exec "$2" pread "$3"'
        return (["sh", "-c", script, "floor", tree, probe, listing], None, None)
    raise ValueError(tool)


def io_floor_inputs(tree):
    """io_probe built from the shared source and the tree's candidate list (made once)."""
    work = tempfile.mkdtemp(prefix="dupbench-floor.")
    CACHE_HOMES.append(work)
    probe = os.path.join(work, "io_probe")
    subprocess.check_call(["cc", "-O2", "-o", probe, os.path.join(SHARED_BENCH, "io_probe.c")])
    listing = os.path.join(work, "candidates.lst")
    with open(listing, "wb") as out:
        subprocess.check_call([sys.executable, os.path.join(SHARED_BENCH, "read_limits.py"), "list",
                               tree], stdout=out, stderr=subprocess.DEVNULL)
    return probe, listing


# The command line keeps its key cache under XDG_CONFIG_HOME; the benchmark gives each
# tool a folder of its own, so that the user's cache is neither used nor changed and the
# tools' runs can take turns without one emptying another's cache.
CACHE_HOMES = []


def cache_home(tool):
    home = tempfile.mkdtemp(prefix=f"dupbench-{tool}.")
    CACHE_HOMES.append(home)
    return home, dict(os.environ, XDG_CONFIG_HOME=home)


def bench_tree(preset, args, out_dir):
    tree = os.path.join(args.work, preset)
    truth = tree + ".truth.json"
    if not os.path.exists(truth):
        print(f"building {preset} tree in {tree} ...", flush=True)
        subprocess.check_call([sys.executable, os.path.join(SHARED_BENCH, "make_tree.py"),
                               *TREE_ARGS[preset], "--seed", str(SEEDS[preset]), tree],
                              stdout=subprocess.DEVNULL)
    files = sum(len(f) for _, _, f in os.walk(tree))
    tools = []
    for tool in args.tools.split(","):
        if tool.startswith("old-cli-") and not args.old_cli:
            print(f"skip {tool}: no --old-cli given")
            continue
        if not tool.startswith(("cli-", "old-cli-")) and tool not in ("find", "floor") \
                and shutil.which(tool) is None:
            print(f"skip {tool}: not installed")
            continue
        cmd, fmt, mode = tool_commands(tool, tree, args.cli, args.old_cli)
        out = os.path.join(out_dir, f"{preset}.{tool}.out")
        home, env = cache_home(tool)
        clear = lambda home=home: shutil.rmtree(os.path.join(home, "Veltrine"), ignore_errors=True)
        before = clear if tool.endswith("-first") else None
        run_timed(cmd, out, env=env)  # warm-up: page cache, the tool's own libraries, the key cache
        tools.append(dict(tool=tool, cmd=cmd, fmt=fmt, mode=mode, out=out, before=before, env=env,
                          samples=[]))
    # The tools take turns run by run, so that a change in the machine's load falls on all
    # of them alike instead of on whichever ran at that moment. Each round takes them in
    # another order (the same for every run of the benchmark): after the slowest peer's
    # long run, a machine that reclaims idle pages has dropped some of the tree's, and
    # the tool that comes next should not always be the same.
    for round_ in range(args.runs):
        order = list(tools)
        random.Random(round_).shuffle(order)
        for t in order:
            t["samples"].append(run_timed(t["cmd"], t["out"], t["before"], t["env"]))
    rows = []
    for t in tools:
        tool, samples, fmt, mode, out = t["tool"], t["samples"], t["fmt"], t["mode"], t["out"]
        wall = statistics.median(s[0] for s in samples)
        cpu = statistics.median(s[1] for s in samples)
        peak = max(s[2] for s in samples)
        status = samples[-1][3]
        # Pages the machine dropped since the warm-up are read again; a tool that reads
        # much here did not run on a warm cache.
        disk = statistics.median(s[4] for s in samples)
        scanned = None
        verdict = "-"
        if fmt == "cli-json":
            converted = out + ".fdupes"
            scanned = cli_json_to_fdupes(out, converted)
            verdict = check(truth, tree, converted, "fdupes", mode) if mode else "n/a (name)"
        elif fmt:
            verdict = check(truth, tree, out, fmt, mode)
        rows.append(dict(tool=tool, wall=wall, cpu=cpu, peak_kib=peak, status=status,
                         scanned=scanned, correct=verdict, disk_kib=disk))
        print(f"  {tool:18s} wall {wall:7.3f} s  cpu {cpu:7.3f} s  peak {peak / 1024:8.1f} MiB"
              f"  exit {status}  correct={verdict}", flush=True)

    peers = [r for r in rows if r["tool"] in ("fdupes", "jdupes", "rmlint")]
    fastest = min(peers, key=lambda r: r["wall"]) if peers else None
    find = next((r for r in rows if r["tool"] == "find"), None)
    floor = next((r for r in rows if r["tool"] == "floor"), None)
    print(f"\n== {preset}: {files} files; ratios to the fastest peer"
          + (f" ({fastest['tool']})" if fastest else "") + "\n")
    print(f"{'tool':18s} {'wall s':>8s} {'cpu s':>8s} {'peak MiB':>9s} {'B/file':>7s}"
          f" {'wall x':>7s} {'cpu x':>7s} {'mem x':>7s} {'x find':>7s} {'x floor':>7s} {'disk MiB':>8s}"
          "  correct")
    for r in rows:
        ratio = lambda key: (r[key] / fastest[key]) if fastest and fastest[key] > 0 else float("nan")
        vs_find = r["wall"] / find["wall"] if find and find["wall"] > 0 else float("nan")
        vs_floor = r["wall"] / floor["wall"] if floor and floor["wall"] > 0 else float("nan")
        per_file = r["peak_kib"] * 1024 / files if files else 0
        print(f"{r['tool']:18s} {r['wall']:8.3f} {r['cpu']:8.3f} {r['peak_kib'] / 1024:9.1f}"
              f" {per_file:7.0f} {ratio('wall'):7.2f} {ratio('cpu'):7.2f} {ratio('peak_kib'):7.2f}"
              f" {vs_find:7.2f} {vs_floor:7.2f} {r['disk_kib'] / 1024:8.1f}  {r['correct']}")
    print()
    return rows


def main():
    ap = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    ap.add_argument("--preset", action="append",
                    help="small, medium, many-small, large-files or same-size (repeatable; default medium)")
    ap.add_argument("--runs", type=int, default=3, help="timed runs per tool (median taken)")
    ap.add_argument("--work", default=os.path.join(tempfile.gettempdir(), "veltrine-bench"),
                    help="folder for the trees (reused when present)")
    ap.add_argument("--cli", default=None, help="path of veltrine-duplicate-finder-cli")
    ap.add_argument("--old-cli", default=None,
                    help="another build of the command line, run as the old-cli-... tools")
    ap.add_argument("--tools", default="find,floor,cli-sampled,cli-full,cli-sampled-serial,cli-full-serial,cli-sampled-first,"
                    "cli-full-first,cli-sampled-cached,cli-full-cached,cli-name,fdupes,jdupes,"
                    "rmlint")
    ap.add_argument("--out", default=None, help="keep raw outputs here")
    ap.add_argument("--remove-trees", action="store_true", help="delete the trees afterwards")
    args = ap.parse_args()
    if args.cli is None:
        for candidate in ("build/veltrine-duplicate-finder-cli",
                          "build-engine/veltrine-duplicate-finder-cli"):
            path = os.path.join(HERE, "..", candidate)
            if os.path.exists(path):
                args.cli = os.path.abspath(path)
                break
    if not args.cli or not os.path.exists(args.cli):
        ap.error("the command line was not found; build it and give --cli")
    os.makedirs(args.work, exist_ok=True)
    out_dir = args.out or tempfile.mkdtemp(prefix="dupbench.")
    os.makedirs(out_dir, exist_ok=True)
    print(f"cli: {args.cli}\ncores: {os.cpu_count()}  outputs: {out_dir}\n")
    for preset in args.preset or ["medium"]:
        bench_tree(preset, args, out_dir)
        if args.remove_trees:
            shutil.rmtree(os.path.join(args.work, preset), ignore_errors=True)
    for home in CACHE_HOMES:
        shutil.rmtree(home, ignore_errors=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
