# Shared by the scripts that run programs which say what they saw: "FIGURE <times> <what>", a row of a table each.
# shellcheck shell=bash disable=SC2154 # checkout is that of build.sh

print_head() {
    printf '| Idea | Profile | Times | What | Seed | Outcome |\n| --- | --- | --: | --- | --: | --- |\n'
}

# print_figures NAME PROFILE SEED LOG STATUS: prints a row for each figure in the log, and one for a failure. A program
# without a figure has failed too.
print_figures() {
    local name=${1//_/ } profile=$2 seed=$3 log=$4 status=$5 outcome=holds
    ((status == 0)) || outcome="FAILS: ${log#"$checkout/"}"
    grep -q '^FIGURE ' "$log" || outcome="FAILS, no figure: ${log#"$checkout/"}"
    sed -n "s/^FIGURE \([0-9]*\) \(.*\)/| $name | $profile | \1 | \2 | $seed | ${outcome//\//\\/} |/p" "$log"
    [[ $outcome == holds ]] || printf '| %s | %s | | | %s | %s |\n' "$name" "$profile" "$seed" "$outcome"
}
