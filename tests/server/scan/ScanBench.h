// A scanner over a folder in memory and a tree on disk, with a reader that counts what is opened and can be
// held up.
#pragma once

#include "FakeStore.h"

#include "scan/FileReader.h"
#include "scan/MusicFolder.h"
#include "scan/Scanner.h"
#include "scan/VideoFolder.h"

#include <QTemporaryDir>

#include <condition_variable>
#include <memory>
#include <mutex>

// Reads as the product does; a file whose name begins with "stuck" is not come back from until release().
class CountingReader final : public IFileReader {
public:
    explicit CountingReader(const QString &imageFolder)
        : m_reader(imageFolder)
    {
    }

    FileFacts read(const FileTask &task, const MediaDeadline &deadline) override;
    QStringList takeOpened();
    // How far behind others the thread stood that read last, as the system counts it.
    int takenNice() const;
    // Threads that are held up.
    int held() const;
    void release();

private:
    FileReader m_reader;
    mutable std::mutex m_mutex;
    std::condition_variable m_released;
    QStringList m_opened;
    int m_nice{0};
    int m_held{0};
    bool m_open{false};
};

class ScanBench {
    QTemporaryDir m_images;
    QTemporaryDir m_tree;
    QObject m_context; // results arrive on the thread of the test

public:
    explicit ScanBench(ProbePool::Limits limits = {});
    ~ScanBench();

    [[nodiscard]] QString root() const { return m_tree.path(); }
    [[nodiscard]] QString path(const QString &name) const { return m_tree.path() + "/" + name; }
    void sound(const QString &name, const QString &format = "mp3") const;
    // The end of the scan is waited for.
    void scanMusic();
    void scanVideo();
    [[nodiscard]] QVector<Scanner::Target> music() const { return {{store.root(musicRoot), true}}; }
    [[nodiscard]] bool waitForEnd();

    // On the thread of the scan, before a folder is listed; set while nothing is scanned.
    Scanner::Enter onEnter;
    FakeStore store;
    std::shared_ptr<CountingReader> reader;
    int musicRoot{0};
    int videoRoot{0};
    RootScan::Result lastResult{RootScan::Result::Complete};
    int finished{0};

    std::unique_ptr<Scanner> scanner; // last: it uses all of the above
};
