#!/usr/bin/env bash
# Installs what is missing, builds and starts the program. Extra arguments go to the
# program (for instance the path of a project file to open).
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install-deps.sh
bash tools/build.sh
exec ./"${BUILD_DIR:-build}"/veltrine-duplicate-finder "$@"
