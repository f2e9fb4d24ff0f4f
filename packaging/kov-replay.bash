# Completion of kov-replay's commands, options and files for bash.
_kov_replay() {
    local word=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1]}
    COMPREPLY=()
    compopt +o default
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "record watch verify film show --help" -- "$word")
        return
    fi
    case $command:$word in
    watch:-*) mapfile -t COMPREPLY < <(compgen -W "--speed --from" -- "$word") ;;
    film:-*) mapfile -t COMPREPLY < <(compgen -W "--size" -- "$word") ;;
    watch:* | verify:* | show:* | film:*)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -X '!*.kovreplay' -- "$word" && :; compgen -d -- "$word")
        ;;
    record:*) compopt -o default ;;
    esac
}
complete -F _kov_replay kov-replay
