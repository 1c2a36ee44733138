# Completion of tomely-cli for bash.

# Which words may stand for the value of an option; nothing for texts and numbers.
_tomely_cli_values()
{
    case $1:$2 in
        *:--compare) echo equal not-equal less greater before after on-or-before on-or-after ;;
        *:--state) echo all set unset ;;
        *:--type) echo 0 1 2 3 ;;
        *:--rating) echo 0 1 2 3 4 5 ;;
        *:--month) echo 0 1 2 3 4 5 6 7 8 9 10 11 12 ;;
        list:--columns) echo visible all ;;
        list:--format) echo table tsv json ;;
        export-csv:--columns) echo all visible ;;
        export-csv:--dates) echo split year month day ;;
        export-csv:--groups) echo none flags names ;;
        export-csv:--switches) echo 10 truefalse yn ;;
        export-csv:--isbn) echo one two none ;;
        export-csv:--line-breaks) echo keep space escape ;;
    esac
}

_tomely_cli_options()
{
    local view="--group --filter --text --compare --number --month --year --state --type --rating --sort"
    case $1 in
        list) echo "$view --columns --format" ;;
        export-csv) echo "$view --columns --dates --groups --group-delimiter --switches --isbn --line-breaks" ;;
        export-xml) echo "$view" ;;
        lookup) echo --json ;;
    esac
    echo --help --version
}

# Collections, folders on the way to them, and files with the other endings that are given.
_tomely_cli_files()
{
    local ending
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -d -- "$1")
    for ending in "${@:2}"; do
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -X "!*.$ending" -- "$1")
    done
}

_tomely_cli()
{
    local commands="new info list dump export-csv export-xml import-xml rewrite check lookup help"
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]}
    COMPREPLY=()
    if [ "$COMP_CWORD" = 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "$commands --help --version" -- "$word")
        return
    fi
    # The equals sign is a word of its own.
    [ "$word" != = ] || word=
    [ "$previous" != = ] || previous=${COMP_WORDS[COMP_CWORD - 2]}
    case $previous in
        --help | --version | --json) ;;
        --*)
            mapfile -t COMPREPLY < <(compgen -W "$(_tomely_cli_values "$command" "$previous")" -- "$word")
            return
            ;;
    esac
    case $word in
        -*)
            mapfile -t COMPREPLY < <(compgen -W "$(_tomely_cli_options "$command")" -- "$word")
            return
            ;;
    esac
    case $command in
        help) mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$word") ;;
        lookup) ;;
        export-csv) _tomely_cli_files "$word" books csv ;;
        export-xml | import-xml) _tomely_cli_files "$word" books xml ;;
        *) _tomely_cli_files "$word" books ;;
    esac
}

complete -F _tomely_cli tomely-cli
