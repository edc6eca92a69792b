# shellcheck shell=bash
# To be sourced: adds up what several test runs report. Each run ends in a line "N passed, N failed".
passed=0
failed=0

# Tally TITLE COMMAND...: runs the command, shows what it prints and adds its last line to the sums. A run that fails without saying
# what, or ends without such a line, counts as one failure.
Tally() {
    local title=$1 log status=0 last
    shift
    echo "== $title"
    log=$(mktemp)
    "$@" </dev/null 2>&1 | tee "$log" || status=$?
    last=$(tail -n 1 "$log")
    rm -f "$log"
    if [[ $last =~ ^([0-9]+)\ passed,\ ([0-9]+)\ failed$ ]]; then
        passed=$((passed + BASH_REMATCH[1]))
        failed=$((failed + BASH_REMATCH[2]))
        if [ "$status" = 0 ] || [ "${BASH_REMATCH[2]}" -gt 0 ]; then return; fi
    fi
    echo "$title: ended with status $status"
    failed=$((failed + 1))
}

# Prints the sums as the last line; true if nothing failed.
TallyEnd() {
    echo "$passed passed, $failed failed"
    [ "$failed" = 0 ]
}
