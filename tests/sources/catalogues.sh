#!/bin/sh
# Whether each catalogue has a translation for every text in the sources; that their places agree is checked when the
# catalogues are built. `po/update` brings the missing ones in.
set -eu
template=$(mktemp)
trap 'rm -f "$template"' EXIT
po/extract "$template"
for catalogue in po/*.po; do msgcmp "$catalogue" "$template" || failed=1; done
[ -z "${failed-}" ]
