#!/bin/sh
# check.sh FILE COMPILER FLAGS...: whether FILE compiles, and with -DFAULT is refused with a message after "// error: ".
set -eu
export LC_ALL=C # the messages are English
file=$1
shift
output=$(mktemp)
trap 'rm -f "$output"' EXIT

if ! "$@" -std=c++20 -fsyntax-only "$file" 2> "$output"; then
  echo "$file does not compile without its fault:"
  cat "$output"
  exit 1
fi
if "$@" -std=c++20 -fsyntax-only -DFAULT "$file" 2> "$output"; then
  echo "$file compiles with its fault"
  exit 1
fi
sed -n 's|^// error: ||p' "$file" | grep -qFf - "$output" && exit 0
echo "$file is refused with another message:"
cat "$output"
exit 1
