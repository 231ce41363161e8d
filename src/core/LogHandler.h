// The way of every message into the program's log.
#pragma once

#if defined(__GNUC__)
#define QUORIN_PRINTF_FORMAT __attribute__((format(printf, 1, 2)))
#else
#define QUORIN_PRINTF_FORMAT
#endif

// Makes the log the receiver of Qt's messages. Info messages of all threads are kept, one line each; all
// other types are dropped, so that a message of a library never fills the user's disk.
void installLogHandler();

// printf for code without a QString at hand: local 8-bit text of at most 10,239 bytes, logged at info level
// without its line end.
QUORIN_PRINTF_FORMAT void logPrintf(const char *format, ...);
