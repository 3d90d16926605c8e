// SPDX-License-Identifier: MIT
#include "cli/completion/ShellScripts.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>

#include "cli/usage/Choices.h"

namespace mivo::cli {
namespace {

constexpr std::string_view bashScript = R"(# bash completion for mivo
_mivo() {
    local word description
    COMPREPLY=()
    while IFS=$'\t' read -r word description; do
        case $word in
            :files) compopt -o default ;;
            :folders) compopt -o default -o dirnames ;;
            "$2"*) COMPREPLY+=("$word") ;;
        esac
    done < <("$1" --complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2> /dev/null)
}
complete -F _mivo mivo
)";

constexpr std::string_view zshScript = R"(#compdef mivo
# zsh completion for mivo
_mivo() {
    local line
    local -a found
    for line in "${(@f)$("$words[1]" --complete "${(@Q)words[2,CURRENT-1]}" "$PREFIX" 2> /dev/null)}"; do
        case $line in
            :files) compset -P '--*='; _files; return ;;
            :folders) compset -P '--*='; _files -/; return ;;
            ?*) found+=("${${line%%$'\t'*}//:/\\:}:${line#*$'\t'}") ;;
        esac
    done
    _describe mivo found
}
if [ "$funcstack[1]" = _mivo ]; then _mivo "$@"; else compdef _mivo mivo; fi
)";

constexpr std::string_view fishScript = R"(# fish completion for mivo
function __mivo_complete
    set --local typed (commandline --tokenize --cut-at-cursor --current-process)
    set --local token (commandline --current-token --cut-at-cursor)
    set --local found ($typed[1] --complete $typed[2..] "$token" 2> /dev/null)
    set --local option (string match --regex -- '^--[^=]*=' "$token")
    set --local typedName (string replace -- "$option" '' "$token")
    switch "$found[1]"
        case :files
            set found (__fish_complete_path "$typedName")
        case :folders
            set found (__fish_complete_directories "$typedName")
        case '*'
            set option ''
    end
    for each in $found
        printf '%s%s\n' "$option" $each
    end
end
complete --command mivo --no-files --arguments '(__mivo_complete)'
)";

constexpr std::array<Choice<std::string_view>, 3> shells{
    {{"bash", bashScript}, {"zsh", zshScript}, {"fish", fishScript}}};

constexpr const char* examples =
    "Examples:\n"
    "  source <(mivo completion bash)                                       in ~/.bashrc\n"
    "  source <(mivo completion zsh)                                        in ~/.zshrc, behind compinit\n"
    "  mivo completion fish > ~/.config/fish/completions/mivo.fish          once";

}  // namespace

const CLI::App& addCompletion(CLI::App& program, std::string& shell) {
  CLI::App& command = *program.add_subcommand("completion", "Print what makes a shell complete the words of mivo");
  command.footer(examples);
  command.add_option("SHELL", shell, "Which one")
      ->required()
      ->type_name(typeName(namesOf(shells)))
      ->check(CLI::IsMember(namesOf(shells)).description(""));
  return command;
}

std::string shellScript(std::string_view shell) {
  const auto* const found = std::ranges::find(shells, shell, &Choice<std::string_view>::name);
  return found == shells.end() ? "" : std::string{found->value};
}

}  // namespace mivo::cli
