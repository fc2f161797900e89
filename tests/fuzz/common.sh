# Shared by the fuzzing scripts: sourced after scripts/common.sh, with the root of the repository as the current folder.

# The limits: seconds for one input, and megabytes for the whole process.
fuzz_timeout=10
fuzz_memory=1500

# Fuzzing allocates and frees constantly: without these options most of its time would go into bookkeeping.
fuzz_asan=detect_stack_use_after_return=0:malloc_context_size=2:quarantine_size_mb=16:max_malloc_fill_size=256

all_targets() { awk '/^[a-z]/ { print $1 }' tests/fuzz/targets; }

# The files that are used as inputs besides the corpus: seeds_of TARGET
seeds_of() {
    local pattern
    for pattern in $(awk -v target="$1" '$1 == target { $1 = $2 = ""; print }' tests/fuzz/targets); do
        compgen -G "$pattern" || true
    done
}

# The folders of a target's inputs: past findings, hand-written seeds, and the corpus.
input_folders() {
    local folder
    for folder in findings seeds corpus; do
        [[ ! -d tests/fuzz/$folder/$1 ]] || say "tests/fuzz/$folder/$1"
    done
}

# Everything that a target must pass: kept_inputs TARGET
kept_inputs() {
    find $(input_folders "$1") -type f | sort
    seeds_of "$1"
}

# The options for fuzzing a target: attack_options TARGET
attack_options() {
    say "-max_len=$(awk -v target="$1" '$1 == target { print $2 }' tests/fuzz/targets)"
    [[ ! -f tests/fuzz/$1.dict ]] || say "-dict=tests/fuzz/$1.dict"
}

# Creates a folder that is deleted when the script ends, in memory if there is room: sets `folder`; the fuzzed programs
# create theirs in it.
fuzz_folder() {
    local parent=${TMPDIR:-/tmp}
    [[ ! -w /dev/shm ]] || parent=/dev/shm
    folder=$(mktemp -d -p "$parent" zr3-fuzz.XXXXXX)
    trap 'rm -rf "$folder"' EXIT
    mkdir "$folder/tmp"
}

# Runs a target's program: fuzz PROGRAM TARGET [OPTION OR INPUT...]
fuzz() {
    local program=$1
    shift 2
    TMPDIR=$folder/tmp LC_ALL=C.UTF-8 ASAN_OPTIONS="$fuzz_asan" UBSAN_OPTIONS=print_stacktrace=1 \
        "$program" -timeout="$fuzz_timeout" -rss_limit_mb="$fuzz_memory" -print_final_stats=1 -print_funcs=0 -entropic=0 -detect_leaks=0 "$@"
}

executions() { awk '/^stat::number_of_executed_units:/ { n = $2 } END { print n + 0 }' "$1"; }

# Shows a finding, keeps its input and says how to reproduce it: tell_finding LOG PROGRAM TARGET
tell_finding() {
    local log=$1 program=$2 target=$3 input kept
    tail -n 60 "$log"
    # A replayed input is named before it is run; the fuzzer writes new ones to a file.
    input=$(awk '/Test unit written to/ { print $NF }' "$log")
    [[ -n $input ]] || input=$(awk '/^Running: / { print $2 }' "$log" | tail -n 1)
    if [[ -z $input || ! -f $input ]]; then
        say "The program ended without an input to show for it."
        return
    fi
    kept=$input
    if [[ $input == "$folder"/* ]]; then
        kept=${ZR3_FINDINGS:-$(dirname "$program")}/$target-$(sha1sum "$input" | head -c 12)
        cp "$input" "$kept"
    fi
    say "A finding of the target $target. Its input is kept; to meet it again:"
    say "    $program $kept"
    say "Once mended, it belongs into tests/fuzz/findings/$target/, so that it stays so."
}
