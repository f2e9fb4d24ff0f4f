# Completion of kov-replay's commands, options and files for bash.

# How many files stand between the command and the word that is completed.
_kov_replay_files() {
    local i files=0
    for ((i = 2; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
        --speed | --size | --from | --to | --page | --with-web | :) ((i++)) ;; # a time is three words to bash, 2 : 30
        -*) ;;
        *) ((files++)) ;;
        esac
    done
    echo "$files"
}

_kov_replay() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} options=""
    local command=${COMP_WORDS[1]}
    COMPREPLY=()
    compopt +o default
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(
            compgen -W "record watch verify film show best --help --version" -- "$word")
        return
    fi
    case $before:$word in
    --speed:* | --from:* | --to:* | --size:* | ::* | *::) return ;; # numbers and times
    --page:* | --with-web:*)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        return
        ;;
    esac
    case $command in
    watch) options="--speed --from" ;;
    film) options="--size --from --to --full" ;;
    verify) options="--fair" ;;
    best) options="--page --with-web" ;;
    esac
    case $command:$(_kov_replay_files):$word in
    *:*:-*) mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word") ;;
    watch:0:* | show:0:* | film:0:* | verify:*)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -X '!*.kovreplay' -- "$word" && :; compgen -d -- "$word")
        ;;
    best:0:* | film:1:*) # a folder, or a name of the player's own
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        ;;
    record:0:*) compopt -o default ;;
    esac
}
complete -F _kov_replay kov-replay
