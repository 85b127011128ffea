#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Saves a screenshot of each page of the main window, each tab of the settings dialog and
# every state of the result page under Xvfb (with "settings" the settings dialog only, with
# "cloud" the cloud folder chooser only):
#   tools/screenshots.sh <build dir> <output dir> [settings|cloud]
# The pages are filled with sample values by the driver program;
# see tools/screenshots/ScreenshotPages.cpp and tools/screenshots/ScreenshotResultPage.cpp.
set -eu
build=${1:?build directory}
out=${2:?output directory}
mkdir -p "$out"
export XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_CONFIG_HOME=$(mktemp -d)
export XDG_DATA_HOME=$(mktemp -d)
xvfb-run -a -s "-screen 0 1920x1200x24" "$build/tools/screenshots/screenshot_pages" "$out" ${3:-}
[ -n "${3:-}" ] || xvfb-run -a -s "-screen 0 1920x1200x24" "$build/tools/screenshots/screenshot_result_page" "$out"
ls -l "$out"
