# bash completion for cluiconfig

# The names of sections and tables, as the program lists them; many have blanks.
_cluiconfig_sections() {
    local typed=$1 name sections
    sections=$("${COMP_WORDS[0]}" show --list-sections --format json 2>/dev/null)
    while IFS= read -r name; do
        case $typed in
            [\'\"]*) [[ $name == "${typed:1}"* ]] && COMPREPLY+=("$name") ;;
            *) [[ $name == "${typed//\\/}"* ]] && COMPREPLY+=("$(printf %q "$name")") ;;
        esac
    done < <(sed -n 'h; s/.*"Section":"\([^"]*\)".*/\1/p; g; s/.*"Tables":\["\([^]]*\)"\].*/\1/p' <<<"$sections" |
        sed 's/","/\n/g' | sort -u)
}

_cluiconfig() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}
    local everywhere="--help -h --version --catalogue"
    local commands="check show axes units diff format schema search"
    local command="" i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        if [[ " $commands " == *" ${COMP_WORDS[i]} "* && ${COMP_WORDS[i - 1]} != --catalogue ]]; then
            command=${COMP_WORDS[i]}
            break
        fi
    done

    COMPREPLY=()
    case $prev in
        --catalogue)
            mapfile -t COMPREPLY < <(compgen -f -- "$cur")
            compopt -o filenames 2>/dev/null
            return
            ;;
        --format)
            local formats="text json"
            [[ $command == check ]] && formats+=" sarif"
            mapfile -t COMPREPLY < <(compgen -W "$formats" -- "$cur")
            return
            ;;
        --section)
            _cluiconfig_sections "$cur"
            return
            ;;
        --strategy)
            mapfile -t COMPREPLY < <(compgen -W "technique text" -- "$cur")
            return
            ;;
        --rule | --max)
            return
            ;;
    esac

    local options
    case $command in
        "") options=$commands ;;
        check) options="--format --strict --rule --list-rules" ;;
        show) options="--section --list-sections --format" ;;
        axes | units | diff) options="--format" ;;
        format) options="--check --in-place" ;;
        schema) options="" ;;
        search) options="--strategy --max --scores" ;;
    esac
    if [[ $cur == -* || -z $command ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options $everywhere" -- "$cur")
    else
        case $command in
            check | show | axes | diff | format | search)
                mapfile -t COMPREPLY < <(compgen -f -- "$cur")
                compopt -o filenames 2>/dev/null
                ;;
        esac
    fi
}

complete -F _cluiconfig cluiconfig
