# Sourced by the commands: where we are, what every build needs, how to build a preset and how to time a step.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
mkdir -p build
export LC_ALL=C.UTF-8

library_packages=(
    libboost1.81-dev libtinyxml2-dev libssl-dev libspdlog-dev libcli11-dev nlohmann-json3-dev zlib1g-dev libgtest-dev
    libvalijson-dev)
build_packages=(g++ cmake ninja-build "${library_packages[@]}" libmagicenum-dev libxml2-utils openssl tzdata)
clang_packages=(clang clang-format clang-tidy libclang-rt-dev python3)
fuzz_packages=(clang libclang-rt-dev dpkg-dev)
shell_packages=(bash zsh fish groff-base mandoc python3)
abi_packages=(abigail-tools)
picture_packages=(chromium fonts-liberation poppler-utils python3-pil)
python_packages=(python3 python3-dev pybind11-dev python3-pytest mypy)
package_packages=(debhelper dpkg-dev lintian dh-python python3-dev pybind11-dev doxygen)
reference_packages=(doxygen python3)

# build PRESET [TARGET...]: configures and builds; without targets everything.
build() {
    local preset=$1 log
    shift
    log=build/$preset.configure.log
    # The packed parser is not instrumented.
    [ "$preset" != asan ] || scripts/source_package tinyxml2 build/sources/tinyxml2
    cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; return 1; }
    local call=(cmake --build --preset "$preset")
    [ $# -eq 0 ] || call+=(--target "$@")
    if [ -t 1 ]; then
        "${call[@]}"
    else
        "${call[@]}" -- --quiet | sed '/^ninja: no work to do/d'
    fi
}

# step NAME COMMAND...: prints the name and the seconds; ends the script with the name when the command fails.
steps=0
step() {
    local name=$1 begin=$SECONDS
    shift
    printf '== %s\n' "$name"
    # A subshell of its own keeps errexit at work inside functions, which a condition would switch off.
    set +e
    (set -e; "$@")
    local result=$?
    set -e
    if [ $result -ne 0 ]; then
        printf '== FAILED: %s (%d s)\n' "$name" $((SECONDS - begin)) >&2
        exit 1
    fi
    steps=$((steps + 1))
    printf '== %s: %d s\n' "$name" $((SECONDS - begin))
}

# project_version: as CMakeLists.txt, its one place, has it.
project_version() {
    sed -nE 's/^project\(ZelModelLib VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt
}

# expect WHAT WANTED FOUND: ends the script when they differ.
expect() {
    [ "$2" = "$3" ] || { printf '%s\nexpected: %s\n   found: %s\n' "$1" "$2" "$3" >&2; exit 1; }
}

# passed_tests FILE...: how many tests passed, as the outputs of test programs tell.
passed_tests() {
    cat "$@" | sed -nE 's/^\[  PASSED  \] ([0-9]+) tests?\.$/\1/p' | awk '{ sum += $1 } END { print sum + 0 }'
}

# own_files EXTENSION...: our sources below the folders that hold C++.
own_files() {
    local names=() extension
    for extension in "$@"; do
        names+=(-o -name "*.$extension")
    done
    find include model platform tools python tests bench fuzz docs -type f \( "${names[@]:1}" \) 2>/dev/null | sort
}
