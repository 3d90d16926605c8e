#!/bin/bash
# programs.sh CMAKE BUILD HISTORY: installs the build into a folder that is far from it, and looks whether the programs
# find there what they need, and the system what it shows of them.
set -eu
cmake=$1 build=$2 history=$3
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
wrong() { printf '%s\n' "$*" >&2; exit 1; }

"$cmake" --install "$build" --prefix "$prefix" > "$prefix/log" || { cat "$prefix/log"; exit 1; }
cd "$prefix"
export HOME=$prefix XDG_DATA_HOME=$prefix XDG_CONFIG_HOME=$prefix LC_ALL=C.UTF-8
unset LANGUAGE

bin/mivo --version > said && grep -qx 'mivo [0-9.]*' said || wrong "mivo --version: $(cat said)"
bin/mivo report --input "$history" --locale de-DE > said
grep -q Übersicht said || wrong "mivo report --locale de-DE is not in German: $(head -n 3 said)"
bin/mivo roadmap --help > said || wrong "mivo roadmap is not there"

for page in share/man/man1/*.1; do
    program=$(basename "$page" .1)
    [ -x "bin/$program" ] || wrong "$page is of no program"
    grep -q '^\.SH EXIT STATUS' "$page" || wrong "$page is not whole"
    ! grep -q "$build" "$page" || wrong "$page names the folder that it was built in"
done
for program in bin/mivo*; do
    [ "$program" = bin/mivo-roadmap ] || [ -e "share/man/man1/${program#bin/}.1" ] || wrong "$program has no man page"
done

for script in bash-completion/completions/mivo zsh/site-functions/_mivo fish/vendor_completions.d/mivo.fish; do
    grep -q -- --complete "share/$script" || wrong "share/$script completes nothing"
done
bash --norc -c '. share/bash-completion/completions/mivo && complete -p mivo' > said || wrong "bash does not complete"

server=$(sed -n 's/^ExecStart=//p' lib/systemd/system/mivo-tally.service)
[ "$server" -ef bin/mivo-tally ] || wrong "the unit starts \"$server\""

if [ -e bin/mivo-app ]; then
    [ -x bin/mivo-reminder ] || wrong "mivo-reminder does not lie beside the app, which starts it"
    timeout 60 bin/mivo-reminder > said 2>&1 || wrong "mivo-reminder has nothing to tell and does not end: $(cat said)"
    desktop=share/applications/mivo.desktop
    [ -x "bin/$(sed -n 's/^Exec=//p' "$desktop")" ] || wrong "$desktop starts what is not there"
    [ -e "share/icons/hicolor/scalable/apps/$(sed -n 's/^Icon=//p' "$desktop").svg" ] || wrong "$desktop has no icon"
    launched=$(sed -n 's/.*<launchable.*>\(.*\)<.*/\1/p' share/metainfo/*.metainfo.xml)
    [ -e "share/applications/$launched" ] || wrong "the metadata is of \"$launched\", which is not there"
fi
