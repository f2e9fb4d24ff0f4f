# Completion of KOV's options for bash, from what the program itself lists.
_kov() {
    local word=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    compopt +o default
    [[ $word == --* || $word == - || -z $word ]] || return
    [[ $word || $COMP_CWORD -eq 1 ]] || return # the number of an option
    mapfile -t COMPREPLY < <(compgen -W "--help $("$1" --help 2>/dev/null |
        sed -n 's/^  \(-., \)\{0,1\}\(--[[:alpha:]]*\)[[:space:]]*\(=\{0,1\}\).*/\2\3/p')" -- "$word")
    [[ ${#COMPREPLY[@]} -ne 1 || ${COMPREPLY[0]} != *= ]] || compopt -o nospace
}
complete -F _kov kov
