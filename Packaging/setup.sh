# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 Brevano contributors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# What ./run and ./check share: the machine's packages, and configuring and building a preset.
# Sourced, never started. Everything said here goes to standard error, so that what a command
# prints as its result stays alone on standard output.

nx_top=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
nx_package_list=${NX_PACKAGE_LIST:-$nx_top/Packaging/apt-packages.txt}

nx_say() {
    printf '%s\n' "$*" >&2
}

nx_die() {
    local code=$1
    shift
    nx_say "$@"
    exit "$code"
}

# Fills the array nx_missing with the packages of the list that are not installed.
nx_find_missing_packages() {
    local line status
    nx_missing=()
    while IFS= read -r line || [[ -n $line ]]; do
        line=${line%%#*}
        line=${line//[[:space:]]/}
        [[ -n $line ]] || continue
        status=$(dpkg-query -W -f='${db:Status-Status}' -- "$line" 2>/dev/null) || status=missing
        [[ $status == installed ]] || nx_missing+=("$line")
    done <"$nx_package_list"
}

# Asks once, on the terminal, whether sudo may install. Returns 1 for anything but yes.
nx_user_agrees_to_sudo() {
    local answer
    nx_say "Brevano needs these Debian packages: ${nx_missing[*]}"
    printf 'Install them now with sudo apt-get? [y/N] ' >&2
    IFS= read -r answer || return 1
    [[ $answer == [yY] || $answer == [yY][eE][sS] ]]
}

nx_apt_install() {
    local as_root=("$@")
    "${as_root[@]}" apt-get update >&2 || return 1
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends -- "${nx_missing[@]}" >&2
}

# Installs what is missing; silent and offline when nothing is. Ends the script with status 5 when
# the machine cannot be set up.
nx_install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        nx_say "This is not a Debian system: no package is installed or looked for."
        return
    fi
    nx_find_missing_packages
    ((${#nx_missing[@]})) || return 0

    local by_hand="apt-get install --no-install-recommends ${nx_missing[*]}"
    local as_root=()
    if (($(id -u) != 0)); then
        [[ -t 0 ]] || nx_die 5 "Packages are missing, and there is no terminal to ask on whether" \
            "to install them. As root: $by_hand"
        command -v sudo >/dev/null || nx_die 5 "Packages are missing and sudo is not here." \
            "As root: $by_hand"
        nx_user_agrees_to_sudo || nx_die 5 "Nothing was installed. As root: $by_hand"
        as_root=(sudo)
    fi
    nx_say "Installing: ${nx_missing[*]}"
    nx_apt_install "${as_root[@]}" || nx_die 5 "The packages could not be installed. As root: $by_hand"
}

# nx_configure PRESET [cmake arguments...]
nx_configure() {
    local preset=$1
    shift
    (cd -- "$nx_top" && cmake --preset "$preset" "$@") >&2
}

# nx_build PRESET [cmake --build arguments...]
nx_build() {
    local preset=$1
    shift
    (cd -- "$nx_top" && cmake --build --preset "$preset" "$@") >&2
}
