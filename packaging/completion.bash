# Completion of kestedit for bash. A test compares the words with what `kestedit --help` offers.
_kestedit() {
    local cur prev words cword
    _init_completion || return

    local windowOptions='--job-dir --extension --view --language --settings --title --help-file --code-page --now
        --date-format --help'
    local command=${words[1]} verb=${words[2]}

    case $prev in
        --job-dir)
            _filedir -d
            return
            ;;
        --language | --settings | --help-file)
            _filedir
            return
            ;;
        --view)
            COMPREPLY=($(compgen -W '4 9 15 23' -- "$cur"))
            return
            ;;
        --code-page)
            COMPREPLY=($(compgen -W '1250 1251 1252 1253 1254 1257 65001' -- "$cur"))
            return
            ;;
        --extension | --title | --now | --date-format | --default | --size)
            return
            ;;
    esac

    if ((cword == 1)); then
        COMPREPLY=($(compgen -W 'new edit script ini --help --version' -- "$cur"))
        return
    fi
    case $command in
        new | edit)
            _kestedit_options "$windowOptions" || _filedir job
            ;;
        script)
            _kestedit_options "$windowOptions" && return
            if [[ " ${words[*]:2:cword-2} " == *' new '* || " ${words[*]:2:cword-2} " == *' edit '* ]]; then
                _filedir
            else
                COMPREPLY=($(compgen -W 'new edit' -- "$cur"))
            fi
            ;;
        ini)
            if ((cword == 2)); then
                COMPREPLY=($(compgen -W 'get set --help' -- "$cur"))
            elif [[ $verb == get ]]; then
                _kestedit_options '--default --size --code-page --help' || _filedir
            else
                _kestedit_options '--code-page --help' || _filedir
            fi
            ;;
    esac
}

# Completes an option out of $1; fails when the word at hand is none.
_kestedit_options() {
    [[ $cur == -* ]] || return
    COMPREPLY=($(compgen -W "$1" -- "$cur"))
}

complete -F _kestedit kestedit
