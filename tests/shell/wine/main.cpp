// main() of the tests under Wine. With one argument it is the program that has to be ended.
#include "RunProgram.h"

#include <gtest/gtest.h>

#include <windows.h>

int main(int argc, char **argv)
{
    if (argc == 2 && std::string(argv[1]) == kWaitArgument) {
        // Ends by itself some time, should nobody do it.
        constexpr DWORD limitMs = 60000;
        WaitForSingleObject(GetCurrentProcess(), limitMs);
        return 0;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
