# shellcheck shell=bash
# What ./run, ./test and .ci/run do alike: install what is missing, configure and build. They source this file
# after setting `root` to the top of the tree.
: "${root:?}"

# The packages of the lists that are not installed.
missing_packages() {
    local wanted installed
    wanted=$(sed 's/[[:space:]]*#.*//; /^$/d' "$@" | sort -u)
    # shellcheck disable=SC2086  # one word per package; dpkg-query fails when it does not know one
    installed=$({ dpkg-query -W -f '${db:Status-Status} ${Package}\n' $wanted 2>/dev/null || true; } |
        sed -n 's/^installed //p' | sort -u)
    comm -23 <(echo "$wanted") <(echo "$installed")
}

# Only someone at a terminal can type sudo's password.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif ! command -v sudo >/dev/null; then
        return 1
    elif [ -t 0 ]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

install_packages() {
    # Another package manager may be at work, as after the start of a fresh machine: wait for it.
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300)
    as_root true || return 1
    # Lists that could not be refreshed may still be good enough.
    as_root "${apt[@]}" -q update || true
    as_root "${apt[@]}" -q install --no-install-recommends -y "$@"
}

# ensure_packages LIST…: where there is no dpkg, the build itself says what is missing.
ensure_packages() {
    local missing sudo=
    command -v dpkg-query >/dev/null || return 0
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Missing packages: ${missing[*]}"
    install_packages "${missing[@]}" && return
    echo "They could not be installed from here. Please run this line, then try again:" >&2
    [ "$(id -u)" -eq 0 ] || sudo='sudo '
    echo "${sudo}apt-get update && ${sudo}apt-get install --no-install-recommends -y ${missing[*]}" >&2
    exit 1
}

# logged FILE COMMAND…: quiet unless the command fails; then what it said, from its first failure on.
logged() {
    local log=$1
    shift
    "$@" >"$log" 2>&1 && return
    if grep -q '^FAILED:' "$log"; then
        sed -n '/^FAILED:/,$p' "$log" >&2
    else
        cat "$log" >&2
    fi
    return 1
}

# A build folder that was made for a tree elsewhere is configured anew: CMake refuses it otherwise.
forget_moved_tree() {
    local cache=$1/CMakeCache.txt
    if [ -e "$cache" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then
        rm -r -- "$cache" "$1/CMakeFiles"
    fi
}

# build PRESET [TARGET]: in build/PRESET; without a target everything, tests included. ORBISDIAL_WERROR=ON in the
# environment makes warnings errors, for good in that folder.
build() {
    local preset=$1 first='' options=() target=()
    [ -z "${ORBISDIAL_WERROR:-}" ] || options+=("-DORBISDIAL_WERROR=$ORBISDIAL_WERROR")
    if [ -n "${2:-}" ]; then target=(--target "$2"); else options+=(-DORBISDIAL_TESTS=ON); fi
    [ -e "$root/build/$preset/CMakeCache.txt" ] || first=' (the first time takes some minutes)'
    echo "Building in build/$preset$first ..."
    mkdir -p "$root/build"
    forget_moved_tree "$root/build/$preset"
    (cd "$root" && logged "build/$preset-configure.log" cmake --preset "$preset" "${options[@]}") || return 1
    if [ -t 1 ]; then
        NINJA_STATUS='[%f/%t] ' cmake --build "$root/build/$preset" "${target[@]}"
    else
        logged "$root/build/$preset-build.log" cmake --build "$root/build/$preset" "${target[@]}"
    fi
}
