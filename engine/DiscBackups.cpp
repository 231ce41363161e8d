#include "DiscBackups.h"

#include "LocalFile.h"
#include "NativePath.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace {

// One name for one file, whatever links lead to its folder.
std::string canonical(const std::string &path)
{
    std::error_code error;
    const std::filesystem::path real = std::filesystem::weakly_canonical(nativePath(path), error);
    return error ? path : real.u8string();
}

} // namespace

std::string DiscBackups::nameOf(const std::string &drive)
{
    const char letter = DriveTable::letterOf(drive);
    return letter ? std::string(1, letter) : drive;
}

std::vector<DiscBackups::Job>::const_iterator DiscBackups::find(const std::string &drive) const
{
    const std::string name = nameOf(drive);
    const auto byName =
        std::find_if(m_jobs.begin(), m_jobs.end(), [&](const Job &job) { return job.drive == name; });
    if (byName != m_jobs.end())
        return byName;
    // The same drive under its other name.
    const std::string path = m_drives.resolve(drive);
    return std::find_if(m_jobs.begin(), m_jobs.end(), [&](const Job &job) { return job.path == path; });
}

bool DiscBackups::isWritten(const std::string &target) const
{
    return std::any_of(m_jobs.begin(), m_jobs.end(),
                       [&target](const Job &job) { return job.target == target && job.backup->isRunning(); });
}

std::shared_ptr<DiscBackup> DiscBackups::backupOf(const std::string &drive) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto job = find(drive);
    return job == m_jobs.end() ? nullptr : job->backup;
}

bool DiscBackups::start(const std::string &drive, const std::string &target, bool replace)
{
    const std::lock_guard<std::mutex> starting(m_startMutex);
    const std::string canonicalTarget = canonical(target);
    std::shared_ptr<DiscBackup> earlier;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (isWritten(canonicalTarget))
            return false;
        const auto job = find(drive);
        if (job != m_jobs.end() && job->backup->isRunning())
            return false;
        if (job != m_jobs.end()) {
            earlier = job->backup;
            m_jobs.erase(job);
        }
    }
    earlier.reset();
    const std::string path = m_drives.resolve(drive);
    if (path.empty())
        return false;
    if (LocalFile::kindOf(path) == LocalFile::Kind::Folder) {
        m_log.write("a backup of a disc folder cannot be made, it has no sectors");
        return false;
    }
    std::shared_ptr<DiscBackup> backup = DiscBackup::start(DiscBackup::openSource(path), target, replace);
    if (!backup)
        return false;
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_jobs.push_back({nameOf(drive), path, canonicalTarget, std::move(backup)});
    return true;
}

void DiscBackups::stop(const std::string &drive)
{
    std::shared_ptr<DiscBackup> backup;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto job = find(drive);
        if (job == m_jobs.end())
            return;
        backup = job->backup;
        m_jobs.erase(job);
    }
    // The destructor waits, outside of the lock.
    backup.reset();
}

void DiscBackups::stopAll()
{
    std::vector<Job> jobs;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        jobs.swap(m_jobs);
    }
}

double DiscBackups::progress(const std::string &drive) const
{
    const std::shared_ptr<DiscBackup> backup = backupOf(drive);
    return backup ? backup->progress() : -1.0;
}

bool DiscBackups::isFinished(const std::string &drive) const
{
    const std::shared_ptr<DiscBackup> backup = backupOf(drive);
    return backup && backup->isFinished();
}

bool DiscBackups::isFailed(const std::string &drive) const
{
    const std::shared_ptr<DiscBackup> backup = backupOf(drive);
    return backup && backup->isFailed();
}
