#!/usr/bin/env bash
# The translation source of the window, the panel and the settings: lupdate
# collects every Vexel::tr sentence of app/, and the texts the core and the engine mark with
# VEXEL_WORDS, into translations/vexel_en.ts, which translators start from. Its English plural forms ("%n process has",
# "%n processes have") are written in by hand and kept by lupdate; the build
# compiles it into the app.
#   translations.sh check BUILD   updates a copy in BUILD/translations and fails
#                                 when the committed file is stale
#   translations.sh update        updates translations/vexel_en.ts
set -euo pipefail
cd "$(dirname "$0")/.."
lupdate=/usr/lib/qt6/bin/lupdate

collect() {
  "$lupdate" -silent -locations none -tr-function-alias QT_TRANSLATE_NOOP+=VEXEL_WORDS,QT_TRANSLATE_N_NOOP+=VEXEL_COUNTED -no-obsolete -source-language en -target-language en app core engine -ts "$1"
}

case "${1:-}" in
  check)
    fresh="${2:-build}/translations/vexel_en.ts"
    mkdir -p "$(dirname "$fresh")"
    cp translations/vexel_en.ts "$fresh"
    collect "$fresh"
    if ! cmp -s "$fresh" translations/vexel_en.ts; then
      diff -u translations/vexel_en.ts "$fresh" | head -40 >&2 || true
      echo "translations: translations/vexel_en.ts is stale; run scripts/translations.sh update" >&2
      exit 1
    fi
    if grep -q "<numerusform></numerusform>" translations/vexel_en.ts; then
      grep -B3 "<numerusform></numerusform>" translations/vexel_en.ts | grep "<source>" >&2
      echo "translations: write English's singular and plural forms of these in translations/vexel_en.ts" >&2
      exit 1
    fi
    echo "translations: translations/vexel_en.ts holds the $(grep -c '<message' "$fresh") sentences of app/, core/ and engine/"
    ;;
  update) collect translations/vexel_en.ts ;;
  *)
    echo "usage: $0 check [BUILD] | update" >&2
    exit 2
    ;;
esac
