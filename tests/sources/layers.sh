#!/bin/sh
# Whether the embeddable module includes nothing from outside it but the standard library. That it includes only the rooms
# that its folder declares is the compiler's business: it finds no other.
outside=$(grep -rnE '^ *# *include' --include='*.h' --include='*.cpp' mivo | grep -vE '#include (<[a-z_]+>|"mivo/[^"]+")')
[ -z "$outside" ] || { printf 'mivo/ stands on the standard library alone, but includes:\n%s\n' "$outside"; exit 1; }
