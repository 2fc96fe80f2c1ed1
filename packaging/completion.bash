# Completion of kestedit for bash, over the functions of bash-completion.
# tests/install/install_test.sh compares the options with those that the program's help lists.

_kestedit() {
    local cur prev words cword
    _init_completion || return

    local editorOptions='--job-dir --extension --view --language --settings --title --help-file --code-page --now
        --date-format --help'

    case $prev in
        --job-dir) _filedir -d ;;
        --language | --settings | --help-file) _filedir ;;
        --view) _kestedit_words 4 9 15 23 ;;
        --code-page) _kestedit_words 1250 1251 1252 1253 1254 1257 65001 ;;
        --extension | --title | --now | --date-format | --default | --size) ;; # anything goes
        *) _kestedit_next ;;
    esac
}

# Completes a word that is no option's value.
_kestedit_next() {
    if ((cword == 1)); then
        _kestedit_words new edit script ini --help --version
        return
    fi
    case ${words[1]} in
        new | edit) _kestedit_either "$editorOptions" _filedir job ;;
        script)
            if [[ " ${words[*]:2:cword-2} " == *\ @(new|edit)\ * ]]; then
                _kestedit_either "$editorOptions" _filedir
            else
                _kestedit_either "$editorOptions" _kestedit_words new edit
            fi
            ;;
        ini)
            case $cword,${words[2]} in
                2,*) _kestedit_words get set --help ;;
                *,get) _kestedit_either '--default --size --code-page --help' _filedir ;;
                *,set) _kestedit_either '--code-page --help' _filedir ;;
            esac
            ;;
    esac
}

# The options in $1 behind a "-", and otherwise what the command in the other arguments finds.
_kestedit_either() {
    if [[ $cur == -* ]]; then
        # shellcheck disable=SC2086  # options are words
        _kestedit_words $1
    else
        "${@:2}"
    fi
}

_kestedit_words() {
    mapfile -t COMPREPLY < <(compgen -W "$*" -- "$cur")
}

complete -F _kestedit kestedit
