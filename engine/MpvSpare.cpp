#include "MpvSpare.h"

#include <algorithm>

namespace {

// Options that the spare has and the wanted ones lack cannot be taken back.
bool covers(const MpvMap &wanted, const MpvMap &had)
{
    return std::all_of(had.begin(), had.end(),
                       [&wanted](const auto &option) { return wanted.find(option.first) != wanted.end(); });
}

bool change(MpvHandle &handle, const MpvMap &had, const MpvMap &wanted)
{
    return std::all_of(wanted.begin(), wanted.end(), [&](const auto &option) {
        const auto before = had.find(option.first);
        return (before != had.end() && before->second == option.second)
               || handle.setNow(option.first, option.second);
    });
}

} // namespace

void MpvSpare::keep(std::unique_ptr<MpvHandle> handle, MpvMap options)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_handle = std::move(handle);
    m_options = std::move(options);
}

MpvValue MpvSpare::read(const std::string &name)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_handle ? m_handle->readNow(name) : MpvValue();
}

std::unique_ptr<MpvHandle> MpvSpare::take(const MpvMap &options)
{
    std::unique_ptr<MpvHandle> handle;
    MpvMap had;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        handle = std::move(m_handle);
        had.swap(m_options);
    }
    if (handle && covers(options, had) && change(*handle, had, options))
        return handle;
    return MpvHandle::create(options);
}
