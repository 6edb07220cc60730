# Sourced by the tests of installed libraries, with the folder that each may use as its first argument.
work=$(mkdir -p "$1" && cd "$1" && pwd)
rm -rf "${work:?}"/*
. "$(dirname "${BASH_SOURCE[0]}")/../../scripts/common.sh"
example=$PWD/examples/nightly-file-server.xml
answer="14 days are kept; starts: Every day at 22 hours 30 minutes"

quietly() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log" >&2; echo "failed: $*" >&2; exit 1; }
}

# shown LANGUAGE: the one block of the language in the README.
shown() {
    awk -v begin="\`\`\`$1" '$0 == begin { inside = 1; next } $0 == "```" { inside = 0 } inside' README.md
}

# use_library PREFIX: a program finds the library below the prefix by CMake and by pkg-config, as the README shows it,
# and catches the library's exceptions. An empty prefix is the system's own.
use_library() {
    local prefix=$1 folder=$work/use version call
    version=$(project_version)
    mkdir -p "$folder/by_cmake"
    cp docs/first_program.cpp "$folder/by_cmake"
    shown cmake >"$folder/by_cmake/CMakeLists.txt"
    quietly cmake -S "$folder/by_cmake" -B "$folder/by_cmake/build" -DCMAKE_PREFIX_PATH="$prefix"
    quietly cmake --build "$folder/by_cmake/build"
    expect "by CMake" "$answer" "$("$folder/by_cmake/build/first_program" <"$example")"

    if [ -n "$prefix" ]; then
        export PKG_CONFIG_PATH LD_LIBRARY_PATH
        PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name zelmodellib.pc)")
        LD_LIBRARY_PATH=$(dirname "$PKG_CONFIG_PATH")
    fi
    expect "version of pkg-config" "$version" "$(pkg-config --modversion zelmodellib)"
    call=$(shown sh)
    (cd "$folder/by_cmake" && quietly sh -ec "$call")
    expect "by pkg-config" "$answer" "$("$folder/by_cmake/first_program" <"$example")"

    quietly cmake -S tests/package/consumer -B "$folder/consumer" -DCMAKE_PREFIX_PATH="$prefix" -DEXPECTED="$version"
    quietly cmake --build "$folder/consumer"
    expect "a program of more parts" "$answer" "$("$folder/consumer/consumer" <"$example")"
    local wrong="<JobOptions MaxDays='x'/>" refusal status=0
    refusal=$(printf '%s' "$wrong" | "$folder/consumer/consumer") || status=$?
    expect "an exception that crosses the border" "refused: BackupJobOptions: Converting from string [$wrong] failed. (3)" \
        "$refusal ($status)"
    status=0
    cmake -S tests/package/consumer -B "$folder/newer" -DCMAKE_PREFIX_PATH="$prefix" -DWANTED=2 >"$work/log" 2>&1 ||
        status=$?
    expect "another major version" 1 "$status"
}
