#include "completionscript.h"

namespace {

constexpr char bash[] = R"sh(_billora() {
    local IFS=$'\n' line kind=none
    COMPREPLY=()
    for line in $(billora __complete -- "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null); do
        case $line in
            :*) kind=${line#:} ;;
            *) COMPREPLY+=("$(printf '%q' "${line%%$'\t'*}")") ;;
        esac
    done
    if [ "$kind" = files ] && [ ${#COMPREPLY[@]} -eq 0 ]; then
        compopt -o filenames
        COMPREPLY=($(compgen -f -- "${COMP_WORDS[COMP_CWORD]}"))
    fi
}
complete -F _billora billora
)sh";

constexpr char zsh[] = R"sh(#compdef billora
_billora() {
    local line kind=none
    local -a found
    for line in ${(f)"$(billora __complete -- "${(@)words[2,CURRENT]}" 2>/dev/null)"}; do
        case $line in
            :*) kind=${line#:} ;;
            *) found+=("${${line%%$'\t'*}//:/\\:}:${line#*$'\t'}") ;;
        esac
    done
    if (( ${#found} )); then
        _describe billora found
    elif [[ $kind == files ]]; then
        _files
    fi
}
compdef _billora billora
)sh";

constexpr char fish[] = R"sh(function __billora
    set -l words (commandline -opc) (commandline -ct)
    for line in (billora __complete -- $words[2..-1] 2>/dev/null)
        switch $line
            case ':files'
                __fish_complete_path (commandline -ct)
            case ':*'
            case '*'
                echo $line
        end
    end
end
complete -c billora -f -a '(__billora)'
)sh";

} // namespace

QString CompletionScript::of(const QString &shell)
{
    const struct {
        const char *name, *script;
    } scripts[] = {{"bash", bash}, {"zsh", zsh}, {"fish", fish}};
    for (const auto &row : scripts) {
        if (shell == QLatin1String(row.name))
            return QString::fromUtf8(row.script);
    }
    return QString();
}
