# Completion of gfprog(1) for bash.

_gfprog_names()
{
    local gfpdb=${COMP_WORDS[0]%gfprog}gfpdb dir=() word at
    for ((at = 1; at < COMP_CWORD; ++at)); do
        case ${COMP_WORDS[at]} in
        -d | --dir) dir=(--dir "${COMP_WORDS[at + 1]}") ;;
        esac
    done
    # Names may have blanks: one per line, and quoted for the command line.
    while IFS= read -r word; do
        [[ $word == "${COMP_WORDS[COMP_CWORD]}"* ]] && COMPREPLY+=("$(printf '%q' "$word")")
    done < <("$gfpdb" list --all --json "${dir[@]}" 2>/dev/null | sed -n 's/^    "name": "\(.*\)",$/\1/p')
}

_gfprog()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
    local commands="detect learn program erase blank-check verify read run trace emulate ports help"
    local common="--dir --verbose --help" target="--on --device --family --scheme --json" options="" ports=""
    local range="--offset --length --trace" operations="initialization erase blank-check program verify examine"
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "$commands --help --version" -- "$current")
        return
    fi
    case $previous in
    -d | --dir)
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
        return
        ;;
    -o | --output | --file | --trace | --save-sfdp)
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
        ;;
    --on)
        ports=$("${COMP_WORDS[0]}" ports 2>/dev/null | sed 's/^\([^ ]*\).*/serial:\1/')
        mapfile -t COMPREPLY < <(compgen -W "emulated tcp:localhost: $ports" -- "$current")
        return
        ;;
    --device)
        _gfprog_names
        return
        ;;
    --family | --scheme | --from-family | --from-scheme | --offset | --length | --listen | --name | --voltage | --set)
        return
        ;;
    esac
    case $command in
    detect) options="$target" ;;
    learn)
        options="$target --from-family --from-scheme --name --voltage --set --replace --dry-run --save-sfdp --force"
        ;;
    program) options="$target $range --no-erase --blank-check --no-verify" ;;
    erase | blank-check | verify) options="$target $range" ;;
    read) options="$target $range --force" ;;
    run | trace) options="$target $range --file --output --force" ;;
    emulate) options="--listen --every-address --file --family --scheme" ;;
    ports) options="--json" ;;
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
    program | verify | read) mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
    run | trace) mapfile -t COMPREPLY < <(compgen -W "$operations" -- "$current") ;;
    emulate) _gfprog_names ;;
    esac
}

complete -F _gfprog gfprog
