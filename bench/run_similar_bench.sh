#!/usr/bin/env bash
# Similar-picture benchmark: builds the photo corpus with the shared generator, runs the
# comparison with the histogram and with pHash, with and without the ORB re-check and the
# same-type filter, and scores the groups (pairwise precision, recall, F1, recall per
# transform). Also times decoding the same files with OpenCV alone.
#
#   bench/run_similar_bench.sh [small|full|scale] [work folder]
#
# Needs a build with -DVELTRINE_BUILD_BENCH=ON (BUILD names its folder, default build),
# and python3-numpy, python3-pil, python3-opencv for the corpus generator.
set -euo pipefail

PRESET=${1:-small}
WORK=${2:-/tmp/veltrine-simphoto}
HERE=$(cd "$(dirname "$0")" && pwd)
SHARED=${VELTRINE_SHARED:-$HERE/../../shared/bench}
BUILD=${BUILD:-$HERE/../build}
BENCH=$BUILD/bench/similar_bench
CLI=$BUILD/veltrine-duplicate-finder-cli
PY=/usr/bin/python3
CLI_ONLY=${CLI_ONLY:-0}

if [ "$CLI_ONLY" = 1 ]; then
    [ -x "$CLI" ] || { echo "missing $CLI: build veltrine-duplicate-finder-cli" >&2; exit 2; }
else
    [ -x "$BENCH" ] || { echo "missing $BENCH: configure with -DVELTRINE_BUILD_BENCH=ON and build similar_bench" >&2; exit 2; }
fi
mkdir -p "$WORK"
if [ ! -d "$WORK/cache/sources" ]; then
    "$PY" "$SHARED/make_images.py" sources --cache "$WORK/cache"
fi
if [ ! -f "$WORK/$PRESET/groundtruth.json" ]; then
    "$PY" "$SHARED/make_images.py" build --preset "$PRESET" --cache "$WORK/cache" --out "$WORK/$PRESET"
fi

IMAGES=$WORK/$PRESET/images

# The whole program: scan, duplicate search and similar search, as a user runs it.
run_cli() {
    local name=$1
    shift
    [ -x "$CLI" ] || { echo "== cli $name: skipped, no $CLI"; return 0; }
    local base=$WORK/$PRESET-cli-$name
    echo "== cli $name ($*)"
    rm -rf "$base.log"
    /usr/bin/time -f "cli: %e s wall, peak resident %M KiB" \
        "$CLI" scan --json --select none --log-dir "$base.log" "$@" "$IMAGES" \
        >"$base.raw.json" 2>"$base.err" || { tail -5 "$base.err"; return 1; }
    tail -2 "$base.err"
    grep -rhoE "(Image data loading|Hash matching process|Histogram matching process|OBR special point deduplication) completed. Time taken: \[[0-9.]+\] seconds. Quantity: \[[0-9]+\]" "$base.log" || true
    "$PY" -c 'import json, sys
report = json.load(open(sys.argv[1]))
json.dump([g["files"] for g in report["groups"] if g["kind"] == "similar"], open(sys.argv[2], "w"))' \
        "$base.raw.json" "$base.json"
    "$PY" "$SHARED/score_groups.py" "$WORK/$PRESET/groundtruth.json" "$base.json"
}

if [ "$CLI_ONLY" = 1 ]; then
    if [ "$PRESET" = scale ]; then
        run_cli phash-norecheck --algorithm phash --no-features
    else
        run_cli smart --similar
        run_cli phash-anytype --algorithm phash --any-type
        run_cli phash-anytype-norecheck --algorithm phash --any-type --no-features
    fi
    exit 0
fi

echo "== OpenCV alone at the working size"
"$BENCH" "$IMAGES" --baseline 2>/dev/null

run() {
    local name=$1
    shift
    echo "== $name ($*)"
    "$BENCH" "$IMAGES" "$@" --json "$WORK/$PRESET-$name.json" 2>/dev/null
    "$PY" "$SHARED/score_groups.py" "$WORK/$PRESET/groundtruth.json" "$WORK/$PRESET-$name.json"
}

if [ "$PRESET" = scale ]; then
    # 20,000 pictures: the pHash pair stage only (the histogram is quadratic in bins too).
    run phash-nofeatures --algorithm phash --no-features
    run_cli phash-norecheck --algorithm phash --no-features
    exit 0
fi
run histogram --algorithm histogram
run histogram-norecheck --algorithm histogram --no-features
run histogram-anytype --algorithm histogram --any-type
run histogram-anytype-norecheck --algorithm histogram --any-type --no-features
run phash --algorithm phash
run phash-norecheck --algorithm phash --no-features
run phash-anytype --algorithm phash --any-type
run phash-anytype-norecheck --algorithm phash --any-type --no-features
run_cli smart --similar
run_cli phash-anytype --algorithm phash --any-type
