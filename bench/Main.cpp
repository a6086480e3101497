#define CATCH_CONFIG_RUNNER
#include <catch2/catch.hpp>

#include "Compare.h"

#include <fstream>
#include <iostream>

int main(int argc, char* argv[])
{
    Catch::Session session;
    std::string markdown;
    session.cli(session.cli() |
                Catch::clara::Opt(markdown, "file")["--markdown"]("write the table to this file too"));
    if (const int error = session.applyCommandLine(argc, argv))
        return error;
    std::cout << "Ratios of times, ours to the peer's, as they come in:\n" << std::flush;
    const int failures = session.run();
    if (ComparisonCount() == 0)
        return failures;

    std::cout << '\n';
    WriteTable(std::cout);
    if (markdown.empty())
        return failures;
    std::ofstream file(markdown);
    file << "# Side by side\n\n"
            "Times are medians. The ratio is our time to the peer's (below 1: ours is faster): the geometric "
            "mean over\n"
            "rounds in which both sides ran in turn, without the outer quarters, with the interval that "
            "holds the\n"
            "mean with 95 % confidence and the standard deviation of the rounds. Built with GCC "
         << __VERSION__ << ".\n\n";
    WriteTable(file);
    file.close();
    if (!file) {
        std::cerr << "The table could not be written to " << markdown << '\n';
        return 1;
    }
    return failures;
}
