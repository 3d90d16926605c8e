#!/bin/sh
# habits.sh BUILD_DIR RUN_CLANG_TIDY CLANG_TIDY: whether the product's sources pass the checks of .clang-tidy, by all
# cores. A room is one translation unit in the build folder that this makes, so that its headers are read once: a fifth
# of the time. Tests and benchmarks are left out.
set -eu
cmake -S . -B "$1" -G Ninja -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0 -DMIVO_APP=OFF --log-level=WARNING \
    > /dev/null
exec "$2" -quiet -clang-tidy-binary "$3" -p "$1" -j "$(nproc)" -extra-arg=-Wno-unknown-warning-option \
    "^($1|$PWD)/(mivo|adapters|drawing|host|cli|tally|data)/.*\.(cpp|cxx)\$"
