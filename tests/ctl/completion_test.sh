#!/usr/bin/env bash
# The bash completion of tovra-ctl offers every operation that `tovra-ctl help` lists, and
# true/false wherever one takes a boolean, so the two cannot drift apart.
# Usage: completion_test.sh TOVRA_CTL COMPLETION_FILE
set -euo pipefail
ctl=$1
# shellcheck source=/dev/null
source "$2"

complete_line() { # the words of a command line, the last one being completed
    COMP_WORDS=("$@")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMPREPLY=()
    _tovra_ctl || true # compgen fails when nothing matches
}
offers() { local word; for word in "${COMPREPLY[@]}"; do [[ $word == "$1" ]] && return 0; done; return 1; }

failures=0 operations=0
while read -r name arguments; do
    operations=$((operations + 1))
    complete_line tovra-ctl "${name:0:3}"
    offers "$name" || { echo "FAIL: '${name:0:3}<Tab>' does not offer $name" >&2; failures=$((failures + 1)); }
    complete_line tovra-ctl --socket /tmp/x.sock "$name"
    offers "$name" || { echo "FAIL: $name is not offered after --socket PATH" >&2; failures=$((failures + 1)); }
    read -ra args <<<"$arguments"
    words=(tovra-ctl "$name")
    for arg in "${args[@]}"; do
        if [[ $arg == *:bool\> ]]; then
            complete_line "${words[@]}" ""
            if ! offers true || ! offers false; then
                echo "FAIL: $name does not offer true/false for $arg" >&2
                failures=$((failures + 1))
            fi
        fi
        words+=(x)
    done
done < <("$ctl" help | sed -n '/^Operations:/,$p' | sed -n 's/^  \([A-Za-z]\)/\1/p')

(( operations > 30 )) || { echo "FAIL: tovra-ctl help listed only $operations operations" >&2; exit 1; }
complete_line tovra-ctl ""
for extra in help raw; do offers "$extra" || { echo "FAIL: $extra is not offered" >&2; failures=$((failures + 1)); }; done
# Nothing is offered that help does not know.
known=" $("$ctl" help | sed -n '/^Operations:/,$p' | sed -n 's/^  \([A-Za-z][A-Za-z]*\).*/\1/p' | tr '\n' ' ') help raw "
for word in "${COMPREPLY[@]}"; do
    [[ $known == *" $word "* ]] || { echo "FAIL: the completion offers $word, which help does not list" >&2; failures=$((failures + 1)); }
done
(( failures == 0 )) || exit 1
echo "completion offers all $operations operations of tovra-ctl help"
