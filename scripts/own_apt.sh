# Sourced: apt with sources, lists, cache and files of its own, in a folder that goes when the script ends. It needs no
# root and leaves the machine's sources, lists and packages as they are. Its one entry is the machine's own for Debian.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/sources" "$work/preferences" "$work/state/lists/partial" "$work/cache/archives/partial"
touch "$work/state/status"
apt=(-o "Dir::Etc::sourceparts=$work/sources" -o Dir::Etc::sourcelist=/dev/null
     -o "Dir::Etc::preferencesparts=$work/preferences" -o Dir::Etc::preferences=/dev/null
     -o "Dir::State=$work/state" -o "Dir::State::status=$work/state/status" -o "Dir::Cache=$work/cache"
     -o Acquire::Languages=none -o APT::Sandbox::User=)

quietly() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log" >&2; echo "failed: $*" >&2; return 1; }
}

# own_entry TYPE: fetches what that entry offers, packages (deb) or their sources (deb-src), of the architectures that
# the apt options say.
own_entry() {
    local form=sources
    . /etc/os-release
    scripts/later_suite "$VERSION_CODENAME" "$VERSION_CODENAME" \
        /etc/apt/sources.list /etc/apt/sources.list.d/*.{list,sources} >"$work/entry" ||
        { echo "No Debian entry for $VERSION_CODENAME among the apt sources." >&2; return 1; }
    grep -q '^deb ' "$work/entry" && form=list
    sed -E "s/^deb([[:blank:]])/$1\1/; s/^Types: deb\$/Types: $1/; /^Architectures:/d; s/\barch=[^] ]*//" \
        "$work/entry" >"$work/sources/own.$form"
    quietly apt-get "${apt[@]}" -qq update
}
