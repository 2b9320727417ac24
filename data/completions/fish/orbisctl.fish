# Fish completion for orbisctl, which tells itself what may come next.

function __orbisctl_complete
    set -l words (commandline -opc)
    set -l lines (command $words[1] complete words $words[2..-1] (commandline -ct) 2>/dev/null)
    set -l how $lines[1]
    set -e lines[1]
    switch "$how"
        case files
            __fish_complete_path (commandline -ct)
        case directories
            __fish_complete_directories (commandline -ct)
        case '*'
            printf '%s\n' $lines
    end
end

complete -c orbisctl -f -a '(__orbisctl_complete)'
