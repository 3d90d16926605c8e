#!/bin/sh
# format.sh CLANG_FORMAT: whether every C++ file is laid out as .clang-format says.
find mivo adapters host cli tally app tests bench examples fuzz \( -name '*.h' -o -name '*.cpp' \) -print0 2> /dev/null |
    xargs -0 "$1" --dry-run --Werror
