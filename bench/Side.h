// One of the programs that a benchmark compares: its command, and a home of its own.
#pragma once

#include <string>
#include <vector>

struct Side {
    std::vector<std::string> command;
    std::string home;
    std::vector<std::string> variables;

    Side(std::vector<std::string> line, const std::string &folder, const std::vector<std::string> &more);

    // Makes the folders of the home that are not there yet.
    void makeHome() const;
    // Takes out what an earlier run learned of the clip, so that every run begins at its start. Caches stay,
    // as on a user's machine.
    void forgetClip() const;
};

// Ends the benchmark: what is measured does not behave as it must for a measurement.
[[noreturn]] void giveUp(const Side &side, const char *why);
