#!/usr/bin/env bash
# Makes pictures of the windows, without a display:
#   scripts/screenshots.sh [FOLDER]     those of the documents, but for those of a story
#   scripts/screenshots.sh --story [FOLDER]
#                                       a newcomer's first five minutes, taken of the running programs
#   scripts/screenshots.sh --all FOLDER every window in each language, in light and dark, at scale 1 and 2, for a look at
#                                       what a change does
set -euo pipefail
cd "$(dirname "$0")/.."
if [[ "${1:-}" == --story ]]; then
  exec scripts/screenshots-story.sh "${2:-docs/images}"
fi
scripts/setup.sh tests
scripts/build.sh build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=ON -- velmora-screenshots

if [[ "${1:-}" == --all ]]; then
  folder=${2:?usage: scripts/screenshots.sh --all FOLDER}
  for language in en de es fr it nl; do
    for scale in 1 2; do
      QT_SCALE_FACTOR=$scale QT_QPA_PLATFORM=offscreen build/tools/velmora-screenshots "$folder/$language-$scale" "$language"
    done
  done
  find "$folder" -name '*.png' | wc -l
else
  folder=${1:-docs/images}
  env -u QT_SCALE_FACTOR QT_QPA_PLATFORM=offscreen build/tools/velmora-screenshots "$folder"
  ls -l "$folder"/*.png
fi
