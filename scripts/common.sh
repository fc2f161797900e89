# Shared by the commands in the root: sourced, with the root of the repository as the current folder.

set -euo pipefail

say() { printf '%s\n' "$*"; }
fail() { printf '%s\n' "$*" >&2; exit 1; }

# The packages of some groups that this machine lacks.
missing_packages() {
    local wanted=" $* " group package command
    while read -r group package command; do
        [[ -n $group && $group != \#* && $wanted == *" $group "* ]] || continue
        [[ -n $command ]] && command -v "$command" >/dev/null && continue
        [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || say "$package"
    done < scripts/packages | sort -u
}

# Installs the missing packages of some groups. The status says whether all are now installed.
install_packages() {
    command -v dpkg-query >/dev/null || {
        say "This is no Debian machine: the packages that $0 needs are listed in scripts/packages."
        return 0
    }
    local missing as_root=()
    missing=$(missing_packages "$@")
    [[ -n $missing ]] || return 0
    say "Installing:" $missing
    if [[ $EUID -ne 0 ]]; then
        command -v sudo >/dev/null || { say "These packages need root or sudo to be installed." >&2; return 1; }
        as_root=(sudo)
    fi
    # If the package lists can't be fetched, the existing ones may still do.
    "${as_root[@]}" apt-get update -qq || true
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

need_packages() {
    install_packages "$@" || fail "The packages above could not be installed; nothing can be built without them."
}

# Configures and builds a preset: configure_and_build PRESET [CMAKE OPTION...] [-- TARGET...]
configure_and_build() {
    local preset=$1 options=() targets=()
    shift
    while [[ $# -gt 0 && $1 != -- ]]; do options+=("$1"); shift; done
    [[ $# -eq 0 ]] || { shift; targets=(--target "$@"); }
    local log
    log=$(mktemp)
    if ! cmake --preset "$preset" "${options[@]}" >"$log" 2>&1 \
        || ! cmake --build --preset "$preset" "${targets[@]}" 2>&1 | tee -a "$log" | build_progress; then
        cat "$log" >&2
        rm -f "$log"
        fail "The $preset build failed."
    fi
    rm -f "$log"
}

# Shows the progress of a long build: every fiftieth step and the last. A short build prints nothing.
build_progress() { awk -F'[][/]' '/^\[[0-9]+\/[0-9]+\]/ && $3 >= 50 && ($2 % 50 == 0 || $2 == $3) { print "  " $2 " of " $3; fflush() }'; }

# Whether clang is installed and can build a program with its fuzzer.
has_fuzzer() {
    command -v clang++ >/dev/null || return 1
    clang++ -fsanitize=fuzzer,address,undefined -x c++ -o /dev/null - 2>/dev/null \
        <<< 'extern "C" int LLVMFuzzerTestOneInput(const unsigned char *, unsigned long) { return 0; }'
}

# Installs the document validator below a build folder: sets ZR3_VALIDATOR to its program, or, if this machine can't run
# it, ZR3_VALIDATOR_MISSING to the reason.
provide_validator() {
    local folder=$1/validator source=tests/documents output
    local program=$PWD/$folder/node_modules/.bin/ooxml-validate
    unset ZR3_VALIDATOR ZR3_VALIDATOR_MISSING
    if ! command -v npm >/dev/null; then
        export ZR3_VALIDATOR_MISSING="there is no npm on this machine"
        return
    fi
    if [[ ! -x $program ]] || ! cmp -s "$source/package-lock.json" "$folder/package-lock.json"; then
        say "Installing the document validator"
        rm -rf "$folder"
        mkdir -p "$folder"
        cp "$source/package.json" "$source/package-lock.json" "$source/.npmrc" "$folder"
        if ! output=$(cd "$folder" && npm ci 2>&1); then
            say "$output" >&2
            rm -rf "$folder"
            export ZR3_VALIDATOR_MISSING="npm could not install the validator"
            return
        fi
    fi
    if ! output=$("$program" --help 2>&1); then
        export ZR3_VALIDATOR_MISSING="the validator does not run on node $(node --version 2>/dev/null)"
        return
    fi
    export ZR3_VALIDATOR=$program
}
