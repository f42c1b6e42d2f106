# shellcheck shell=bash
# Functions that ./run, ./test and the tools share: installing packages and building.
# Sourced by these scripts, never run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() {
    printf '%s\n' "$*"
}

fail() {
    say "$*" >&2
    exit 1
}

has() {
    command -v "$1" >/dev/null
}

# Stops with one sentence when any of the given commands is missing.
require_commands() {
    local command missing=()
    for command in "$@"; do
        has "$command" || missing+=("$command")
    done
    ((${#missing[@]} == 0)) || fail "These programs are missing, please install them: ${missing[*]}"
}

uses_debian_packages() {
    has apt-get && has dpkg-query
}

# The packages in the given sections of the list, one per line.
listed_packages() {
    local section
    for section in "$@"; do
        awk -v heading="[$section]" '
            /^\[/ { wanted = ($1 == heading) }
            wanted && /^[a-z0-9]/ { print $1 }' "$root/packaging/debian-packages.txt"
    done
}

installed_packages() {
    # dpkg-query, not the shell, fills in these names.
    # shellcheck disable=SC2016
    dpkg-query --show --showformat '${db:Status-Status} ${Package}\n' | sed -n 's/^installed //p'
}

missing_packages() {
    comm -23 <(listed_packages "$@" | sort -u) <(installed_packages | sort -u)
}

as_administrator() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

# Waits until another running installation has ended, and asks no questions.
run_apt_get() {
    as_administrator env DEBIAN_FRONTEND=noninteractive \
        apt-get --quiet --yes -o DPkg::Lock::Timeout=600 "$@" </dev/null
}

# Installs the missing packages of the given sections. Does nothing on systems without Debian
# packages; there, configure names what is needed.
install_packages() {
    uses_debian_packages || return 0
    local missing command
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]} > 0)) || return 0

    command="apt-get install --no-install-recommends ${missing[*]}"
    ((EUID == 0)) || has sudo ||
        fail "Packages are missing, and there is no sudo to install them. As root, run: $command"
    say "Installing missing packages: ${missing[*]}"
    run_apt_get update || say "The package lists could not be updated; trying with the old ones."
    run_apt_get install --no-install-recommends "${missing[@]}" ||
        fail "The packages could not be installed. An administrator can do it with: $command"
}

say_what_building_needs() {
    say "Packages are installed automatically on Debian and its relatives only. Here, please" \
        "install these yourself, with their development files: a C++20 compiler, CMake 3.25 or" \
        "newer, Ninja, pkg-config, Qt 6.4 or newer (Core, Gui, Widgets, Test, Linguist tools), cubeb," \
        "libsndfile, libmpg123, and the typeface Courier Prime or Courier; on Linux also" \
        "Qt DBus, and libxcb with its screen saver extension."
}

# Configures a preset unless that is done already. When a CMake file changes, the build configures
# itself again; it does not do so for CMakePresets.json.
configure() {
    local preset=$1 done_mark=$root/build/$1/configured
    [[ ! -e $done_mark || $root/CMakePresets.json -nt $done_mark ]] || return 0

    uses_debian_packages || say_what_building_needs
    require_commands cmake
    (cd "$root" && cmake --preset "$preset") ||
        fail "Wuffer could not be configured. The messages above name what is missing."
    touch "$done_mark"
}

# Brings a preset's build up to date.
build() {
    configure "$1"
    (cd "$root" && cmake --build --preset "$1") ||
        fail "Wuffer could not be built. The messages above say where."
}
