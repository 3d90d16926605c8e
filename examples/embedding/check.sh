#!/bin/sh
# check.sh: whether both hosts, built in the present folder, print what they should.
set -eu
here=$(dirname "$0")
./embedding | diff "$here/embedding.expected" -
./parent | diff "$here/parent.expected" -
