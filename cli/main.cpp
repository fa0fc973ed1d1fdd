// The program `zorvctl`: gives its arguments and streams to cli::hlavni.
#include <filesystem>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/hlavni.h"

int main(int pocet, char** argumenty) {
    std::vector<std::string> texty(argumenty, argumenty + pocet);
    if (texty.empty()) texty.emplace_back("zorvctl");
    // Called by its bare name, the program learns its own folder from the system alone.
    std::error_code chyba;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", chyba);
    if (!chyba) texty.front() = program.string();
    return cli::hlavni(
        texty, std::cin, std::cout, std::cerr,
        {isatty(STDIN_FILENO) == 1, isatty(STDOUT_FILENO) == 1, isatty(STDERR_FILENO) == 1});
}
