# Completion in bash for orreryui-call: options, operations, the words that an argument knows, files.

# What may stand at an argument of an operation, by its place from 1: the words that its meaning has
# in quotes.
_orreryui_call_words() {
  "$1" "$2" --help 2>/dev/null |
    awk -F '"' -v place="$3" '
      /^$/ { ++block }
      block == 1 && NF && ++count == place { for (i = 2; i < NF; i += 2) print $i }'
}

_orreryui_call() {
  local tool="${COMP_WORDS[0]}" word="${COMP_WORDS[COMP_CWORD]}" at=1 words
  if [[ "${COMP_WORDS[1]}" == --json && $COMP_CWORD -gt 1 ]]; then at=2; fi
  if [[ $COMP_CWORD -eq $at ]]; then
    words="$("$tool" --list 2>/dev/null | cut -d' ' -f1)"
    if [[ $at -eq 1 ]]; then words+=" --json --list --check --help --version"; fi
  else
    words="$(_orreryui_call_words "$tool" "${COMP_WORDS[at]}" $((COMP_CWORD - at)))"
    if [[ $COMP_CWORD -eq $((at + 1)) && "$word" == -* ]]; then words+=" --help"; fi
  fi
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}

complete -o bashdefault -o default -F _orreryui_call orreryui-call
