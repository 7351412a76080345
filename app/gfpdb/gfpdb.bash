# Completion of gfpdb(1) for bash.

_gfpdb_names()
{
    local dir=() word at
    for ((at = 1; at < COMP_CWORD; ++at)); do
        case ${COMP_WORDS[at]} in
        -d | --dir) dir=(--dir "${COMP_WORDS[at + 1]}") ;;
        esac
    done
    # Names may have blanks: one per line, and quoted for the command line.
    while IFS= read -r word; do
        [[ $word == "${COMP_WORDS[COMP_CWORD]}"* ]] && COMPREPLY+=("$(printf '%q' "$word")")
    done < <("${COMP_WORDS[0]}" list --all --json "${dir[@]}" 2>/dev/null |
        sed -n 's/^    "name": "\(.*\)",$/\1/p')
}

_gfpdb()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
    local commands="list show chart export import check history restore diff copy-device sfdp copy server help"
    local common="--dir --verbose --help" options=""
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "$commands --help --version" -- "$current")
        return
    fi
    case $previous in
    -d | --dir | --from | --to)
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
        return
        ;;
    -o | --output | --sslrootcert)
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
        ;;
    --variant)
        local variants="single quad"
        [[ $command == chart ]] || variants+=" both"
        mapfile -t COMPREPLY < <(compgen -W "$variants" -- "$current")
        return
        ;;
    --format)
        mapfile -t COMPREPLY < <(compgen -W "pdf svg" -- "$current")
        return
        ;;
    --operation)
        mapfile -t COMPREPLY < <(compgen -W "initialization program erase verify termination" -- "$current")
        return
        ;;
    --paper)
        mapfile -t COMPREPLY < <(compgen -W "a4 letter" -- "$current")
        return
        ;;
    --sslmode)
        mapfile -t COMPREPLY < <(compgen -W "disable allow prefer require verify-ca verify-full" -- "$current")
        return
        ;;
    --host | --port | --database | --schema | --user) return ;;
    --sfdp)
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
        ;;
    --lint-off | --family | --scheme | --from-family | --from-scheme | --filter | --as | --older-than | --keep | --id | --name | \
        --voltage | --set)
        return
        ;;
    esac
    case $command in
    list) options="--builtin --all --filter --csv --spreadsheet --json --family --scheme" ;;
    show) options="--variant --json --family --scheme" ;;
    chart) options="--output --format --operation --variant --paper --family --scheme" ;;
    export) options="--output --csv --spreadsheet --family --scheme" ;;
    import)
        options="--replace --dry-run --unchecked --csv --family --scheme"
        options+=" --sfdp --id --name --voltage --set --json"
        ;;
    check) options="--rebuild-keys --lint --lint-off --lint-rules --sfdp --json" ;;
    history) options="--prune --older-than --keep --force --json --family --scheme" ;;
    restore) options="--replace --as" ;;
    diff) options="--json --family --scheme" ;;
    copy-device) options="--family --scheme --from-family --from-scheme --dry-run" ;;
    sfdp) options="--id --json" ;;
    copy) options="--from --to" ;;
    server) options="--host --port --database --schema --user --sslmode --sslrootcert --json" ;;
    help)
        mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$current")
        return
        ;;
    esac
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$common $options" -- "$current")
        return
    fi
    case $command in
    show | chart | export | history | copy-device) _gfpdb_names ;;
    server)
        ((COMP_CWORD == 2)) && mapfile -t COMPREPLY < <(compgen -W "sql init status" -- "$current")
        ((COMP_CWORD > 2)) && mapfile -t COMPREPLY < <(compgen -d -- "$current")
        ;;
    import | sfdp) mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
    diff)
        _gfpdb_names
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$current")
        ;;
    esac
}

complete -F _gfpdb gfpdb
