#!/bin/sh
# habits.sh BUILD_DIR RUN_CLANG_TIDY CLANG_TIDY: whether the sources pass the checks of .clang-tidy, by all cores.
exec "$2" -quiet -clang-tidy-binary "$3" -p "$1" -j "$(nproc)" '/(mivo|adapters|host|cli|tally)/[^/]+/[^/]+\.cpp$'
