# What runs in browsers, from its toolchain to the folder of the page; sourced by ./run and ./test after cmake/steps.sh.
# Where sources of Debian's packages or tools from npm cannot be had, it ends with a sentence.

page=build/page
engine=build/engine

build_for_browsers() {
    install_packages build web
    step "Make the libraries of WebAssembly, or take those that are kept"
    web/toolchain/build > /dev/null || exit
    web/libraries/sources > /dev/null || exit
    build web
}

# The tools that the page is made with, as they are locked; once for each lock.
install_page_tools() {
    local lock=build/page-tools.lock
    [ -d web/page/node_modules ] && cmp -s web/page/package-lock.json "$lock" && return
    command -v npm > /dev/null || install_packages page # where Node is not Debian's, npm comes with it
    step "Fetch the tools of the page"
    (cd web/page && npm ci --ignore-scripts --no-audit --no-fund) > build/npm.log 2>&1 ||
        fail "the tools that make the page cannot be had from npm (the whole story: build/npm.log)"
    cp web/page/package-lock.json "$lock"
}

build_page() {
    build_for_browsers
    install_page_tools
    build release --target catalogues
    gather_engine
    step "Make the page"
    node web/page/build.mjs --into "$page" --engine "$engine" >&2
    cp data/one-year.json "$page/sample.json" # asked for by `?sample` alone, so no file of the version
}

# The app as a module, and the texts of each language as modules of JavaScript.
gather_engine() {
    local language
    mkdir -p "$engine"
    cp build/web/web/worker/mivo-app.wasm "$engine"
    for language in de es fr; do
        node web/locale/catalogues.mjs build/release/share/locale/$language/LC_MESSAGES/mivo.mo > "$engine/$language.mjs"
    done
}

# Against the types and the sample that the native build writes.
test_page() {
    install_packages browser
    install_page_tools
    mkdir -p web/page/generated
    cp build/release/web/types/Mivo.ts build/release/tests/web/pages/three-weeks.json web/page/generated/
    step "Test the page"
    (cd web/page && npm test)
}

# The package for npm, whose name it prints; nothing is published.
build_package() {
    build release --target mivo_write_report_types_Report.ts
    node web/package/pack.mjs --build build/web --catalogues "$engine" --types build/release/web/types/Report.ts --into build/npm
}
