# Sources of Debian packages, from where this machine's own packages come from; sourced by what compiles them.

# cache_folder: where what was made stays: MIVO_WEB_CACHE, or a folder of the user's cache.
cache_folder() { echo "${MIVO_WEB_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/mivo/web}"; }

# source_version PACKAGE: of the source that an installed package was built from; nothing where it is not installed.
source_version() {
    { dpkg-query -W -f '${db:Status-Status} ${source:Version}\n' "$1" 2> /dev/null || true; } |
        sed -n 's/^installed //p' | head -n 1
}

# with_addresses COMMAND...: apt's command, with addresses of sources: a private list of what apt's own configuration says
# of Debian's packages, kept in the current folder.
with_addresses() {
    local apt=$PWD/apt command=$1
    shift
    local private=(-qq -o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=-
        -o "Dir::State::Lists=$apt/lists" -o "Dir::Cache=$apt/cache" -o APT::Sandbox::User=root)
    if [ ! -s "$apt/sources.list" ]; then
        mkdir -p "$apt/lists/partial" "$apt/cache/archives/partial"
        apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' \
            'Created-By: Packages' 'Origin: Debian' | sort -u > "$apt/sources.list"
        apt-get "${private[@]}" update || return 1
    fi
    "$command" "${private[@]}" "$@"
}

# fetch_source SOURCE VERSION: downloads a source package, whose sums apt checks, into the folder `sources`.
fetch_source() {
    mkdir -p sources
    with_addresses true >> apt.log 2>&1 || return 1
    (ln -sfn "$PWD/apt" sources/apt && cd sources &&
        with_addresses apt-get source --download-only --only-source "$1=$2") >> apt.log 2>&1
}

# fetch_release SOURCE VERSION: the same, or where that revision is gone another one of the same release.
fetch_release() {
    local revision
    fetch_source "$1" "$2" && return
    for revision in $(with_addresses apt-cache showsrc --only-source "$1" 2>> apt.log | sed -n 's/^Version: //p' |
        sort -rVu); do
        [ "${revision%-*}" != "${2%-*}" ] || fetch_source "$1" "$revision" && return
    done
    return 1
}

# first_fault: what apt said, in one line, and without addresses.
first_fault() { sed -n 's/^[EW]: //p' apt.log | sed 's# *[a-z]*://[^ ]*##g' | head -n 1; }
