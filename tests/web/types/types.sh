#!/bin/sh
# types.sh TYPES: whether the written types tell what pages and actions are, and refuse what they are not. Without a
# TypeScript compiler, whether the types are there.
set -eu
for line in 'readonly fasting: FastingPage;' 'readonly editedFast: FastSheet | null;' 'readonly historyRows: HistoryRow;' 'readonly isRunning: boolean;' \
    'export type TimeRange = "week" | "month" | "year";' '  | "didGoBack"' '  | { readonly didOpen: Screen }'; do
    grep -qF -- "$line" "$1" || { echo "$1 has no line with: $line"; exit 1; }
done
! grep -nE 'didFail|didLoad|didWrite' "$1" || { echo "$1 has actions that no person takes"; exit 1; }
command -v tsc > /dev/null || exit 0
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp "$1" "$folder/Mivo.ts"
cp tests/web/types/uses.ts "$folder"
tsc --noEmit --strict --target es2022 --module esnext --moduleResolution bundler "$folder/uses.ts"
