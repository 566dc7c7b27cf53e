# Completion of zulspectrum for bash.
_zulspectrum() {
    local word=${COMP_WORDS[COMP_CWORD]} options
    case ${COMP_WORDS[1]} in
        transform) options="--help --family --length --nperseg --order --hop --noverlap --window --flag --precision --check --channel --start --end --decimal --allow-damaged --format --output --json" ;;
        spectrogram) options="--help --family --length --nperseg --order --hop --noverlap --window --flag --precision --check --channel --start --end --decimal --allow-damaged --columns --colours --colors --range --format --output --json" ;;
        inverse) options="--help --family --length --nperseg --order --hop --noverlap --window --flag --precision --rate --samples --encoding --format --output --json" ;;
        batch) options="--help --into --match --format --again --family --length --nperseg --order --hop --noverlap --window --flag --precision --channel --start --end --decimal --allow-damaged --columns --colours --colors --range --json --jobs" ;;
        layout) options="--help --json" ;;
        info) options="--help --list --json" ;;
        bench) options="--help --family --lengths --time TIMEjson" ;;
        completion) options="--help --output" ;;
        *) options="--help --family --length --nperseg --order --hop --noverlap --window --flag --precision --check --channel --start --end --decimal --allow-damaged --columns --colours --colors --range --format --output --json --version" ;;
    esac
    if [ "$COMP_CWORD" -eq 1 ]; then options="transform spectrogram inverse batch layout info bench completion $options"; fi
    case $word in
        -*) COMPREPLY=($(compgen -W "$options" -- "$word")) ;;
        *) COMPREPLY=($(compgen -f -- "$word"))
           if [ "$COMP_CWORD" -eq 1 ]; then COMPREPLY+=($(compgen -W "transform spectrogram inverse batch layout info bench completion" -- "$word")); fi ;;
    esac
}
complete -o filenames -F _zulspectrum zulspectrum
