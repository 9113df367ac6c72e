# bash completion for cluiconfig

# A word of the command line as the program would get it.
_cluiconfig_plain() {
    printf '%s' "${1//[\\\"\']/}"
}

# Offers those lines of standard input that go on from the word at the cursor, many of which have blanks.
_cluiconfig_offer() {
    local name plain
    plain=$(_cluiconfig_plain "$cur")
    while IFS= read -r name; do
        if [[ $name == "$plain"* ]]; then
            [[ $cur == [\'\"]* ]] || name=$(printf %q "$name")
            COMPREPLY+=("$name")
        fi
    done
}

# The texts of a column of a table that the program prints.
_cluiconfig_column() {
    local column=$1
    shift
    "${COMP_WORDS[0]}" "$@" --format json 2>/dev/null | sed -n "s|.*\"$column\":\"\([^\"]*\)\".*|\1|p"
}

# The names of sections and of their tables, as the program lists them.
_cluiconfig_sections() {
    "${COMP_WORDS[0]}" show --list-sections --format json 2>/dev/null |
        sed -n 'h; s/.*"Section":"\([^"]*\)".*/\1/p; g; s/.*"Tables":\["\([^]]*\)"\].*/\1/p' | sed 's/","/\n/g' | sort -u
}

_cluiconfig_files() {
    compgen -f -- "$(_cluiconfig_plain "$cur")"
}

# The names of data arrays that may follow the words behind "axes", and files where a document may.
_cluiconfig_axes() {
    local document=()
    if [[ $1 == *.json || $1 == - || -e $1 ]]; then
        document=("$1")
        shift
    fi
    case $# in
        0)
            _cluiconfig_column X axes "${document[@]}"
            [[ ${#document[@]} -gt 0 ]] || _cluiconfig_files
            ;;
        1) _cluiconfig_column Y axes "${document[@]}" "$1" ;;
    esac
}

# What the data arrays of the catalogue have under a key, as the program lists them.
_cluiconfig_arrays() {
    local catalogue=() i
    for ((i = 0; i + 1 < ${#before[@]}; ++i)); do
        [[ ${before[i]} == --catalogue ]] && catalogue=(--catalogue "${before[i + 1]}")
    done
    _cluiconfig_column "$1" arrays "${catalogue[@]}" | sort -u
}

_cluiconfig() {
    local cur=${COMP_WORDS[COMP_CWORD]} is_value="" i
    local everywhere="--help -h --version --catalogue"
    local commands="check check-catalogue show arrays axes units diff format schema catalogue search help"

    # bash takes an equals sign for a word of its own.
    local before=()
    for ((i = 1; i < COMP_CWORD; ++i)); do
        [[ ${COMP_WORDS[i]} == = ]] || before+=("$(_cluiconfig_plain "${COMP_WORDS[i]}")")
    done
    [[ ${COMP_WORDS[COMP_CWORD - 1]} == = ]] && is_value=yes
    [[ $cur == = ]] && is_value=yes cur=""

    local command="" words=()
    for ((i = 0; i < ${#before[@]}; ++i)); do
        case ${before[i]} in
            --catalogue | --format | --section | --category | --strategy | --rule | --max) ((++i)) ;;
            -?*) ;;
            *) if [[ -z $command ]]; then command=${before[i]}; else words+=("${before[i]}"); fi ;;
        esac
    done

    COMPREPLY=()
    if [[ $is_value && ${#before[@]} -gt 1 && ${before[-2]} == --rule ]]; then
        mapfile -t COMPREPLY < <(compgen -W "off warning error" -- "$cur")
        return
    fi
    local previous=""
    [[ ${#before[@]} -gt 0 ]] && previous=${before[-1]}
    case $previous in
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
            _cluiconfig_offer < <(_cluiconfig_sections)
            return
            ;;
        --category)
            _cluiconfig_offer < <(_cluiconfig_arrays Category)
            return
            ;;
        --strategy)
            mapfile -t COMPREPLY < <(compgen -W "technique text" -- "$cur")
            return
            ;;
        --rule)
            mapfile -t COMPREPLY < <(compgen -S = -W "$("${COMP_WORDS[0]}" check --list-rules 2>/dev/null |
                cut -d ' ' -f 1)" -- "$cur")
            compopt -o nospace 2>/dev/null
            return
            ;;
        --max)
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
        search) options="--strategy --max --scores" ;;
    esac
    if [[ $cur == -* || -z $command ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options $everywhere" -- "$cur")
        return
    fi
    case $command in
        check | check-catalogue | show | diff | format | search)
            mapfile -t COMPREPLY < <(compgen -f -- "$cur")
            compopt -o filenames 2>/dev/null
            ;;
        arrays) _cluiconfig_offer < <(_cluiconfig_arrays Name) ;;
        schema) mapfile -t COMPREPLY < <(compgen -W "document catalogue" -- "$cur") ;;
        axes) _cluiconfig_offer < <(_cluiconfig_axes "${words[@]}") ;;
        units) [[ ${#words[@]} -gt 0 ]] || _cluiconfig_offer < <(_cluiconfig_column Parameter units) ;;
        help) mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$cur") ;;
    esac
}

complete -F _cluiconfig cluiconfig
