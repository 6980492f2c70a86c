#!/usr/bin/env bash
# Fails where the catalogues lack a text of the sources, hold one that is gone, or have one that is not translated.
# Usage: scripts/lint-translations.sh LUPDATE
set -euo pipefail

lupdate=$1
copies=$(mktemp -d)
trap 'rm -r "$copies"' EXIT
cp translations/*.ts "$copies"
options=(-silent -no-obsolete -locations none)
"$lupdate" "${options[@]}" src -ts "$copies"/pelko_de.ts "$copies"/pelko_fr.ts
"$lupdate" "${options[@]}" -pluralonly src -ts "$copies"/pelko_en.ts

status=0
for catalogue in translations/*.ts; do
    fresh=$copies/${catalogue#translations/}
    if grep -q 'type="unfinished"' "$fresh"; then
        echo "$catalogue: texts without a translation:"
        grep -B 4 'type="unfinished"' "$fresh" | grep '<source>'
        status=1
    fi
    if [ "$(grep -c '<source>' "$catalogue")" -gt "$(grep -c '<source>' "$fresh")" ]; then
        echo "$catalogue: holds texts that are gone: build the target update_translations"
        status=1
    fi
done
exit $status
