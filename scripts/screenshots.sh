#!/usr/bin/env bash
# Makes the documents' pictures of the windows, without a display: scripts/screenshots.sh [FOLDER]
set -euo pipefail
cd "$(dirname "$0")/.."
folder=${1:-docs/images}
scripts/setup.sh tests
scripts/build.sh build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=ON -- velmora-screenshots
env -u QT_SCALE_FACTOR QT_QPA_PLATFORM=offscreen build/tools/velmora-screenshots "$folder"
ls -l "$folder"/*.png
