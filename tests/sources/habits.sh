#!/bin/sh
# habits.sh BUILD_DIR RUN_CLANG_TIDY CLANG_TIDY: whether the product's sources pass the checks of .clang-tidy, by all
# cores. Tests and benchmarks are left out: they take two thirds of the time.
exec "$2" -quiet -clang-tidy-binary "$3" -p "$1" -j "$(nproc)" \
    -extra-arg=-Wno-unknown-warning-option "^$PWD/(mivo|adapters|host|cli|tally)/.*\.cpp\$"
