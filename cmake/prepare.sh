# shellcheck shell=bash disable=SC2154 # root is set by who sources this
# Sourced by ./run, ./test, ./check, fuzz/run, tests/mutation/run and packaging/try-package: installs
# what is missing and builds. Says nothing when there is nothing to do.

cd "$root" || exit

say() { printf '%s\n' "$*" >&2; }

# missing_packages LIST...: the packages of these lists that are not installed.
missing_packages() {
    local wanted
    wanted=$(grep -hv '^#' "$@")
    # shellcheck disable=SC2086 # one word a package
    dpkg-query -W -f '${binary:Package} ${db:Status-Status}\n' $wanted 2>/dev/null |
        sed -n 's/:[a-z0-9]* / /; s/ installed$//p' | sort >"$installed"
    # shellcheck disable=SC2086 # one word a package
    printf '%s\n' $wanted | sort | comm -23 - "$installed" | tr '\n' ' '
}

# install_packages LIST...
install_packages() {
    command -v dpkg-query >/dev/null || return 0 # not Debian: the build says what it misses
    local installed missing as_root=
    installed=$(mktemp)
    missing=$(missing_packages "$@")
    rm -f "$installed"
    [ -n "$missing" ] || return 0

    local command="apt-get update && apt-get install --no-install-recommends $missing"
    if [ "$(id -u)" != 0 ]; then
        as_root=sudo
        if ! command -v sudo >/dev/null || ! { sudo -n true 2>/dev/null || [ -t 0 ]; }; then
            say "These packages are missing and need root to install. Run, as root:"
            say "    $command"
            exit 1
        fi
    fi
    say "Installing $(wc -w <<<"$missing") packages (some minutes): $missing"
    local log
    log=$(mktemp)
    # shellcheck disable=SC2086 # one word a package
    if ! { $as_root apt-get update &&
        $as_root env DEBIAN_FRONTEND=noninteractive \
            apt-get install --yes --no-install-recommends $missing; } >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        say "Installing failed; the whole log is $log. The command was, as root:"
        say "    $command"
        exit 1
    fi
    rm -f "$log"
}

# logged LOG COMMAND...: runs a command with its output in a log, shown only when it fails.
logged() {
    local log=$1
    shift
    if ! "$@" >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        say "Failed: $* (the whole log is $log)"
        exit 1
    fi
}

# build PRESET [TARGET...]
build() {
    local directory="build/$1"
    mkdir -p "$directory"
    if [ ! -f "$directory/build.ninja" ]; then
        say "Configuring $directory"
        logged "$directory/configure.log" cmake --preset "$1"
    fi
    if ! ninja -C "$directory" -n "${@:2}" 2>/dev/null | grep -q 'no work to do'; then
        say "Building $directory (some minutes the first time)"
        logged "$directory/build.log" ninja -C "$directory" "${@:2}"
    fi
}
