#!/usr/bin/env bash
# The translation source of the window, the panel and the settings: lupdate
# collects every Vexel::tr sentence of app/ into translations/vexel_en.ts,
# which translators start from.
#   translations.sh check BUILD   writes BUILD/translations/vexel_en.ts and fails
#                                 when the committed one is stale
#   translations.sh update        rewrites translations/vexel_en.ts
set -euo pipefail
cd "$(dirname "$0")/.."
lupdate=/usr/lib/qt6/bin/lupdate

collect() {
  rm -f "$1"
  mkdir -p "$(dirname "$1")"
  "$lupdate" -silent -locations none -no-obsolete -source-language en -target-language en app -ts "$1"
}

case "${1:-}" in
  check)
    fresh="${2:-build}/translations/vexel_en.ts"
    collect "$fresh"
    if ! cmp -s "$fresh" translations/vexel_en.ts; then
      diff -u translations/vexel_en.ts "$fresh" | head -40 >&2 || true
      echo "translations: translations/vexel_en.ts is stale; run scripts/translations.sh update" >&2
      exit 1
    fi
    echo "translations: translations/vexel_en.ts holds the $(grep -c '<message' "$fresh") sentences of app/"
    ;;
  update) collect translations/vexel_en.ts ;;
  *)
    echo "usage: $0 check [BUILD] | update" >&2
    exit 2
    ;;
esac
