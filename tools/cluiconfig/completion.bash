# bash completion for cluiconfig

# Offers the lines of standard input that begin as what is typed; many have blanks.
_cluiconfig_offer() {
    local typed=$1 name
    while IFS= read -r name; do
        case $typed in
            [\'\"]*) [[ $name == "${typed:1}"* ]] && COMPREPLY+=("$name") ;;
            *) [[ $name == "${typed//\\/}"* ]] && COMPREPLY+=("$(printf %q "$name")") ;;
        esac
    done
}

# The names of sections and tables, as the program lists them.
_cluiconfig_sections() {
    local sections
    sections=$("${COMP_WORDS[0]}" show --list-sections --format json 2>/dev/null)
    _cluiconfig_offer "$1" < <(sed -n 'h; s/.*"Section":"\([^"]*\)".*/\1/p; g; s/.*"Tables":\["\([^]]*\)"\].*/\1/p' <<<"$sections" |
        sed 's/","/\n/g' | sort -u)
}

# What the data arrays of the catalogue have under a key, as the program lists them.
_cluiconfig_arrays() {
    local catalogue=() i
    for ((i = 1; i < COMP_CWORD - 1; ++i)); do
        [[ ${COMP_WORDS[i]} == --catalogue ]] && catalogue=(--catalogue "${COMP_WORDS[i + 1]}")
    done
    _cluiconfig_offer "$2" < <("${COMP_WORDS[0]}" arrays --format json "${catalogue[@]}" 2>/dev/null |
        sed -n "s/.*\"$1\":\"\([^\"]*\)\".*/\1/p" | sort -u)
}

_cluiconfig() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}
    local everywhere="--help -h --version --catalogue"
    local commands="check check-catalogue show arrays axes units diff format schema catalogue search"
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
            [[ $command == check* ]] && formats+=" sarif"
            mapfile -t COMPREPLY < <(compgen -W "$formats" -- "$cur")
            return
            ;;
        --section)
            _cluiconfig_sections "$cur"
            return
            ;;
        --category)
            _cluiconfig_arrays Category "$cur"
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
        check | check-catalogue) options="--format --strict --rule --list-rules" ;;
        show) options="--section --list-sections --format --wide" ;;
        arrays) options="--category --format --wide" ;;
        axes | units | diff) options="--format --wide" ;;
        format) options="--check --in-place" ;;
        schema) options="--names" ;;
        catalogue) options="" ;;
        search) options="--strategy --max --scores" ;;
    esac
    if [[ $cur == -* || -z $command ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options $everywhere" -- "$cur")
    else
        case $command in
            arrays) _cluiconfig_arrays Name "$cur" ;;
            schema)
                mapfile -t COMPREPLY < <(compgen -W "document catalogue" -- "$cur")
                ;;
            check | check-catalogue | show | axes | diff | format | search)
                mapfile -t COMPREPLY < <(compgen -f -- "$cur")
                compopt -o filenames 2>/dev/null
                ;;
        esac
    fi
}

complete -F _cluiconfig cluiconfig
