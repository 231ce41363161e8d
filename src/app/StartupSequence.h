// The order in which the program comes up and goes down, and the four ways a start can end: a maintenance
// run, a hand-over to a running copy, a window in PC mode, a window in TV mode.
//
// Main thread. Holds the choices of the run for its length.
#pragma once

#include "CommandLine.h"
#include "IStartupServices.h"

class StartupSequence final {
public:
    // Stored values of the launch mode; any other asks.
    enum LaunchMode { AskMode = 0, PcMode = 1, TvMode = 2 };

    static constexpr int ExitNormal = 0;
    static constexpr int ExitNoChoice = 1;

    explicit StartupSequence(IStartupServices &services)
        : m_services(services)
    {
    }

    // Runs the program to its end; the result is what the process returns.
    int run();

private:
    bool runMaintenance(const CommandLine &line);
    // False when the user closed the question.
    bool chooseMode(const CommandLine &line);
    void shutDown();

    IStartupServices &m_services;
    bool m_isPcMode{true};
    WindowStart m_start;
};
