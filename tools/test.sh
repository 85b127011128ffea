#!/usr/bin/env bash
# Installs what is missing, builds and runs the whole test suite through CTest.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install-deps.sh
bash tools/build.sh
cd "${BUILD_DIR:-build}"
# Widget tests run on the offscreen platform; XDG_RUNTIME_DIR silences Qt's warning.
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$(mktemp -d)}
export QT_QPA_PLATFORM=offscreen
ctest --output-on-failure --timeout 600 -j "$(nproc)" "$@"
