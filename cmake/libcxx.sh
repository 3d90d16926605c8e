# The libraries of C++ that the module, the host and their tests stand on, once more with LLVM's standard library, of the
# sources that Debian's own packages of them were built from; sourced by ./test after cmake/steps.sh. What Debian built
# for GCC's standard library does not link with it.

libcxx=$PWD/build/libcxx-libraries

# apt_sources COMMAND...: apt-get with a list of Debian's sources beside that of the machine, which stays as it is.
apt_sources() {
    apt-get -qq -o Dir::Etc::SourceList="$libcxx/sources.list" -o Dir::Etc::SourceParts=/dev/null \
        -o Dir::State::Lists="$libcxx/lists" -o Dir::Cache="$libcxx/cache" -o APT::Sandbox::User="$(id -un)" "$@"
}

# source_of PACKAGE: fetches the source of an installed package, unless it is there, and prints its folder.
source_of() {
    local name version folder
    read -r name version < <(dpkg-query -W -f '${source:Package} ${source:Version}\n' "$1")
    folder=$libcxx/$name-$version
    if [ ! -d "$folder" ]; then
        (cd "$libcxx" && apt_sources update && apt_sources source --only-source --download-only "$name=$version" &&
            dpkg-source --extract "${name}_${version#*:}.dsc" "$folder") > "$libcxx/$name.log" 2>&1 ||
            fail "the source of $name $version cannot be had from Debian, and without it nothing runs with libc++ (the whole story: $libcxx/$name.log)"
    fi
    echo "$folder"
}

# library SOURCE [OPTION...]: builds and installs one, where find_package looks first.
library() {
    local source=$1 build=$libcxx/built/${1##*/}
    shift
    { cmake -S "$source" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++-19 \
        -DCMAKE_CXX_FLAGS=-stdlib=libc++ -DCMAKE_INSTALL_PREFIX="$libcxx/installed" "$@" &&
        cmake --build "$build" --target install; } > "$build.log" 2>&1 ||
        { tail -n 20 "$build.log" >&2; fail "${source##*/} could not be built with libc++ (the whole story: $build.log)"; }
}

build_libcxx_libraries() {
    step "Fetch and build GoogleTest, RapidCheck, cctz and SQLiteCpp (libc++)"
    mkdir -p "$libcxx"/{built,lists/partial,cache/archives/partial}
    apt-get indextargets 'Created-By: Packages' 'Origin: Debian' --format \
        'deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        > "$libcxx/sources.list"
    local rapidcheck cctz sqlitecpp
    rapidcheck=$(source_of librapidcheck-dev)
    cctz=$(source_of libcctz-dev)
    sqlitecpp=$(source_of libsqlitecpp-dev)
    library /usr/src/googletest
    library "$rapidcheck" -DRC_ENABLE_GTEST=ON
    library "$cctz" -DBUILD_TESTING=OFF -DBUILD_TOOLS=OFF -DBUILD_EXAMPLES=OFF
    library "$sqlitecpp" -DSQLITECPP_INTERNAL_SQLITE=OFF -DSQLITECPP_RUN_CPPLINT=OFF -DSQLITECPP_RUN_CPPCHECK=OFF
}
