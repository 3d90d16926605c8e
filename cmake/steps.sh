# Steps that ./run, ./test and bench/run share; sourced by them from the root of the project. Progress goes to standard
# error, so that what a program prints can be piped on.

if command -v ccache > /dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    export CCACHE_SLOPPINESS=pch_defines,time_macros  # or it leaves what has a precompiled header to the compiler
fi

# A bare machine names no locale; Qt would say at every start that text is UTF-8 all the same.
[ -n "${LC_ALL-}${LC_CTYPE-}${LANG-}" ] || export LC_CTYPE=C.UTF-8

# step TEXT...: says what begins; took: how long the last one did.
step_began=
took() {
    [ -z "$step_began" ] || printf '    took %d s\n' $((SECONDS - step_began)) >&2
    step_began=$SECONDS
}
step() { took; printf '==> %s (at %d s)\n' "$*" "$SECONDS" >&2; }
fail() { printf '%s: %s\n' "${0##*/}" "$*" >&2; exit 1; }

# as_root COMMAND...: with sudo where we are not root.
as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo > /dev/null; then
        sudo "$@"
    else
        fail "needs root or sudo for: $*"
    fi
}

# install_packages GROUP...: what cmake/packages.txt lists for the groups and the machine lacks, if anything.
install_packages() {
    if ! command -v dpkg-query apt-get > /dev/null; then
        step "Not a Debian machine: the packages of cmake/packages.txt are taken to be there"
        return
    fi
    local wanted missing
    wanted=$(awk -v groups=" $* " 'NF == 2 && index(groups, " " $1 " ") { print $2 }' cmake/packages.txt | sort -u)
    missing=$(comm -23 <(echo "$wanted") <(
        # shellcheck disable=SC2086
        dpkg-query -W -f '${db:Status-Status} ${Package}\n' $wanted 2> /dev/null | sed -n 's/^installed //p' | sort -u))
    [ -n "$missing" ] || return 0
    step "Install" $missing
    as_root apt-get -qq update >&2
    # shellcheck disable=SC2086
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq install -y --no-install-recommends -o Dpkg::Use-Pty=0 $missing > build/install.log 2>&1 ||
        { tail -n 20 build/install.log >&2; fail "apt-get could not install what is missing (the whole story: build/install.log)"; }
}

# build PRESET [OPTION...]: configures and builds; the options go to `cmake --build`.
build() {
    local preset=$1 quiet=()
    shift
    [ -t 2 ] || quiet=(-- --quiet)  # a terminal shows one moving line; a log would get hundreds
    step "Configure ($preset)"
    cmake --preset "$preset" --log-level=WARNING > build/configure.log 2>&1 || { cat build/configure.log >&2; exit 1; }
    step "Build ($preset)"
    cmake --build --preset "$preset" "$@" "${quiet[@]}" >&2
}

mkdir -p build
