#!/bin/sh
# Whether the embeddable module includes nothing from outside it but the standard library, and nothing that is shown asks
# for dependencies. That a room includes only those that its folder declares is the compiler's business: it finds no
# other.
outside=$(grep -rnE '^ *# *include' --include='*.h' --include='*.cpp' mivo | grep -vE '#include (<[a-z_]+>|"mivo/[^"]+")')
[ -z "$outside" ] || { printf 'mivo/ stands on the standard library alone, but includes:\n%s\n' "$outside"; exit 1; }

asked=$(grep -rnE 'dependency\(|currentDependencies' app/bridge app/items)
[ -z "$asked" ] || { printf 'app/ asks for dependencies outside its program:\n%s\n' "$asked"; exit 1; }
