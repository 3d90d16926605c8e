#!/bin/sh
# Whether the embeddable module includes nothing from outside it but the standard library, and nothing that is shown asks
# for dependencies. That a room includes only those that its folder declares is the compiler's business: it finds no
# other.
outside=$(grep -rnE '^ *# *include' --include='*.h' --include='*.cpp' mivo | grep -vE '#include (<[a-z_]+>|"mivo/[^"]+")')
[ -z "$outside" ] || { printf 'mivo/ stands on the standard library alone, but includes:\n%s\n' "$outside"; exit 1; }

asked=$(grep -rnE 'dependency\(|currentDependencies' app/bridge app/items)
[ -z "$asked" ] || { printf 'app/ asks for dependencies outside its program:\n%s\n' "$asked"; exit 1; }

# What takes something from the machine lies in rooms that say NATIVE; what the app is made of links none of them
# (`mivo_demand_portable`), and takes nothing itself.
native=$(grep -lE '^ *(adapters|host|drawing) [a-z]+ NATIVE$' adapters/*/CMakeLists.txt host/*/CMakeLists.txt | xargs -n 1 dirname)
calls='#include <(unistd\.h|fcntl\.h|poll\.h|dirent\.h|spawn\.h|sys/|netinet/|fstream|thread|future|condition_variable|unicode/|cctz/|curl/|boost/)|std::(jthread|async)|(fs|filesystem)::(exists|is_|file_size|last_write|create_|remove|rename|copy|permissions|absolute|canonical|current_path|temp_directory|read_symlink|([a-z]+_)*directory_iterator)'
taken=$(for room in adapters/*/ host/*/ drawing/*/; do
    echo "$native" | grep -qx "${room%/}" || grep -rnE "$calls" --include='*.h' --include='*.cpp' "$room"
done)
[ -z "$taken" ] || { printf 'rooms that are not NATIVE take from the machine:\n%s\n' "$taken"; exit 1; }
