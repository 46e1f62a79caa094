#include "cli/CommandDocs.h"

namespace vexel::CommandDocs {

namespace {

using CommandTable::Program;

// Text for roff: a backslash doubled, a leading dot or quote kept from
// being read as a request, dashes of options as real hyphens.
std::string roff(const std::string& text)
{
    std::string out;
    for (const char c : text) {
        if (c == '\\')
            out += "\\e";
        else if (c == '-')
            out += "\\-";
        else
            out += c;
    }
    if (!out.empty() && (out.front() == '.' || out.front() == '\''))
        out.insert(0, "\\&");
    return out;
}

std::string joined(const std::vector<std::string>& words, const std::string& between = " ")
{
    std::string text;
    for (const auto& word : words)
        text += (text.empty() ? "" : between) + word;
    return text;
}

std::string upper(std::string text)
{
    for (auto& c : text)
        c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
    return text;
}

std::vector<std::string> allSpellings(const Program& program)
{
    std::vector<std::string> spellings;
    for (const auto& option : program.options)
        spellings.insert(spellings.end(), option.spellings.begin(), option.spellings.end());
    return spellings;
}

std::vector<std::string> commandNames(const Program& program)
{
    std::vector<std::string> names;
    for (const auto& command : program.commands)
        if (!command.name.empty())
            names.push_back(command.name);
    return names;
}

// The shell function's name: "_vexel_recorder" for vexel-recorder.
std::string functionName(const Program& program)
{
    std::string name = "_" + program.name;
    for (auto& c : name)
        c = c == '-' ? '_' : c;
    return name;
}

} // namespace

std::string manPage(const Program& program, const std::string& version)
{
    std::string page = ".TH " + upper(roff(program.name)) + " 1 \"\" \"Vexel " + version + "\" \"User Commands\"\n";
    page += ".SH NAME\n" + roff(program.name) + " \\- " + roff(program.purpose) + "\n";
    page += ".SH SYNOPSIS\n";
    if (program.commands.empty())
        page += ".B " + roff(program.name) + "\n[\\fIOPTIONS\\fR]\n";
    for (const auto& command : program.commands) {
        page += ".br\n.B " + roff(program.name) + (command.name.empty() ? "" : " " + roff(command.name)) + "\n";
        if (!command.arguments.empty())
            page += roff(command.arguments) + "\n";
    }
    page += ".SH DESCRIPTION\n";
    for (size_t i = 0; i < program.description.size(); ++i)
        page += (i == 0 ? "" : ".PP\n") + roff(program.description[i]) + "\n";
    if (!commandNames(program).empty()) {
        page += ".SH COMMANDS\n";
        for (const auto& command : program.commands)
            page += ".TP\n.B " + roff(command.name) + (command.arguments.empty() ? "" : " " + roff(command.arguments))
                + "\n" + roff(command.summary) + "\n";
    }
    page += ".SH OPTIONS\n";
    for (const auto& option : program.options) {
        std::string spelled;
        for (const auto& spelling : option.spellings)
            spelled += (spelled.empty() ? "\\fB" : ", \\fB") + roff(spelling) + "\\fR";
        if (!option.value.empty())
            spelled += " \\fI" + roff(option.value) + "\\fR";
        page += ".TP\n" + spelled + "\n" + roff(option.summary) + "\n";
    }
    if (!program.environment.empty()) {
        page += ".SH ENVIRONMENT\n";
        for (const auto& variable : program.environment)
            page += ".TP\n.B " + roff(variable.name) + "\n" + roff(variable.summary) + "\n";
    }
    page += ".SH EXIT STATUS\n";
    for (const auto& status : program.exitStatus) {
        const auto space = status.find(' ');
        page += ".TP\n.B " + status.substr(0, space) + "\n" + roff(status.substr(space + 1)) + "\n";
    }
    page += ".SH SEE ALSO\n";
    for (size_t i = 0; i < program.seeAlso.size(); ++i) {
        const auto& see = program.seeAlso[i];
        const auto open = see.find('(');
        page += ".BR " + roff(see.substr(0, open)) + " " + see.substr(open)
            + (i + 1 < program.seeAlso.size() ? " ," : "") + "\n";
    }
    return page;
}

std::string bashCompletion(const Program& program)
{
    const std::string function = functionName(program);
    std::string script = "# bash completion for " + program.name + ", made from its command table.\n";
    script += function + "()\n{\n";
    script += "    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}\n";
    script += "    case $previous in\n";
    for (const auto& option : program.options) {
        if (option.value.empty())
            continue;
        script += "    " + joined(option.spellings, "|") + ")\n";
        if (option.value == "DIR")
            script += "        COMPREPLY=($(compgen -d -- \"$current\"))\n";
        else if (option.value == "PATH")
            script += "        COMPREPLY=($(compgen -f -- \"$current\"))\n";
        else
            script += "        COMPREPLY=($(compgen -W \"" + joined(option.choices) + "\" -- \"$current\"))\n";
        script += "        return ;;\n";
    }
    for (const auto& command : program.commands) {
        if (command.choices.empty())
            continue;
        script += "    " + command.name + ")\n        COMPREPLY=($(compgen -W \"" + joined(command.choices)
            + "\" -- \"$current\"))\n        return ;;\n";
    }
    script += "    esac\n";
    script += "    if [[ $current == -* ]]; then\n        COMPREPLY=($(compgen -W \"" + joined(allSpellings(program))
        + "\" -- \"$current\"))\n";
    const auto names = commandNames(program);
    if (!names.empty())
        script += "    elif ((COMP_CWORD == 1)); then\n        COMPREPLY=($(compgen -W \"" + joined(names)
            + "\" -- \"$current\"))\n";
    script += "    fi\n}\ncomplete -F " + function + " " + program.name + "\n";
    return script;
}

std::string zshCompletion(const Program& program)
{
    std::string script
        = "#compdef " + program.name + "\n# zsh completion for " + program.name + ", made from its command table.\n\n";
    script += "local -a commands\ncommands=(\n";
    for (const auto& command : program.commands)
        if (!command.name.empty())
            script += "  '" + command.name + ":" + command.summary.substr(0, command.summary.find('\'')) + "'\n";
    script += ")\n\n_arguments -s \\\n";
    for (const auto& option : program.options) {
        std::string action;
        if (option.value == "DIR")
            action = ":" + option.value + ":_directories";
        else if (option.value == "PATH")
            action = ":" + option.value + ":_files";
        else if (!option.choices.empty())
            action = ":" + option.value + ":(" + joined(option.choices) + ")";
        else if (!option.value.empty())
            action = ":" + option.value + ":";
        std::string summary = option.summary.substr(0, option.summary.find_first_of("[]':"));
        for (const auto& spelling : option.spellings)
            script += "  '" + spelling + "[" + summary + "]" + action + "' \\\n";
    }
    if (commandNames(program).empty()) {
        script.resize(script.size() - 3);
        return script + "\n";
    }
    script += "  '1:command:{_describe command commands}' \\\n  '*::argument:->argument'\n\n";
    script += "case $state in\nargument)\n  case $words[1] in\n";
    for (const auto& command : program.commands)
        if (!command.choices.empty())
            script += "  " + command.name + ") _values range " + joined(command.choices) + " ;;\n";
    script += "  esac ;;\nesac\n";
    return script;
}

std::string fishCompletion(const Program& program)
{
    std::string script = "# fish completion for " + program.name + ", made from its command table.\n";
    const auto names = commandNames(program);
    const std::string noCommand = "not __fish_seen_subcommand_from " + joined(names);
    for (const auto& command : program.commands) {
        if (command.name.empty())
            continue;
        std::string summary = command.summary;
        for (auto& c : summary)
            c = c == '\'' ? '`' : c;
        script += "complete -c " + program.name + " -f -n '" + noCommand + "' -a " + command.name + " -d '" + summary
            + "'\n";
        if (!command.choices.empty())
            script += "complete -c " + program.name + " -f -n '__fish_seen_subcommand_from " + command.name + "' -a '"
                + joined(command.choices) + "'\n";
    }
    for (const auto& option : program.options) {
        std::string line = "complete -c " + program.name;
        for (const auto& spelling : option.spellings)
            line += spelling.starts_with("--") ? " -l " + spelling.substr(2) : " -s " + spelling.substr(1);
        if (option.value == "DIR" || option.value == "PATH")
            line += " -r -F";
        else if (!option.choices.empty())
            line += " -x -a '" + joined(option.choices) + "'";
        else if (!option.value.empty())
            line += " -x";
        std::string summary = option.summary;
        for (auto& c : summary)
            c = c == '\'' ? '`' : c;
        script += line + " -d '" + summary + "'\n";
    }
    return script;
}

} // namespace vexel::CommandDocs
