// Writes the manual pages and shell completions of the three programs from
// their command table, at build time, into the folder given.

#include "Entry.h"

#include "cli/CommandDocs.h"

#include <filesystem>
#include <fstream>
#include <iostream>

int main(int argc, char** argv)
{
    using namespace vexel;
    if (argc != 2) {
        std::cerr << "usage: vexel-docs FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder(argv[1]);
    std::filesystem::create_directories(folder / "man");
    std::filesystem::create_directories(folder / "completions");
    for (const auto* program : {&CommandTable::cli(livePlatform()), &CommandTable::app(), &CommandTable::recorder()}) {
        const auto& name = program->name;
        const std::pair<std::filesystem::path, std::string> files[] = {
            {folder / "man" / (name + ".1"), CommandDocs::manPage(*program, programVersion())},
            {folder / "completions" / name, CommandDocs::bashCompletion(*program)},
            {folder / "completions" / ("_" + name), CommandDocs::zshCompletion(*program)},
            {folder / "completions" / (name + ".fish"), CommandDocs::fishCompletion(*program)},
        };
        for (const auto& [file, text] : files) {
            std::ofstream out(file);
            out << text;
            if (!out.flush()) {
                std::cerr << "vexel-docs: couldn't write " << file << "\n";
                return 1;
            }
        }
    }
    return 0;
}
