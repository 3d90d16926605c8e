#!/bin/sh
# format.sh CLANG_FORMAT: whether every C++ file is laid out as .clang-format says. The build files go along, so that the
# formatter, which would take them for C++, is seen to leave them alone.
find mivo adapters drawing host cli tally app tests bench examples po fuzz \
    \( -name '*.h' -o -name '*.cpp' -o -name CMakeLists.txt \) -print0 2> /dev/null |
    xargs -0 "$1" --dry-run --Werror
