# bash completion for tovra-ctl: its options, its operations, and true/false where an operation
# takes a boolean. The operation list is checked against `tovra-ctl help` by the test suite.
_tovra_ctl()
{
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]}
    local operations="fetchStatus fetchVersion fetchAPIURLConfig setAPIURL resetAPIURL
        setAutoConnectPreference fetchLanguageConfig setLanguage setLanguageIfSource checkUpdate
        startGUIUpdateDownload fetchGUIUpdateDownload cancelGUIUpdateDownload fetchUser
        fetchPurchaseURL fetchNodes setNodeFavorite fetchNodeGroups fetchConfigPaths
        fetchKillSwitch setKillSwitchEnabled setKillSwitchMode setKillSwitchAllowLAN
        connectRuntime connectNode connectSmart disconnectRuntime login logout setMode
        setSystemProxyPreference setLocalNetworkPreference setProxyLANPreference
        setProxyListeners fetchSplitDNS setSplitDNSLocal setSplitDNSPolicy clearSplitDNSLocal
        resetSplitDNS fetchSplitRules importSplitRules repairDiagnostics"

    case $prev in
    --socket)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$cur")
        return
        ;;
    --timeout)
        return
        ;;
    esac

    # The operation is the first word that is neither an option nor an option's value.
    local i operation="" position=0
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
        --socket | --timeout) i=$((i + 1)) ;;
        --*) ;;
        *)
            if [[ -z $operation ]]; then
                operation=${COMP_WORDS[i]}
            else
                position=$((position + 1))
            fi
            ;;
        esac
    done

    if [[ -z $operation ]]; then
        if [[ $cur == -* ]]; then
            mapfile -t COMPREPLY < <(compgen -W "--socket --timeout --help" -- "$cur")
        else
            mapfile -t COMPREPLY < <(compgen -W "$operations help raw" -- "$cur")
        fi
        return
    fi

    case $operation:$position in
    fetchNodes:0 | setNodeFavorite:1 | setKillSwitchEnabled:0 | setKillSwitchAllowLAN:0 | \
        setProxyLANPreference:0 | login:2)
        mapfile -t COMPREPLY < <(compgen -W "true false" -- "$cur")
        ;;
    raw:0)
        mapfile -t COMPREPLY < <(compgen -W "GET POST PUT DELETE" -- "$cur")
        ;;
    esac
}
complete -F _tovra_ctl tovra-ctl
