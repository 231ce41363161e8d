#include "DiscBackup.h"

#include "EngineLog.h"
#include "LocalFile.h"
#include "SourceProbe.h"

#include <algorithm>
#include <exception>
#include <vector>

namespace {

constexpr std::size_t SectorSize = 2048;
constexpr std::size_t ChunkSize = 64 * SectorSize;
constexpr int Tries = 4;

class LocalSource final : public DiscBackup::Source {
public:
    bool open(const std::string &path) { return m_file.open(path, true) && m_file.size() > 0; }
    [[nodiscard]] std::int64_t size() const override { return m_file.size(); }
    std::int64_t readAt(std::int64_t offset, void *buffer, std::size_t bytes) override
    {
        return m_file.readAt(offset, buffer, bytes);
    }

private:
    LocalFile m_file;
};

} // namespace

std::unique_ptr<DiscBackup::Source> DiscBackup::openSource(const std::string &path)
{
    if (LocalFile::kindOf(path) == LocalFile::Kind::Folder || !SourceProbe::isDisc(SourceProbe::form(path)))
        return nullptr;
    auto source = std::make_unique<LocalSource>();
    if (!source->open(path))
        return nullptr;
    return source;
}

std::unique_ptr<DiscBackup> DiscBackup::start(std::unique_ptr<Source> source, const std::string &target,
                                              bool replace)
{
    if (!source || source->size() <= 0)
        return nullptr;
    std::unique_ptr<DiscBackup> backup(new DiscBackup);
    if (!backup->m_file.open(target, replace))
        return nullptr;
    backup->m_size = source->size();
    backup->m_source = std::move(source);
    backup->m_target = target;
    backup->m_thread = std::thread([job = backup.get()] { job->run(); });
    return backup;
}

DiscBackup::~DiscBackup()
{
    m_stop = true;
    if (m_thread.joinable())
        m_thread.join();
}

double DiscBackup::progress() const
{
    if (isFinished())
        return 1.0;
    return m_size > 0 ? double(m_done) / double(m_size) : 0.0;
}

void DiscBackup::run()
{
    bool complete = false;
    try {
        complete = copy() && !m_stop && m_file.commit();
    } catch (const std::exception &error) {
        engineLog("[Backup] %s", error.what());
    }
    if (!complete)
        m_file.discard();
    m_source.reset();
    if (!m_stop || complete)
        engineLog("[Backup] %s: %s", complete ? "complete" : "failed", m_target.c_str());
    m_state = complete ? State::Finished : State::Failed;
}

bool DiscBackup::copy()
{
    std::vector<char> buffer(ChunkSize);
    for (std::int64_t offset = 0; offset < m_size;) {
        if (m_stop)
            return false;
        const auto bytes = static_cast<std::size_t>(std::min<std::int64_t>(ChunkSize, m_size - offset));
        if (!readChunk(offset, bytes, buffer.data()))
            return false;
        if (!m_file.write(buffer.data(), bytes)) {
            engineLog("[Backup] cannot write %s", m_target.c_str());
            return false;
        }
        offset += static_cast<std::int64_t>(bytes);
        m_done = offset;
    }
    return true;
}

bool DiscBackup::readChunk(std::int64_t offset, std::size_t bytes, char *buffer)
{
    if (m_source->readAt(offset, buffer, bytes) == static_cast<std::int64_t>(bytes))
        return true;
    // One bad sector fails the whole chunk: the others come one by one, and the bad one perhaps at a later
    // try.
    for (std::size_t done = 0; done < bytes; done += SectorSize) {
        const std::size_t part = std::min(SectorSize, bytes - done);
        const std::int64_t at = offset + static_cast<std::int64_t>(done);
        int left = Tries;
        while (m_source->readAt(at, buffer + done, part) != static_cast<std::int64_t>(part)) {
            if (--left == 0 || m_stop) {
                engineLog("[Backup] sector %lld cannot be read",
                          static_cast<long long>(at / static_cast<std::int64_t>(SectorSize)));
                return false;
            }
        }
    }
    return true;
}
