#!/usr/bin/env bash
# Brings the sources of the translations up to date with the texts of the windows:
#   scripts/translate.sh           takes new texts into src/ui/qt/languages/*.ts, where they wait for their translation,
#                                  and drops those that are gone
#   scripts/translate.sh --check   changes nothing; tells what that would change, and what waits
# The translations are written with Qt's Linguist, or any editor.
set -euo pipefail
cd "$(dirname "$0")/.."
if [[ "${1:-}" != --check ]]; then
  scripts/setup.sh
fi
lupdate=$(PATH=$PATH:/usr/lib/qt6/bin type -p lupdate) || { echo "translate.sh: lupdate is missing: scripts/setup.sh" >&2; exit 1; }

# Without places, so that a line more in a source changes no translation.
update() {
  "$lupdate" -silent src -I src -locations none -no-obsolete -source-language en -tr-function-alias QT_TRANSLATE_NOOP+=translatable \
    -ts "$@"
}

if [[ "${1:-}" != --check ]]; then
  update src/ui/qt/languages/*.ts
  exit
fi
copies=$(mktemp -d)
trap 'rm -rf "$copies"' EXIT
cp src/ui/qt/languages/*.ts "$copies"
update "$copies"/*.ts
status=0
for copy in "$copies"/*.ts; do
  diff -u "src/ui/qt/languages/$(basename "$copy")" "$copy" || status=1
  # Those that are new or changed, with their texts.
  if grep -B 3 'type="unfinished"' "$copy" | sed -n "s|.*<source>|$(basename "$copy"): not translated: |p" | sed 's|</source>||' | grep .; then
    status=1
  fi
done
exit $status
