// Collects folders that were read and stores them together, since each transaction costs a write to disk.
//
// The thread of the scan. What is left when it goes is not stored: call flush().
#pragma once

#include "store/IScanStore.h"

#include <chrono>

class ScanBatch final {
public:
    explicit ScanBatch(IScanStore &store)
        : m_store(store)
    {
    }

    void add(ScannedFolder &&folder);
    void flush();

private:
    IScanStore &m_store;
    QVector<ScannedFolder> m_folders;
    int m_files{0};
    std::chrono::steady_clock::time_point m_begin;
};
