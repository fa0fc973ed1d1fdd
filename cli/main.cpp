// The program `zorvctl`: gives its arguments and streams to cli::hlavni.
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/hlavni.h"

#include "base/slozky.h"

int main(int pocet, char** argumenty) {
    std::vector<std::string> texty(argumenty, argumenty + pocet);
    if (texty.empty()) texty.emplace_back("zorvctl");
    // Called by its bare name or through a link, the program does not see its folder in the
    // argument.
    texty.front() = (base::slozka_programu(texty.front()) / "zorvctl").string();
    return cli::hlavni(
        texty, std::cin, std::cout, std::cerr,
        {isatty(STDIN_FILENO) == 1, isatty(STDOUT_FILENO) == 1, isatty(STDERR_FILENO) == 1});
}
