#!/usr/bin/env bash
# Similar-picture benchmark: builds the photo corpus with the shared generator, runs the
# comparison with the robust measure, the histogram and pHash (the latter two with and
# without the ORB re-check and the same-type filter), and scores the groups (pairwise
# precision, recall, F1, recall per transform; mirrored copies scored as positives with
# MIRROR_POSITIVE=1). Also times decoding the same files with OpenCV alone, and prints
# pictures per second and peak memory of each run.
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
    # A picture cache of its own: CACHE=keep runs twice on it (first scan, then the rescan).
    local config=$WORK/$PRESET-cli-$name.config
    rm -rf "$config"
    local round
    for round in first rescan; do
        XDG_CONFIG_HOME=$config /usr/bin/time -f "cli ($round): %e s wall, peak resident %M KiB" \
            "$CLI" scan --json --select none --log-dir "$base.log" "$@" "$IMAGES" \
            >"$base.raw.json" 2>"$base.err" || { tail -5 "$base.err"; return 1; }
        tail -1 "$base.err"
        local files wall
        files=$(grep -oE "^[0-9]+ files scanned" "$base.err" | grep -oE "^[0-9]+")
        wall=$(tail -1 "$base.err" | grep -oE "[0-9.]+ s wall" | grep -oE "^[0-9.]+")
        "$PY" -c 'import sys; print("cli (%s): %.0f pictures/s end to end" % (sys.argv[1], float(sys.argv[2]) / float(sys.argv[3])))' "$round" "$files" "$wall"
        [ "${CACHE:-}" = keep ] || break
    done
    grep -rhoE "(Image data loading|Hash matching process|Histogram matching process|Robust matching process|OBR special point deduplication) completed. Time taken: \[[0-9.]+\] seconds. Quantity: \[[0-9]+\][^\"]*" "$base.log" || true
    "$PY" -c 'import json, sys
report = json.load(open(sys.argv[1]))
json.dump([g["files"] for g in report["groups"] if g["kind"] == "similar"], open(sys.argv[2], "w"))' \
        "$base.raw.json" "$base.json"
    "$PY" "$SHARED/score_groups.py" "$WORK/$PRESET/groundtruth.json" "$base.json" $SCORE_FLAGS
}

SCORE_FLAGS=
[ "${MIRROR_POSITIVE:-0}" = 1 ] && SCORE_FLAGS=--mirror-positive

if [ "$CLI_ONLY" = 1 ]; then
    if [ "$PRESET" = scale ]; then
        CACHE=keep run_cli robust --algorithm robust
        run_cli phash-norecheck --algorithm phash --no-features
    else
        CACHE=keep run_cli robust --similar
        run_cli smart --algorithm smart --same-type
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
    "$PY" "$SHARED/score_groups.py" "$WORK/$PRESET/groundtruth.json" "$WORK/$PRESET-$name.json" $SCORE_FLAGS
}

if [ "$PRESET" = scale ]; then
    # 20,000 pictures: the robust measure's candidates from the hash index against one pass
    # over all hashes, then the robust and pHash runs (the histogram is quadratic in bins).
    echo "== robust candidate search: index against all pairs"
    "$BENCH" "$IMAGES" --algorithm robust --any-type --index-check 2>/dev/null
    run robust --algorithm robust --any-type
    run phash-nofeatures --algorithm phash --no-features
    CACHE=keep run_cli robust --algorithm robust
    run_cli phash-norecheck --algorithm phash --no-features
    exit 0
fi
run robust --algorithm robust --any-type
run histogram --algorithm histogram
run histogram-norecheck --algorithm histogram --no-features
run histogram-anytype --algorithm histogram --any-type
run histogram-anytype-norecheck --algorithm histogram --any-type --no-features
run phash --algorithm phash
run phash-norecheck --algorithm phash --no-features
run phash-anytype --algorithm phash --any-type
run phash-anytype-norecheck --algorithm phash --any-type --no-features
CACHE=keep run_cli robust --similar
run_cli smart --algorithm smart --same-type
run_cli phash-anytype --algorithm phash --any-type
